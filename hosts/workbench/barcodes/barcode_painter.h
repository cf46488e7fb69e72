#pragma once

#include "workbench/barcodes/barcode_encoder.h"

#include <QColor>
#include <QFont>

class QPainter;

namespace workbench::barcodes {

/// How a barcode is drawn. Lengths are in the painter's units, on a label points.
struct BarcodeStyle
{
    QColor foreground = Qt::black;
    /// Colour of the rings that are drawn in the ground's colour; no ground is painted.
    QColor background = Qt::white;
    QColor textColor = Qt::black;
    /// Set its size by QFont::setPixelSize(), in the painter's units.
    QFont font;
    /// Where the text stands below the bars; only the horizontal flags count.
    Qt::Alignment captionAlignment = Qt::AlignCenter;
    /// Width of the narrowest bar; 0 or what does not fit in the box: as wide as fits.
    double moduleWidth = 0.0;
};

/// Where the bars and the text of a symbol come to stand in a box.
struct BarcodeLayout
{
    /// The symbol's own rectangle, blank margins included.
    QRectF bars;
    QRectF caption;
    /// Painter units of one module, across and down.
    double moduleWidth = 0.0;
    double moduleHeight = 0.0;
    double captionPixelSize = 0.0;
};

/// Text keeps to this part of the box's height, so that bars remain to be read.
inline constexpr double MaximumCaptionShare = 0.4;

/// The layout before it is fitted to the device's pixels. Empty for an empty box or symbol.
[[nodiscard]] BarcodeLayout layOut(const BarcodeSymbol& symbol, const QRectF& box,
                                   const BarcodeStyle& style);

/// Draws the barcode into the box, or instead of it the error in words.
///
/// On a device of pixels an upright barcode whose modules are at least two pixels wide takes
/// whole pixels for a module and begins on a whole pixel: bars of uneven width are what makes
/// a barcode unreadable. It may be a little narrower than the box for that.
void paintBarcode(QPainter& painter, const QRectF& box, const BarcodeSymbol& symbol,
                  const BarcodeStyle& style);

} // namespace workbench::barcodes
