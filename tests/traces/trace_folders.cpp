#include "trace_folders.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

struct ReaderFolder
{
    const char* name;
    QStringList labels;
};

/// What counts as a label in a reader's folder; scripts and notes stand there too.
const QList<ReaderFolder>& readerFolders()
{
    static const QList<ReaderFolder> folders{
        {"opendocument", {u"*.odg"_s, u"*.odt"_s}},
        {"orvanta", {u"*.qmtx"_s}},
        {"tavrel", {u"*.cnv"_s, u"*.roc"_s}},
    };
    return folders;
}

const QString ReferenceSuffix = u".jsonl"_s;

} // namespace

TraceFolders::TraceFolders(const QString& samples, const QString& references)
    : m_samples(samples)
    , m_references(references)
{}

QList<TracedSample> TraceFolders::samples() const
{
    QList<TracedSample> found;
    for (const ReaderFolder& folder : readerFolders()) {
        const QDir directory(m_samples + u'/' + QLatin1String(folder.name));
        for (const QString& file : directory.entryList(folder.labels, QDir::Files, QDir::Name)) {
            const QString name = QLatin1String(folder.name) + u'/' + file;
            found.append(
                {name, m_samples + u'/' + name, m_references + u'/' + name + ReferenceSuffix});
        }
    }
    return found;
}

QStringList TraceFolders::orphans() const
{
    QStringList found;
    for (const ReaderFolder& folder : readerFolders()) {
        const QDir directory(m_references + u'/' + QLatin1String(folder.name));
        for (const QString& file : directory.entryList({u'*' + ReferenceSuffix}, QDir::Files)) {
            const QString name = QLatin1String(folder.name) + u'/' + file;
            if (!QFileInfo::exists(m_samples + u'/' + name.chopped(ReferenceSuffix.size()))) {
                found.append(name);
            }
        }
    }
    return found;
}
