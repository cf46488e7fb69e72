#pragma once

#include <QColor>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>

namespace tavrel_test {

/// The calls to the fake host, one line per call: "item1 setPenWidth 6".
class CallList
{
public:
    template <typename... Values>
    void add(const QString& target, const char* call, const Values&... values)
    {
        QStringList words{target, QLatin1String(call)};
        (words.append(word(values)), ...);
        m_lines.append(words.join(QLatin1Char(' ')));
    }

    [[nodiscard]] const QStringList& lines() const { return m_lines; }
    /// The lines that contain this text.
    [[nodiscard]] QStringList with(const char* text) const
    {
        return m_lines.filter(QLatin1String(text));
    }
    void clear() { m_lines.clear(); }

    int itemsAlive = 0;

private:
    static QString word(const QString& text) { return QLatin1Char('"') + text + QLatin1Char('"'); }
    static QString word(bool value) { return value ? QStringLiteral("yes") : QStringLiteral("no"); }
    static QString word(int value) { return QString::number(value); }
    static QString word(double value) { return QString::number(value, 'g', 12); }
    static QString word(const QColor& color) { return color.name(QColor::HexArgb); }
    static QString word(const QSizeF& size)
    {
        return word(size.width()) + QLatin1Char('x') + word(size.height());
    }
    static QString word(const QVariant& value)
    {
        return value.typeId() == QMetaType::Int ? word(value.toInt()) : word(value.toString());
    }

    QStringList m_lines;
};

} // namespace tavrel_test
