#include "workbench/document/label_json.h"

#include "limits/json/tree_size.h"
#include "workbench/datasources/csv_source.h"
#include "workbench/document/document_limits.h"
#include "workbench/document/label_fields.h"
#include "workbench/document/picture_pixels.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace workbench::document {

namespace {

struct LabelJsonTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::LabelFile)
};

constexpr QLatin1String FormatKey("format");
constexpr QLatin1String VersionKey("version");
constexpr QLatin1String ChecksumKey("checksum");
constexpr QLatin1String LabelKey("label");
constexpr QLatin1String OriginKey("origin");
constexpr QLatin1String ImportOrigin("import");
constexpr QLatin1String FormatName("labelport-label");

[[nodiscard]] QString checksumOf(const QJsonObject& label)
{
    const QByteArray text = QJsonDocument(label).toJson(QJsonDocument::Compact);
    return QString::fromLatin1(QCryptographicHash::hash(text, QCryptographicHash::Sha256).toHex());
}

// The oldest version that has all parts of the label, so that older programs open what they can.
[[nodiscard]] int versionFor(const SavedLabel& label)
{
    const bool hasCsv = std::any_of(label.datasources.begin(), label.datasources.end(),
                                    [](const datasources::SourceValues& source) {
                                        return source.kind == datasources::CsvSource::Kind;
                                    });
    return hasCsv ? FormatVersion : 1;
}

[[nodiscard]] ReadLabel refusal(const QString& error)
{
    return {{}, error};
}

/// What is wrong with the outermost object; empty when the label in it can be read.
[[nodiscard]] QString envelopeError(const QJsonObject& file)
{
    if (file.value(FormatKey) != QJsonValue(FormatName)) {
        return LabelJsonTr::tr("The file is not a saved label.");
    }
    int version = 0;
    if (!fields::Json<int>::read(file.value(VersionKey), version) || version < 1) {
        return LabelJsonTr::tr(
            "The label file is damaged: version is not a positive whole number.");
    }
    if (version > FormatVersion) {
        return LabelJsonTr::tr("The label was saved by a newer version of the program: its format"
                               " is %1, and this version knows formats up to %2. Update the"
                               " program to open it.")
            .arg(version)
            .arg(FormatVersion);
    }
    if (!file.value(LabelKey).isObject()) {
        return LabelJsonTr::tr("The label file is damaged: label is missing.");
    }
    // A file that a person or another program has written needs no checksum.
    if (file.contains(ChecksumKey) &&
        file.value(ChecksumKey) != QJsonValue(checksumOf(file.value(LabelKey).toObject()))) {
        return LabelJsonTr::tr("The label file is damaged: its content has changed since it was"
                               " saved.");
    }
    return {};
}

} // namespace

QByteArray toJson(const SavedLabel& label, Origin origin, const Heartbeat& heartbeat)
{
    fields::FieldWriter writer(heartbeat);
    describe(writer, label);
    const QJsonObject content = writer.object();
    const QString checksum = checksumOf(content);
    heartbeat();
    QJsonObject file{{FormatKey, FormatName},
                     {VersionKey, versionFor(label)},
                     {ChecksumKey, checksum},
                     {LabelKey, content}};
    if (origin == Origin::Import) {
        file.insert(OriginKey, ImportOrigin);
    }
    return QJsonDocument(file).toJson(QJsonDocument::Indented);
}

bool isUneditedImport(const QByteArray& bytes)
{
    if (jsonlimits::isLargerThan(bytes, limits::TreeBytes)) {
        return false;
    }
    const QJsonObject file = QJsonDocument::fromJson(bytes).object();
    return file.value(OriginKey) == QJsonValue(ImportOrigin) && file.contains(ChecksumKey) &&
           envelopeError(file).isEmpty();
}

ReadLabel fromJson(const QByteArray& bytes)
{
    if (jsonlimits::isLargerThan(bytes, limits::TreeBytes)) {
        return refusal(LabelJsonTr::tr("The label file is damaged: it holds more than any label."));
    }
    QJsonParseError parsing;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parsing);
    if (parsing.error != QJsonParseError::NoError) {
        return refusal(LabelJsonTr::tr("The file is not a saved label, or it is damaged: after %1"
                                       " bytes it cannot be read any further.")
                           .arg(parsing.offset));
    }
    const QJsonObject file = document.object();
    const QString error = envelopeError(file);
    if (!error.isEmpty()) {
        return refusal(error);
    }
    const QJsonObject content = file.value(LabelKey).toObject();
    if (claimedPixels(content) > limits::AllPicturePixels) {
        return refusal(LabelJsonTr::tr("The label file is damaged: its pictures are too large."));
    }
    ReadLabel result;
    fields::FieldReader reader(content, limits::Items);
    describe(reader, result.label);
    if (!reader.error().isEmpty()) {
        return refusal(LabelJsonTr::tr("The label file is damaged: %1.").arg(reader.error()));
    }
    return result;
}

} // namespace workbench::document
