#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <Qt>

/// Encodes contents as barcodes.
namespace workbench::barcodes {

/// What to encode: the arguments of BarcodeItem::importBarcodeProperties(). flag1 to flag3 are its
/// hasQuietZones, hasBearerBars and hasText, number its size, value its errorCorrection.
///
/// | property      | effect                                                                     |
/// |---------------|----------------------------------------------------------------------------|
/// | symbology     | the symbology's code; an unknown code gives an error                       |
/// | content       | the text, see encode()                                                     |
/// | flag3         | a linear symbology shows its text below the bars                           |
/// | flag1         | the blank margins that the symbology's standard requires                   |
/// | flag2         | a linear symbology has a bar along its upper and lower edge                |
/// | option        | 1: with a check digit, where it is optional; PDF417: columns, 1 to 30      |
/// | number        | Symbology::sizeMinimum to sizeMaximum: size, version, columns              |
/// | value         | 1 to Symbology::levelMaximum: level of error correction, mode of MaxiCode  |
///
/// The painter applies the text's alignment and the width of a module (BarcodeStyle).
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

/// A bar with its own color, for symbologies that encode data in colors.
struct ColoredBar
{
    QRectF rect;
    Qt::GlobalColor color = Qt::black;
};

/// A hexagon, one corner pointing up.
struct Hexagon
{
    QPointF center;
    double diameter = 0.0;
};

/// A disc, or a ring of this mean diameter if width is above 0.
struct Circle
{
    QPointF center;
    double diameter = 0.0;
    double width = 0.0;
    /// Drawn in the background color.
    bool ground = false;
};

/// An encoded barcode. Lengths are in modules, the width of the narrowest bar.
struct BarcodeSymbol
{
    /// The complete symbol, including blank margins.
    QSizeF size;
    QList<QRectF> bars;
    QList<ColoredBar> coloredBars;
    QList<Hexagon> hexagons;
    QList<Circle> circles;
    /// The modules are square: the symbol keeps its proportions. Otherwise bars may be stretched
    /// to the available height.
    bool fixedRatio = false;
    /// The text below the bars; may be empty.
    QString caption;
    /// User-visible reason why there is no barcode; empty on success.
    QString error;

    [[nodiscard]] bool isValid() const { return error.isEmpty(); }
};

/// Longest accepted content, in characters.
inline constexpr qsizetype MaximumContent = 100'000;

/// Encodes a content. Every failure is reported in BarcodeSymbol::error.
///
/// GS1 symbologies take their application identifiers in parentheses or brackets, "(01)..." or
/// "[01]...". Composite ones take the linear part first, then "|", then the other part.
/// If the symbology rejects settings in combination with this content, the settings are ignored
/// and the barcode is still encoded.
[[nodiscard]] BarcodeSymbol encode(const BarcodeRequest& request);

} // namespace workbench::barcodes
