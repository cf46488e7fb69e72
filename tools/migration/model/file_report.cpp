#include "migration/model/file_report.h"

#include "migration/model/loss_kinds.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace migration {

namespace {

struct StatusRow
{
    Status status;
    QLatin1String name;
};

constexpr std::array Statuses{
    StatusRow{Status::Imported, QLatin1String("imported")},
    StatusRow{Status::Failed, QLatin1String("failed")},
    StatusRow{Status::Crashed, QLatin1String("crashed")},
    StatusRow{Status::TimedOut, QLatin1String("timed-out")},
    StatusRow{Status::OutOfMemory, QLatin1String("out-of-memory")},
};

struct VerdictRow
{
    QLatin1String name;
    const char* words;
    /// Follows the number of objects; may be null.
    const char* sentence;
};

#define TEXT(text) QT_TRANSLATE_NOOP("migration::Summary", text)
// In the order of the enumeration.
constexpr std::array VerdictRows{
    VerdictRow{QLatin1String("complete"), TEXT("imported completely"),
               TEXT("Nothing was lost or changed.")},
    VerdictRow{QLatin1String("changed"), TEXT("imported with changes"),
               TEXT("The content is complete; looks changed.")},
    VerdictRow{QLatin1String("lossy"), TEXT("imported with losses"),
               TEXT("Content was lost or changed.")},
    VerdictRow{QLatin1String("failed"), TEXT("failed"), nullptr},
};
#undef TEXT
static_assert(VerdictRows.size() == Verdicts);

bool affectsContent(const Finding& finding)
{
    const LossRow* row = lossRowOf(finding.code);
    // A code of a newer program: better a warning too many.
    return row == nullptr || row->impact == Impact::Content;
}

struct FileReportTr
{
    Q_DECLARE_TR_FUNCTIONS(migration::Summary)
};

QString verdictSentence(Verdict verdict)
{
    const char* const sentence = VerdictRows.at(static_cast<std::size_t>(verdict)).sentence;
    return sentence != nullptr ? FileReportTr::tr(sentence) : QString();
}

} // namespace

QString statusName(Status status)
{
    const auto* found =
        std::find_if(Statuses.begin(), Statuses.end(),
                     [status](const StatusRow& row) { return row.status == status; });
    return found != Statuses.end() ? QString(found->name) : u"failed"_s;
}

std::optional<Status> statusOfName(const QString& name)
{
    const auto* found = std::find_if(Statuses.begin(), Statuses.end(),
                                     [&name](const StatusRow& row) { return row.name == name; });
    return found != Statuses.end() ? std::optional(found->status) : std::nullopt;
}

Verdict verdictOf(const FileReport& report)
{
    if (report.status != Status::Imported) {
        return Verdict::Failed;
    }
    const bool isContentAffected =
        std::any_of(report.lost.begin(), report.lost.end(), affectsContent) ||
        std::any_of(report.changed.begin(), report.changed.end(), affectsContent);
    if (isContentAffected || !report.objects.inFile) {
        return Verdict::Lossy;
    }
    return report.lost.isEmpty() && report.changed.isEmpty() ? Verdict::Complete : Verdict::Changed;
}

QString verdictName(Verdict verdict)
{
    return VerdictRows.at(static_cast<std::size_t>(verdict)).name;
}

QString verdictText(Verdict verdict)
{
    return FileReportTr::tr(VerdictRows.at(static_cast<std::size_t>(verdict)).words);
}

bool hasLoss(const FileReport& report)
{
    const Verdict verdict = verdictOf(report);
    return verdict == Verdict::Lossy || verdict == Verdict::Failed;
}

qint64 objectsLost(const FileReport& report)
{
    return report.objects.inFile
               ? std::max<qint64>(0, *report.objects.inFile - report.objects.imported)
               : 0;
}

QString countSentence(const FileReport& report)
{
    if (!report.objects.inFile) {
        return FileReportTr::tr(
                   "Objects imported: %1 (the number of objects in the file is unknown).")
            .arg(report.objects.imported);
    }
    return FileReportTr::tr("Imported %1 of %2 objects.")
        .arg(report.objects.imported)
        .arg(*report.objects.inFile);
}

QString summaryOf(const FileReport& report)
{
    if (report.status != Status::Imported) {
        return FileReportTr::tr("Not imported: %1").arg(report.error);
    }
    QString summary = countSentence(report);
    if (const QString more = verdictSentence(verdictOf(report)); !more.isEmpty()) {
        summary += QLatin1Char(' ') + more;
    }
    return summary;
}

} // namespace migration
