#include "archive/inputs.h"

#include "console/file_name.h"

#include <algorithm>

namespace archive {
namespace {

QStringView upToName(QStringView path)
{
    return path.left(path.lastIndexOf(u'/') + 1);
}

QString joined(const QString& folder, QStringView name)
{
    return QString(folder).append(name);
}

} // namespace

Inputs::Inputs(const QList<Input>& inputs)
{
    for (const Input& input : inputs) {
        append(input);
    }
}

void Inputs::append(const Input& input)
{
    const QStringView path = upToName(input.path);
    const QStringView shownName = upToName(input.shownName);
    const QStringView name = QStringView(input.path).mid(path.size());
    Entry entry;
    if (name == QStringView(input.shownName).mid(shownName.size())) {
        entry = {m_names.size(), static_cast<quint32>(name.size()),
                 indexOf({path.toString(), shownName.toString(), input.folder})};
        m_names.append(name);
    } else {
        entry.folder = indexOf({input.path, input.shownName, input.folder});
    }
    m_entries.append(entry);
}

Input Inputs::at(qsizetype index) const
{
    const Entry& entry = m_entries.at(index);
    const Folder& folder = m_folders.at(entry.folder);
    const QString path = joined(folder.path, name(entry));
    return {path, folder.shownName == folder.path ? path : joined(folder.shownName, name(entry)),
            folder.folder};
}

void Inputs::sort()
{
    std::sort(m_entries.begin(), m_entries.end(),
              [this](const Entry& a, const Entry& b) { return isBefore(a, b); });
}

void Inputs::keep(const std::vector<bool>& isKept)
{
    qsizetype kept = 0;
    for (qsizetype index = 0; index < m_entries.size(); ++index) {
        if (isKept[static_cast<std::size_t>(index)]) {
            m_entries[kept++] = m_entries.at(index);
        }
    }
    m_entries.resize(kept);
}

quint32 Inputs::indexOf(const Folder& folder)
{
    // Inputs are added folder by folder.
    if (!m_folders.isEmpty() && m_folders.constLast() == folder) {
        return static_cast<quint32>(m_folders.size() - 1);
    }
    const auto known = m_folderIndexes.constFind(folder);
    if (known != m_folderIndexes.constEnd()) {
        return *known;
    }
    const auto index = static_cast<quint32>(m_folders.size());
    m_folders.append(folder);
    m_folderIndexes.insert(folder, index);
    return index;
}

QStringView Inputs::name(const Entry& entry) const
{
    return QStringView(m_names).mid(entry.begin, entry.size);
}

bool Inputs::isBefore(const Entry& a, const Entry& b) const
{
    if (a.folder == b.folder) {
        return name(a) < name(b);
    }
    const Folder& folderOfA = m_folders.at(a.folder);
    const Folder& folderOfB = m_folders.at(b.folder);
    const QString shownNameOfA = joined(folderOfA.shownName, name(a));
    const QString shownNameOfB = joined(folderOfB.shownName, name(b));
    return shownNameOfA != shownNameOfB
               ? shownNameOfA < shownNameOfB
               : joined(folderOfA.path, name(a)) < joined(folderOfB.path, name(b));
}

void HashedIndexes::add(const QString& text, qsizetype index)
{
    m_entries.emplace_back(qHash(text, 0), static_cast<quint32>(index));
}

void HashedIndexes::sort()
{
    std::sort(m_entries.begin(), m_entries.end());
}

QList<qsizetype> HashedIndexes::find(const QString& text) const
{
    const Entry first{qHash(text, 0), 0};
    QList<qsizetype> found;
    for (auto entry = std::lower_bound(m_entries.begin(), m_entries.end(), first);
         entry != m_entries.end() && entry->first == first.first; ++entry) {
        found.append(entry->second);
    }
    return found;
}

QList<QList<qsizetype>> HashedIndexes::groups() const
{
    QList<QList<qsizetype>> groups;
    for (auto begin = m_entries.begin(); begin != m_entries.end();) {
        const auto end = std::find_if(begin, m_entries.end(), [&](const Entry& entry) {
            return entry.first != begin->first;
        });
        if (end - begin > 1) {
            QList<qsizetype>& group = groups.emplaceBack();
            for (auto entry = begin; entry != end; ++entry) {
                group.append(entry->second);
            }
        }
        begin = end;
    }
    return groups;
}

PathIndex::PathIndex(const Inputs& inputs)
    : m_inputs(inputs)
{
    m_indexes.reserve(inputs.size());
    for (qsizetype index = 0; index < inputs.size(); ++index) {
        m_indexes.add(console::absolutePath(inputs.at(index).path), index);
    }
    m_indexes.sort();
}

std::optional<qsizetype> PathIndex::find(const QString& absolutePath) const
{
    std::optional<qsizetype> found;
    for (const qsizetype index : m_indexes.find(absolutePath)) {
        if (console::absolutePath(m_inputs.at(index).path) == absolutePath) {
            found = index;
        }
    }
    return found;
}

QList<QList<qsizetype>> PathIndex::duplicates() const
{
    QList<QList<qsizetype>> duplicates;
    for (const QList<qsizetype>& group : m_indexes.groups()) {
        QHash<QString, QList<qsizetype>> byPath;
        for (const qsizetype index : group) {
            byPath[console::absolutePath(m_inputs.at(index).path)].append(index);
        }
        byPath.removeIf([](const auto entry) { return entry.value().size() < 2; });
        duplicates += byPath.values();
    }
    return duplicates;
}

} // namespace archive
