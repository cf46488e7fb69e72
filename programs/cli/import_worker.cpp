#include "cli/import_worker.h"

#include "archive/memory_limit.h"
#include "cli/file_reports.h"
#include "cli/job_options.h"
#include "cli/label_input.h"
#include "cli/label_writer.h"
#include "cli/print_worker.h"

#include <QCoreApplication>
#include <QEvent>

#include <new>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

QStringList warningsOf(const OpenedLabel& label)
{
    QStringList warnings;
    for (const workbench::ImportIssue& issue : label.issues) {
        warnings.append(issue.repeats > 1
                            ? QCoreApplication::translate("cli::ImportWorker", "%1 (%2 times)")
                                  .arg(issue.text)
                                  .arg(issue.repeats)
                            : issue.text);
    }
    return warnings;
}

void writeAll(OpenedLabel& label, const archive::Job& job, const JobOptions& options,
              const archive::Heartbeat& heartbeat, archive::FileResult& result)
{
    LabelWriter writer(label, {options, job.known}, job.staging, heartbeat);
    for (const archive::PlannedFile& output : job.outputs) {
        const std::optional<exporting::Target> target = exporting::targetOfName(output.target);
        if (target) {
            Written written = writer.write(*target, output.path);
            result.files += written.files;
            result.errors += written.error.isEmpty() ? QStringList() : QStringList{written.error};
        }
    }
}

/// One file: select the reader, import, describe and compare, write.
archive::FileResult importFile(const archive::Job& job, const archive::Heartbeat& heartbeat)
{
    const JobOptions options = jobOptionsFromJson(job.options);
    const LabelInput input(job.file, job.shownName, options.reader);
    OpenedLabel label = openLabel(input);
    heartbeat();
    archive::FileResult result;
    result.warnings = warningsOf(label);
    // Before anything is written, because that shows other records on the canvas.
    result.report = migration::toJson(
        reportOn(input, label, job.shownName, {options.thumbnail, options.items}));
    heartbeat();
    if (label.isOpen()) {
        writeAll(label, job, options, heartbeat, result);
        result.outcome =
            result.errors.isEmpty() ? archive::FileOutcome::Done : archive::FileOutcome::Failed;
    } else {
        result.errors.append(label.error.replace(input.path(), job.file));
        result.outcome =
            label.isOutOfMemory ? archive::FileOutcome::OutOfMemory : archive::FileOutcome::Failed;
    }
    return result;
}

} // namespace

archive::FileResult importJob(const archive::Job& job, const archive::Heartbeat& heartbeat)
{
    try {
        archive::FileResult result =
            isPrintJob(job) ? writePrintDocuments(job, heartbeat) : importFile(job, heartbeat);
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

int runImportWorker(const QStringList& arguments)
{
    return arguments.size() == 1 ? archive::runWorker(&importJob) : archive::WorkerExitBroken;
}

} // namespace cli
