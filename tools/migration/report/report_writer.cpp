#include "migration/report/report_writer.h"

#include "migration/report/report_output.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace migration {

namespace {

std::unique_ptr<ReportOutput> outputFor(const QString& fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    const bool isPage = suffix == QLatin1String("html") || suffix == QLatin1String("htm");
    return isPage ? makeHtmlOutput(fileName) : makeJsonLinesOutput(fileName);
}

} // namespace

ReportWriter::ReportWriter(const QString& fileName)
    : m_output(outputFor(fileName))
{}

ReportWriter::~ReportWriter() = default;

void ReportWriter::setNote(const QString& note)
{
    m_output->setNote(note);
}

void ReportWriter::add(const FileReport& report)
{
    m_output->add(report);
}

QString ReportWriter::finish()
{
    return m_output->finish();
}

QString cannotWrite(const QString& fileName, const QString& reason)
{
    return QCoreApplication::translate("migration::ReportWriter",
                                       "Cannot write the report \"%1\": %2.")
        .arg(fileName, reason);
}

} // namespace migration
