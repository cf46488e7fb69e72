#include "cli/archive_reports.h"

#include "cli/existing_output.h"
#include "cli/file_reports.h"

#include <QDir>
#include <QFileInfo>

namespace cli {

ArchiveReports::ArchiveReports(const QStringList& fileNames, bool namesAll, bool mayOverwrite)
    : m_fileNames(fileNames)
    , m_mayOverwrite(mayOverwrite)
    , m_summary(namesAll)
{
    for (const QString& fileName : fileNames) {
        QDir().mkpath(QFileInfo(fileName).path());
        m_writers.push_back(std::make_unique<migration::ReportWriter>(fileName));
    }
}

QString ArchiveReports::firstProblem() const
{
    for (const QString& fileName : m_fileNames) {
        const QString problem = reportProblem(fileName, m_mayOverwrite);
        if (!problem.isEmpty()) {
            return problem;
        }
    }
    return {};
}

void ArchiveReports::add(const archive::Delivery& delivery)
{
    const migration::FileReport report = finalReport(delivery);
    m_summary.add(report);
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
