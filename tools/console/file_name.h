#pragma once

#include <QByteArray>
#include <QString>

#include <filesystem>

/// File names as the system has them: bytes, which need not be UTF-8.
///
/// In memory and in JSON a file name is a QString that holds every byte: a byte that is not part of
/// valid UTF-8 becomes one private-use character, U+EF80 to U+EFFF. Names that contain such
/// characters themselves are kept byte by byte as well, so the conversion is reversible. Qt's
/// file classes cannot open these names; see ReachablePath.
namespace console {

[[nodiscard]] QString fileNameFromBytes(const QByteArray& bytes);
[[nodiscard]] QByteArray fileNameToBytes(const QString& name);
[[nodiscard]] std::filesystem::path systemPath(const QString& name);
/// Whether Qt's file classes can use the name.
[[nodiscard]] bool isUtf8FileName(const QString& name);

/// The name on one line, for display: bytes that are not UTF-8 as \xF6, control characters and
/// characters that change the direction of writing as \n, \x1B or \u202E.
[[nodiscard]] QString shownFileName(const QString& name);
/// The same for a text that may have several lines: keeps line breaks and tabs.
[[nodiscard]] QString shownText(const QString& text);

/// The path from the root, without "." and "..".
[[nodiscard]] QString absolutePath(const QString& path);

/// The type of a file; the target's for a link.
enum class FileKind {
    Missing, ///< a dangling link included
    File,
    Folder,
    Other, ///< a pipe, a device, a socket
};

/// What is at a path; links are followed.
[[nodiscard]] FileKind kindOf(const QString& path);

/// Creates a folder and those above it. Returns the system's reason if that fails, else empty.
[[nodiscard]] QString makeFolder(const QString& path);

/// A path that Qt's file classes can open, for any file name. For a name that is not UTF-8 it goes
/// through a descriptor of this process, so it is valid only while this object exists, and only
/// in this process. An unreachable file keeps its path, so that opening it fails as usual.
class ReachablePath
{
public:
    explicit ReachablePath(const QString& path);
    ~ReachablePath();
    ReachablePath(const ReachablePath&) = delete;
    ReachablePath& operator=(const ReachablePath&) = delete;

    [[nodiscard]] const QString& path() const { return m_path; }

private:
    QString m_path;
    int m_descriptor = -1;
};

} // namespace console
