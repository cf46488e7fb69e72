#include "migration/losses/log_losses.h"

#include "workbench/import/label_import.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <vector>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

enum class About : quint8 {
    Nothing, ///< counted apart from the log, or for developers
    Missing, ///< an object of a class that is not on the label
    Label,   ///< the label as a whole
};

// What readers write into the log, by how it begins or what it holds.
struct Row
{
    const char* pattern;
    About about;
    LossKind kind = LossKind::Other;
    ObjectClass objectClass = ObjectClass::Shape;
};

constexpr auto kPicture = LossKind::PictureUnreadable;
constexpr auto kLimit = LossKind::OverLimit;
// As many as are missing.
constexpr qint64 kAll = std::numeric_limits<qint32>::max();

constexpr Row kRows[] = {
    {"^Not processing:", About::Nothing},
    {"^Unsupported document type", About::Nothing},
    {"^Invalid type: ", About::Label, LossKind::RestUnread},
    {"^A picture is damaged or too large", About::Missing, kPicture, ObjectClass::Picture},
    {"^The picture .* cannot be decoded", About::Missing, kPicture, ObjectClass::Picture},
    {"^The package has no member", About::Missing, kPicture, ObjectClass::Picture},
    {"^The package's member .* is (too large|damaged)", About::Missing, kPicture,
     ObjectClass::Picture},
    {"^The drawing .* cannot be converted", About::Missing, LossKind::DrawingUnreadable,
     ObjectClass::Picture},
    {"^Left out of the label: .*the host made no item", About::Nothing},
    {"^Left out of the label: (a|the) pictures? ", About::Missing, kPicture, ObjectClass::Picture},
    {"^Left out of the label: ", About::Label, kLimit},
    {"^The host (made|gives) no item", About::Nothing},
    {"^A text of .* is left out", About::Missing, kLimit, ObjectClass::Text},
    {"^Too many items", About::Label, kLimit},
    {"^Too many notes", About::Nothing},
};

const Row* rowOf(const QString& message)
{
    static const auto patterns = [] {
        std::vector<QRegularExpression> made;
        for (const Row& row : kRows) {
            made.emplace_back(QString::fromLatin1(row.pattern),
                              QRegularExpression::DotMatchesEverythingOption);
        }
        return made;
    }();
    for (std::size_t index = 0; index < patterns.size(); ++index) {
        if (patterns[index].match(message).hasMatch()) {
            return &kRows[index];
        }
    }
    return nullptr;
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

void takeRecord(const workbench::LogRecord& record, LogLosses& losses)
{
    const Row* row = rowOf(record.message);
    if (row == nullptr) {
        if (record.isError) {
            addLabelTally(losses, LossKind::Other, record.message);
        }
        return;
    }
    if (row->about == About::Missing) {
        // A part of a package is tried once and told of once, however many objects show it.
        const bool isShared = record.source == "open_office_reader.cpp"_L1 &&
                              row->objectClass == ObjectClass::Picture;
        addMissing(losses, row->objectClass, row->kind, isShared ? kAll : 1);
    } else if (row->about == About::Label) {
        addLabelTally(losses, row->kind, record.message);
    }
}

// The first line of a sentence of the binary reader's message box, in the program's language.
QString boxLine(const char* sentence)
{
    const QString text =
        QCoreApplication::translate("QObject", sentence, "Content of error message.");
    return text.section(u'\n', 0, 0);
}

void takeIssue(const workbench::ImportIssue& issue, LogLosses& losses)
{
    if (issue.text.startsWith(u'"')) {
        if (issue.item >= 0) {
            losses.items.append({issue.item, LossKind::TextStretched});
        } else {
            losses.tallies[LossKind::TextStretched].count += issue.repeats;
        }
    } else if (issue.text == boxLine("Errors reading symbol items.\nPlease update legacy Tavrel to "
                                     "its latest version and re-save file.")) {
        addMissing(losses, ObjectClass::Symbol, LossKind::SymbolUnreadable, kAll);
    } else if (issue.text == boxLine("Unsupported barcode symbols.")) {
        addMissing(losses, ObjectClass::Barcode, LossKind::BarcodeUnsupported, kAll);
    } else if (issue.text == boxLine("Datasource not connected.")) {
        addLabelTally(losses, LossKind::DatabaseUnlinked, {});
    }
}

} // namespace

LogLosses lossesOfLog(const workbench::ImportResult& result)
{
    LogLosses losses;
    for (const workbench::LogRecord& record : result.log) {
        takeRecord(record, losses);
    }
    for (const workbench::ImportIssue& issue : result.issues) {
        takeIssue(issue, losses);
    }
    for (const QString& source : result.cutSources) {
        // Arithmetic writes much, and never of a loss.
        if (source != "fraction.cpp"_L1) {
            addLabelTally(losses, LossKind::LogCut, source);
        }
    }
    return losses;
}

} // namespace migration
