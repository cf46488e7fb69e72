#pragma once

#include "limits/xml/element_tree.h"
#include "opendocument/numbers.h"
#include "opendocument/text_style.h"

#include <QString>
#include <Qt>

namespace opendocument {

/// Values that mean that no attribute was given: the item keeps the host's default.
inline constexpr int PenStyleNotGiven = Qt::CustomDashLine;
inline constexpr int CapStyleNotGiven = Qt::MPenCapStyle;
inline constexpr int JoinStyleNotGiven = Qt::MPenJoinStyle;
inline constexpr int BrushStyleNotGiven = -1;
inline constexpr int MarkerNotGiven = -1;
inline constexpr double RotationNotGiven = 500.0;

/// How text flows around a frame.
enum WrapCode : int {
    WrapNone = 0,
    WrapLeft = 1,
    WrapRight = 2,
    WrapParallel = 3,
    WrapRunThroughForeground = 4,
    WrapRunThroughBackground = 5,
    WrapDynamicForeground = 6,
    WrapDynamicBackground = 7,
};

/// A complete graphic style: values that a style does not specify are its parent's.
struct OOGraphicStyle
{
    Qt::Alignment horizontalPos = Qt::AlignHorizontal_Mask; ///< the mask means: not given
    Margins margins;
    Qt::Alignment verticalPos = Qt::AlignVertical_Mask; ///< the mask means: not given
    bool anchorParagraph = true;
    bool mirrorHorizontal = false;
    bool mirrorVertical = false;
    double rotation = RotationNotGiven; ///< degrees
    int wrap = WrapNone;
    QString penColor;                    ///< as written; empty: not given
    int penWidth = 0;                    ///< whole points
    int penStyle = PenStyleNotGiven;     ///< a Qt::PenStyle
    int capStyle = CapStyleNotGiven;     ///< a Qt::PenCapStyle
    int joinStyle = JoinStyleNotGiven;   ///< a Qt::PenJoinStyle
    QString fillColor;                   ///< as written; empty: not given
    int brushStyle = BrushStyleNotGiven; ///< a Qt::BrushStyle
    int markerStart = MarkerNotGiven;    ///< code of ILineItem::setLineStartMarker()
    int markerEnd = MarkerNotGiven;      ///< code of ILineItem::setLineEndMarker()

    /// Writes the complete style to the debug log.
    void debugContent() const;
};

/// Reads a style:graphic-properties element; null has no effect. Changes only what is given.
void readGraphicProperties(const xmllimits::Element& properties, const LengthUnit& unit,
                           OOGraphicStyle& style);

} // namespace opendocument
