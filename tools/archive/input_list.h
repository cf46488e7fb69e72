#pragma once

#include "archive/inputs.h"
#include "sandbox/readable_paths.h"

#include <QList>
#include <QString>
#include <QStringList>

#include <filesystem>
#include <functional>
#include <vector>

class QIODevice;

namespace archive {

using OutputVisitor = std::function<void(const QString& output, const QString& source)>;

/// The arguments of a command that imports files, and how folders are searched.
struct InputRequest
{
    QStringList arguments; ///< files and folders
    QStringList suffixes;  ///< last suffixes of the files taken from folders, in lower case
    QString base;          ///< named files below this folder keep their subfolder; empty for none
    QString outputFolder;  ///< not searched if it is below a folder that is searched
    /// Passes the outputs of earlier commands, and the input that each was made of, to a function;
    /// all as absolute paths. A folder's file that was made of another input of this request is
    /// left out. May be empty.
    std::function<void(const OutputVisitor& visit)> visitOutputs;
    QString outputSuffix; ///< of the outputs that visitOutputs knows: ".label"
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
    Inputs inputs;      ///< each file once, in the order of their shown names
    qint64 skipped = 0; ///< files of folders that have none of the suffixes
    QList<UnreadableFolder> unreadable;
    QStringList readable;  ///< files and folders of the inputs, for sandbox::Permissions
    bool searched = false; ///< at least one folder was given
};

/// Lists the files to import.
///
/// A file that is named in the arguments is always listed, whatever its suffix and even if it does
/// not exist; its import then reports the error. In folders, all entries with the suffix of a label
/// are listed but folders: a dangling link or a pipe is reported, not skipped. Folders are searched
/// with their subfolders; hidden files and folders are left out, and links to folders are not
/// followed. The result does not depend on the order of the arguments, nor on that of a folder's
/// entries.
class InputCollector
{
public:
    explicit InputCollector(const InputRequest& request);

    /// A file, or a folder to search.
    void add(const QString& argument);
    [[nodiscard]] InputList take();

private:
    void addTree(const QString& root);
    void addFolder(const QString& root, const QString& below, QStringList& folders);
    void addEntry(const std::filesystem::directory_entry& entry, const QString& root,
                  const QString& below, QStringList& folders);
    void addFound(const QString& path, const QString& below);
    void mergeDuplicates();
    void removeOutputs();
    void remove(const std::vector<bool>& isKept);

    const InputRequest& m_request;
    QString m_outputFolder;
    InputList m_list;
    std::vector<bool> m_isNamed; ///< for each input: not only found in a folder
    sandbox::ReadablePaths m_readable;
};

/// Lists the arguments of the request.
[[nodiscard]] InputList listInputs(const InputRequest& request);

/// The folder of a path relative to a folder above it; empty if it is not below that folder.
[[nodiscard]] QString folderBelow(const QString& base, const QString& path);

/// Longest list of names and longest name that are read.
inline constexpr qint64 MaximumListBytes = 1LL << 30;
inline constexpr qint64 MaximumNameBytes = 64 * 1024;

/// Reads the names of a list: one on each line, or, if `isNullSeparated` is set or the list's
/// first block holds a NUL, between NULs. Empty names are left out.
///
/// @param take    called for each name; names before an error are passed too
/// @param largest bytes that the list may have
/// @return false if these bytes are not a list of file names
[[nodiscard]] bool readNames(QIODevice& device, bool isNullSeparated,
                             const std::function<void(const QString& name)>& take,
                             qint64 largest = MaximumListBytes);

} // namespace archive
