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
    const QStringList parts = tableParts();
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        QString name = stem(index);
        for (const QString& part : parts) {
            name.chop(name.endsWith(part) ? part.size() : 0);
        }
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

/// What the names of tables have between the stem and the suffix of another target: ".glabels" of
/// "shelf.glabels.csv", if "shelf.glabels" may also become a "csv".
QStringList OutputNames::tableParts() const
{
    QStringList parts;
    for (const QString& suffix : m_suffixes) {
        const qsizetype dot = suffix.indexOf(u'.');
        if (dot > 0 && m_suffixes.contains(suffix.mid(dot + 1))) {
            parts.append(u'.' + suffix.left(dot));
        }
    }
    return parts;
}

/// The stems that no other input may have.
QStringList OutputNames::claims(qsizetype index) const
{
    const QString own = stem(index);
    QStringList stems{own};
    for (const QString& part : tableParts()) {
        stems.append(own + part);
    }
    return stems;
}

void OutputNames::resolveConflicts(Naming from, Naming to)
{
    HashedIndexes stems;
    stems.reserve(m_inputs.size());
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        for (const QString& claim : claims(index)) {
            stems.add(claim, index);
        }
    }
    stems.sort();
    QList<qsizetype> conflicting;
    for (const QList<qsizetype>& group : stems.groups()) {
        QHash<QString, qsizetype> uses;
        const QSet<qsizetype> indexes(group.begin(), group.end());
        for (const qsizetype index : indexes) {
            for (const QString& claim : claims(index)) {
                ++uses[claim];
            }
        }
        for (const qsizetype index : indexes) {
            const QStringList own = claims(index);
            const bool isContested = std::any_of(own.begin(), own.end(), [&](const QString& claim) {
                return uses.value(claim) > 1;
            });
            // A short name that equals a complete name conflicts like that name.
            if (isContested && (m_naming.at(index) == from || to == Naming::Conflicting)) {
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
