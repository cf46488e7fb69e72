// The outcomes of a run: journal, order, delivery, end.

#include "archive/run.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QDir>

namespace archive {

JournalRecord Run::recordFor(qsizetype index, const FileResult& result)
{
    const QString path = console::absolutePath(m_inputs.at(index).path);
    JournalRecord record;
    const auto work = m_work.constFind(index);
    record.input = work != m_work.constEnd() ? work->stamp : FileStamp{path};
    record.options = fingerprint(index);
    record.version = m_settings.version;
    record.outcome = result.outcome;
    record.errors = result.errors;
    record.report = result.report;
    const QDir folder(console::absolutePath(m_settings.outputFolder));
    for (const StagedFile& file : result.files) {
        FileStamp stamp = file.output;
        stamp.path = folder.relativeFilePath(console::absolutePath(stamp.path));
        record.outputs.append(stamp);
    }
    return record;
}

void Run::remember(qsizetype index, const FileResult& result)
{
    if (m_journal.isOpen() && !m_journal.append(recordFor(index, result)) && m_warnings.isEmpty()) {
        m_warnings.append(QCoreApplication::translate(
            "archive::Run", "Cannot write the journal in the output folder; --resume will import "
                            "some files again."));
    }
    m_work.remove(index);
}

void Run::recordFailure(qsizetype index, FileOutcome outcome, const QString& error)
{
    FileResult result{outcome, {}, {error}, {}, {}, 0};
    remember(index, result);
    recordResult(index, std::move(result), error.size());
}

void Run::recordResult(qsizetype index, FileResult result, qint64 size)
{
    ++m_progress.done;
    m_progress.failed += result.outcome == FileOutcome::Done ? 0 : 1;
    m_results.add(index, std::move(result), size);
    deliverReady();
    Q_EMIT advanced();
}

void Run::deliverReady()
{
    while (std::optional<OrderedResults::Finished> next = m_results.takeNext()) {
        deliver(next->index, std::move(next->result));
    }
}

void Run::deliver(qsizetype index, FileResult result)
{
    const bool isResumed = m_resumed.remove(index);
    if (const auto record = isResumed ? m_journal.find(index, fingerprint(index)) : std::nullopt) {
        result.report = record->report;
        for (const FileStamp& output : record->outputs) {
            result.files.append({{}, output});
            result.files.last().output.path = inOutputFolder(output.path);
        }
    }
    QStringList written;
    for (const StagedFile& file : result.files) {
        written.append(file.output.path);
    }
    m_deliver({m_inputs.at(index), result, written, isResumed,
               m_confinement.value_or(sandbox::Confinement{})});
}

void Run::noteBroken()
{
    m_isBroken = true;
    m_warnings.append(QCoreApplication::translate(
        "archive::Run", "Cannot start the worker processes, or they exit at once. Try a larger "
                        "--memory-limit."));
    finish();
}

void Run::finish()
{
    if (m_isFinished) {
        return;
    }
    m_isFinished = true;
    m_pool.reset();
    // After a stop some results wait for files that are never imported; their outputs exist.
    while (std::optional<OrderedResults::Finished> left = m_results.takeAny()) {
        deliver(left->index, std::move(left->result));
    }
    m_staging.close();
    Q_EMIT finished();
}

} // namespace archive
