#pragma once

#include "window/label/import_process.h"
#include "window/review/label_list_model.h"

#include <QObject>

#include <deque>
#include <memory>

namespace window {

/// Imports the labels of a folder in the background and fills in their states and thumbnails.
class FolderReview final : public QObject
{
    Q_OBJECT

public:
    /// Files of one import: the first thumbnails appear soon, and the start of the program takes
    /// little of the time.
    static constexpr qsizetype BatchSize = 16;

    explicit FolderReview(QObject* parent = nullptr);

    bool openFolder(const QString& folder);
    [[nodiscard]] LabelListModel& model() { return m_model; }
    /// Imports a label again, for example because it was saved.
    void refresh(const QString& file);
    /// Whether labels are still being imported.
    [[nodiscard]] bool isBusy() const { return m_process != nullptr; }

Q_SIGNALS:
    /// All labels have a state.
    void completed();

private:
    void startBatch();
    void takeBatch(const ImportedFiles& files);

    LabelListModel m_model;
    std::deque<int> m_waiting;   // rows
    QHash<QString, int> m_batch; // rows of the files that are being imported
    int m_batches = 0;
    std::unique_ptr<ImportProcess> m_process;
};

} // namespace window
