#include "recorder/trace_value.h"

#include <QCryptographicHash>

#include <array>
#include <charconv>
#include <cmath>

namespace recorder {

namespace {

QByteArray escaped(char character)
{
    switch (character) {
    case '"':
        return "\\\"";
    case '\\':
        return "\\\\";
    case '\n':
        return "\\n";
    case '\r':
        return "\\r";
    case '\t':
        return "\\t";
    default:
        return "\\u" + QByteArray::number(static_cast<int>(character), 16).rightJustified(4, '0');
    }
}

bool needsEscape(char character)
{
    return character == '"' || character == '\\' || (character >= 0 && character < ' ');
}

QByteArray quoted(const QByteArray& utf8)
{
    QByteArray text;
    text.reserve(utf8.size() + 2);
    text += '"';
    for (const char character : utf8) {
        if (needsEscape(character)) {
            text += escaped(character);
        } else {
            text += character;
        }
    }
    text += '"';
    return text;
}

QByteArray number(double value)
{
    if (std::isnan(value)) {
        return "\"nan\"";
    }
    if (std::isinf(value)) {
        return value > 0 ? "\"inf\"" : "\"-inf\"";
    }
    std::array<char, 32> buffer{};
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return QByteArray(buffer.data(), end - buffer.data());
}

QByteArray joined(const std::vector<QByteArray>& parts, char open, char close)
{
    QByteArray text(1, open);
    for (const QByteArray& part : parts) {
        if (text.size() > 1) {
            text += ',';
        }
        text += part;
    }
    return text + close;
}

QByteArray numbers(std::initializer_list<double> values)
{
    std::vector<QByteArray> parts;
    for (const double value : values) {
        parts.push_back(number(value));
    }
    return joined(parts, '[', ']');
}

TraceValue fromVariant(const QVariant& value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool();
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::LongLong:
        return value.toLongLong();
    case QMetaType::Double:
        return value.toDouble();
    case QMetaType::QStringList:
        return value.toStringList();
    default:
        return value.toString();
    }
}

} // namespace

TraceValue::TraceValue(std::nullptr_t)
    : m_json("null")
{}

TraceValue::TraceValue(double value)
    : m_json(number(value))
{}

TraceValue::TraceValue(const QString& text)
    : m_json(quoted(text.toUtf8()))
{}

TraceValue::TraceValue(const QStringList& texts)
    : m_json(array({texts.begin(), texts.end()}).m_json)
{}

TraceValue::TraceValue(const QColor& color)
    : TraceValue(color.isValid() ? TraceValue(color.name(QColor::HexArgb)) : TraceValue(nullptr))
{}

TraceValue::TraceValue(const QPointF& point)
    : m_json(numbers({point.x(), point.y()}))
{}

TraceValue::TraceValue(const QSizeF& size)
    : m_json(numbers({size.width(), size.height()}))
{}

TraceValue::TraceValue(const QRectF& rectangle)
    : m_json(numbers({rectangle.x(), rectangle.y(), rectangle.width(), rectangle.height()}))
{}

TraceValue::TraceValue(const QByteArray& bytes)
{
    const QByteArray sha1 = QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex();
    m_json = object({{"bytes", bytes.size()}, {"sha1", QString::fromLatin1(sha1)}}).m_json;
}

TraceValue::TraceValue(const QPixmap& pixmap)
    : m_json(object({{"width", pixmap.width()}, {"height", pixmap.height()}}).m_json)
{}

TraceValue::TraceValue(const QVariant& value)
    : m_json(fromVariant(value).m_json)
{}

TraceValue TraceValue::array(const std::vector<TraceValue>& values)
{
    std::vector<QByteArray> parts;
    for (const TraceValue& value : values) {
        parts.push_back(value.m_json);
    }
    TraceValue result(nullptr);
    result.m_json = joined(parts, '[', ']');
    return result;
}

TraceValue TraceValue::object(const std::vector<Field>& fields)
{
    std::vector<QByteArray> parts;
    for (const auto& [name, value] : fields) {
        parts.push_back(quoted(name) + ':' + value.m_json);
    }
    TraceValue result(nullptr);
    result.m_json = joined(parts, '{', '}');
    return result;
}

} // namespace recorder
