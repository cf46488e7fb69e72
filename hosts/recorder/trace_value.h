#pragma once

#include <QByteArray>
#include <QColor>
#include <QPixmap>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <concepts>
#include <cstddef>
#include <initializer_list>
#include <type_traits>
#include <utility>
#include <vector>

namespace recorder {

/// One value of a trace, held as the JSON text of the line.
///
/// The constructors are implicit on purpose: arguments of a call are written to a line as
/// they are. Numbers are the shortest texts that read back to the same number, in any
/// locale; a number that JSON cannot write is the text "nan", "inf" or "-inf".
class TraceValue
{
public:
    using Field = std::pair<const char*, TraceValue>;

    TraceValue(std::nullptr_t);
    template <std::same_as<bool> T>
    TraceValue(T value)
        : m_json(value ? "true" : "false")
    {}
    template <std::integral T>
    requires(!std::same_as<T, bool>) TraceValue(T value)
        : m_json(QByteArray::number(static_cast<qint64>(value)))
    {}
    template <typename T>
    requires std::is_enum_v<T> TraceValue(T value)
        : TraceValue(static_cast<std::underlying_type_t<T>>(value))
    {}
    template <typename T>
    TraceValue(QFlags<T> flags)
        : TraceValue(flags.toInt())
    {}
    TraceValue(double value);
    TraceValue(const QString& text);
    TraceValue(const QStringList& texts);
    TraceValue(const QColor& color);
    TraceValue(const QPointF& point);
    TraceValue(const QSizeF& size);
    TraceValue(const QRectF& rectangle);
    /// Size and checksum; the bytes themselves would make the trace unreadable.
    TraceValue(const QByteArray& bytes);
    TraceValue(const QPixmap& pixmap);
    /// A property of a data source: by its type, else as text.
    TraceValue(const QVariant& value);

    [[nodiscard]] static TraceValue array(const std::vector<TraceValue>& values);
    /// Fields keep their order.
    [[nodiscard]] static TraceValue object(const std::vector<Field>& fields);

    [[nodiscard]] const QByteArray& json() const { return m_json; }

private:
    QByteArray m_json;
};

} // namespace recorder
