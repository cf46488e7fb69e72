#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <Qt>

/// Contents turned into bars.
namespace workbench::barcodes {

/// What to encode: the arguments of BarcodeItem::importBarcodeProperties(). flag1 to flag3 are its
/// hasQuietZones, hasBearerBars and hasText, number its size, value its errorCorrection.
///
/// | property      | effect                                                                     |
/// |---------------|----------------------------------------------------------------------------|
/// | symbology     | the symbology's code; one that is not known gives an error                 |
/// | content       | the text, see encode()                                                     |
/// | flag3         | a linear symbology shows its text below the bars                           |
/// | flag1         | the blank margins that the symbology's standard asks for, as part of it    |
/// | flag2         | a linear symbology has a bar along its upper and lower edge                |
/// | option        | 1: with a check digit, where it is optional; PDF417: columns, 1 to 30      |
/// | number        | Symbology::sizeMinimum to sizeMaximum: size, version, columns              |
/// | value         | 1 to Symbology::levelMaximum: level of error correction, mode of MaxiCode  |
///
/// The text's alignment and the width of a module are matters of painting (BarcodeStyle).
struct BarcodeRequest
{
    int symbology = 20;
    QString content;
    bool flag3 = true;
    bool flag1 = false;
    bool flag2 = false;
    int option = 0;
    int number = 0;
    int value = 0;

    bool operator==(const BarcodeRequest&) const = default;
};

/// A bar in a colour of its own, for the symbologies whose colours carry data.
struct ColoredBar
{
    QRectF rect;
    Qt::GlobalColor color = Qt::black;
};

/// A hexagon that stands on a corner.
struct Hexagon
{
    QPointF center;
    double diameter = 0.0;
};

/// A disc, or with a width a ring about this diameter.
struct Circle
{
    QPointF center;
    double diameter = 0.0;
    double width = 0.0;
    /// Drawn in the colour of the ground.
    bool ground = false;
};

/// An encoded barcode. Lengths are in modules, the width of the narrowest bar.
struct BarcodeSymbol
{
    /// The whole symbol, blank margins included.
    QSizeF size;
    QList<QRectF> bars;
    QList<ColoredBar> coloredBars;
    QList<Hexagon> hexagons;
    QList<Circle> circles;
    /// The modules are square: the symbol keeps its proportions. Otherwise bars may be drawn
    /// as high as there is room.
    bool fixedRatio = false;
    /// The text below the bars; empty when there is none.
    QString caption;
    /// Why there is no barcode, in a sentence for a person; empty when there is one.
    QString error;

    [[nodiscard]] bool isValid() const { return error.isEmpty(); }
};

/// Longest content that is taken at all, in characters.
inline constexpr qsizetype MaximumContent = 100'000;

/// Encodes a content. It never fails in another way than by BarcodeSymbol::error.
///
/// GS1 symbologies take their application identifiers in parentheses or brackets, "(01)..." or
/// "[01]...". Composite ones take the linear part first, then "|", then the other part.
/// Settings that the symbology refuses together with this content are left out rather than
/// the barcode.
[[nodiscard]] BarcodeSymbol encode(const BarcodeRequest& request);

} // namespace workbench::barcodes
