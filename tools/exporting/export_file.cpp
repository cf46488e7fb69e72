#include "exporting/export_file.h"

#include "exporting/glabels_export.h"
#include "exporting/records_csv.h"
#include "exporting/zpl.h"
#include "printing/print_document.h"
#include "printing/sheet_presets.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_image.h"

#include <QCoreApplication>

namespace exporting {
namespace {

using namespace Qt::StringLiterals;

QString writePicture(const ExportJob& job, const QString& fileName)
{
    workbench::PageImage page =
        workbench::renderPage(job.canvas, valueOf(job.options, Target::Png, DpiOption));
    if (!page.error.isEmpty()) {
        return page.error;
    }
    // Identifies our outputs.
    // no translation: a keyword of PNG
    page.image.setText(u"Software"_s, QLatin1String(SoftwareMark));
    return workbench::writePng(page.image, fileName);
}

QString writeDocument(const ExportJob& job, const QString& fileName)
{
    const auto value = [&job](QLatin1String name) {
        return valueOf(job.options, Target::Pdf, name);
    };
    const QSizeF size = printing::labelSize(job.canvas);
    const printing::PrintLayout layout{
        printing::sheetOfName(job.options.value(SheetOption).toString(), size),
        value(FirstPositionOption) - 1, value(CopiesOption), value(CropMarksOption) != 0};
    if (layout.sheet && printing::fitOf(*layout.sheet, size) == printing::Fit::TooLarge) {
        return printing::misfitMessage(*layout.sheet, size);
    }
    const QString problem = printing::problemOf(layout, job.recordCount);
    if (!problem.isEmpty()) {
        return problem;
    }
    const auto show = [&job](qint64 page) {
        return prepareRecord(job, page) ? &job.canvas : nullptr;
    };
    return printing::writePrintDocument(fileName, job.title, layout,
                                        {job.recordCount, job.canvas.page().size, show});
}

} // namespace

QString exportFile(Target target, const ExportJob& job, const QString& fileName)
{
    const bool isOneRecord = entryOf(target).records == RecordFiles::FileForEach;
    if (isOneRecord && !prepareRecord(job, 0)) {
        return {};
    }
    switch (target) {
    case Target::Png:
        return writePicture(job, fileName);
    case Target::Svg:
        return workbench::writeSvg(job.canvas, fileName, job.title);
    case Target::Pdf:
        return writeDocument(job, fileName);
    case Target::Zpl:
        return writeZpl(job, fileName);
    case Target::Csv:
        return writeRecordsCsv(job, fileName);
    case Target::Glabels:
        return writeGlabels(job, fileName);
    case Target::Label:
        break;
    }
    Q_UNREACHABLE();
}

bool prepareRecord(const ExportJob& job, qint64 page)
{
    if (!job.beforeRecord(page)) {
        return false;
    }
    showRecord(job.canvas, job.sources, job.firstRecord + page);
    return true;
}

QString cannotWrite(const QString& fileName, const QString& reason)
{
    return QCoreApplication::translate("exporting::ExportFile", "Cannot write \"%1\": %2.")
        .arg(fileName, reason);
}

void showRecord(workbench::Canvas& canvas,
                const workbench::datasources::DatasourceController& sources, qint64 record)
{
    canvas.showRecord(record, [&sources](int id, qint64 wanted, const QStringList& fields) {
        return sources.recordText(id, wanted, fields);
    });
}

} // namespace exporting
