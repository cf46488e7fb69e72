#include "archive/journal.h"

#include "archive/journal_compaction.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace archive {
namespace {

const QString LockName = QStringLiteral(".labelport-journal.lock");

QStringList journalsIn(const QString& folder)
{
    QStringList paths;
    const QDir directory(folder);
    for (const QString& name : directory.entryList({QStringLiteral(".labelport-journal*.jsonl")},
                                                   QDir::Files | QDir::Hidden, QDir::Name)) {
        paths.append(directory.filePath(name));
    }
    return paths;
}

/// Holds the journals against being rewritten by others; rewrites them first when nobody
/// else is there and they have become long.
FileLock takeHold(const QString& folder)
{
    const QString path = QDir(folder).filePath(LockName);
    {
        const FileLock alone = FileLock::tryLock(path, FileLock::Exclusive, true);
        if (alone.isHeld()) {
            for (const QString& journal : journalsIn(folder)) {
                compactJournal(journal);
            }
        }
    }
    return FileLock::waitForLock(path, FileLock::Shared);
}

bool endsWithinALine(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() > 0 && file.seek(file.size() - 1) &&
           file.read(1) != "\n";
}

} // namespace

QString Journal::open(const QString& outputFolder, const Shard& shard, const QList<Input>& inputs)
{
    m_lock = takeHold(outputFolder);
    m_file.setFileName(QDir(outputFolder).filePath(fileNameFor(shard)));
    const bool isTorn = endsWithinALine(m_file.fileName());
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        return QCoreApplication::translate("archive::Journal", "Cannot write \"%1\": %2.")
            .arg(m_file.fileName(), m_file.errorString());
    }
    if (isTorn) {
        m_file.write("\n");
    }
    QHash<QString, qsizetype> indexes;
    for (qsizetype index = 0; index < inputs.size(); ++index) {
        indexes.insert(QFileInfo(inputs.at(index).path).absoluteFilePath(), index);
    }
    m_places.resize(inputs.size());
    m_files = journalsIn(outputFolder);
    for (qsizetype file = 0; file < m_files.size(); ++file) {
        note(indexes, file);
    }
    return {};
}

void Journal::note(const QHash<QString, qsizetype>& indexes, qsizetype file)
{
    QFile journal(m_files.at(file));
    if (!journal.open(QIODevice::ReadOnly)) {
        return;
    }
    while (!journal.atEnd()) {
        const qint64 offset = journal.pos();
        const std::optional<JournalRecord> record = recordFromLine(nextLine(journal));
        const auto index = record ? indexes.constFind(record->input.path) : indexes.constEnd();
        if (index != indexes.constEnd()) {
            m_places[*index] = {file, offset};
        }
    }
}

std::optional<JournalRecord> Journal::find(qsizetype index)
{
    const Place place = m_places.value(index);
    if (place.file < 0) {
        return std::nullopt;
    }
    if (m_read.fileName() != m_files.at(place.file) || !m_read.isOpen()) {
        m_read.close();
        m_read.setFileName(m_files.at(place.file));
        if (!m_read.open(QIODevice::ReadOnly)) {
            return std::nullopt;
        }
    }
    return m_read.seek(place.offset) ? recordFromLine(nextLine(m_read)) : std::nullopt;
}

bool Journal::append(const JournalRecord& record)
{
    // One call of the system, so that lines of several commands do not mix.
    const QByteArray line = lineOf(record);
    if (m_file.write(line) == line.size()) {
        return true;
    }
    m_file.write("\n"); // ends what may have come of it, or fails as well
    return false;
}

QSet<QString> Journal::outputsIn(const QString& outputFolder, const QString& suffix)
{
    QSet<QString> outputs;
    const QDir folder(outputFolder);
    for (const QString& path : journalsIn(outputFolder)) {
        QFile journal(path);
        if (!journal.open(QIODevice::ReadOnly)) {
            continue;
        }
        while (!journal.atEnd()) {
            const std::optional<JournalRecord> record = recordFromLine(nextLine(journal));
            for (const FileStamp& output : record ? record->outputs : QList<FileStamp>()) {
                if (output.path.endsWith(suffix)) {
                    outputs.insert(QDir::cleanPath(folder.absoluteFilePath(output.path)));
                }
            }
        }
    }
    return outputs;
}

QString Journal::fileNameFor(const Shard& shard)
{
    return shard.isWhole() ? QStringLiteral(".labelport-journal.jsonl")
                           : QStringLiteral(".labelport-journal-%1-of-%2.jsonl")
                                 .arg(shard.number)
                                 .arg(shard.count);
}

} // namespace archive
