#include "cli/import_worker.h"

#include "archive/memory_limit.h"
#include "cli/file_reports.h"
#include "cli/job_options.h"
#include "cli/label_input.h"
#include "cli/label_writer.h"
#include "cli/print_worker.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QHash>

#include <algorithm>
#include <new>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

// One for each text.
QStringList warningsOf(const QList<migration::IssueReport>& issues)
{
    QStringList texts;
    QHash<QString, int> repeats;
    for (const migration::IssueReport& issue : issues) {
        if (!repeats.contains(issue.text)) {
            texts.append(issue.text);
        }
        repeats[issue.text] += issue.repeats;
    }
    for (QString& text : texts) {
        if (const int count = repeats.value(text); count > 1) {
            text = QCoreApplication::translate("cli::ImportWorker", "%1 (%2 times)")
                       .arg(text)
                       .arg(count);
        }
    }
    return texts;
}

// "new/shelf.png" becomes "new/shelf-2.png".
QString nameOfPage(const QString& output, const QString& mark, int page)
{
    const QFileInfo info(output);
    return QDir::cleanPath(info.dir().filePath(info.completeBaseName() + mark +
                                               QString::number(page) + u'.' + info.suffix()));
}

QList<migration::ExportReport> exportReports(const QList<exporting::ExportFinding>& findings)
{
    QList<migration::ExportReport> reports;
    for (const exporting::ExportFinding& finding : findings) {
        reports.append({exporting::nameOf(exporting::Target::Glabels),
                        exporting::nameOf(finding.fidelity), finding.kind, finding.text,
                        finding.count});
    }
    return reports;
}

/// One file: its label, and those of its further pages.
class FileImport
{
public:
    FileImport(const archive::Job& job, archive::Heartbeat heartbeat, int maximumPages)
        : m_job(job)
        , m_maximumPages(maximumPages)
        , m_options(jobOptionsFromJson(job.options))
        , m_input(job.file, job.shownName, m_options.reader)
        , m_report(m_input, job.shownName, {m_options.thumbnail, m_options.items})
        , m_heartbeat(std::move(heartbeat))
    {}

    /// Select the reader, import, describe and compare, write.
    archive::FileResult run()
    {
        std::shared_ptr<repair::DocumentRepair> document;
        {
            OpenedLabel label = openLabel(m_input, m_options.asWritten);
            m_heartbeat();
            take(label, 1);
            document = std::move(label.document);
        }
        if (document != nullptr) {
            importFurtherPages(*document);
        }
        migration::FileReport report = m_report.finish();
        report.exports = exportReports(m_exports.all());
        m_result.warnings = warningsOf(report.issues) + m_result.warnings;
        m_result.report = migration::toJson(report);
        return m_result;
    }

private:
    // One after the other, so that only one is in memory.
    void importFurtherPages(repair::DocumentRepair& document)
    {
        // Pages that are full add further ones.
        for (int page = 2; page <= std::min(document.pageCount(), m_maximumPages); ++page) {
            OpenedLabel label = openFurtherPage(document, page);
            m_heartbeat();
            if (label.isOpen()) {
                take(label, page);
            } else {
                m_report.leaveOutPages(1);
                m_result.warnings.append(QCoreApplication::translate(
                                             "cli::ImportWorker", "Page %1 could not be imported.")
                                             .arg(page));
            }
        }
        if (document.pageCount() > m_maximumPages) {
            m_report.leaveOutPages(document.pageCount() - m_maximumPages);
            m_result.warnings.append(
                QCoreApplication::translate(
                    "cli::ImportWorker",
                    "Only the first %1 pages were imported; the document has more.")
                    .arg(m_maximumPages));
        }
    }

    void take(OpenedLabel& label, int page)
    {
        m_report.add(label);
        m_heartbeat();
        if (label.isOpen()) {
            write(label, page);
            m_result.outcome = m_result.errors.isEmpty() ? archive::FileOutcome::Done
                                                         : archive::FileOutcome::Failed;
        } else {
            m_result.errors.append(label.error.replace(m_input.path(), m_job.file));
            m_result.outcome = label.isOutOfMemory ? archive::FileOutcome::OutOfMemory
                                                   : archive::FileOutcome::Failed;
        }
    }

    void write(OpenedLabel& label, int page)
    {
        LabelWriter writer(label, {m_options, page}, m_job.staging, m_heartbeat);
        for (const archive::PlannedFile& output : m_job.outputs) {
            const std::optional<exporting::Target> target = exporting::targetOfName(output.target);
            if (target) {
                const QString path =
                    page == 1 ? output.path : nameOfPage(output.path, m_job.pageMark, page);
                Written written = writer.write(*target, path);
                m_result.files += written.files;
                m_exports.add(written.findings);
                m_result.errors +=
                    written.error.isEmpty() ? QStringList() : QStringList{written.error};
            }
        }
    }

    const archive::Job& m_job;
    int m_maximumPages;
    JobOptions m_options;
    LabelInput m_input;
    WorkerReport m_report;
    exporting::ExportFindings m_exports;
    archive::Heartbeat m_heartbeat;
    archive::FileResult m_result;
};

} // namespace

archive::FileResult importJob(const archive::Job& job, const archive::Heartbeat& heartbeat,
                              int maximumPages)
{
    try {
        archive::FileResult result = isPrintJob(job)
                                         ? writePrintDocuments(job, heartbeat)
                                         : FileImport(job, heartbeat, maximumPages).run();
        // No event loop runs here that would delete these objects.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return result;
    } catch (const std::bad_alloc&) {
        archive::exitOutOfMemory();
    }
}

archive::WorkerCommand workerCommand(int memoryMiB)
{
    // The program that runs now, even if a new version has replaced the file.
    return {u"/proc/self/exe"_s,
            {QString::fromLatin1(WorkerCommandName), QString::number(memoryMiB)}};
}

QString sandboxProblem()
{
    const sandbox::Confinement offered = sandbox::supported();
    return offered.isComplete()
               ? QString()
               : QCoreApplication::translate("cli::ImportWorker",
                                             "This system has no complete sandbox, which "
                                             "--require-sandbox demands. It has: %1.")
                     .arg(sandbox::describe(offered));
}

int runImportWorker(const QStringList& arguments)
{
    return arguments.size() == 1 ? archive::runWorker([](const archive::Job& job,
                                                         const archive::Heartbeat& heartbeat) {
        return importJob(job, heartbeat, repair::MaximumPages);
    })
                                 : archive::WorkerExitBroken;
}

} // namespace cli
