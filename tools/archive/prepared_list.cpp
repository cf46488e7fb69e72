#include "archive/prepared_list.h"

#include "archive/input_list.h"
#include "archive/journal_record.h"
#include "sandbox/readable_paths.h"

#include <QCoreApplication>
#include <QDir>
#include <QIODevice>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <optional>

namespace archive {
namespace {

using namespace Qt::StringLiterals;

/// The first key of a header. QJsonObject writes keys in alphabetical order.
constexpr QLatin1String ListVersionKey("_labelport_list");
constexpr int Version = 1;

qsizetype inputsIn(const Shard& shard, qsizetype inputs)
{
    const qsizetype before = shard.number - 1;
    return inputs > before ? (inputs - before - 1) / shard.count + 1 : 0;
}

QByteArray listLine(const QJsonObject& object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

QByteArray listLine(const Input& input, const OutputName& name)
{
    QJsonObject object{{u"file"_s, input.path}};
    if (input.shownName != input.path) {
        object.insert(u"name"_s, input.shownName);
    }
    if (!input.folder.isEmpty()) {
        object.insert(u"folder"_s, input.folder);
    }
    if (name.naming != OutputName::Stem) {
        object.insert(u"naming"_s,
                      name.naming == OutputName::CompleteName ? u"complete"_s : u"conflicting"_s);
    }
    if (name.pageMark != "-"_L1) {
        object.insert(u"pages"_s, name.pageMark);
    }
    if (!name.folderSuffixes.isEmpty()) {
        object.insert(u"folders"_s, QJsonArray::fromStringList(name.folderSuffixes));
    }
    return listLine(object);
}

/// Outputs must stay below the output folder.
bool isFolderBelow(const QString& folder)
{
    return folder.isEmpty() ||
           (QDir::cleanPath(folder) == folder && !folder.startsWith(u'/') && folder != ".."_L1 &&
            folder != "."_L1 && !folder.startsWith("../"_L1));
}

bool isPageMark(QString mark)
{
    return mark.endsWith(u'-') && mark.size() <= MaximumNameBytes &&
           mark.chopped(1).remove("-page"_L1).isEmpty();
}

std::optional<OutputName::Naming> namingOf(const QJsonValue& value)
{
    const QString word = value.toString();
    return value.isUndefined()        ? std::optional(OutputName::Stem)
           : word == "complete"_L1    ? std::optional(OutputName::CompleteName)
           : word == "conflicting"_L1 ? std::optional(OutputName::Conflicting)
                                      : std::nullopt;
}

bool readInput(const QJsonObject& object, PreparedList& list)
{
    Input input;
    input.path = object.value("file"_L1).toString();
    input.shownName = object.value("name"_L1).toString(input.path);
    input.folder = object.value("folder"_L1).toString();
    const auto naming = namingOf(object.value("naming"_L1));
    OutputName name{
        naming.value_or(OutputName::Stem), object.value("pages"_L1).toString(u"-"_s), {}};
    const QJsonArray suffixes = object.value("folders"_L1).toArray();
    if (input.path.isEmpty() || input.shownName.isEmpty() || !naming ||
        !isPageMark(name.pageMark) || !isFolderBelow(input.folder)) {
        return false;
    }
    for (const QJsonValue& suffix : suffixes) {
        name.folderSuffixes.append(suffix.toString());
    }
    list.inputs.append(input);
    list.names.append(name);
    return true;
}

std::optional<QJsonObject> nextObject(QIODevice& device)
{
    const QByteArray line = nextLine(device, MaximumPreparedLine);
    const QJsonDocument document = QJsonDocument::fromJson(line);
    return line.endsWith('\n') && document.isObject() ? std::optional(document.object())
                                                      : std::nullopt;
}

} // namespace

bool isPreparedList(const QByteArray& start)
{
    return start.startsWith("{\"" + QByteArray(ListVersionKey.data(), ListVersionKey.size()) +
                            "\":");
}

PreparedList readPreparedList(QIODevice& device, QString& error)
{
    const auto fail = [&error](const char* reason) {
        error = QCoreApplication::translate("archive::PreparedList", reason);
        return PreparedList();
    };
    const QJsonObject header = nextObject(device).value_or(QJsonObject());
    if (header.value(ListVersionKey).toInt() != Version) {
        return fail(QT_TRANSLATE_NOOP("archive::PreparedList",
                                      "it was written by another version of labelport"));
    }
    const auto shard = shardOf(header.value("shard"_L1).toString());
    const qint64 files = header.value("files"_L1).toInteger(-1);
    PreparedList list;
    list.shard = shard.value_or(Shard());
    sandbox::ReadablePaths readable;
    while (shard && list.inputs.size() < files) {
        const std::optional<QJsonObject> object = nextObject(device);
        if (!object || !readInput(*object, list)) {
            break;
        }
        readable.addFile(object->value("file"_L1).toString());
    }
    if (list.inputs.size() != files || !device.read(1).isEmpty()) {
        return fail(QT_TRANSLATE_NOOP("archive::PreparedList", "it is damaged or incomplete"));
    }
    list.readable = readable.paths();
    return list;
}

bool writePreparedList(QIODevice& device, const PartRequest& part)
{
    const QJsonObject header{{ListVersionKey, Version},
                             {u"shard"_s, u"%1/%2"_s.arg(part.shard.number).arg(part.shard.count)},
                             {u"files"_s, inputsIn(part.shard, part.inputs.size())}};
    bool isWritten = device.write(listLine(header)) > 0;
    for (qsizetype index = part.shard.number - 1; isWritten && index < part.inputs.size();
         index += part.shard.count) {
        isWritten = device.write(listLine(part.inputs.at(index), part.names.chosen(index))) > 0;
    }
    return isWritten;
}

} // namespace archive
