#include "fields/json_values.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>

namespace fields {

namespace {

constexpr QLatin1String Utf16Key("utf16");

std::optional<QByteArray> fromBase64(const QString& text)
{
    const auto decoded =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    return decoded ? std::optional<QByteArray>(*decoded) : std::nullopt;
}

} // namespace

bool Json<bool>::read(const QJsonValue& json, bool& value)
{
    value = json.toBool(value);
    return json.isBool();
}

bool Json<qint64>::read(const QJsonValue& json, qint64& value)
{
    const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
    // False for NaN, too.
    const bool isExact = std::abs(number) <= static_cast<double>(LargestWhole);
    if (!isExact || number != std::trunc(number)) {
        return false;
    }
    value = static_cast<qint64>(number);
    return true;
}

QJsonValue Json<double>::write(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

bool Json<double>::read(const QJsonValue& json, double& value)
{
    value = json.toDouble(value);
    return json.isDouble() && std::isfinite(value);
}

QJsonValue Json<QString>::write(const QString& value)
{
    if (value.isValidUtf16()) {
        return value;
    }
    const auto size = value.size() * static_cast<qsizetype>(sizeof(char16_t));
    const QByteArray bytes(reinterpret_cast<const char*>(value.utf16()), size);
    return QJsonObject{{Utf16Key, QString::fromLatin1(bytes.toBase64())}};
}

bool Json<QString>::read(const QJsonValue& json, QString& value)
{
    if (json.isString()) {
        value = json.toString();
        return true;
    }
    const QJsonValue encoded = json.toObject().value(Utf16Key);
    const std::optional<QByteArray> bytes = fromBase64(encoded.toString());
    if (!encoded.isString() || !bytes || bytes->size() % 2 != 0) {
        return false;
    }
    QString text(bytes->size() / 2, Qt::Uninitialized);
    std::copy(bytes->begin(), bytes->end(), reinterpret_cast<char*>(text.data()));
    value = text;
    return true;
}

QJsonValue Json<QStringList>::write(const QStringList& value)
{
    QJsonArray array;
    for (const QString& text : value) {
        array.append(Json<QString>::write(text));
    }
    return array;
}

bool Json<QStringList>::read(const QJsonValue& json, QStringList& value)
{
    if (!json.isArray()) {
        return false;
    }
    QStringList texts;
    for (const QJsonValue each : json.toArray()) {
        QString text;
        if (!Json<QString>::read(each, text)) {
            return false;
        }
        texts << text;
    }
    value = texts;
    return true;
}

QJsonValue Json<QByteArray>::write(const QByteArray& value)
{
    return QString::fromLatin1(value.toBase64());
}

bool Json<QByteArray>::read(const QJsonValue& json, QByteArray& value)
{
    const std::optional<QByteArray> bytes = fromBase64(json.toString());
    if (!json.isString() || !bytes) {
        return false;
    }
    value = *bytes;
    return true;
}

} // namespace fields
