#include "window/rulers/ruler_scale.h"

#include <QLocale>

#include <cmath>

namespace window {

namespace {

// Width of a label with four digits, in pixels.
constexpr double LabelRoom = 54.0;
// Minimum distance of ticks, in pixels.
constexpr double TickRoom = 5.0;
// Limits beyond which the number of a tick would overflow an integer.
constexpr double LargestTickNumber = 1e9;

// Fractions of an inch are powers of two, multiples are decimal.
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

// The number of parts of a labeled step; even, so that there is a middle.
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
        return TickRank::Labeled;
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
        ticks.append({pixel, rank, rank == TickRank::Labeled ? labelOf(value) : QString()});
    }
    return ticks;
}

} // namespace window
