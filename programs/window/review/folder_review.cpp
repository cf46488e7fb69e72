#include "window/review/folder_review.h"

#include <QFileInfo>
#include <QSet>

#include <numeric>

namespace window {

FolderReview::FolderReview(QObject* parent)
    : QObject(parent)
{}

bool FolderReview::openFolder(const QString& folder)
{
    ++m_batches;
    m_process.reset();
    m_batch.clear();
    const bool isComplete = m_model.setFolder(folder);
    m_waiting.resize(m_model.entries().size());
    std::iota(m_waiting.begin(), m_waiting.end(), 0);
    startBatch();
    return isComplete;
}

void FolderReview::refresh(const QString& file)
{
    const int row = m_model.rowOf(file);
    if (row >= 0) {
        m_waiting.push_front(row);
        if (!isBusy()) {
            startBatch();
        }
    }
}

void FolderReview::startBatch()
{
    // Outputs are named after their inputs, so the names in one import differ.
    QSet<QString> names;
    std::deque<int> later;
    while (!m_waiting.empty() && m_batch.size() < BatchSize) {
        const int row = m_waiting.front();
        m_waiting.pop_front();
        const QString file = m_model.refreshEdited(row);
        const QString name = QFileInfo(file).completeBaseName();
        if (names.contains(name) || m_batch.contains(file)) {
            later.push_back(row);
        } else {
            names.insert(name);
            m_batch.insert(file, row);
        }
    }
    m_waiting.insert(m_waiting.begin(), later.begin(), later.end());
    if (m_batch.isEmpty()) {
        Q_EMIT completed();
        return;
    }
    m_process = std::make_unique<ImportProcess>();
    // Queued: the process is deleted here, which it must not be while it emits.
    connect(
        m_process.get(), &ImportProcess::ended, this,
        [this, batch = ++m_batches](const ImportedFiles& files) {
            // Not the end of a batch of a folder that was left.
            if (batch == m_batches) {
                takeBatch(files);
            }
        },
        Qt::QueuedConnection);
    m_process->start(m_batch.keys());
}

void FolderReview::takeBatch(const ImportedFiles& files)
{
    QHash<QString, migration::FileReport> reports;
    for (const migration::FileReport& report : files.reports) {
        reports.insert(report.file, report);
    }
    migration::FileReport failed; // for files without a report
    failed.error = files.error;
    for (auto file = m_batch.cbegin(); file != m_batch.cend(); ++file) {
        m_model.setReport(file.value(), reports.value(file.key(), failed));
    }
    m_batch.clear();
    m_process.reset();
    startBatch();
}

} // namespace window
