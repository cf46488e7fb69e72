#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QJsonValue>
#include <QString>
#include <QStringList>

#include <cmath>
#include <concepts>
#include <limits>
#include <optional>
#include <type_traits>

/// Single values in JSON. Json<T>::write() gives what Json<T>::read() accepts; read() returns
/// false for anything else, with the value unchanged. Json<T>::Kind describes the kind in
/// error messages. Specialize Json for a type of your own to make it a single value.
namespace fields {

template <class T>
struct Json;

template <>
struct Json<bool>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "true or false");
    [[nodiscard]] static QJsonValue write(bool value) { return value; }
    [[nodiscard]] static bool read(const QJsonValue& json, bool& value);
};

template <std::integral T>
requires(sizeof(T) <= sizeof(qint32)) struct Json<T>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a whole number in range");
    [[nodiscard]] static QJsonValue write(T value) { return static_cast<double>(value); }
    [[nodiscard]] static bool read(const QJsonValue& json, T& value)
    {
        const double number = json.toDouble(std::numeric_limits<double>::quiet_NaN());
        if (!(number >= std::numeric_limits<T>::min() && number <= std::numeric_limits<T>::max()) ||
            number != std::trunc(number)) {
            return false;
        }
        value = static_cast<T>(number);
        return true;
    }
};

/// Largest number up to which JSON programs keep all whole numbers exact: 2^53.
inline constexpr qint64 LargestWhole = 9'007'199'254'740'992;

/// From -LargestWhole to LargestWhole.
template <>
struct Json<qint64>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a whole number in range");
    [[nodiscard]] static QJsonValue write(qint64 value) { return value; }
    [[nodiscard]] static bool read(const QJsonValue& json, qint64& value);
};

template <>
struct Json<double>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a number");
    /// JSON has no infinities and no NaN: they become 0.
    [[nodiscard]] static QJsonValue write(double value);
    [[nodiscard]] static bool read(const QJsonValue& json, double& value);
};

/// Null if there is no number.
template <class T>
requires std::is_arithmetic_v<T>
struct Json<std::optional<T>>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a number or null");
    [[nodiscard]] static QJsonValue write(const std::optional<T>& value)
    {
        return value ? Json<T>::write(*value) : QJsonValue();
    }
    [[nodiscard]] static bool read(const QJsonValue& json, std::optional<T>& value)
    {
        T number{};
        if (!json.isNull() && !Json<T>::read(json, number)) {
            return false;
        }
        value = json.isNull() ? std::nullopt : std::optional(number);
        return true;
    }
};

/// A text. One that is not valid Unicode, from a damaged label, is {"utf16": base64}.
template <>
struct Json<QString>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "a text");
    [[nodiscard]] static QJsonValue write(const QString& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QString& value);
};

template <>
struct Json<QStringList>
{
    static constexpr const char* Kind =
        QT_TRANSLATE_NOOP("fields::FieldProblem", "a list of texts");
    [[nodiscard]] static QJsonValue write(const QStringList& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QStringList& value);
};

/// Base64.
template <>
struct Json<QByteArray>
{
    static constexpr const char* Kind = QT_TRANSLATE_NOOP("fields::FieldProblem", "data");
    [[nodiscard]] static QJsonValue write(const QByteArray& value);
    [[nodiscard]] static bool read(const QJsonValue& json, QByteArray& value);
};

} // namespace fields
