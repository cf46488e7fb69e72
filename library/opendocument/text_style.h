#pragma once

#include "host/facets/i_font_item.h"
#include "limits/xml/element_tree.h"

#include <QString>
#include <Qt>

namespace opendocument {

/// Margins of a style, in points.
struct Margins
{
    double above = 0;
    double below = 0;
    double left = 0;
    double right = 0;

    bool operator==(const Margins&) const = default;
};

/// A complete paragraph or text style: values that a style does not specify are its parent's.
struct OOTextStyle
{
    QString fontFamily = FallbackFontFamily;
    double fontSize = 12.0; ///< points
    bool bold = false;
    bool italic = false;
    bool underline = false;
    double auxValue = 1.0;                              ///< shown by debugContent() only
    Qt::Alignment alignment = Qt::AlignHorizontal_Mask; ///< the mask means: not given
    Margins margins;                                    ///< above and below stay 0
    QString textColor;                                  ///< as written; empty: not given

    [[nodiscard]] bool hasAlignment() const { return alignment != Qt::AlignHorizontal_Mask; }
    /// Writes the complete style to the debug log.
    void debugContent();
};

/// Whether a font family is available.
using IsValidFamily = bool (*)(QString family);

/// Reads a style:text-properties element; null has no effect. Changes only what is given.
void readTextProperties(const xmllimits::Element& properties, IsValidFamily isValidFamily,
                        OOTextStyle& style);

/// Reads a style:paragraph-properties element; null has no effect. Changes only what is given.
/// @param unitFactor points per unit of the document's lengths
void readParagraphProperties(const xmllimits::Element& properties, double unitFactor,
                             OOTextStyle& style);

} // namespace opendocument
