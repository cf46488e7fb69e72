#pragma once

#include "window/properties/length_unit.h"

#include <QList>
#include <QString>

namespace window {

/// The part of the canvas along a ruler.
struct RulerSpan
{
    double origin = 0.0;         ///< pixel of the page's origin
    double pixelsPerPoint = 1.0; ///< above 0
    int length = 0;              ///< of the ruler, in pixels
};

/// The length of a tick.
enum class TickRank : quint8 { Labeled, Middle, Small };

/// A mark of a ruler.
struct RulerTick
{
    double pixel = 0.0;
    TickRank rank = TickRank::Small;
    QString label; ///< of labeled ticks only
};

/// Distance between two labeled ticks in the unit, the smallest round one that leaves
/// space for the labels.
[[nodiscard]] double labelStep(double pixelsPerUnit, LengthUnit unit);

/// The visible ticks, from the start of the ruler to its end. Never more than the
/// ruler has pixels, however far the canvas is zoomed.
[[nodiscard]] QList<RulerTick> rulerTicks(const RulerSpan& span, LengthUnit unit);

} // namespace window
