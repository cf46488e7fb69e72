#include "window/output/output_commands.h"

#include "window/label/prompts.h"
#include "window/output/export_dialog.h"
#include "window/output/output_job.h"
#include "window/output/print_dialog.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QProgressDialog>
#include <QSaveFile>
#include <QTemporaryDir>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

struct OutputCommandsTr
{
    Q_DECLARE_TR_FUNCTIONS(window::OutputCommands)
};

// Short operations show no progress dialog.
class ProgressWindow
{
public:
    ProgressWindow(const QString& title, qint64 count, QWidget* window)
        : m_dialog(title, OutputCommandsTr::tr("Stop"), 0, static_cast<int>(count), window)
    {
        m_dialog.setWindowTitle(title);
        m_dialog.setWindowModality(Qt::WindowModal);
        m_dialog.setMinimumDuration(500);
    }

    bool isNotCanceled(qint64 done)
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

QString resultMessage(const OutputReport& report, const OutputOrder& order)
{
    if (report.wasStopped) {
        return OutputCommandsTr::tr("Stopped after %n file(s)", nullptr, report.files);
    }
    return report.files == 1 ? OutputCommandsTr::tr("Written: %1").arg(fileNameInSeries(order, 0))
                             : OutputCommandsTr::tr("%n file(s) written", nullptr, report.files);
}

void showFindings(const exporting::ExportFindings& findings, const QString& result,
                  const Prompts& prompts)
{
    QStringList lines;
    for (const exporting::ExportFinding& finding : findings.all()) {
        lines.append(exporting::describe(finding));
    }
    if (!lines.isEmpty()) {
        prompts.showResult(result, lines.join(u'\n'));
    }
}

// A file that the user has chosen; empty if the user canceled.
QString askPdfFile(const OpenLabel& label, QWidget* window)
{
    return QFileDialog::getSaveFileName(window, OutputCommandsTr::tr("Print to PDF"),
                                        suggestedBase(label) + u".pdf"_s,
                                        OutputCommandsTr::tr("PDF documents (*.pdf)"));
}

// The documents of different papers: "shelf.pdf", "shelf-2.pdf".
QString moveDocuments(const QList<printing::PrintDocument>& documents, const QString& fileName)
{
    const QFileInfo info(fileName);
    for (qsizetype index = 0; index < documents.size(); ++index) {
        const QString name = index == 0 ? fileName
                                        : info.dir().filePath(u"%1-%2.pdf"_s.arg(
                                              info.completeBaseName(), QString::number(index + 1)));
        QFile source(documents.at(index).file);
        QSaveFile target(name);
        if (!source.open(QIODevice::ReadOnly) || !target.open(QIODevice::WriteOnly) ||
            target.write(source.readAll()) != source.size() || !target.commit()) {
            return OutputCommandsTr::tr("Cannot write \"%1\": %2.").arg(name, target.errorString());
        }
    }
    return {};
}

QString submitDocuments(const QList<printing::PrintDocument>& documents, const QString& title,
                        const QString& printer, const PrintServer& server)
{
    for (const printing::PrintDocument& document : documents) {
        const printing::Submission submission =
            server.submit({document.file, printer, title, document.media});
        if (!submission.error.isEmpty()) {
            return submission.error;
        }
    }
    return {};
}

OutputReport printAll(PrintDialog& dialog, const OpenLabel& label, const QString& pdfFile,
                      const PrintServer& server, const Progress& progress)
{
    OutputReport report;
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        report.error =
            OutputCommandsTr::tr("Cannot create a temporary folder: %1.").arg(folder.errorString());
        return report;
    }
    QList<printing::PrintDocument> documents;
    report = dialog.write(folder.path(), progress, documents);
    if (report.error.isEmpty()) {
        report.error = pdfFile.isEmpty() ? submitDocuments(documents, displayName(label),
                                                           dialog.printer(), server)
                                         : moveDocuments(documents, pdfFile);
    }
    return report;
}

} // namespace

QString exportLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts, QWidget* window)
{
    ExportDialog dialog(suggestedBase(label), label.sources->recordCount(), shownRecord, window);
    if (dialog.exec() != QDialog::Accepted) {
        return {};
    }
    const OutputOrder order = dialog.order();
    ProgressWindow progress(OutputCommandsTr::tr("Exporting"), order.records.count, window);
    const OutputReport report = writeOutput(
        label, order, [&progress](qint64 done) { return progress.isNotCanceled(done); });
    showRecord(label, shownRecord);
    if (!report.error.isEmpty()) {
        prompts.showError(OutputCommandsTr::tr("The label could not be exported."), report.error);
        return {};
    }
    const QString result = resultMessage(report, order);
    showFindings(report.findings, result, prompts);
    return result;
}

QString printLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts, QWidget* window,
                   const PrintServer& server)
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    const printing::Printers printers = server.findPrinters();
    QGuiApplication::restoreOverrideCursor();
    PrintDialog dialog(label, shownRecord, printers, window);
    const bool isAccepted = dialog.exec() == QDialog::Accepted;
    const QString pdfFile =
        isAccepted && dialog.printer().isEmpty() ? askPdfFile(label, window) : QString();
    if (!isAccepted || (dialog.printer().isEmpty() && pdfFile.isEmpty())) {
        showRecord(label, shownRecord);
        return {};
    }
    ProgressWindow progress(OutputCommandsTr::tr("Printing"), dialog.batch()->labels(), window);
    const OutputReport report = printAll(dialog, label, pdfFile, server, [&progress](qint64 done) {
        return progress.isNotCanceled(done);
    });
    showRecord(label, shownRecord);
    if (!report.error.isEmpty()) {
        prompts.showError(OutputCommandsTr::tr("The label could not be printed."), report.error);
        return {};
    }
    if (report.wasStopped) {
        return OutputCommandsTr::tr("Printing was stopped");
    }
    const int pages = static_cast<int>(dialog.batch()->pages());
    return pdfFile.isEmpty()
               ? OutputCommandsTr::tr("%n page(s) given to printer %1", nullptr, pages)
                     .arg(dialog.printer())
               : OutputCommandsTr::tr("Written: %1").arg(pdfFile);
}

} // namespace window
