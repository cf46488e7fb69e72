#pragma once

#include <QSet>
#include <QString>
#include <QStringList>

#include <filesystem>

namespace sandbox {

/// Collects what a confined process must be able to read: as precise as it can be with a bounded
/// number of rules, whose number decides what a start takes.
class ReadablePaths
{
public:
    static constexpr qsizetype MaximumPaths = 256;

    /// A file, or what a link leads to. Left out if it does not exist.
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
    // Files come folder by folder.
    std::filesystem::path m_lastFolder;
    QString m_lastCanonical;
};

} // namespace sandbox
