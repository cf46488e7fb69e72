#include "window/output/output_commands.h"

#include "window/label/prompts.h"
#include "window/output/export_dialog.h"
#include "window/output/output_job.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>

#include <algorithm>

namespace window {

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(window::OutputCommands)
};

// Short operations show no progress dialog.
class ProgressWindow
{
public:
    ProgressWindow(const QString& title, qint64 count, QWidget* window)
        : m_dialog(title, Words::tr("Stop"), 0, static_cast<int>(count), window)
    {
        m_dialog.setWindowTitle(title);
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumDuration(500);
    }

    bool isWanted(qint64 done)
    {
        m_dialog.setValue(static_cast<int>(done));
        return !m_dialog.wasCanceled();
    }

private:
    QProgressDialog m_dialog;
};

QString suggestedBase(const OpenLabel& label)
{
    const QFileInfo info(label.fileName.isEmpty() ? label.suggestedName : label.fileName);
    return info.dir().filePath(info.completeBaseName());
}

QString told(const OutputReport& report, const OutputOrder& order)
{
    if (report.wasStopped) {
        return Words::tr("Stopped after %1 files").arg(report.files);
    }
    return report.files == 1 ? Words::tr("Written: %1").arg(fileNameInSeries(order, 0))
                             : Words::tr("%1 files written").arg(report.files);
}

// The pages of the print dialog are the records.
RecordRange recordsOf(const QPrinter& printer, qint64 shownRecord, qint64 count)
{
    switch (printer.printRange()) {
    case QPrinter::PageRange: {
        const qint64 first = std::clamp<qint64>(printer.fromPage(), 1, count) - 1;
        const qint64 last = std::clamp<qint64>(printer.toPage(), first + 1, count);
        return {first, last - first};
    }
    case QPrinter::AllPages:
        return {0, count};
    default:
        return {shownRecord, 1};
    }
}

void offerPages(QPrinter& printer, const OpenLabel& label)
{
    // Label printers accept any paper size; for others the user selects the paper.
    printer.setFullPage(true);
    printer.setPageSize(
        QPageSize(label.canvas->page().size, QPageSize::Point, {}, QPageSize::ExactMatch));
    printer.setDocName(displayName(label));
}

void offerRecords(QPrintDialog& dialog, qint64 count)
{
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, count > 1);
    dialog.setMinMax(1, static_cast<int>(count));
    dialog.setFromTo(1, static_cast<int>(count));
    dialog.setPrintRange(QAbstractPrintDialog::CurrentPage);
}

} // namespace

QString exportLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts, QWidget* window)
{
    ExportDialog dialog(suggestedBase(label), label.sources->recordCount(), shownRecord, window);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const OutputOrder order = dialog.order();
    ProgressWindow progress(Words::tr("Exporting"), order.records.count, window);
    const OutputReport report =
        writeOutput(label, order, [&progress](qint64 done) { return progress.isWanted(done); });
    showRecord(label, shownRecord);
    if (!report.error.isEmpty()) {
        prompts.showError(Words::tr("The label could not be exported."), report.error);
        return {};
    }
    return told(report, order);
}

QString printLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts, QWidget* window)
{
    const qint64 count = std::min(label.sources->recordCount(), MaximumRecords);
    QPrinter printer(QPrinter::HighResolution);
    offerPages(printer, label);
    QPrintDialog dialog(&printer, window);
    offerRecords(dialog, count);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const RecordRange records = recordsOf(printer, shownRecord, count);
    ProgressWindow progress(Words::tr("Printing"), records.count, window);
    const OutputReport report = printOutput(
        label, printer, records, [&progress](qint64 done) { return progress.isWanted(done); });
    showRecord(label, shownRecord);
    if (!report.error.isEmpty()) {
        prompts.showError(Words::tr("The label could not be printed."), report.error);
        return {};
    }
    return report.wasStopped ? Words::tr("Printing was stopped")
                             : Words::tr("%1 pages were given to the printer").arg(records.count);
}

} // namespace window
