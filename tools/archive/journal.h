#pragma once

#include "archive/file_lock.h"
#include "archive/input.h"
#include "archive/journal_record.h"
#include "archive/shard.h"

#include <QFile>
#include <QHash>
#include <QList>
#include <QSet>
#include <QString>

#include <optional>

namespace archive {

/// What was done in an output folder, kept in a hidden file of it: one record on each line,
/// written as soon as a file is done. A line that was torn when the program or the machine
/// died is no record.
///
/// Several commands may write to one folder at the same time: lines are appended whole. The
/// parts of an archive have journals of their own, and all of a folder are read.
class Journal
{
public:
    /// Opens the folder's journal for appending, and looks up what all journals of the folder
    /// say of the inputs: the last word counts. Only its place is kept in memory.
    ///
    /// @return why nothing can be remembered, for a person; else empty
    [[nodiscard]] QString open(const QString& outputFolder, const Shard& shard,
                               const QList<Input>& inputs);

    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    /// What was remembered, before this command, of the input of this index.
    [[nodiscard]] std::optional<JournalRecord> find(qsizetype index);
    /// Adds a record. False when it could not be written; nothing else is the worse for it.
    bool append(const JournalRecord& record);

    /// The absolute paths of the outputs with a suffix that the folder's journals tell of.
    [[nodiscard]] static QSet<QString> outputsIn(const QString& outputFolder,
                                                 const QString& suffix);
    [[nodiscard]] static QString fileNameFor(const Shard& shard);

private:
    struct Place
    {
        qsizetype file = -1;
        qint64 offset = 0;
    };

    void note(const QHash<QString, qsizetype>& indexes, qsizetype file);

    QFile m_file;
    QStringList m_files; ///< all journals of the folder
    QFile m_read;        ///< the one that was read last
    QList<Place> m_places;
    FileLock m_lock;
};

} // namespace archive
