#include "archive/run.h"

#include "archive/checked_result.h"
#include "archive/publish.h"
#include "console/file_name.h"

#include <QCoreApplication>
#include <QDir>
#include <QTimer>

#include <algorithm>

namespace archive {
namespace {

/// Time for the current files after the run was asked to stop.
constexpr int GraceMilliseconds = 3'000;

/// A file that takes longer is named in the progress.
constexpr qint64 SlowMilliseconds = 3'000;

QString nameClashMessage(const QString& output)
{
    return QCoreApplication::translate(
               "archive::Run",
               "Another input has the same name; both would become \"%1\". Keep their subfolders "
               "with --base, or use different --output-dir folders.")
        .arg(output);
}

} // namespace

Run::Run(const Inputs& inputs, RunSettings settings, Deliver deliver)
    : m_inputs(inputs)
    , m_settings(std::move(settings))
    , m_deliver(std::move(deliver))
    , m_names(m_settings.isPart
                  ? OutputNames(m_inputs, m_settings.targets + m_settings.tables, m_settings.names)
                  : OutputNames(m_inputs, m_settings.targets + m_settings.tables))
{
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        m_progress.total += takes(index) ? 1 : 0;
    }
}

Run::~Run() = default;

bool Run::takes(qsizetype index) const
{
    return m_settings.isPart || m_settings.shard.takes(index);
}

QString Run::open()
{
    const QString error = m_staging.open(m_settings.outputFolder);
    if (!error.isEmpty() || !m_settings.keepsJournal) {
        return error;
    }
    return m_journal.open(m_settings.outputFolder, m_settings.shard, m_inputs,
                          m_settings.isResuming);
}

void Run::start()
{
    m_elapsed.start();
    PoolClient& client = *this;
    m_pool = std::make_unique<WorkerPool>(client, m_settings.command, m_settings.limits,
                                          m_settings.workers);
    // Queued, because the pool is deleted when all is finished.
    connect(m_pool.get(), &WorkerPool::drained, this, &Run::finish, Qt::QueuedConnection);
    connect(m_pool.get(), &WorkerPool::broken, this, &Run::noteBroken, Qt::QueuedConnection);
    m_pool->start();
}

void Run::stop()
{
    if (!m_isStopped) {
        m_isStopped = true;
        QTimer::singleShot(GraceMilliseconds, this, &Run::finish);
        m_pool->stopTaking();
    }
}

void Run::stopAtOnce()
{
    m_isStopped = true;
    finish();
}

Progress Run::progress() const
{
    Progress progress = m_progress;
    progress.milliseconds = m_elapsed.isValid() ? m_elapsed.elapsed() : 0;
    const auto oldest =
        std::min_element(m_work.begin(), m_work.end(),
                         [](const Work& a, const Work& b) { return a.begun < b.begun; });
    if (oldest != m_work.end() && progress.milliseconds - oldest->begun >= SlowMilliseconds) {
        progress.slowFile = m_inputs.at(oldest.key()).shownName;
        progress.slowMilliseconds = progress.milliseconds - oldest->begun;
    }
    return progress;
}

std::optional<qsizetype> Run::nextTask()
{
    while (m_cursor < m_inputs.size() && !m_results.isFull() && !m_isStopped) {
        const qsizetype index = m_cursor++;
        if (!takes(index)) {
            m_results.skip(index);
        } else if (!finishWithoutWorker(index)) {
            return index;
        }
        deliverReady();
    }
    return std::nullopt;
}

bool Run::finishWithoutWorker(qsizetype index)
{
    if (m_names.isConflicting(index)) {
        const QString output = m_names.output(index, m_settings.targets.first());
        recordFailure(index, FileOutcome::Failed, nameClashMessage(inOutputFolder(output)));
        return true;
    }
    if (m_settings.isResuming && isDoneAlready(index)) {
        m_resumed.insert(index);
        ++m_progress.skipped;
        recordResult(index, {FileOutcome::Done, {}, {}, {}, {}, 0}, 0);
        return true;
    }
    return false;
}

