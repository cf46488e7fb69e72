#include "cli/archive_reports.h"

#include "cli/file_reports.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace cli {

ArchiveReports::ArchiveReports(const QStringList& fileNames, bool isLooking)
    : m_fileNames(fileNames)
    , m_isLooking(isLooking || !fileNames.isEmpty())
{
    for (const QString& fileName : fileNames) {
        QDir().mkpath(QFileInfo(fileName).path());
        m_writers.push_back(std::make_unique<migration::ReportWriter>(fileName));
    }
}

QString ArchiveReports::obstacle() const
{
    for (const QString& fileName : m_fileNames) {
        const QFileInfo info(fileName);
        const QFileInfo folder(info.path());
        if (!folder.isDir() || !folder.isWritable() || info.isDir()) {
            return QCoreApplication::translate("cli::ArchiveReports",
                                               "The report %1 cannot be written.")
                .arg(fileName);
        }
    }
    return {};
}

void ArchiveReports::add(const archive::Delivery& delivery)
{
    if (!m_isLooking) {
        return;
    }
    const migration::FileReport report = finalReport(delivery);
    m_losses += migration::hasLoss(report) ? 1 : 0;
    for (const auto& writer : m_writers) {
        writer->add(report);
    }
}

QStringList ArchiveReports::finish()
{
    QStringList errors;
    for (const auto& writer : m_writers) {
        const QString error = writer->finish();
        errors += error.isEmpty() ? QStringList() : QStringList{error};
    }
    return errors;
}

} // namespace cli
