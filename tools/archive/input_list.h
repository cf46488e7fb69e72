#pragma once

#include <QHash>
#include <QList>
#include <QString>
#include <QStringList>

class QIODevice;

namespace archive {

/// One file to import. Names and paths are file names as console/file_name.h describes them.
struct Input
{
    QString path;      ///< what is opened
    QString shownName; ///< its name in messages and reports; its outputs are named after it
    /// Folder below the output folder that its outputs go to, "a/b"; empty for none.
    QString folder;
    bool operator==(const Input&) const = default;
};

/// What a command was given to import, and how folders are searched.
struct InputRequest
{
    QStringList arguments; ///< files and folders
    QStringList suffixes;  ///< last suffixes of the files taken from folders, in lower case
    QString base;          ///< named files below this folder keep their subfolder; empty for none
    QString outputFolder;  ///< not searched if it is below a folder that is searched
    /// Outputs of earlier commands with the inputs that they were made of, as absolute paths. A
    /// folder's file that was made of another input of this request is left out.
    QHash<QString, QString> sourcesOfOutputs;
};

/// A folder that could not be searched.
struct UnreadableFolder
{
    QString path;
    QString reason; ///< of the system
    bool operator==(const UnreadableFolder&) const = default;
};

/// The files of a command.
struct InputList
{
    QList<Input> inputs; ///< each file once, in the order of their shown names
    qint64 skipped = 0;  ///< files of folders that have none of the suffixes
    QList<UnreadableFolder> unreadable;
    QStringList readable;  ///< what holds the inputs, for sandbox::Permissions
    bool searched = false; ///< at least one folder was given
};

/// Lists the files to import.
///
/// A named file is taken whatever its name, and even if it does not exist: its import then reports
/// that. So is everything in a folder that has a label's suffix and is not a folder: a dangling
/// link or a pipe is reported, not skipped. Folders are searched with their subfolders; hidden
/// files and folders are left out, and links to folders are not followed. The result does not
/// depend on the order of the arguments, nor on that of a folder's entries.
[[nodiscard]] InputList listInputs(const InputRequest& request);

/// The folder of a path relative to a folder above it; empty if it is not below that folder.
[[nodiscard]] QString folderBelow(const QString& base, const QString& path);

/// Longest list of names and longest name that are read.
inline constexpr qint64 MaximumListBytes = 1LL << 30;
inline constexpr qint64 MaximumNameBytes = 64 * 1024;

/// The names of a list: one on each line, or, if `isNullSeparated` is set or the list's
/// first block holds a NUL, between NULs. Empty names are left out.
///
/// @param error   set to true if these bytes are not a list of file names
/// @param largest bytes that the list may have
[[nodiscard]] QStringList readNames(QIODevice& device, bool isNullSeparated, bool& error,
                                    qint64 largest = MaximumListBytes);

} // namespace archive
