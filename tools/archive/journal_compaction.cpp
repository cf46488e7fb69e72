#include "archive/journal_compaction.h"

#include "archive/journal_record.h"

#include <QFile>
#include <QHash>
#include <QSaveFile>

#include <algorithm>

namespace archive {
namespace {

/// Where the last record of each input begins, and how many others there are.
struct Survey
{
    QList<qint64> last;
    qint64 superseded = 0;
};

Survey surveyOf(QFile& journal)
{
    QHash<QString, qint64> offsets;
    Survey survey;
    while (!journal.atEnd()) {
        const qint64 offset = journal.pos();
        const std::optional<JournalRecord> record = recordFromLine(nextLine(journal));
        if (record) {
            survey.superseded += offsets.contains(record->input.path) ? 1 : 0;
            offsets.insert(record->input.path, offset);
        }
    }
    survey.last = offsets.values();
    std::sort(survey.last.begin(), survey.last.end());
    return survey;
}

} // namespace

void compactJournal(const QString& path, qint64 tolerated)
{
    QFile journal(path);
    if (!journal.open(QIODevice::ReadOnly)) {
        return;
    }
    const Survey survey = surveyOf(journal);
    if (survey.superseded < tolerated || survey.superseded < survey.last.size()) {
        return;
    }
    QSaveFile rewritten(path);
    if (!rewritten.open(QIODevice::WriteOnly)) {
        return;
    }
    for (const qint64 offset : survey.last) {
        const QByteArray line = journal.seek(offset) ? nextLine(journal) : QByteArray();
        // The last one may have lost its end.
        if (line.isEmpty() || rewritten.write(line.endsWith('\n') ? line : line + '\n') < 0) {
            return; // what was written of the new one goes away unseen
        }
    }
    if (rewritten.flush()) {
        rewritten.commit();
    }
}

} // namespace archive
