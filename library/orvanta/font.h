#pragma once

#include "orvanta/fields.h"

#include <QString>

namespace orvanta {

/// Stands in for a font family that the host does not have.
inline constexpr QLatin1String FallbackFamily("_Nare Vol");

/// Bits of Font::style. Higher bits mean nothing.
enum FontStyleBit : qint32 {
    BoldBit = 0x1,
    ItalicBit = 0x2,
    UnderlineBit = 0x4,
};

/// A font as an XML label stores it.
struct Font
{
    QString family = QStringLiteral("Arial");
    double size = 24.0; ///< points
    qint32 style = 0;   ///< FontStyleBit values together
};

/// Reads a `font` element. What it leaves out keeps the default; a family that the host
/// cannot show becomes FallbackFamily.
[[nodiscard]] Font readFont(const QDomElement& font, FamilyCheck isKnownFamily);

/// A stored size in the whole points that the host takes: cut off, not rounded. What lies
/// beyond an int gives the nearest int, and "not a number" gives 0.
[[nodiscard]] int wholePoints(double size);

} // namespace orvanta
