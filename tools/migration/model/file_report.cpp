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

bool harmsContent(const Finding& finding)
{
    const LossRow* row = lossRowOf(finding.code);
    // A code of a newer program: better a warning too many.
    return row == nullptr || row->harm == Harm::Content;
}

QString tr(const char* text)
{
    return QCoreApplication::translate("migration::Summary", text);
}

QString countSentence(const FileReport& report)
{
    if (!report.objects.inFile) {
        return tr("Objects imported: %1 (the number of objects in the file is unknown).")
            .arg(report.objects.imported);
    }
    return tr("Imported %1 of %2 objects.")
        .arg(report.objects.imported)
        .arg(*report.objects.inFile);
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

bool hasLoss(const FileReport& report)
{
    return report.status != Status::Imported ||
           std::any_of(report.lost.begin(), report.lost.end(), harmsContent) ||
           std::any_of(report.changed.begin(), report.changed.end(), harmsContent);
}

bool isWhole(const FileReport& report)
{
    return report.status == Status::Imported && report.objects.inFile.has_value() &&
           report.lost.isEmpty() && report.changed.isEmpty();
}

qint64 objectsLost(const FileReport& report)
{
    return report.objects.inFile
               ? std::max<qint64>(0, *report.objects.inFile - report.objects.imported)
               : 0;
}

QString summaryOf(const FileReport& report)
{
    if (report.status != Status::Imported) {
        return tr("Not imported: %1").arg(report.error);
    }
    if (isWhole(report)) {
        return countSentence(report) + QLatin1Char(' ') + tr("Nothing was lost or changed.");
    }
    if (report.lost.isEmpty()) {
        return countSentence(report) + QLatin1Char(' ') +
               tr("Nothing was lost; looks or content changed.");
    }
    return countSentence(report);
}

} // namespace migration
