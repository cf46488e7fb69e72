#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace sandbox {

/// Collects the files that a confined process must be able to read. The number of rules is limited,
/// because each rule delays the start of the process; the paths are as precise as that permits.
class ReadablePaths
{
public:
    static constexpr qsizetype MaximumPaths = 256;

    /// A file, or the target of a link. Ignored if it does not exist.
    void addFile(const QString& path);
    /// A folder with all that is in it.
    void addFolder(const QString& path);

    /// At most MaximumPaths absolute paths without links. If there are too many files, the folders
    /// that hold them; if there are too many folders, the folders above.
    [[nodiscard]] QStringList paths() const;

private:
    void addTree(const QString& path);

    QSet<QString> m_files;
    QSet<QString> m_folders;
    bool m_keepsFolders = false; ///< there were too many files
    // Files are added folder by folder.
    std::filesystem::path m_lastFolder;
    QString m_lastCanonical;
};

} // namespace sandbox
