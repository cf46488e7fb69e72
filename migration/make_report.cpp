#include "migration/make_report.h"

#include "migration/losses/label_facts.h"
#include "workbench/import/label_import.h"

#include <QFileInfo>

namespace migration {

namespace {

QString nameOf(ReaderKind reader)
{
    switch (reader) {
    case ReaderKind::Orvanta:
        return QStringLiteral("orvanta");
    case ReaderKind::OpenDocument:
        return QStringLiteral("opendocument");
    case ReaderKind::Tavrel:
        break;
    }
    return QStringLiteral("tavrel");
}

FileReport basicReport(const QString& fileName, const QString& shownName, const QString& reader,
                       const workbench::ImportResult& result, const ReportOptions& options)
{
    FileReport report;
    report.file = shownName;
    report.bytes = QFileInfo(fileName).size();
    report.reader = reader;
    report.error = result.error;
    if (!result.isImported()) {
        return report;
    }
    report.status = Status::Imported;
    describeLabel(result, report);
    if (options.itemList) {
        report.itemList = itemListOf(*result.canvas);
    }
    if (options.thumbnail) {
        report.thumbnail = thumbnailOf(*result.canvas);
    }
    return report;
}

} // namespace

FileReport makeFileReport(const QString& fileName, const QString& shownName, ReaderKind reader,
                          const workbench::ImportResult& result, const ReportOptions& options)
{
    return basicReport(fileName, shownName, nameOf(reader), result, options);
}

FileReport makeSavedLabelReport(const QString& fileName, const QString& shownName,
                                const workbench::ImportResult& result, const ReportOptions& options)
{
    return basicReport(fileName, shownName, QStringLiteral("label"), result, options);
}

} // namespace migration
