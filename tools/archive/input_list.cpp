#include "archive/input_list.h"

#include "console/file_name.h"

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

/// Of several inputs with one path, the one with the longer folder is kept, which is that of the
/// outermost argument; otherwise the one with the shorter name.
bool isPreferred(const Input& a, const Input& b)
{
    const auto rank = [](const Input& input) {
        return std::make_tuple(-input.folder.size(), input.shownName.size(), input.shownName);
    };
    return rank(a) < rank(b);
}

} // namespace

InputCollector::InputCollector(const InputRequest& request)
    : m_request(request)
    , m_outputFolder(console::absolutePath(request.outputFolder))
{}

void InputCollector::add(const QString& argument)
{
    if (console::kindOf(argument) == console::FileKind::Folder) {
        m_list.searched = true;
        m_readable.addFolder(argument);
        addTree(argument);
    } else {
        const QString folder =
            m_request.base.isEmpty() ? QString() : folderBelow(m_request.base, argument);
        m_readable.addFile(argument);
        m_list.inputs.append({argument, argument, folder});
        m_isNamed.push_back(true);
    }
}

InputList InputCollector::take()
{
    mergeDuplicates();
    removeOutputs();
    m_list.inputs.sort();
    std::sort(m_list.unreadable.begin(), m_list.unreadable.end(),
              [](const auto& a, const auto& b) { return a.path < b.path; });
    m_list.readable = m_readable.paths();
    return std::move(m_list);
}

void InputCollector::addTree(const QString& root)
{
    QStringList folders{QString()};
    while (!folders.isEmpty()) {
        addFolder(root, folders.takeLast(), folders);
    }
}

void InputCollector::addFolder(const QString& root, const QString& below, QStringList& folders)
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

void InputCollector::addEntry(const std::filesystem::directory_entry& entry, const QString& root,
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

void InputCollector::addFound(const QString& path, const QString& below)
{
    if (m_request.suffixes.contains(QFileInfo(path).suffix().toLower())) {
        m_list.inputs.append({path, QDir::cleanPath(path), below});
        m_isNamed.push_back(false);
    } else {
        ++m_list.skipped;
    }
}

void InputCollector::mergeDuplicates()
{
    const QList<QList<qsizetype>> duplicates = PathIndex(m_list.inputs).duplicates();
    if (duplicates.isEmpty()) {
        return;
    }
    std::vector<bool> isKept(m_isNamed.size(), true);
    for (const QList<qsizetype>& indexes : duplicates) {
        const auto best =
            *std::min_element(indexes.begin(), indexes.end(), [this](qsizetype a, qsizetype b) {
                return isPreferred(m_list.inputs.at(a), m_list.inputs.at(b));
            });
        for (const qsizetype index : indexes) {
            const auto place = static_cast<std::size_t>(index);
            isKept[place] = index == best;
            m_isNamed[static_cast<std::size_t>(best)] =
                m_isNamed[static_cast<std::size_t>(best)] || m_isNamed[place];
        }
    }
    remove(isKept);
}

void InputCollector::removeOutputs()
{
    // Reading the journals takes long, and most archives contain no outputs.
    const Inputs& inputs = m_list.inputs;
    bool isAnyOutput = false;
    for (qsizetype index = 0; index < inputs.size() && !isAnyOutput; ++index) {
        isAnyOutput = !m_isNamed[static_cast<std::size_t>(index)] &&
                      inputs.at(index).path.endsWith(m_request.outputSuffix);
    }
    if (!isAnyOutput || !m_request.visitOutputs) {
        return;
    }
    const PathIndex paths(inputs);
    QHash<qsizetype, bool> outputs; // the latest record of an output counts
    m_request.visitOutputs([&](const QString& output, const QString& source) {
        const std::optional<qsizetype> index = paths.find(output);
        if (index && !m_isNamed[static_cast<std::size_t>(*index)]) {
            outputs.insert(*index, source != output && paths.find(source).has_value());
        }
    });
    std::vector<bool> isKept(m_isNamed.size(), true);
    for (auto output = outputs.cbegin(); output != outputs.cend(); ++output) {
        isKept[static_cast<std::size_t>(output.key())] = !output.value();
    }
    remove(isKept);
}

void InputCollector::remove(const std::vector<bool>& isKept)
{
    m_list.inputs.keep(isKept);
    std::size_t kept = 0;
    for (std::size_t index = 0; index < isKept.size(); ++index) {
        if (isKept[index]) {
            m_isNamed[kept++] = m_isNamed[index];
        }
    }
    m_isNamed.resize(kept);
}

QString folderBelow(const QString& base, const QString& path)
{
    const QString root = console::absolutePath(base);
    const QString folder = QFileInfo(console::absolutePath(path)).path();
    const QString prefix = root.endsWith(u'/') ? root : root + u'/';
    return folder.startsWith(prefix) ? folder.mid(prefix.size()) : QString();
}

InputList listInputs(const InputRequest& request)
{
    InputCollector collector(request);
    for (const QString& argument : request.arguments) {
        collector.add(argument);
    }
    return collector.take();
}

bool readNames(QIODevice& device, bool isNullSeparated,
               const std::function<void(const QString& name)>& take, qint64 largest)
{
    constexpr qint64 blockSize = 64 * 1024;
    QByteArray rest = device.read(blockSize);
    qint64 total = rest.size();
    const char separator = isNullSeparated || rest.contains('\0') ? '\0' : '\n';
    bool isList = total <= largest;
    const auto keep = [&](QByteArray name) {
        if (separator == '\n' && name.endsWith('\r')) {
            name.chop(1);
        }
        isList = isList && name.size() <= MaximumNameBytes;
        if (isList && !name.isEmpty()) {
            take(console::fileNameFromBytes(name));
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
    return isList;
}

} // namespace archive
