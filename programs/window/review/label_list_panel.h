#pragma once

#include "window/review/folder_review.h"

#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QListView;
class QSortFilterProxyModel;

namespace window {

/// The labels of a folder, with thumbnails and states, to go through them one after the other.
class LabelListPanel final : public QWidget
{
    Q_OBJECT

public:
    explicit LabelListPanel(QWidget* parent = nullptr);

    /// Lists the labels of a folder and selects the first one.
    bool openFolder(const QString& folder);
    /// Selects the label of an open file without opening it again.
    void setOpenFile(const QString& file);
    /// Updates the state of a label that was saved.
    void noteSaved(const QString& file) { m_review.refresh(file); }
    /// Opens the label that is so many rows below the current one.
    void step(int rows);
    [[nodiscard]] bool canStep(int rows) const;

    [[nodiscard]] FolderReview& review() { return m_review; }
    [[nodiscard]] QListView& list() { return *m_list; }
    [[nodiscard]] QLineEdit& nameFilter() { return *m_nameFilter; }
    [[nodiscard]] QComboBox& stateFilter() { return *m_stateFilter; }
    [[nodiscard]] QComboBox& order() { return *m_order; }

Q_SIGNALS:
    /// The user selected the label of this file.
    void fileRequested(const QString& file);
    /// The possible steps have changed.
    void stepsChanged();

private:
    void requestCurrent();
    void showCount();

    FolderReview m_review;
    QSortFilterProxyModel* m_shown;
    QLineEdit* m_nameFilter;
    QComboBox* m_stateFilter;
    QComboBox* m_order;
    QListView* m_list;
    QLabel* m_count;
    bool m_isFollowing = false; // the selection follows the open label
};

} // namespace window
