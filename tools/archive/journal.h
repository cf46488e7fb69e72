#pragma once

#include "archive/file_lock.h"
#include "archive/input_list.h"
#include "archive/journal_record.h"
#include "archive/shard.h"
#include "console/file_name.h"

#include <QFile>
#include <QList>
#include <QString>

#include <cstddef>
#include <optional>

namespace archive {

/// Remembers between commands what was imported into an output folder: a hidden file in it with one
/// record on each line, written as soon as a file is done. A torn line is ignored.
///
/// Several commands may write to one folder at the same time: lines are appended whole. The parts
/// of an archive have journals of their own, and all journals of a folder are read.
class Journal
{
public:
    /// Opens the folder's journal for appending, and looks up the inputs in all journals of the
    /// folder. The latest record of a file and its options wins; only its offset is kept in memory.
    ///
    /// @param isRewriting removes replaced records first, unless another command uses the folder
    /// @return a message for the user if the journal cannot be written; else empty
    [[nodiscard]] QString open(const QString& outputFolder, const Shard& shard,
                               const Inputs& inputs, bool isRewriting = false);

    [[nodiscard]] bool isOpen() const { return m_file.isOpen(); }
    /// The record that an earlier command wrote about the input of this index.
    /// @param options fingerprint of the options, which the record must have
    [[nodiscard]] std::optional<JournalRecord> find(qsizetype index, const QString& options);
    /// All outputs of earlier commands, whatever their options; paths as in the records.
    [[nodiscard]] QList<FileStamp> outputsOf(qsizetype index);
    /// Adds a record. Returns false if writing failed; the journal stays usable.
    [[nodiscard]] bool append(const JournalRecord& record);

    /// Passes the outputs with a suffix that the folder's journals name, and the input that each
    /// was made of, to a function; all as absolute paths.
    static void visitOutputs(const QString& outputFolder, const QString& suffix,
                             const OutputVisitor& visit);
    [[nodiscard]] static QString fileNameFor(const Shard& shard);

private:
    struct Place
    {
        qint64 offset = 0;
        std::size_t options = 0; ///< hash of the record's options
        quint32 input = 0;       ///< index
        quint32 file = 0;        ///< index in m_files
    };

    void notePlaces(const PathIndex& inputs, quint32 file);
    /// The places of an input's records that no later record replaces, in order.
    [[nodiscard]] QList<Place> placesOf(qsizetype index) const;
    [[nodiscard]] std::optional<JournalRecord> recordAt(const Place& place);

    std::optional<console::ReachablePath> m_folder;
    QFile m_file;
    QStringList m_files;   ///< all journals of the folder
    QFile m_read;          ///< the one that was read last
    QList<Place> m_places; ///< by input, then in the order of the journals
    FileLock m_lock;
};

} // namespace archive
