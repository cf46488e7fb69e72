#pragma once

#include "workbench/barcodes/barcode_encoder.h"

#include <QColor>
#include <QFont>

class QPainter;

namespace workbench::barcodes {

/// How a barcode is drawn. Lengths are in painter units; on a label, points.
struct BarcodeStyle
{
    QColor foreground = Qt::black;
    /// Color of rings drawn in the background color; the background itself is not painted.
    QColor background = Qt::white;
    QColor textColor = Qt::black;
    /// Set its size with QFont::setPixelSize(), in painter units.
    QFont font;
    /// Alignment of the text below the bars; only the horizontal flags apply.
    Qt::Alignment captionAlignment = Qt::AlignCenter;
    /// Width of the narrowest bar; 0 or a width that does not fit: as wide as the box allows.
    double moduleWidth = 0.0;
};

/// Position of the bars and the text of a symbol in a box.
struct BarcodeLayout
{
    /// The symbol's own rectangle, including blank margins.
    QRectF bars;
    QRectF caption;
    /// Painter units per module, horizontal and vertical.
    double moduleWidth = 0.0;
    double moduleHeight = 0.0;
    double captionPixelSize = 0.0;
};

/// Largest part of the box's height for the text, so that the bars stay readable.
inline constexpr double MaximumCaptionShare = 0.4;

/// The layout before fitting to device pixels. Empty for an empty box or symbol.
[[nodiscard]] BarcodeLayout layOut(const BarcodeSymbol& symbol, const QRectF& box,
                                   const BarcodeStyle& style);

/// Draws the barcode into the box, or its error message.
///
/// On a pixel device an upright barcode with modules of at least two pixels is aligned to the
/// pixel grid, with an integral number of pixels per module: bars of uneven width make a barcode
/// unreadable. The barcode may therefore be slightly narrower than the box.
void paintBarcode(QPainter& painter, const QRectF& box, const BarcodeSymbol& symbol,
                  const BarcodeStyle& style);

} // namespace workbench::barcodes
