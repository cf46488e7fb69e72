#include "archive/journal.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>

#include <algorithm>

namespace archive {
namespace {

using namespace Qt::StringLiterals;

const QString JournalLockName = u".labelport-journal.lock"_s;

QStringList journalsIn(const QString& folder)
{
    QStringList paths;
    const QDir directory(folder);
    for (const QString& name : directory.entryList({u".labelport-journal*.jsonl"_s},
                                                   QDir::Files | QDir::Hidden, QDir::Name)) {
        paths.append(directory.filePath(name));
    }
    return paths;
}

/// Offsets of the records that no later record of the same file and options replaces, in order;
/// empty if none is replaced.
QList<qint64> offsetsToKeep(QFile& journal)
{
    QHash<QString, qint64> offsets;
    bool isAnyReplaced = false;
    while (!journal.atEnd()) {
        const qint64 offset = journal.pos();
        if (const std::optional<JournalRecord> record = recordFromLine(nextLine(journal))) {
            const QString key = record->options + u' ' + record->input.path;
            isAnyReplaced = isAnyReplaced || offsets.contains(key);
            offsets.insert(key, offset);
        }
    }
    QList<qint64> kept = isAnyReplaced ? offsets.values() : QList<qint64>();
    std::sort(kept.begin(), kept.end());
    return kept;
}

/// Rewrites a journal without replaced records. If that fails, the journal stays as it is.
void rewrite(const QString& path)
{
    QFile journal(path);
    if (!journal.open(QIODevice::ReadOnly)) {
        return;
    }
    const QList<qint64> offsets = offsetsToKeep(journal);
    QSaveFile rewritten(path);
    if (offsets.isEmpty() || !rewritten.open(QIODevice::WriteOnly)) {
        return;
    }
    for (const qint64 offset : offsets) {
        const QByteArray line = journal.seek(offset) ? nextLine(journal) : QByteArray();
        // The last line may lack its end.
        if (line.isEmpty() || rewritten.write(line.endsWith('\n') ? line : line + '\n') < 0) {
            return;
        }
    }
    if (rewritten.flush()) {
        rewritten.commit();
    }
}

/// Keeps other commands from rewriting the journals. Rewrites them first if asked to, unless
/// another command uses them.
FileLock lockJournals(const QString& folder, bool isRewriting)
{
    const QString path = QDir(folder).filePath(JournalLockName);
    if (isRewriting) {
        const FileLock exclusive = FileLock::tryLock(path, FileLock::Exclusive, true);
        if (exclusive.isHeld()) {
            for (const QString& journal : journalsIn(folder)) {
                rewrite(journal);
            }
        }
    }
    return FileLock::waitForLock(path, FileLock::Shared);
}

bool lastLineIsUnterminated(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) && file.size() > 0 && file.seek(file.size() - 1) &&
           file.read(1) != "\n";
}

} // namespace

QString Journal::open(const QString& outputFolder, const Shard& shard, const Inputs& inputs,
                      bool isRewriting)
{
    m_folder.emplace(outputFolder);
    m_lock = lockJournals(m_folder->path(), isRewriting);
    m_file.setFileName(QDir(m_folder->path()).filePath(fileNameFor(shard)));
    const bool isTorn = lastLineIsUnterminated(m_file.fileName());
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered)) {
        return QCoreApplication::translate("archive::Journal", "Cannot write \"%1\": %2.")
            .arg(QDir(outputFolder).filePath(fileNameFor(shard)), m_file.errorString());
    }
    if (isTorn) {
        m_file.write("\n");
    }
    const PathIndex paths(inputs);
    m_files = journalsIn(m_folder->path());
    for (qsizetype file = 0; file < m_files.size(); ++file) {
        notePlaces(paths, static_cast<quint32>(file));
    }
    std::stable_sort(m_places.begin(), m_places.end(),
                     [](const Place& a, const Place& b) { return a.input < b.input; });
    return {};
}

void Journal::notePlaces(const PathIndex& inputs, quint32 file)
{
    QFile journal(m_files.at(file));
    if (!journal.open(QIODevice::ReadOnly)) {
        return;
    }
    while (!journal.atEnd()) {
        const qint64 offset = journal.pos();
        const std::optional<JournalRecord> record = recordFromLine(nextLine(journal));
        const std::optional<qsizetype> input =
            record ? inputs.find(record->input.path) : std::nullopt;
        if (input) {
            m_places.append({offset, qHash(record->options), static_cast<quint32>(*input), file});
        }
    }
}

QList<Journal::Place> Journal::placesOf(qsizetype index) const
{
    QList<Place> places;
    const auto first =
        std::lower_bound(m_places.begin(), m_places.end(), index,
                         [](const Place& place, qsizetype input) { return place.input < input; });
    for (auto place = first; place != m_places.end() && place->input == index; ++place) {
        places.removeIf([place](const Place& old) { return old.options == place->options; });
        places.append(*place);
    }
    return places;
}

std::optional<JournalRecord> Journal::recordAt(const Place& place)
{
    if (m_read.fileName() != m_files.at(place.file) || !m_read.isOpen()) {
        m_read.close();
        m_read.setFileName(m_files.at(place.file));
        if (!m_read.open(QIODevice::ReadOnly)) {
            return std::nullopt;
        }
    }
    return m_read.seek(place.offset) ? recordFromLine(nextLine(m_read)) : std::nullopt;
}

std::optional<JournalRecord> Journal::find(qsizetype index, const QString& options)
{
    for (const Place& place : placesOf(index)) {
        if (place.options == qHash(options)) {
            std::optional<JournalRecord> record = recordAt(place);
            return record && record->options == options ? record : std::nullopt;
        }
    }
    return std::nullopt;
}

QList<FileStamp> Journal::outputsOf(qsizetype index)
{
    QList<FileStamp> outputs;
    for (const Place& place : placesOf(index)) {
        if (const std::optional<JournalRecord> record = recordAt(place)) {
            outputs += record->outputs;
        }
    }
    return outputs;
}

bool Journal::append(const JournalRecord& record)
{
    // One system call, so that lines of several commands do not mix.
    const QByteArray line = lineOf(record);
    if (m_file.write(line) == line.size()) {
        return true;
    }
    m_file.write("\n"); // ends a line that was written in part
    return false;
}

void Journal::visitOutputs(const QString& outputFolder, const QString& suffix,
                           const OutputVisitor& visit)
{
    const console::ReachablePath reachable(outputFolder);
    const QDir folder(console::absolutePath(outputFolder));
    for (const QString& path : journalsIn(reachable.path())) {
        QFile journal(path);
        if (!journal.open(QIODevice::ReadOnly)) {
            continue;
        }
        while (!journal.atEnd()) {
            const std::optional<JournalRecord> record = recordFromLine(nextLine(journal));
            for (const FileStamp& output : record ? record->outputs : QList<FileStamp>()) {
                if (output.path.endsWith(suffix)) {
                    visit(QDir::cleanPath(folder.filePath(output.path)), record->input.path);
                }
            }
        }
    }
}

QString Journal::fileNameFor(const Shard& shard)
{
    return shard.isEverything()
               ? u".labelport-journal.jsonl"_s
               : u".labelport-journal-%1-of-%2.jsonl"_s.arg(shard.number).arg(shard.count);
}

} // namespace archive
