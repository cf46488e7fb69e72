#include "archive/output_names.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

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

/// Every folder that contains an output of the inputs, with those above it.
QSet<QString> foldersOf(const QList<Input>& inputs)
{
    QSet<QString> folders;
    for (const Input& input : inputs) {
        for (QString folder = input.folder; !folder.isEmpty() && !folders.contains(folder);
             folder = folder.left(folder.lastIndexOf(u'/'))) {
            folders.insert(folder);
            if (!folder.contains(u'/')) {
                break;
            }
        }
    }
    return folders;
}

} // namespace

OutputNames::OutputNames(const QList<Input>& inputs, const QStringList& suffixes)
    : m_inputs(inputs)
    , m_naming(inputs.size(), Stem)
{
    settle(Stem, WholeName);
    settle(WholeName, Contested);
    contestFolders(suffixes);
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        const QString name = stem(index);
        const QString letters = withoutNumber(name);
        if (letters != name) {
            m_numbered.insert(letters);
        }
    }
}

QString OutputNames::output(qsizetype index, const QString& suffix) const
{
    return stem(index) + u'.' + suffix;
}

bool OutputNames::isContested(qsizetype index) const
{
    return m_naming.at(index) == Contested;
}

QString OutputNames::pageMark(qsizetype index) const
{
    QString mark = u"-"_s;
    while (m_numbered.contains(stem(index) + mark)) {
        mark.prepend(u"-page"_s);
    }
    return mark;
}

QString OutputNames::stem(qsizetype index) const
{
    const Input& input = m_inputs.at(index);
    // The shown name: what comes through standard input has no name of its own.
    const QFileInfo info(input.shownName);
    return below(input.folder,
                 m_naming.at(index) == Stem ? info.completeBaseName() : info.fileName());
}

void OutputNames::settle(Naming from, Naming to)
{
    QHash<QString, qsizetype> uses;
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        ++uses[stem(index)];
    }
    QList<qsizetype> meeting;
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        // A short name that equals a complete name is contested like that name.
        if (uses.value(stem(index)) > 1 && (m_naming.at(index) == from || to == Contested)) {
            meeting.append(index);
        }
    }
    for (const qsizetype index : meeting) {
        m_naming[index] = to;
    }
}

void OutputNames::contestFolders(const QStringList& suffixes)
{
    const QSet<QString> folders = foldersOf(m_inputs);
    if (folders.isEmpty()) {
        return;
    }
    for (qsizetype index = 0; index < m_inputs.size(); ++index) {
        for (const QString& suffix : suffixes) {
            if (folders.contains(output(index, suffix))) {
                m_naming[index] = Contested;
                break;
            }
        }
    }
}

} // namespace archive
