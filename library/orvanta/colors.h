#pragma once

#include <QColor>
#include <QLatin1String>

/// Colours that labels of the XML format start from, made once for the process.
namespace orvanta::colors {

inline const QColor Black(Qt::black);
inline const QColor White(Qt::white);
inline const QColor Transparent(Qt::transparent);

/// The name that stands for "no colour".
inline constexpr QLatin1String TransparentName("transparent");
/// White but for one step of blue: told apart from a white that the user chose.
inline const QColor AlmostWhite = QColor::fromString(QLatin1String("#FFFFFE"));

} // namespace orvanta::colors
