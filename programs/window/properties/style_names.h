#pragma once

#include <QColor>
#include <QString>
#include <Qt>

namespace window {

// Names of the numbers in item values. An unknown number is shown as a number.

[[nodiscard]] QString colorName(const QColor& color);
[[nodiscard]] QString angleText(double degrees);
[[nodiscard]] QString penStyleName(int style);
[[nodiscard]] QString capStyleName(int style);
[[nodiscard]] QString joinStyleName(int style);
[[nodiscard]] QString brushStyleName(int style);
[[nodiscard]] QString lineMarkerName(int marker);
[[nodiscard]] QString alignmentName(Qt::Alignment alignment);
[[nodiscard]] QString fixedSidesName(int limiting);

} // namespace window
