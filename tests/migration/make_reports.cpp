// Writes reports on labels into a folder, for tests that look at them with other programs:
//   make_reports FOLDER FILE...
// The reports contain the files, and an artificial entry for every other possible outcome.

#include "migration/file_report_builder.h"
#include "migration/report/report_writer.h"
#include "migration/report/text_report.h"
#include "workbench/document/label_file.h"
#include "workbench/import/label_import.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

workbench::ImportResult opened(const QString& fileName)
{
    workbench::ImportResult result;
    result.canvas = std::make_unique<workbench::Canvas>();
    result.datasources = std::make_unique<workbench::datasources::DatasourceController>();
    result.error = workbench::document::openLabel(fileName, *result.canvas, *result.datasources);
    if (!result.error.isEmpty()) {
        result.canvas.reset();
    }
    return result;
}

FileReport reportOn(const QString& fileName)
{
    const QString name = QFileInfo(fileName).fileName();
    const ReportOptions options{.itemList = qEnvironmentVariableIsSet("MAKE_REPORTS_ITEMS")};
    if (fileName.endsWith(QLatin1String(".label"))) {
        return makeSavedLabelReport(fileName, name, opened(fileName), options);
    }
    return makeFileReport(fileName, name, readerForFile(fileName), workbench::importLabel(fileName),
                          options);
}

FileReport ended(Status status, const QString& name)
{
    FileReport report;
    report.file = name;
    report.status = status;
    report.error = u"It ended as \"%1\" </script> & so on."_s.arg(statusName(status));
    report.reader = u"tavrel"_s;
    return report;
}

} // namespace

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    const QDir folder(arguments.value(1));
    QList<FileReport> reports;
    for (const QString& fileName : arguments.mid(2)) {
        reports.append(reportOn(fileName));
        QTextStream(stdout) << describeAsText(reports.constLast()) << '\n';
    }
    reports.append(ended(Status::Crashed, u"crashed <b>.cnv"_s));
    reports.append(ended(Status::TimedOut, u"slow.odg"_s));
    reports.append(ended(Status::OutOfMemory, u"large.qmtx"_s));
    for (const char* name : {"report.jsonl", "report.html"}) {
        ReportWriter writer(folder.filePath(QString::fromLatin1(name)));
        for (const FileReport& report : reports) {
            writer.add(report);
        }
        const QString error = writer.finish();
        if (!error.isEmpty()) {
            QTextStream(stderr) << error << '\n';
            return 1;
        }
    }
    return 0;
}
