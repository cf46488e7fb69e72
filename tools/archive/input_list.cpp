#include "archive/input_list.h"

#include <QCoreApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QIODevice>

#include <algorithm>

namespace archive {
namespace {

QString absolute(const QString& path)
{
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

/// The folder of a path relative to a folder above it; empty when it lies nowhere below.
QString folderBelow(const QString& base, const QString& path)
{
    const QString root = absolute(base);
    const QString folder = QFileInfo(absolute(path)).path();
    const QString prefix = root.endsWith(QLatin1Char('/')) ? root : root + QLatin1Char('/');
    return folder.startsWith(prefix) ? folder.mid(prefix.size()) : QString();
}

/// One search through the given folders.
class Collector
{
public:
    explicit Collector(const InputRequest& request)
        : m_request(request)
        , m_outputFolder(absolute(request.outputFolder))
    {}

    void addArgument(const QString& argument)
    {
        if (QFileInfo(argument).isDir()) {
            m_list.searched = true;
            addTree(argument);
        } else {
            const QString folder =
                m_request.base.isEmpty() ? QString() : folderBelow(m_request.base, argument);
            add({argument, argument, folder});
        }
    }

    InputList take()
    {
        m_list.inputs = m_byPath.values();
        std::sort(m_list.inputs.begin(), m_list.inputs.end(), [](const Input& a, const Input& b) {
            return std::tie(a.shownName, a.path) < std::tie(b.shownName, b.path);
        });
        std::sort(m_list.unreadable.begin(), m_list.unreadable.end());
        return std::move(m_list);
    }

private:
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
        if (!below.isEmpty() && absolute(path) == m_outputFolder) {
            return;
        }
        if (!QFileInfo(path).isReadable() || !QFileInfo(path).isExecutable()) {
            m_list.unreadable.append(path);
            return;
        }
        QDirIterator entries(path, QDir::Dirs | QDir::Files | QDir::NoDotAndDotDot);
        while (entries.hasNext()) {
            entries.next();
            const QFileInfo entry = entries.fileInfo();
            const QString name =
                below.isEmpty() ? entry.fileName() : below + QLatin1Char('/') + entry.fileName();
            if (!entry.isDir()) {
                addFound(QDir(root).filePath(name), below);
            } else if (!entry.isSymLink()) {
                folders.append(name);
            }
        }
    }

    void addFound(const QString& path, const QString& below)
    {
        const QString suffix = QFileInfo(path).suffix().toLower();
        const bool isOutput = m_request.isOutput && m_request.isOutput(path);
        if (!m_request.suffixes.contains(suffix) || isOutput) {
            ++m_list.skipped;
        } else {
            add({path, QDir::cleanPath(path), below});
        }
    }

    /// A file that is met twice keeps the longer of its folders: that below the outermost
    /// folder given; else the shorter name.
    void add(const Input& input)
    {
        const auto rank = [](const Input& entry) {
            return std::make_tuple(-entry.folder.size(), entry.shownName.size(), entry.shownName);
        };
        Input& kept = m_byPath[absolute(input.path)];
        if (kept.path.isEmpty() || rank(input) < rank(kept)) {
            kept = input;
        }
    }

    const InputRequest& m_request;
    QString m_outputFolder;
    InputList m_list;
    QHash<QString, Input> m_byPath;
};

} // namespace

InputList listInputs(const InputRequest& request)
{
    Collector collector(request);
    for (const QString& argument : request.arguments) {
        collector.addArgument(argument);
    }
    return collector.take();
}

QStringList readNames(QIODevice& device, bool isNullSeparated, QString& error, qint64 largest)
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
            names.append(QFile::decodeName(name));
        }
    };
    for (QByteArray block = rest; isList && !block.isEmpty();) {
        for (qsizetype end = rest.indexOf(separator); end >= 0; end = rest.indexOf(separator)) {
            keep(rest.left(end));
            rest.remove(0, end + 1);
        }
        // What ends a line may still be missing, or stand behind the name.
        isList = isList && rest.size() <= MaximumNameBytes + 1;
        block = device.read(blockSize);
        rest += block;
        total += block.size();
        isList = isList && total <= largest;
    }
    keep(rest);
    if (!isList) {
        error = QCoreApplication::translate("archive::InputList",
                                            "The list of files is no list of file names.");
        return {};
    }
    return names;
}

} // namespace archive
