#pragma once

#include <QColor>
#include <QRectF>
#include <QString>

#include <ostream>

// GoogleTest's output of Qt's values in a failure.

inline void PrintTo(const QString& value, std::ostream* out)
{
    *out << '"' << value.toStdString() << '"';
}

inline void PrintTo(const QColor& value, std::ostream* out)
{
    PrintTo(value.name(QColor::HexArgb), out);
}

inline void PrintTo(const QRectF& value, std::ostream* out)
{
    *out << '(' << value.x() << ' ' << value.y() << ' ' << value.width() << ' ' << value.height()
         << ')';
}
