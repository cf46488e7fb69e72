#include "workbench/document/json_values.h"

#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <array>

namespace workbench::document {

namespace {

constexpr QLatin1String Utf16Key("utf16");
/// Digits of a color with two and with four digits to a channel.
constexpr qsizetype ShortColor = 8;
constexpr qsizetype LongColor = 16;

struct TypeName
{
    KestTypes::ShapeType type;
    QStringView name;
};

constexpr std::array<TypeName, 16> TypeNames{{
    {KestTypes::Picture, u"picture"},
    {KestTypes::Symbol, u"symbol"},
    {KestTypes::SimpleText, u"simpleText"},
    {KestTypes::RichText, u"richText"},
    {KestTypes::Barcode, u"barcode"},
    {KestTypes::Line, u"line"},
    {KestTypes::Rectangle, u"rectangle"},
    {KestTypes::RoundedRectangle, u"roundedRectangle"},
    {KestTypes::Ellipse, u"ellipse"},
    {KestTypes::Pie, u"pie"},
    {KestTypes::RightTriangle, u"rightTriangle"},
    {KestTypes::Triangle, u"triangle"},
    {KestTypes::Diamond, u"diamond"},
    {KestTypes::Pentagon, u"pentagon"},
    {KestTypes::Hexagon, u"hexagon"},
    {KestTypes::Octagon, u"octagon"},
}};

[[nodiscard]] QJsonArray pair(double first, double second)
{
    return {Json<double>::write(first), Json<double>::write(second)};
}

[[nodiscard]] bool readPair(const QJsonValue& json, double& first, double& second)
{
    const QJsonArray array = json.toArray();
    return array.size() == 2 && Json<double>::read(array[0], first) &&
           Json<double>::read(array[1], second);
}

[[nodiscard]] std::optional<QByteArray> fromBase64(const QString& text)
{
    const auto decoded =
        QByteArray::fromBase64Encoding(text.toLatin1(), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return *decoded;
}

[[nodiscard]] QJsonValue writeProperty(const QVariant& property)
{
    if (property.typeId() == QMetaType::QStringList)
        return Json<QStringList>::write(property.toStringList());
    if (property.typeId() == QMetaType::Int)
        return Json<int>::write(property.toInt());
    return Json<QString>::write(property.toString());
}

template <class T>
[[nodiscard]] QVariant readPropertyAs(const QJsonValue& json)
{
    T value{};
    return Json<T>::read(json, value) ? QVariant::fromValue(value) : QVariant();
}

[[nodiscard]] QVariant readProperty(const QJsonValue& json)
{
    if (json.isArray())
        return readPropertyAs<QStringList>(json);
    if (json.isDouble())
        return readPropertyAs<int>(json);
    return readPropertyAs<QString>(json);
}

} // namespace

bool Json<bool>::read(const QJsonValue& json, bool& value)
{
    value = json.toBool(value);
    return json.isBool();
}

QJsonValue Json<double>::write(double value)
{
    // JSON has no word for what is not a number.
    return std::isfinite(value) ? value : 0.0;
}

bool Json<double>::read(const QJsonValue& json, double& value)
{
    value = json.toDouble(value);
    return json.isDouble() && std::isfinite(value);
}

QJsonValue Json<std::optional<double>>::write(const std::optional<double>& value)
{
    return value ? Json<double>::write(*value) : QJsonValue();
}

bool Json<std::optional<double>>::read(const QJsonValue& json, std::optional<double>& value)
{
    double number = 0.0;
    if (!json.isNull() && !Json<double>::read(json, number))
        return false;
    value = json.isNull() ? std::nullopt : std::optional(number);
    return true;
}

QJsonValue Json<QString>::write(const QString& value)
{
    if (value.isValidUtf16())
        return value;
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
    if (!encoded.isString() || !bytes || bytes->size() % 2 != 0)
        return false;
    QString text(bytes->size() / 2, Qt::Uninitialized);
    std::copy(bytes->begin(), bytes->end(), reinterpret_cast<char*>(text.data()));
    value = text;
    return true;
}

QJsonValue Json<QStringList>::write(const QStringList& value)
{
    QJsonArray array;
    for (const QString& text : value)
        array.append(Json<QString>::write(text));
    return array;
}

bool Json<QStringList>::read(const QJsonValue& json, QStringList& value)
{
    if (!json.isArray())
        return false;
    QStringList texts;
    for (const QJsonValue each : json.toArray()) {
        QString text;
        if (!Json<QString>::read(each, text))
            return false;
        texts << text;
    }
    value = texts;
    return true;
}

QJsonValue Json<QColor>::write(const QColor& value)
{
    if (!value.isValid())
        return {};
    const QColor rgb = value.toRgb();
    if (QColor::fromRgba(rgb.rgba()) == rgb)
        return rgb.name(QColor::HexArgb);
    const QRgba64 wide = rgb.rgba64();
    QString text = QStringLiteral("#");
    for (const quint16 channel : {wide.alpha(), wide.red(), wide.green(), wide.blue()})
        text += QStringLiteral("%1").arg(channel, 4, 16, QLatin1Char('0'));
    return text;
}

bool Json<QColor>::read(const QJsonValue& json, QColor& value)
{
    const QString text = json.toString();
    const QString digits = text.mid(1);
    bool ok = false;
    const quint64 number = digits.toULongLong(&ok, 16);
    if (json.isNull()) {
        value = QColor();
        return true;
    }
    const bool sized = digits.size() == ShortColor || digits.size() == LongColor;
    if (!ok || !sized || !text.startsWith(u'#') || digits.startsWith(u'+'))
        return false;
    if (digits.size() == ShortColor) {
        value = QColor::fromRgba(static_cast<QRgb>(number));
        return true;
    }
    const auto channel = [number](int shift) { return static_cast<quint16>(number >> shift); };
    value = QColor::fromRgba64(channel(32), channel(16), channel(0), channel(48));
    return true;
}

QJsonValue Json<QSizeF>::write(const QSizeF& value)
{
    return pair(value.width(), value.height());
}

bool Json<QSizeF>::read(const QJsonValue& json, QSizeF& value)
{
    return readPair(json, value.rwidth(), value.rheight());
}

QJsonValue Json<QPointF>::write(const QPointF& value)
{
    return pair(value.x(), value.y());
}

bool Json<QPointF>::read(const QJsonValue& json, QPointF& value)
{
    return readPair(json, value.rx(), value.ry());
}

QJsonValue Json<QByteArray>::write(const QByteArray& value)
{
    return QString::fromLatin1(value.toBase64());
}

bool Json<QByteArray>::read(const QJsonValue& json, QByteArray& value)
{
    const std::optional<QByteArray> bytes = fromBase64(json.toString());
    if (!json.isString() || !bytes)
        return false;
    value = *bytes;
    return true;
}

QJsonValue Json<Qt::Alignment>::write(Qt::Alignment value)
{
    return Json<int>::write(static_cast<int>(value.toInt()));
}

bool Json<Qt::Alignment>::read(const QJsonValue& json, Qt::Alignment& value)
{
    int flags = 0;
    if (!Json<int>::read(json, flags))
        return false;
    value = Qt::Alignment(flags);
    return true;
}

QJsonValue Json<KestTypes::ShapeType>::write(KestTypes::ShapeType value)
{
    const auto found = std::find_if(TypeNames.begin(), TypeNames.end(),
                                    [value](const TypeName& each) { return each.type == value; });
    return found == TypeNames.end() ? QJsonValue() : QJsonValue(found->name.toString());
}

bool Json<KestTypes::ShapeType>::read(const QJsonValue& json, KestTypes::ShapeType& value)
{
    const QString name = json.toString();
    const auto found = std::find_if(TypeNames.begin(), TypeNames.end(),
                                    [&name](const TypeName& each) { return each.name == name; });
    if (found == TypeNames.end())
        return false;
    value = found->type;
    return true;
}

QJsonValue Json<QVariantMap>::write(const QVariantMap& value)
{
    QJsonObject object;
    for (auto property = value.begin(); property != value.end(); ++property)
        object.insert(property.key(), writeProperty(property.value()));
    return object;
}

bool Json<QVariantMap>::read(const QJsonValue& json, QVariantMap& value)
{
    if (!json.isObject())
        return false;
    QVariantMap properties;
    const QJsonObject object = json.toObject();
    for (auto each = object.begin(); each != object.end(); ++each) {
        const QVariant property = readProperty(each.value());
        if (!property.isValid())
            return false;
        properties.insert(each.key(), property);
    }
    value = properties;
    return true;
}

} // namespace workbench::document
