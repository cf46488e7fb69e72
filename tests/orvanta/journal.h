#pragma once

#include <QColor>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>

/// What a host was asked for, one line a call: "item:1 setItemSize 300 75".
namespace journal {

/// All calls since the last clear(). The link-time services write here too, so it is one
/// for the process.
QStringList& lines();

inline QString text(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}
inline QString text(int value)
{
    return QString::number(value);
}
inline QString text(quint16 value)
{
    return QString::number(value);
}
inline QString text(double value)
{
    return QString::number(value, 'g', 10);
}
inline QString text(const QString& value)
{
    return QLatin1Char('\'') + value + QLatin1Char('\'');
}
inline QString text(const QByteArray& value)
{
    return text(QString::fromUtf8(value));
}
inline QString text(const QColor& value)
{
    return value.name(QColor::HexArgb);
}
inline QString text(const QSizeF& value)
{
    return text(value.width()) + QLatin1Char(' ') + text(value.height());
}
inline QString text(const QStringList& value)
{
    return QLatin1Char('[') + value.join(QLatin1Char('|')) + QLatin1Char(']');
}
inline QString text(const QVariant& value)
{
    return QString::fromLatin1(value.typeName()) + QLatin1Char(' ') +
           (value.typeId() == QMetaType::QStringList ? text(value.toStringList())
                                                     : value.toString());
}

template <typename... Values>
void write(const QString& target, const char* call, const Values&... values)
{
    QStringList line{target, QString::fromLatin1(call)};
    (line.append(text(values)), ...);
    lines().append(line.join(QLatin1Char(' ')));
}

} // namespace journal
