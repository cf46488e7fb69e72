#pragma once

#include "orvanta/elements.h"

#include <QColor>
#include <QRectF>

/// The common properties of all objects of an XML label.
namespace orvanta {

using namespace Qt::Literals::StringLiterals;

/// Colors of the XML format, created once per process.
namespace colors {

inline const QColor Black(Qt::black);
inline const QColor White(Qt::white);
inline const QColor Transparent(Qt::transparent);

/// The name for "no color". Unused by this reader, as is AlmostWhite.
inline constexpr QLatin1String TransparentName("transparent");
/// White less one step of blue, to distinguish it from a white that the user chose.
inline const QColor AlmostWhite = QColor::fromString("#FFFFFE"_L1);

} // namespace colors

/// Bits of a font's style. Higher bits have no meaning.
enum FontStyleBit : qint32 {
    BoldBit = 0x1,
    ItalicBit = 0x2,
    UnderlineBit = 0x4,
};

/// A font as an XML label stores it.
struct Font
{
    QString family = u"Arial"_s;
    double size = 24.0; ///< points
    qint32 style = 0;   ///< FontStyleBit values combined
};

/// Reads a `font` element; a missing value has its default. A family that the host cannot show
/// becomes FallbackFontFamily.
[[nodiscard]] Font readFont(const Element& font, FamilyCheck isKnownFamily);

/// The properties that all kinds of controls share.
struct ControlProperties
{
    QString text;
    bool transparent = true; ///< the inside is open
    bool negative = false;   ///< the two colors are exchanged
    QColor foreColor = colors::Black;
    QColor backColor = colors::White;
    QRectF bounds; ///< points, from the label's top left corner
    QString fontFamily = u"Arial"_s;
    double fontSize = 24.0; ///< points
    qint32 fontStyle = 0;   ///< FontStyleBit values combined
    double rotation = 0.0;  ///< degrees, clockwise
    bool flipHorizontal = false;
    bool flipVertical = false;

    [[nodiscard]] bool isBold() const { return (fontStyle & BoldBit) != 0; }
    [[nodiscard]] bool isItalic() const { return (fontStyle & ItalicBit) != 0; }
    [[nodiscard]] bool isUnderlined() const { return (fontStyle & UnderlineBit) != 0; }
};

/// Reads a `printable_control` element; a missing value has its default.
[[nodiscard]] ControlProperties readControlProperties(const Element& printableControl,
                                                      FamilyCheck isKnownFamily);

/// The opaque color of 0xRRGGBB. Bits 24 to 31 are ignored: the source stores an alpha value there
/// that it never used.
[[nodiscard]] QColor colorFromInteger(qint32 value);

/// The two colors that an object is drawn with.
struct DrawingColors
{
    QColor pen;
    QColor fill;
};

/// The fore and back color, swapped for a negative control; no fill for a transparent one.
[[nodiscard]] DrawingColors drawingColors(const ControlProperties& properties);

} // namespace orvanta
