#include "cli/import_worker.h"

#include "cli/file_reports.h"
#include "cli/job_options.h"
#include "cli/label_writer.h"
#include "cli/opened_label.h"
#include "archive/memory_bound.h"

#include <QCoreApplication>
#include <QEvent>

#include <new>

namespace cli {
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
              const archive::SignOfLife& alive, archive::FileResult& result)
{
    LabelWriter writer(label, {options.dpi, options.records, options.force, job.known}, job.staging,
                       alive);
    for (const archive::PlannedFile& output : job.outputs) {
        const std::optional<Target> target = targetOfName(output.target);
        if (target) {
            Written written = writer.write(*target, output.path);
            result.files += written.files;
            result.errors += written.error.isEmpty() ? QStringList() : QStringList{written.error};
        }
    }
}

archive::FileResult importFile(const archive::Job& job, const archive::SignOfLife& alive)
{
    const JobOptions options = jobOptionsFromJson(job.options);
    archive::FileResult result;
    OpenedLabel label = openAnyLabel(job.file, options.reader);
    alive();
    result.warnings = warningsOf(label);
    if (options.report) {
        // Before anything is written: that brings other records on the canvas.
        result.report = migration::toJson(reportOn(label, job, options.items));
        alive();
    }
    if (label.isOpen()) {
        writeAll(label, job, options, alive, result);
        result.fate = result.errors.isEmpty() ? archive::Fate::Done : archive::Fate::Failed;
    } else {
        result.errors.append(label.error);
        result.fate = label.isOutOfMemory ? archive::Fate::OutOfMemory : archive::Fate::Failed;
    }
    return result;
}

} // namespace

archive::FileResult importJob(const archive::Job& job, const archive::SignOfLife& alive)
{
    try {
        archive::FileResult result = importFile(job, alive);
        // No event loop runs here, and what is to be deleted by one would wait for ever.
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return result;
    } catch (const std::bad_alloc&) {
        archive::endForWantOfMemory();
    }
}

archive::WorkerCommand workerCommand(int memoryMiB)
{
    // The very file that runs now, even if a new version has taken its name meanwhile.
    return {QStringLiteral("/proc/self/exe"),
            {QString::fromLatin1(WorkerCommandName), QString::number(memoryMiB)}};
}

int runImportWorker(const QStringList& arguments)
{
    return arguments.size() == 1 ? archive::runWorker(&importJob) : archive::WorkerExitBroken;
}

} // namespace cli
