#include "workbench/document/item_json_values.h"

#include "workbench/items/shape_kinds.h"

#include <QJsonArray>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace fields {

namespace {

/// Digits of a color with two and with four digits to a channel.
constexpr qsizetype ShortColor = 8;
constexpr qsizetype LongColor = 16;

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

[[nodiscard]] QJsonValue writeProperty(const QVariant& property)
{
    if (property.typeId() == QMetaType::QStringList) {
        return Json<QStringList>::write(property.toStringList());
    }
    if (property.typeId() == QMetaType::Int) {
        return Json<int>::write(property.toInt());
    }
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
    if (json.isArray()) {
        return readPropertyAs<QStringList>(json);
    }
    if (json.isDouble()) {
        return readPropertyAs<int>(json);
    }
    return readPropertyAs<QString>(json);
}

} // namespace

QJsonValue Json<QColor>::write(const QColor& value)
{
    if (!value.isValid()) {
        return {};
    }
    const QColor rgb = value.toRgb();
    if (QColor::fromRgba(rgb.rgba()) == rgb) {
        return rgb.name(QColor::HexArgb);
    }
    const QRgba64 wide = rgb.rgba64();
    QString text = u"#"_s;
    for (const quint16 channel : {wide.alpha(), wide.red(), wide.green(), wide.blue()}) {
        text += u"%1"_s.arg(channel, 4, 16, QLatin1Char('0'));
    }
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
    if (!ok || !sized || !text.startsWith(u'#') || digits.startsWith(u'+')) {
        return false;
    }
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

QJsonValue Json<Qt::Alignment>::write(Qt::Alignment value)
{
    return Json<int>::write(static_cast<int>(value.toInt()));
}

bool Json<Qt::Alignment>::read(const QJsonValue& json, Qt::Alignment& value)
{
    int flags = 0;
    if (!Json<int>::read(json, flags)) {
        return false;
    }
    value = Qt::Alignment(flags);
    return true;
}

QJsonValue Json<KestTypes::ShapeType>::write(KestTypes::ShapeType value)
{
    const QString name = workbench::savedNameOf(value);
    return name.isEmpty() ? QJsonValue() : QJsonValue(name);
}

bool Json<KestTypes::ShapeType>::read(const QJsonValue& json, KestTypes::ShapeType& value)
{
    const auto type = workbench::typeOfSavedName(json.toString());
    value = type.value_or(value);
    return type.has_value();
}

QJsonValue Json<QVariantMap>::write(const QVariantMap& value)
{
    QJsonObject object;
    for (auto property = value.begin(); property != value.end(); ++property) {
        object.insert(property.key(), writeProperty(property.value()));
    }
    return object;
}

bool Json<QVariantMap>::read(const QJsonValue& json, QVariantMap& value)
{
    if (!json.isObject()) {
        return false;
    }
    QVariantMap properties;
    const QJsonObject object = json.toObject();
    for (auto each = object.begin(); each != object.end(); ++each) {
        const QVariant property = readProperty(each.value());
        if (!property.isValid()) {
            return false;
        }
        properties.insert(each.key(), property);
    }
    value = properties;
    return true;
}

} // namespace fields
