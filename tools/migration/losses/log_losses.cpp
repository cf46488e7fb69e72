#include "migration/losses/log_losses.h"

#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "workbench/import/known_messages.h"
#include "workbench/import/label_import.h"

#include <algorithm>
#include <limits>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

enum class About : quint8 {
    Nothing, ///< counted by other means, or for developers
    Object,  ///< one object that is missing on the label
    Part,    ///< a part of a package; logged once, however many objects show it
    Label,   ///< the complete label
};

// What readers log, by code.
struct LogRow
{
    const char* code;
    About about;
    LossKind kind = LossKind::Other;
    ObjectClass objectClass = ObjectClass::Picture;
};

constexpr auto Unreadable = LossKind::PictureUnreadable;
// As many as are missing.
constexpr qint64 All = std::numeric_limits<qint32>::max();

constexpr LogRow LogRows[] = {
    {messages::ControlUnknown, About::Nothing},
    {messages::DocumentTypeUnsupported, About::Nothing},
    {messages::RecordTypeUnknown, About::Label, LossKind::RestUnread},
    {refusals::ItemRefused, About::Nothing},
    {refusals::DatasourceRefused, About::Label, LossKind::DatasourceUnbound},
    {refusals::PictureUnreadable, About::Object, Unreadable},
    {refusals::PictureTooLarge, About::Object, Unreadable},
    {refusals::PictureFormat, About::Object, Unreadable},
    {refusals::TextTooLong, About::Object, LossKind::OverLimit, ObjectClass::Text},
    {refusals::TooManyItems, About::Label, LossKind::OverLimit},
    {refusals::TooManyNotes, About::Nothing},
    {refusals::PackageUnreadable, About::Nothing},
    {refusals::PackageMemberUnreadable, About::Part, Unreadable},
    {refusals::PackagePictureUnreadable, About::Part, Unreadable},
    {refusals::PackageDrawingUnreadable, About::Part, LossKind::DrawingUnreadable},
};

// The text of the binary reader's message box.
constexpr LogRow BoxRows[] = {
    {messages::SymbolsUnreadable.text, About::Part, LossKind::SymbolUnreadable,
     ObjectClass::Symbol},
    {messages::BarcodesUnsupported.text, About::Part, LossKind::BarcodeUnsupported,
     ObjectClass::Barcode},
    {messages::DatabaseNotConnected.text, About::Label, LossKind::DatabaseUnlinked},
};

template <std::size_t Count>
const LogRow* rowOf(const LogRow (&rows)[Count], const QString& code)
{
    const auto* row =
        std::find_if(std::begin(rows), std::end(rows), [&code](const LogRow& candidate) {
            return code == QLatin1String(candidate.code);
        });
    return row != std::end(rows) ? row : nullptr;
}

void addMissing(LogLosses& losses, ObjectClass objectClass, LossKind kind, qint64 atMost)
{
    QList<Reason>& reasons = losses.reasons[static_cast<std::size_t>(objectClass)];
    const auto same = std::find_if(reasons.begin(), reasons.end(),
                                   [kind](const Reason& reason) { return reason.kind == kind; });
    if (same == reasons.end()) {
        reasons.append({kind, atMost});
    } else {
        same->atMost += atMost;
    }
}

void addLabelTally(LogLosses& losses, LossKind kind, const QString& detail)
{
    Tally& tally = losses.tallies[kind];
    ++tally.count;
    tally.addDetail(detail);
}

void addRow(const LogRow& row, const QString& detail, LogLosses& losses)
{
    switch (row.about) {
    case About::Nothing:
        return;
    case About::Object:
        return addMissing(losses, row.objectClass, row.kind, 1);
    case About::Part:
        return addMissing(losses, row.objectClass, row.kind, All);
    case About::Label:
        return addLabelTally(losses, row.kind, detail);
    }
}

void addRecord(const workbench::LogRecord& record, LogLosses& losses)
{
    if (const LogRow* row = rowOf(LogRows, workbench::recognize(record).code)) {
        addRow(*row, record.message, losses);
    } else if (record.isError) {
        addLabelTally(losses, LossKind::Other, record.message);
    }
}

void addIssue(const workbench::ImportIssue& issue, LogLosses& losses)
{
    if (issue.code == QLatin1String(messages::TextStretched.text)) {
        if (issue.item >= 0) {
            losses.items.append({issue.item, LossKind::TextStretched});
        } else {
            losses.tallies[LossKind::TextStretched].count += issue.repeats;
        }
    } else if (const LogRow* row = rowOf(BoxRows, issue.code)) {
        addRow(*row, {}, losses);
    }
}

} // namespace

LogLosses lossesOfLog(const workbench::ImportResult& result)
{
    LogLosses losses;
    for (const workbench::LogRecord& record : result.log) {
        addRecord(record, losses);
    }
    for (const workbench::ImportIssue& issue : result.issues) {
        addIssue(issue, losses);
    }
    for (const QString& source : result.cutSources) {
        // Arithmetic logs many records, none of them about a loss.
        if (source != "fraction"_L1) {
            addLabelTally(losses, LossKind::LogCut, source);
        }
    }
    return losses;
}

} // namespace migration
