#pragma once

#include "fields/json_values.h"
#include "host/kest_types.h"

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QSizeF>
#include <QVariantMap>
#include <Qt>

/// The single values of saved labels in JSON, in addition to those of fields/json_values.h.
namespace fields {

/// "#aarrggbb", with four digits to a channel where two do not suffice; null: no color at all.
template <>
struct Json<QColor>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a color");
    [[nodiscard]] static QJsonValue write(const QColor& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QColor& value);
};

/// [width, height]
template <>
struct Json<QSizeF>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a width and a height");
    [[nodiscard]] static QJsonValue write(const QSizeF& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QSizeF& value);
};

/// [x, y]
template <>
struct Json<QPointF>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a point");
    [[nodiscard]] static QJsonValue write(const QPointF& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QPointF& value);
};

template <>
struct Json<Qt::Alignment>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "an alignment");
    [[nodiscard]] static QJsonValue write(Qt::Alignment value);
    [[nodiscard]] static bool read(const QJsonValue& json, Qt::Alignment& value);
};

/// The name of an item's type.
template <>
struct Json<KestTypes::ShapeType>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a known type of item");
    [[nodiscard]] static QJsonValue write(KestTypes::ShapeType value);
    [[nodiscard]] static bool read(const QJsonValue& json, KestTypes::ShapeType& value);
};

/// The properties of a data source: texts, whole numbers and lists of texts by name.
template <>
struct Json<QVariantMap>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a set of properties");
    [[nodiscard]] static QJsonValue write(const QVariantMap& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QVariantMap& value);
};

/// {"png": base64, "pixels": "rgb", "argb" or "premultiplied"}, or null for no picture.
template <>
struct Json<QImage>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a picture");
    [[nodiscard]] static QJsonValue write(const QImage& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QImage& value);
};

} // namespace fields
