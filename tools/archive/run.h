#pragma once

#include "archive/input.h"
#include "archive/journal.h"
#include "archive/messages.h"
#include "archive/ordered_results.h"
#include "archive/output_names.h"
#include "archive/progress.h"
#include "archive/shard.h"
#include "archive/staging_area.h"
#include "archive/worker_pool.h"

#include <QElapsedTimer>
#include <QHash>
#include <QJsonObject>
#include <QObject>
#include <QSet>

#include <functional>

namespace archive {

/// What is done with all files.
struct RunSettings
{
    QStringList targets; ///< names, which are suffixes too
    QString outputFolder;
    Shard shard;
    QJsonObject options; ///< handed to workers; files that were done with others are done again
    QJsonObject manner;  ///< handed to workers as well; changes nothing of what is written
    QString version;     ///< of the program; files that another one did are done again
    bool isResuming = false;
    bool keepsJournal = false;
    bool needsReports = false;
    int workers = 1;
    WorkerCommand command;
    WorkerLimits limits;
    /// Whether a file that appeared where an output is to stand may be replaced.
    std::function<bool(const QString& path)> mayReplace;
};

/// What became of one file, told when it is its turn.
struct Delivery
{
    const Input& input;
    const FileResult& result;
    QStringList written;    ///< the outputs that stand now, in the order of the targets
    bool isResumed = false; ///< an earlier command did it
};

/// Imports many files: hands them to workers, puts what they wrote in its place, remembers
/// what is done, and tells in the order of the inputs what became of each.
///
/// Results and their order depend on nothing but the files. Of each file that waits only a
/// few bytes are kept.
class Run final : public QObject, private PoolClient
{
    Q_OBJECT

public:
    using Deliver = std::function<void(const Delivery&)>;

    /// @param inputs  must outlive the run
    Run(const QList<Input>& inputs, RunSettings settings, Deliver deliver);
    ~Run() override;

    /// Prepares the output folder. @return why nothing can be done, for a person; else empty
    [[nodiscard]] QString open();
    /// Begins; finished() comes later.
    void start();
    /// Begins no more files; finished() comes when those in work are done or took too long.
    void stop();
    /// Ends those in work too.
    void stopAtOnce();

    [[nodiscard]] Progress progress() const;
    [[nodiscard]] bool isStopped() const { return m_isStopped; }
    /// Whether files were left undone because no worker could be started.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }
    /// What kept the whole run from going on, or is to be known of it, for a person.
    [[nodiscard]] const QStringList& troubles() const { return m_troubles; }

Q_SIGNALS:
    /// Something came on; progress() is new.
    void advanced();
    void finished();

private:
    std::optional<qsizetype> nextTask() override;
    QByteArray lineFor(qsizetype task, int slot) override;
    qint64 taskAnswered(qsizetype task, const QByteArray& line) override;
    void taskDied(qsizetype task, const WorkerDeath& death) override;

    [[nodiscard]] bool settleAtOnce(qsizetype index);
    [[nodiscard]] QStringList plannedOutputs(qsizetype index) const;
    [[nodiscard]] QString inOutputFolder(const QString& path) const;
    [[nodiscard]] bool isDoneAlready(qsizetype index);
    [[nodiscard]] JournalRecord recordFor(qsizetype index, const FileResult& result);
    void remember(qsizetype index, const FileResult& result);
    void publishAll(FileResult& result) const;
    [[nodiscard]] QString publishOver(StagedFile file) const;
    void settle(qsizetype index, FileResult result, qint64 size);
    void lose(qsizetype index, Fate fate, const QString& error);
    void deliverReady();
    void deliver(qsizetype index, FileResult result);
    void noteBroken();
    void finish();

    const QList<Input>& m_inputs;
    RunSettings m_settings;
    Deliver m_deliver;
    OutputNames m_names;
    StagingArea m_staging;
    Journal m_journal;
    std::unique_ptr<WorkerPool> m_pool;
    OrderedResults m_results;
    QSet<qsizetype> m_resumed;            ///< waiting results that the journal knows
    QHash<qsizetype, FileStamp> m_stamps; ///< of the files in work, when they were begun
    qsizetype m_cursor = 0;
    Progress m_progress;
    QElapsedTimer m_elapsed;
    QStringList m_troubles;
    bool m_isStopped = false;
    bool m_isBroken = false;
    bool m_isFinished = false;
};

} // namespace archive
