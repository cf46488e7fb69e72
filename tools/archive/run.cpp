#include "archive/run.h"

#include "archive/publish.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QTimer>

namespace archive {
namespace {

/// How long files in work may still take after the run was asked to stop.
constexpr int GraceMilliseconds = 3'000;

QString contestedWords(const QString& output)
{
    return QCoreApplication::translate(
               "archive::Run",
               "another of the given files has the same name, so both would become %1; import "
               "them into different folders with --output-dir")
        .arg(output);
}

} // namespace

Run::Run(const QList<Input>& inputs, RunSettings settings, Deliver deliver)
    : m_inputs(inputs)
    , m_settings(std::move(settings))
    , m_deliver(std::move(deliver))
    , m_names(m_inputs, m_settings.targets)
{
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        m_progress.total += m_settings.shard.takes(index) ? 1 : 0;
    }
}

Run::~Run() = default;

QString Run::open()
{
    const QString error = m_staging.open(m_settings.outputFolder);
    if (!error.isEmpty() || !m_settings.keepsJournal) {
        return error;
    }
    return m_journal.open(m_settings.outputFolder, m_settings.shard, m_inputs);
}

void Run::start()
{
    m_elapsed.start();
    PoolClient& client = *this;
    m_pool = std::make_unique<WorkerPool>(client, m_settings.command, m_settings.limits,
                                          m_settings.workers);
    // Later, because the pool goes when all is finished.
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
    return progress;
}

std::optional<qsizetype> Run::nextTask()
{
    while (m_cursor < m_inputs.size() && !m_results.isFull() && !m_isStopped) {
        const qsizetype index = m_cursor++;
        if (!m_settings.shard.takes(index)) {
            m_results.skip(index);
        } else if (!settleAtOnce(index)) {
            return index;
        }
        deliverReady();
    }
    return std::nullopt;
}

