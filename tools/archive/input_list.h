#pragma once

#include "archive/input.h"

#include <QStringList>

#include <functional>

class QIODevice;

namespace archive {

/// What a command was given to import, and how folders are searched.
struct InputRequest
{
    QStringList arguments; ///< files and folders
    QStringList suffixes; ///< last suffixes of the files that are taken from folders, small letters
    QString base;         ///< named files below this folder keep their subfolder; empty for none
    QString outputFolder; ///< is not searched, where it lies below a folder that is
    /// Whether a file found in a folder is an output of an earlier command; may be empty.
    std::function<bool(const QString& path)> isOutput;
};

/// The files of a command.
struct InputList
{
    QList<Input> inputs;    ///< each file once, in the order of their shown names
    qint64 skipped = 0;     ///< files of folders that have no suffix that is taken
    QStringList unreadable; ///< folders that could not be searched
    bool searched = false;  ///< at least one folder was given
};

/// Lists the files that are to be imported.
///
/// A named file is taken whatever its name, and even if there is none of that name: its import
/// then says so. A folder is searched with its subfolders; hidden files and folders are left
/// out, and links to folders are not followed. The result does not depend on the order of the
/// arguments, nor on that of a folder's entries.
[[nodiscard]] InputList listInputs(const InputRequest& request);

/// Longest list of names and longest name that are read.
inline constexpr qint64 MaximumListBytes = 1LL << 30;
inline constexpr qint64 MaximumNameBytes = 64 * 1024;

/// The names of a list: one on each line, or, when `isNullSeparated` is set or the list's
/// first block holds a NUL, between NULs. Empty names are left out.
///
/// @param error why the list could not be read, else untouched
/// @param largest bytes that the list may have
[[nodiscard]] QStringList readNames(QIODevice& device, bool isNullSeparated, QString& error,
                                    qint64 largest = MaximumListBytes);

} // namespace archive
