#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QRect>

namespace exporting {

/// A picture as the dots of a label printer: Format_Mono, 1 is a printed dot. Edges between dark
/// and light become sharp, so that texts are; even tones become patterns of dots.
/// @param barcodes areas in dots that become black and white only, whatever their colors
[[nodiscard]] QImage printerDots(const QImage& picture, const QList<QRect>& barcodes = {});

/// ZPL commands that print the dots at the upper left corner of the label: ^GF fields of
/// hexadecimal digits with run lengths. Empty without a printed dot.
/// @param dots Format_Mono, 1 is a printed dot
[[nodiscard]] QByteArray graphicFields(const QImage& dots);

} // namespace exporting
