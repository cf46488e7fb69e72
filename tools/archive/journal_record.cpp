#include "archive/journal_record.h"

#include "limits/json/tree_size.h"

#include <QCryptographicHash>
#include <QDir>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

constexpr QLatin1String InputKey("input");
constexpr QLatin1String OptionsKey("options");
constexpr QLatin1String VersionKey("version");
constexpr QLatin1String OutcomeKey("outcome");
constexpr QLatin1String ErrorsKey("errors");
constexpr QLatin1String OutputsKey("outputs");
constexpr QLatin1String ReportKey("report");

} // namespace

QByteArray lineOf(const JournalRecord& record)
{
    QJsonArray outputs;
    for (const FileStamp& output : record.outputs) {
        outputs.append(toJson(output));
    }
    QJsonObject object{{InputKey, toJson(record.input)},
                       {OptionsKey, record.options},
                       {VersionKey, record.version},
                       {OutcomeKey, nameOf(record.outcome)},
                       {ErrorsKey, QJsonArray::fromStringList(record.errors)},
                       {OutputsKey, outputs}};
    if (!record.report.isEmpty()) {
        object.insert(ReportKey, record.report);
    }
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray nextLine(QIODevice& journal, qint64 longest)
{
    std::array<char, 16 * 1024> part;
    constexpr auto partSize = qint64(part.size()) - 1; // Qt ends it with a zero
    QByteArray line;
    qint64 size = 0;
    do {
        const qint64 left = longest - line.size();
        size = journal.readLine(part.data(), std::min(left, partSize) + 1);
        line.append(part.data(), std::max<qint64>(size, 0));
    } while (size > 0 && !line.endsWith('\n') && line.size() < longest);
    return line;
}

std::optional<JournalRecord> recordFromLine(const QByteArray& line)
{
    // Most incomplete lines of a power failure do not start as a record.
    if (!line.startsWith('{') || jsonlimits::isLargerThan(line, MaximumLineTree)) {
        return std::nullopt;
    }
    const QJsonObject object = QJsonDocument::fromJson(line).object();
    const std::optional<FileOutcome> outcome = outcomeOfName(object.value(OutcomeKey).toString());
    if (!outcome || !object.value(InputKey).isObject()) {
        return std::nullopt;
    }
    JournalRecord record;
    record.input = fileStampFromJson(object.value(InputKey).toObject());
    record.options = object.value(OptionsKey).toString();
    record.version = object.value(VersionKey).toString();
    record.outcome = *outcome;
    record.errors = object.value(ErrorsKey).toVariant().toStringList();
    for (const QJsonValue& output : object.value(OutputsKey).toArray()) {
        record.outputs.append(fileStampFromJson(output.toObject()));
    }
    record.report = object.value(ReportKey).toObject();
    return record;
}

QString fingerprintOf(const QJsonObject& options, const QStringList& outputs)
{
    QJsonObject whole = options;
    whole.insert(u"outputs"_s, QJsonArray::fromStringList(outputs));
    // Keys of an object come sorted, so the text of equal options is equal.
    const QByteArray text = QJsonDocument(whole).toJson(QJsonDocument::Compact);
    const QByteArray hash = QCryptographicHash::hash(text, QCryptographicHash::Sha256);
    return QString::fromLatin1(hash.left(16).toHex());
}

bool isDone(const JournalRecord& record, const Expectation& expected)
{
    return record.outcome == FileOutcome::Done && record.input == expected.input &&
           record.options == expected.options && record.version == expected.version &&
           (!expected.reportNeeded || !record.report.isEmpty()) &&
           untouchedOutputs(record.outputs, expected.outputFolder).size() == record.outputs.size();
}

QList<FileStamp> untouchedOutputs(const QList<FileStamp>& outputs, const QString& outputFolder)
{
    QList<FileStamp> untouched;
    for (const FileStamp& output : outputs) {
        const QString path = QDir::cleanPath(QDir(outputFolder).filePath(output.path));
        const FileStamp expected{path, output.size, output.modified};
        if (stampOf(path) == expected) {
            untouched.append(expected);
        }
    }
    return untouched;
}

} // namespace archive
