#pragma once

#include "archive/input_list.h"
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

/// How all files are imported.
struct RunSettings
{
    QStringList targets; ///< names, which are the suffixes of the outputs
    QStringList tables;  ///< suffixes of the tables that outputs may have next to them
    QString outputFolder;
    QString outputFile; ///< in that folder: the output of the only input and target; may be empty
    Shard shard;
    /// The names of the outputs, if they were chosen over a complete archive.
    QList<OutputName> names;
    bool isPart = false;       ///< the inputs are those of the shard only
    QJsonObject options;       ///< for workers; files imported with others are imported again
    QJsonObject workerOptions; ///< for workers; without influence on the outputs
    QString version;           ///< of the program; files imported by another are imported again
    bool isResuming = false;
    bool keepsJournal = false;
    bool needsReports = false;
    int workers = 1;
    WorkerCommand command;
    WorkerLimits limits;
    QStringList readable;         ///< files and folders of the inputs, see sandbox::Permissions
    bool requiresSandbox = false; ///< without a complete sandbox no file is imported
    /// Whether an existing file may be replaced by an output. Outputs of earlier commands that have
    /// not been touched may be.
    std::function<bool(const QString& path)> mayReplace;
};

/// The outcome of one file, delivered in the order of the inputs.
struct Delivery
{
    const Input& input;
    const FileResult& result;
    QStringList written;    ///< outputs that exist now, in the order of the targets
    bool isResumed = false; ///< imported by an earlier command
    /// The parts that are active in all workers so far.
    sandbox::Confinement confinement = {};
};

/// Imports many files: hands them to workers, publishes their outputs, keeps the journal, and
/// delivers the outcomes in the order of the inputs.
///
/// Results and their order depend on the files only. A file that waits takes a few bytes.
class Run final : public QObject, private PoolClient
{
    Q_OBJECT

public:
    using Deliver = std::function<void(const Delivery&)>;

    /// @param inputs  must outlive the run
    Run(const Inputs& inputs, RunSettings settings, Deliver deliver);
    ~Run() override;

    /// Prepares the output folder. @return a message for the user if that failed; else empty
    [[nodiscard]] QString open();
    /// Starts the run; finished() is emitted at its end.
    void start();
    /// Starts no more files. finished() is emitted when the current files are done or timed out.
    void stop();
    /// Starts no more files, and ends the workers of the current ones.
    void stopAtOnce();

    [[nodiscard]] Progress progress() const;
    [[nodiscard]] bool isStopped() const { return m_isStopped; }
    /// Whether files were not imported because no worker could be started.
    [[nodiscard]] bool isBroken() const { return m_isBroken; }
    /// Messages for the user about the complete run.
    [[nodiscard]] const QStringList& warnings() const { return m_warnings; }

Q_SIGNALS:
    /// progress() has changed.
    void advanced();
    void finished();

private:
    std::optional<qsizetype> nextTask() override;
    QByteArray startLineFor(int slot) override;
    void workerStarted(const sandbox::Confinement& confinement) override;
    QByteArray lineFor(qsizetype task, int slot) override;
    qint64 taskAnswered(qsizetype task, const QByteArray& line) override;
    void taskFailed(qsizetype task, const WorkerEnd& end) override;

    /// A file that a worker imports, as it was at the start.
    struct Work
    {
        FileStamp stamp;
        qint64 begun = 0; ///< milliseconds of m_elapsed
        QString staging;
        QList<FileStamp> known; ///< untouched outputs of earlier commands
    };

    [[nodiscard]] bool takes(qsizetype index) const;
    [[nodiscard]] bool finishWithoutWorker(qsizetype index);
    [[nodiscard]] QStringList plannedOutputs(qsizetype index) const;
    [[nodiscard]] QString fingerprint(qsizetype index) const;
    [[nodiscard]] QString outputPath(qsizetype index, const QString& target) const;
    [[nodiscard]] QList<PlannedFile> plannedFiles(qsizetype index) const;
    [[nodiscard]] QString inOutputFolder(const QString& path) const;
    [[nodiscard]] bool isDoneAlready(qsizetype index);
    [[nodiscard]] JournalRecord recordFor(qsizetype index, const FileResult& result);
    [[nodiscard]] bool mayReplace(const Work& work, const QString& path) const;
    void remember(qsizetype index, const FileResult& result);
    void recordResult(qsizetype index, FileResult result, qint64 size);
    void recordFailure(qsizetype index, FileOutcome outcome, const QString& error);
    void deliverReady();
    void deliver(qsizetype index, FileResult result);
    void noteBroken();
    void finish();

    const Inputs& m_inputs;
    RunSettings m_settings;
    Deliver m_deliver;
    OutputNames m_names;
    StagingArea m_staging;
    Journal m_journal;
    std::unique_ptr<WorkerPool> m_pool;
    OrderedResults m_results;
    QSet<qsizetype> m_resumed;     ///< files with a result of an earlier command, not yet delivered
    QHash<qsizetype, Work> m_work; ///< the files that workers import now
    std::optional<sandbox::Confinement> m_confinement;
    qsizetype m_cursor = 0;
    Progress m_progress;
    QElapsedTimer m_elapsed;
    QStringList m_warnings;
    bool m_isStopped = false;
    bool m_isBroken = false;
    bool m_isFinished = false;
};

} // namespace archive
