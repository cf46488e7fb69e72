#pragma once

#include "host/kest_types.h"

#include <QByteArray>
#include <QColor>
#include <QCoreApplication>
#include <QImage>
#include <QJsonValue>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <Qt>

#include <cmath>
#include <concepts>
#include <limits>
#include <optional>

/// Single values in JSON. Json<T>::write() gives what Json<T>::read() takes; read() leaves the
/// value alone and gives false for anything else. Json<T>::Kind names the kind for a person.
namespace workbench::document {

template <class T>
struct Json;

template <>
struct Json<bool>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "true or false");
    [[nodiscard]] static QJsonValue write(bool value) { return value; }
    [[nodiscard]] static bool read(const QJsonValue& json, bool& value);
};

template <std::integral T>
requires(sizeof(T) <= sizeof(qint32)) struct Json<T>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("workbench::FieldWords", "a whole number in range");
    [[nodiscard]] static QJsonValue write(T value) { return static_cast<double>(value); }
    [[nodiscard]] static bool read(const QJsonValue& json, T& value)
    {
        const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
        if (!(number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max()) ||
            number != std::trunc(number))
            return false;
        value = static_cast<T>(number);
        return true;
    }
};

template <>
struct Json<double>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "a number");
    [[nodiscard]] static QJsonValue write(double value);
    [[nodiscard]] static bool read(const QJsonValue& json, double& value);
};

/// A value that may be missing is null then.
template <>
struct Json<std::optional<double>>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("workbench::FieldWords", "a number or null");
    [[nodiscard]] static QJsonValue write(const std::optional<double>& value);
    [[nodiscard]] static bool read(const QJsonValue& json, std::optional<double>& value);
};

/// A text. One that Unicode does not allow, from a damaged label, is {"utf16": base64}.
template <>
struct Json<QString>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "a text");
    [[nodiscard]] static QJsonValue write(const QString& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QString& value);
};

template <>
struct Json<QStringList>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("workbench::FieldWords", "a list of texts");
    [[nodiscard]] static QJsonValue write(const QStringList& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QStringList& value);
};

/// "#aarrggbb", with four digits to a channel where two do not suffice; null: no color at all.
template <>
struct Json<QColor>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "a color");
    [[nodiscard]] static QJsonValue write(const QColor& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QColor& value);
};

/// [width, height]
template <>
struct Json<QSizeF>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("workbench::FieldWords", "a width and a height");
    [[nodiscard]] static QJsonValue write(const QSizeF& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QSizeF& value);
};

/// [x, y]
template <>
struct Json<QPointF>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "a point");
    [[nodiscard]] static QJsonValue write(const QPointF& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QPointF& value);
};

/// Base64.
template <>
struct Json<QByteArray>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "data");
    [[nodiscard]] static QJsonValue write(const QByteArray& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QByteArray& value);
};

template <>
struct Json<Qt::Alignment>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "an alignment");
    [[nodiscard]] static QJsonValue write(Qt::Alignment value);
    [[nodiscard]] static bool read(const QJsonValue& json, Qt::Alignment& value);
};

/// The name of an item's type.
template <>
struct Json<KestTypes::ShapeType>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("workbench::FieldWords", "a known type of item");
    [[nodiscard]] static QJsonValue write(KestTypes::ShapeType value);
    [[nodiscard]] static bool read(const QJsonValue& json, KestTypes::ShapeType& value);
};

/// The properties of a data source: texts, whole numbers and lists of texts by name.
template <>
struct Json<QVariantMap>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("workbench::FieldWords", "a set of properties");
    [[nodiscard]] static QJsonValue write(const QVariantMap& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QVariantMap& value);
};

/// {"png": base64, "pixels": "rgb", "argb" or "premultiplied"}, or null for no picture.
template <>
struct Json<QImage>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("workbench::FieldWords", "a picture");
    [[nodiscard]] static QJsonValue write(const QImage& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QImage& value);
};

} // namespace workbench::document
