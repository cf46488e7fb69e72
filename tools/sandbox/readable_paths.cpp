#include "sandbox/readable_paths.h"

#include "console/file_name.h"

#include <algorithm>

namespace sandbox {
namespace {

QString nameOf(const std::filesystem::path& path)
{
    return console::fileNameFromBytes(QByteArray::fromStdString(path.string()));
}

/// Without links and dots; empty if it does not exist.
QString withoutLinks(const std::filesystem::path& path)
{
    std::error_code error;
    const std::filesystem::path found = std::filesystem::canonical(path, error);
    return error ? QString() : nameOf(found);
}

QString folderOf(const QString& path)
{
    const qsizetype slash = path.lastIndexOf(QLatin1Char('/'));
    return slash <= 0 ? QString(QLatin1Char('/')) : path.left(slash);
}

bool isBelow(const QString& path, const QSet<QString>& folders)
{
    for (QString folder = path; folder.size() > 1;) {
        folder = folderOf(folder);
        if (folders.contains(folder)) {
            return true;
        }
    }
    return false;
}

/// Replaces the deepest folders by their parents until there are few enough.
void bound(QSet<QString>& folders, qsizetype most)
{
    const auto depth = [](const QString& path) { return path.count(QLatin1Char('/')); };
    while (folders.size() > most) {
        qsizetype deepest = 0;
        for (const QString& folder : std::as_const(folders)) {
            deepest = std::max(deepest, depth(folder));
        }
        QSet<QString> bounded;
        for (const QString& folder : std::as_const(folders)) {
            bounded.insert(depth(folder) == deepest ? folderOf(folder) : folder);
        }
        folders = bounded;
    }
}

} // namespace

void ReadablePaths::addFile(const QString& path)
{
    const std::filesystem::path file = console::systemPath(console::absolutePath(path));
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::symlink_status(file, error).type();
    if (type == std::filesystem::file_type::not_found || type == std::filesystem::file_type::none) {
        return;
    }
    if (file.parent_path() != m_lastFolder || m_lastCanonical.isEmpty()) {
        m_lastFolder = file.parent_path();
        m_lastCanonical = withoutLinks(m_lastFolder);
    }
    const QString target = type == std::filesystem::file_type::symlink
                               ? withoutLinks(file)
                               : m_lastCanonical + QLatin1Char('/') + nameOf(file.filename());
    if (target.isEmpty()) {
        return;
    }
    if (m_keepsFolders) {
        addTree(folderOf(target));
        return;
    }
    m_files.insert(target);
    if (m_files.size() > MaximumPaths) {
        m_keepsFolders = true;
        for (const QString& kept : std::as_const(m_files)) {
            addTree(folderOf(kept));
        }
        m_files.clear();
    }
}

void ReadablePaths::addFolder(const QString& path)
{
    const QString folder = withoutLinks(console::systemPath(console::absolutePath(path)));
    if (!folder.isEmpty()) {
        addTree(folder);
    }
}

void ReadablePaths::addTree(const QString& path)
{
    m_folders.insert(path);
    // Bounded memory, whatever the number of folders.
    constexpr qsizetype most = 64 * MaximumPaths;
    if (m_folders.size() > most) {
        bound(m_folders, most / 2);
    }
}

QStringList ReadablePaths::paths() const
{
    QSet<QString> folders = m_folders;
    QSet<QString> files;
    for (const QString& file : m_files) {
        if (!isBelow(file, folders)) {
            files.insert(file);
        }
    }
    if (files.size() + folders.size() > MaximumPaths) {
        for (const QString& file : std::as_const(files)) {
            folders.insert(folderOf(file));
        }
        files.clear();
        bound(folders, MaximumPaths);
    }
    QStringList paths(files.cbegin(), files.cend());
    for (const QString& folder : std::as_const(folders)) {
        if (!isBelow(folder, folders)) {
            paths.append(folder);
        }
    }
    paths.sort();
    return paths;
}

} // namespace sandbox
