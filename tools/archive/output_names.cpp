#include "archive/output_names.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>

#include <algorithm>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

QString below(const QString& folder, const QString& name)
{
    return folder.isEmpty() ? name : folder + u'/' + name;
}

QString withoutNumber(QString name)
{
    while (!name.isEmpty() && name.back() >= u'0' && name.back() <= u'9') {
        name.chop(1);
    }
    return name;
}

} // namespace

OutputNames::OutputNames(const Inputs& inputs, const QStringList& suffixes)
    : m_inputs(inputs)
    , m_suffixes(suffixes)
    , m_naming(inputs.size(), Naming::Stem)
{
    resolveConflicts(Naming::Stem, Naming::CompleteName);
    resolveConflicts(Naming::CompleteName, Naming::Conflicting);
    findFolders();
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        const QString name = stem(index);
        const QString letters = withoutNumber(name);
        if (letters != name) {
            m_numbered.insert(qHash(letters, 0));
        }
    }
}

OutputNames::OutputNames(const Inputs& inputs, const QStringList& suffixes,
                         const QList<OutputName>& chosen)
    : m_inputs(inputs)
{
    for (const OutputName& name : chosen) {
        const bool isFolder =
            std::any_of(suffixes.begin(), suffixes.end(), [&](const QString& suffix) {
                return name.folderSuffixes.contains(suffix);
            });
        m_naming.append(isFolder ? Naming::Conflicting : name.naming);
        m_pageMarks.append(name.pageMark);
    }
}

QString OutputNames::output(qsizetype index, const QString& suffix) const
{
    return stem(index) + u'.' + suffix;
}

bool OutputNames::isConflicting(qsizetype index) const
{
    if (m_naming.at(index) == Naming::Conflicting) {
        return true;
    }
    return !m_folders.isEmpty() &&
           std::any_of(m_suffixes.begin(), m_suffixes.end(), [&](const QString& suffix) {
               return m_folders.contains(output(index, suffix));
           });
}

QString OutputNames::pageMark(qsizetype index) const
{
    if (!m_pageMarks.isEmpty()) {
        return m_pageMarks.at(index);
    }
    QString mark = u"-"_s;
    while (m_numbered.contains(qHash(stem(index) + mark, 0))) {
        mark.prepend(u"-page"_s);
    }
    return mark;
}

OutputName OutputNames::chosen(qsizetype index) const
{
    OutputName name{m_naming.at(index), pageMark(index), {}};
    for (const QString& suffix : m_suffixes) {
        if (m_folders.contains(output(index, suffix))) {
            name.folderSuffixes.append(suffix);
        }
    }
    return name;
}

QString OutputNames::stem(qsizetype index) const
{
    const Input input = m_inputs.at(index);
    // The shown name: a label from standard input has no other.
    const QFileInfo info(input.shownName);
    return below(input.folder,
                 m_naming.at(index) == Naming::Stem ? info.completeBaseName() : info.fileName());
}

void OutputNames::resolveConflicts(Naming from, Naming to)
{
    HashedIndexes stems;
    stems.reserve(m_inputs.size());
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        stems.add(stem(index), index);
    }
    stems.sort();
    QList<qsizetype> conflicting;
    for (const QList<qsizetype>& group : stems.groups()) {
        QHash<QString, qsizetype> uses;
        for (const qsizetype index : group) {
            ++uses[stem(index)];
        }
        for (const qsizetype index : group) {
            // A short name that equals a complete name conflicts like that name.
            if (uses.value(stem(index)) > 1 &&
                (m_naming.at(index) == from || to == Naming::Conflicting)) {
                conflicting.append(index);
            }
        }
    }
    for (const qsizetype index : conflicting) {
        m_naming[index] = to;
    }
}

void OutputNames::findFolders()
{
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        QString folder = m_inputs.at(index).folder;
        while (!folder.isEmpty() && !m_folders.contains(folder)) {
            m_folders.insert(folder);
            folder = folder.left(std::max<qsizetype>(folder.lastIndexOf(u'/'), 0));
        }
    }
}

} // namespace archive