bool Run::settleAtOnce(qsizetype index)
{
    if (m_names.isContested(index)) {
        const QString output = m_names.output(index, m_settings.targets.first());
        lose(index, Fate::Failed, contestedWords(inOutputFolder(output)));
        return true;
    }
    if (m_settings.isResuming && isDoneAlready(index)) {
        m_resumed.insert(index);
        ++m_progress.skipped;
        settle(index, {Fate::Done, {}, {}, {}, {}, 0}, 0);
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

QString Run::inOutputFolder(const QString& path) const
{
    return QDir::cleanPath(QDir(m_settings.outputFolder).filePath(path));
}

bool Run::isDoneAlready(qsizetype index)
{
    const QString path = QFileInfo(m_inputs.at(index).path).absoluteFilePath();
    const std::optional<FileStamp> stamp = stampOf(path);
    const std::optional<JournalRecord> record = m_journal.find(index);
    return stamp && record &&
           isDone(*record, {*stamp, fingerprintOf(m_settings.options, plannedOutputs(index)),
                            m_settings.version, m_settings.outputFolder, m_settings.needsReports});
}

QByteArray Run::lineFor(qsizetype task, int slot)
{
    const Input& input = m_inputs.at(task);
    const QString path = QFileInfo(input.path).absoluteFilePath();
    m_stamps.insert(task, stampOf(path).value_or(FileStamp{path}));

    Job job;
    job.file = input.path;
    job.shownName = input.shownName;
    job.staging = m_staging.emptySlot(slot);
    job.options = m_settings.options;
    for (auto entry = m_settings.manner.begin(); entry != m_settings.manner.end(); ++entry) {
        job.options.insert(entry.key(), entry.value());
    }
    for (const QString& target : m_settings.targets) {
        job.outputs.append({target, inOutputFolder(m_names.output(task, target))});
    }
    if (const std::optional<JournalRecord> record = m_journal.find(task)) {
        job.known = untouchedOutputs(*record, m_settings.outputFolder);
    }
    return archive::lineOf(job);
}

qint64 Run::taskAnswered(qsizetype task, const QByteArray& line)
{
    std::optional<FileResult> result = resultFromLine(line);
    if (!result) {
        taskDied(task, {WorkerDeath::Garbled, 0});
        return 0;
    }
    const qint64 memory = result->memory;
    // Before the outputs stand: a file that is in its place is always known to be ours.
    remember(task, *result);
    publishAll(*result);
    settle(task, std::move(*result), line.size());
    return memory;
}

void Run::publishAll(FileResult& result) const
{
    QList<StagedFile> published;
    for (const StagedFile& file : std::as_const(result.files)) {
        const QString error = publishOver(file);
        if (error.isEmpty()) {
            published.append(file);
        } else {
            result.errors.append(error);
            result.fate = result.fate == Fate::Done ? Fate::Failed : result.fate;
        }
    }
    result.files = published;
}

QString Run::publishOver(StagedFile file) const
{
    const QString error = publish(file);
    // Another command may have put the same output there since the worker looked.
    const bool isInTheWay = !error.isEmpty() && !file.mayReplace && m_settings.mayReplace &&
                            m_settings.mayReplace(file.output.path);
    if (!isInTheWay) {
        return error;
    }
    file.mayReplace = true;
    return publish(file);
}

void Run::taskDied(qsizetype task, const WorkerDeath& death)
{
    lose(task, fateOf(death), wordsFor(death, m_settings.limits));
}

JournalRecord Run::recordFor(qsizetype index, const FileResult& result)
{
    const QString path = QFileInfo(m_inputs.at(index).path).absoluteFilePath();
    JournalRecord record;
    record.input = m_stamps.value(index, FileStamp{path});
    record.options = fingerprintOf(m_settings.options, plannedOutputs(index));
    record.version = m_settings.version;
    record.fate = result.fate;
    record.errors = result.errors;
    record.report = result.report;
    const QDir folder(m_settings.outputFolder);
    for (const StagedFile& file : result.files) {
        FileStamp stamp = file.output;
        stamp.path = folder.relativeFilePath(QFileInfo(stamp.path).absoluteFilePath());
        record.outputs.append(stamp);
    }
    return record;
}

void Run::remember(qsizetype index, const FileResult& result)
{
    if (m_journal.isOpen() && !m_journal.append(recordFor(index, result)) && m_troubles.isEmpty()) {
        m_troubles.append(QCoreApplication::translate(
            "archive::Run", "The journal in the output folder cannot be written, so --resume "
                            "will do some files again."));
    }
    m_stamps.remove(index);
}

void Run::lose(qsizetype index, Fate fate, const QString& error)
{
    FileResult result{fate, {}, {error}, {}, {}, 0};
    remember(index, result);
    settle(index, std::move(result), error.size());
}

void Run::settle(qsizetype index, FileResult result, qint64 size)
{
    ++m_progress.done;
    m_progress.failed += result.fate == Fate::Done ? 0 : 1;
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
    if (const auto record = isResumed ? m_journal.find(index) : std::nullopt) {
        result.report = record->report;
        for (const FileStamp& output : record->outputs) {
            result.files.append({{}, output, false});
            result.files.last().output.path = inOutputFolder(output.path);
        }
    }
    QStringList written;
    for (const StagedFile& file : result.files) {
        written.append(file.output.path);
    }
    m_deliver({m_inputs.at(index), result, written, isResumed});
}

void Run::noteBroken()
{
    m_isBroken = true;
    m_troubles.append(QCoreApplication::translate(
        "archive::Run", "The processes that import files cannot be started, or end at once. A "
                        "larger --memory-limit may help."));
    finish();
}

void Run::finish()
{
    if (m_isFinished) {
        return;
    }
    m_isFinished = true;
    m_pool.reset();
    // After a stop there are results whose turn never comes; their outputs stand all the same.
    while (std::optional<OrderedResults::Finished> left = m_results.takeAny()) {
        deliver(left->index, std::move(left->result));
    }
    m_staging.close();
    Q_EMIT finished();
}

} // namespace archive
