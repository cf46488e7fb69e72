#pragma once

#include "migration/model/file_report.h"

#include <QAbstractListModel>
#include <QList>
#include <QSize>
#include <QString>

namespace window {

/// The state of a label in a folder.
enum class LabelState : quint8 {
    Waiting, ///< not yet imported
    Complete,
    Changed,
    Lossy,
    Failed,
    Edited, ///< saved in the window
};

/// The user-visible name of a state.
[[nodiscard]] QString stateName(LabelState state);

/// One label of a folder.
struct LabelEntry
{
    QString path;      ///< the legacy label, or a saved label without one
    QString name;      ///< relative to the folder
    QString savedPath; ///< the saved label next to a legacy one; empty for none
    LabelState state = LabelState::Waiting;
    QString summary;      ///< for the user
    QByteArray thumbnail; ///< PNG; may be empty
    bool isEdited = false;

    /// The file to open: what a user saved, else the original.
    [[nodiscard]] QString fileToOpen() const
    {
        return isEdited && !savedPath.isEmpty() ? savedPath : path;
    }
};

/// The labels of a folder and its subfolders, sorted by name.
class LabelListModel final : public QAbstractListModel
{
    Q_OBJECT

public:
    /// Of each label's picture, in pixels of the screen without scaling.
    static constexpr QSize ThumbnailSize{112, 72};

    enum Role { StateRole = Qt::UserRole + 1, NameRole, FileRole };

    explicit LabelListModel(QObject* parent = nullptr);

    /// Files and folders that are visited: someone may open the folder of all files.
    static constexpr int MostFiles = 50'000;

    /// Lists the labels. A saved label next to the legacy label that it was made from is the same
    /// label. Links to folders are not followed. Returns false if there are more files than these.
    bool setFolder(const QString& folder, int mostFiles = MostFiles);
    [[nodiscard]] const QList<LabelEntry>& entries() const { return m_entries; }
    /// The label of a file, legacy or saved, whether the latter exists or not; -1 for others.
    [[nodiscard]] int rowOf(const QString& file) const;
    /// Looks whether the label was edited, and returns the file that shows its present state.
    [[nodiscard]] QString refreshEdited(int row);
    /// Takes over the state and the thumbnail.
    void setReport(int row, const migration::FileReport& report);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;

private:
    QList<LabelEntry> m_entries;
};

} // namespace window
