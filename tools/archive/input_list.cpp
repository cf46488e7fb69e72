#include "archive/input_list.h"

#include "console/file_name.h"
#include "sandbox/readable_paths.h"

#include <QDir>
#include <QFileInfo>
#include <QIODevice>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <tuple>

#include <unistd.h>

namespace archive {
namespace {

using namespace Qt::StringLiterals;

/// One search through the given folders.
class Collector
{
public:
    explicit Collector(const InputRequest& request)
        : m_request(request)
        , m_outputFolder(console::absolutePath(request.outputFolder))
    {}

    void addArgument(const QString& argument)
    {
        if (console::kindOf(argument) == console::FileKind::Folder) {
            m_list.searched = true;
            m_readable.addFolder(argument);
            addTree(argument);
        } else {
            const QString folder =
                m_request.base.isEmpty() ? QString() : folderBelow(m_request.base, argument);
            m_readable.addFile(argument);
            add({{argument, argument, folder}, true});
        }
    }

    InputList take()
    {
        for (auto entry = m_byPath.cbegin(); entry != m_byPath.cend(); ++entry) {
            if (entry->isNamed || !isMadeOfAnotherInput(entry.key())) {
                m_list.inputs.append(entry->input);
            }
        }
        std::sort(m_list.inputs.begin(), m_list.inputs.end(), [](const Input& a, const Input& b) {
            return std::tie(a.shownName, a.path) < std::tie(b.shownName, b.path);
        });
        std::sort(m_list.unreadable.begin(), m_list.unreadable.end(),
                  [](const auto& a, const auto& b) { return a.path < b.path; });
        m_list.readable = m_readable.paths();
        return std::move(m_list);
    }

private:
    struct Found
    {
        Input input;
        bool isNamed = false; ///< not only found in a folder
    };

    void addTree(const QString& root)
    {
        QStringList folders{QString()};
        while (!folders.isEmpty()) {
            addFolder(root, folders.takeLast(), folders);
        }
    }

    void addFolder(const QString& root, const QString& below, QStringList& folders)
    {
        const QString path = below.isEmpty() ? root : QDir(root).filePath(below);
        if (!below.isEmpty() && console::absolutePath(path) == m_outputFolder) {
            return;
        }
        const std::filesystem::path folder = console::systemPath(path);
        if (::access(folder.c_str(), R_OK | X_OK) != 0) {
            m_list.unreadable.append({path, QString::fromLocal8Bit(std::strerror(errno))});
            return;
        }
        std::error_code error;
        std::filesystem::directory_iterator entry(folder, error);
        for (; !error && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
            addEntry(*entry, root, below, folders);
        }
        if (error) {
            m_list.unreadable.append({path, QString::fromLocal8Bit(error.message().c_str())});
        }
    }

    void addEntry(const std::filesystem::directory_entry& entry, const QString& root,
                  const QString& below, QStringList& folders)
    {
        const QString fileName =
            console::fileNameFromBytes(QByteArray::fromStdString(entry.path().filename().string()));
        if (fileName.startsWith(u'.')) {
            return;
        }
        const QString name = below.isEmpty() ? fileName : below + u'/' + fileName;
        std::error_code error;
        if (!entry.is_directory(error)) {
            if (entry.is_symlink(error)) {
                m_readable.addFile(QDir(root).filePath(name));
            }
            addFound(QDir(root).filePath(name), below);
        } else if (!entry.is_symlink(error)) {
            folders.append(name);
        }
    }

    void addFound(const QString& path, const QString& below)
    {
        if (m_request.suffixes.contains(QFileInfo(path).suffix().toLower())) {
            add({{path, QDir::cleanPath(path), below}, false});
        } else {
            ++m_list.skipped;
        }
    }

    /// A file that is found twice keeps the longer of its folders: that below the outermost
    /// folder given; else the shorter name.
    void add(const Found& found)
    {
        const auto rank = [](const Input& entry) {
            return std::make_tuple(-entry.folder.size(), entry.shownName.size(), entry.shownName);
        };
        Found& kept = m_byPath[console::absolutePath(found.input.path)];
        const bool isNamed = kept.isNamed || found.isNamed;
        if (kept.input.path.isEmpty() || rank(found.input) < rank(kept.input)) {
            kept = found;
        }
        kept.isNamed = isNamed;
    }

    [[nodiscard]] bool isMadeOfAnotherInput(const QString& path) const
    {
        const QString source = m_request.sourcesOfOutputs.value(path);
        return source != path && m_byPath.contains(source);
    }

    const InputRequest& m_request;
    QString m_outputFolder;
    InputList m_list;
    QHash<QString, Found> m_byPath;
    sandbox::ReadablePaths m_readable;
};

} // namespace

QString folderBelow(const QString& base, const QString& path)
{
    const QString root = console::absolutePath(base);
    const QString folder = QFileInfo(console::absolutePath(path)).path();
    const QString prefix = root.endsWith(u'/') ? root : root + u'/';
    return folder.startsWith(prefix) ? folder.mid(prefix.size()) : QString();
}

InputList listInputs(const InputRequest& request)
{
    Collector collector(request);
    for (const QString& argument : request.arguments) {
        collector.addArgument(argument);
    }
    return collector.take();
}

QStringList readNames(QIODevice& device, bool isNullSeparated, bool& error, qint64 largest)
{
    constexpr qint64 blockSize = 64 * 1024;
    QStringList names;
    QByteArray rest = device.read(blockSize);
    qint64 total = rest.size();
    const char separator = isNullSeparated || rest.contains('\0') ? '\0' : '\n';
    bool isList = total <= largest;
    const auto keep = [&](QByteArray name) {
        if (separator == '\n' && name.endsWith('\r')) {
            name.chop(1);
        }
        isList = isList && name.size() <= MaximumNameBytes;
        if (!name.isEmpty()) {
            names.append(console::fileNameFromBytes(name));
        }
    };
    for (QByteArray block = rest; isList && !block.isEmpty();) {
        for (qsizetype end = rest.indexOf(separator); end >= 0; end = rest.indexOf(separator)) {
            keep(rest.left(end));
            rest.remove(0, end + 1);
        }
        // The end of the line may not have been read yet.
        isList = isList && rest.size() <= MaximumNameBytes + 1;
        block = device.read(blockSize);
        rest += block;
        total += block.size();
        isList = isList && total <= largest;
    }
    keep(rest);
    error = !isList;
    return isList ? names : QStringList();
}

} // namespace archive