QStringList Run::plannedOutputs(qsizetype index) const
{
    QStringList outputs;
    for (const QString& target : m_settings.targets) {
        outputs.append(m_names.output(index, target));
    }
    return outputs;
}

QString Run::fingerprint(qsizetype index) const
{
    return fingerprintOf(m_settings.options, plannedOutputs(index));
}

QString Run::outputPath(qsizetype index, const QString& target) const
{
    return m_settings.outputFile.isEmpty() ? inOutputFolder(m_names.output(index, target))
                                           : m_settings.outputFile;
}

QList<PlannedFile> Run::plannedFiles(qsizetype index) const
{
    QList<PlannedFile> files;
    for (const QString& target : m_settings.targets) {
        files.append({target, outputPath(index, target)});
    }
    return files;
}

QString Run::inOutputFolder(const QString& path) const
{
    return QDir::cleanPath(QDir(m_settings.outputFolder).filePath(path));
}

bool Run::isDoneAlready(qsizetype index)
{
    const std::optional<FileStamp> stamp = stampOf(console::absolutePath(m_inputs.at(index).path));
    const std::optional<JournalRecord> record = m_journal.find(index, fingerprint(index));
    return stamp && record &&
           isDone(*record, {*stamp, record->options, m_settings.version, m_settings.outputFolder,
                            m_settings.needsReports});
}

QByteArray Run::startLineFor(int slot)
{
    return archive::lineOf(WorkerStart{{m_settings.readable, {m_staging.emptySlot(slot)}},
                                       m_settings.requiresSandbox});
}

void Run::workerStarted(const sandbox::Confinement& confinement)
{
    m_confinement = sandbox::common(m_confinement.value_or(confinement), confinement);
}

QByteArray Run::lineFor(qsizetype task, int slot)
{
    const Input input = m_inputs.at(task);
    const QString path = console::absolutePath(input.path);
    const Work work{stampOf(path).value_or(FileStamp{path}), m_elapsed.elapsed(),
                    m_staging.emptySlot(slot),
                    untouchedOutputs(m_journal.outputsOf(task), m_settings.outputFolder)};
    m_work.insert(task, work);

    Job job;
    job.file = input.path;
    job.shownName = input.shownName;
    job.staging = work.staging;
    job.options = m_settings.options;
    for (auto entry = m_settings.workerOptions.begin(); entry != m_settings.workerOptions.end();
         ++entry) {
        job.options.insert(entry.key(), entry.value());
    }
    job.outputs = plannedFiles(task);
    job.pageMark = m_names.pageMark(task);
    return archive::lineOf(job);
}

qint64 Run::taskAnswered(qsizetype task, const QByteArray& line)
{
    std::optional<FileResult> result = resultFromLine(line);
    const Work work = m_work.value(task);
    if (!result || !checkFiles(*result, work.staging, plannedFiles(task))) {
        taskFailed(task, {WorkerEnd::Garbled, 0});
        return 0;
    }
    nameMemoryLimit(*result, m_settings.limits);
    const qint64 memory = result->memory;
    // Before the outputs are published: every output in place is in the journal, whichever process
    // is killed.
    remember(task, *result);
    publishAll(*result, [&](const QString& path) { return mayReplace(work, path); });
    recordResult(task, std::move(*result), line.size());
    return memory;
}

bool Run::mayReplace(const Work& work, const QString& path) const
{
    const std::optional<FileStamp> stamp = stampOf(path);
    return (stamp && work.known.contains(*stamp)) ||
           (m_settings.mayReplace && m_settings.mayReplace(path));
}

void Run::taskFailed(qsizetype task, const WorkerEnd& end)
{
    recordFailure(task, outcomeOf(end), messageFor(end, m_settings.limits));
}

} // namespace archive
