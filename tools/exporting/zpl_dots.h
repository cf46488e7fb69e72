#pragma once

#include <QImage>
#include <QList>
#include <QRect>

/// Dots of label printers: QImage::Format_Mono, 1 is a printed dot.
namespace exporting {

/// The smallest rectangle with all printed dots.
[[nodiscard]] QRect inkOf(const QImage& dots);
void erase(QImage& dots, const QRect& area);
/// Whether all dots of the area are printed.
[[nodiscard]] bool isFilled(const QImage& dots, const QRect& area);
/// Lengths of the runs of equal dots in a row of the area.
[[nodiscard]] QList<int> runsIn(const QImage& dots, const QRect& area, int y);
/// The dots of a barcode's module: the largest length that all runs of the area are multiples of.
[[nodiscard]] int moduleOf(const QImage& dots, const QRect& area);
/// The bars of a linear barcode without its caption: the rows that look like the first one.
[[nodiscard]] QRect barsOf(const QImage& dots, QRect area);

} // namespace exporting
