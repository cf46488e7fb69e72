#pragma once

#include "orvanta/colors.h"
#include "orvanta/fields.h"

#include <QRectF>

namespace orvanta {

/// What every object of an XML label has, whatever its kind.
struct ControlProperties
{
    QString text;
    bool transparent = true; ///< the inside is open
    bool negative = false;   ///< the two colours change places
    QColor foreColor = colors::Black;
    QColor backColor = colors::White;
    QRectF bounds; ///< points, from the label's top left corner
    QString fontFamily = QStringLiteral("Arial");
    double fontSize = 24.0; ///< points
    qint32 fontStyle = 0;   ///< FontStyleBit values together
    double rotation = 0.0;  ///< degrees, clockwise
    bool flipHorizontal = false;
    bool flipVertical = false;

    [[nodiscard]] bool isBold() const;
    [[nodiscard]] bool isItalic() const;
    [[nodiscard]] bool isUnderlined() const;
};

/// The two colours that an object is drawn with.
struct DrawingColors
{
    QColor pen;
    QColor fill;
};

/// Reads a `printable_control` element; what it leaves out has its default.
[[nodiscard]] ControlProperties readControlProperties(const QDomElement& printableControl,
                                                      FamilyCheck isKnownFamily);

/// The opaque colour of 0xRRGGBB. Bits 24 to 31 are ignored: the source stores an alpha
/// there that it never used.
[[nodiscard]] QColor colorFromInteger(qint32 value);

/// Which colour the outline and which the inside is drawn with.
[[nodiscard]] DrawingColors drawingColors(const ControlProperties& properties);

} // namespace orvanta
