#include "window/canvas/ruler_scale.h"

#include <QLocale>

#include <cmath>

namespace window {

namespace {

// Room that a label with four digits takes.
constexpr double LabelRoom = 54.0;
// Ticks closer than this run into one another.
constexpr double TickRoom = 5.0;
// Beyond these a number of ticks could not be counted with integers any more.
constexpr double LargestTickNumber = 1e9;

// Below one inch people halve, above they count in tens.
double halvedStep(double least)
{
    return std::max(std::exp2(std::ceil(std::log2(least))), 1.0 / 64.0);
}

double decimalStep(double least)
{
    const double decade = std::pow(10.0, std::floor(std::log10(least)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (decade * factor >= least) {
            return decade * factor;
        }
    }
    return decade * 10.0;
}

// Into how many parts a labelled step is divided; even, so that there is a middle.
int partsOf(double pixelsPerStep, LengthUnit unit)
{
    const int finest = unit == LengthUnit::Inch ? 16 : 10;
    for (int parts = finest; parts > 2; parts = parts == 10 ? 4 : parts / 2) {
        if (pixelsPerStep / parts >= TickRoom) {
            return parts;
        }
    }
    return 2;
}

TickRank rankOf(qint64 number, int parts)
{
    if (number % parts == 0) {
        return TickRank::Labelled;
    }
    return number % (parts / 2) == 0 ? TickRank::Middle : TickRank::Small;
}

QString labelOf(double value)
{
    return QLocale().toString(value, 'g', 6);
}

} // namespace

double labelStep(double pixelsPerUnit, LengthUnit unit)
{
    const double least = LabelRoom / pixelsPerUnit;
    return unit == LengthUnit::Inch && least < 1.0 ? halvedStep(least) : decimalStep(least);
}

QList<RulerTick> rulerTicks(const RulerSpan& span, LengthUnit unit)
{
    const double pixelsPerUnit = span.pixelsPerPoint * pointsPerUnit(unit);
    if (!(pixelsPerUnit > 0.0) || !std::isfinite(pixelsPerUnit)) {
        return {};
    }
    const double step = labelStep(pixelsPerUnit, unit);
    const int parts = partsOf(step * pixelsPerUnit, unit);
    const double pixelsPerTick = step * pixelsPerUnit / parts;
    const double first = std::ceil(-span.origin / pixelsPerTick);
    const double last = std::floor((span.length - span.origin) / pixelsPerTick);
    if (!(std::abs(first) < LargestTickNumber && std::abs(last) < LargestTickNumber)) {
        return {};
    }
    QList<RulerTick> ticks;
    for (auto number = static_cast<qint64>(first); number <= static_cast<qint64>(last); ++number) {
        const TickRank rank = rankOf(number, parts);
        const double pixel = span.origin + static_cast<double>(number) * pixelsPerTick;
        const double value = static_cast<double>(number / parts) * step;
        ticks.append({pixel, rank, rank == TickRank::Labelled ? labelOf(value) : QString()});
    }
    return ticks;
}

} // namespace window
