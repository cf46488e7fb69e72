#pragma once

#include "window/properties/length_unit.h"

#include <QList>
#include <QString>

namespace window {

/// The part of the canvas that a ruler runs along.
struct RulerSpan
{
    double origin = 0.0;         ///< pixel at which the page begins
    double pixelsPerPoint = 1.0; ///< above 0
    int length = 0;              ///< of the ruler, in pixels
};

/// How long a tick is drawn.
enum class TickRank : quint8 { Labelled, Middle, Small };

struct RulerTick
{
    double pixel = 0.0;
    TickRank rank = TickRank::Small;
    QString label; ///< of labelled ticks only
};

/// Distance between two labelled ticks in the unit, the smallest round one that leaves
/// room for the labels.
[[nodiscard]] double labelStep(double pixelsPerUnit, LengthUnit unit);

/// The ticks that are seen, from the start of the ruler to its end. Never more than the
/// ruler has pixels, however far the canvas is zoomed.
[[nodiscard]] QList<RulerTick> rulerTicks(const RulerSpan& span, LengthUnit unit);

} // namespace window
