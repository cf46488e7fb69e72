// The rulers' scale: round steps, labels that do not overlap, and no more ticks than fit.

#include "window/properties/length_unit.h"
#include "window/rulers/ruler_scale.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

constexpr double PixelsPerMm = 96.0 / 25.4; // true size on a usual screen

struct StepRow
{
    double pixelsPerUnit;
    LengthUnit unit;
    double step;
};

QList<RulerTick> labeled(const QList<RulerTick>& ticks)
{
    QList<RulerTick> result;
    std::copy_if(ticks.begin(), ticks.end(), std::back_inserter(result),
                 [](const RulerTick& tick) { return tick.rank == TickRank::Labeled; });
    return result;
}

} // namespace

TEST(RulerScale, StepsAreRoundNumbersOfTheUnit)
{
    const StepRow rows[] = {
        {PixelsPerMm, LengthUnit::Millimeter, 20.0},
        {PixelsPerMm * 2, LengthUnit::Millimeter, 10.0},
        {PixelsPerMm * 4, LengthUnit::Millimeter, 5.0},
        {PixelsPerMm * 64, LengthUnit::Millimeter, 0.5},
        {PixelsPerMm / 20, LengthUnit::Millimeter, 500.0},
        {96.0, LengthUnit::Inch, 1.0},
        {192.0, LengthUnit::Inch, 0.5},
        {384.0, LengthUnit::Inch, 0.25},
        {24.0, LengthUnit::Inch, 5.0},
        {96.0 * 64, LengthUnit::Inch, 1.0 / 64.0},
    };
    for (const StepRow& row : rows) {
        SCOPED_TRACE(row.pixelsPerUnit);
        EXPECT_DOUBLE_EQ(labelStep(row.pixelsPerUnit, row.unit), row.step);
    }
}

TEST(RulerScale, TheFirstLabelOfThePageIsAtItsEdge)
{
    const QList<RulerTick> ticks = labeled(rulerTicks({40.0, 96.0 / 72.0, 400}, LengthUnit::Inch));

    ASSERT_EQ(ticks.size(), 4);
    EXPECT_DOUBLE_EQ(ticks.at(0).pixel, 40.0);
    EXPECT_EQ(ticks.at(0).label, u"0"_s);
    EXPECT_DOUBLE_EQ(ticks.at(3).pixel, 40.0 + 3 * 96.0);
    EXPECT_EQ(ticks.at(3).label, u"3"_s);
}

TEST(RulerScale, LeftOfThePageNumbersAreNegative)
{
    const QList<RulerTick> ticks = labeled(rulerTicks({200.0, 96.0 / 72.0, 200}, LengthUnit::Inch));

    ASSERT_EQ(ticks.size(), 3);
    EXPECT_EQ(ticks.at(0).label, QLocale().toString(-2));
}

TEST(RulerScale, AStepHasAMiddleAndSmallTicks)
{
    const QList<RulerTick> ticks = rulerTicks({0.0, 2.0, 144}, LengthUnit::Inch);

    ASSERT_EQ(labelStep(144.0, LengthUnit::Inch), 0.5);
    // Two half inches with eight ticks each, and both ends.
    EXPECT_EQ(ticks.size(), 17);
    EXPECT_EQ(ticks.at(4).rank, TickRank::Middle);
    EXPECT_EQ(ticks.at(1).rank, TickRank::Small);
    EXPECT_TRUE(ticks.at(1).label.isEmpty());
}

TEST(RulerScale, NeverMoreTicksThanPixelsAtAnyZoom)
{
    for (double pixelsPerPoint = 1e-6; pixelsPerPoint < 1e6; pixelsPerPoint *= 1.7) {
        SCOPED_TRACE(pixelsPerPoint);
        for (const LengthUnit unit : {LengthUnit::Millimeter, LengthUnit::Inch}) {
            const QList<RulerTick> ticks = rulerTicks({-300.0, pixelsPerPoint, 1000}, unit);
            EXPECT_LE(ticks.size(), 1000);
            const QList<RulerTick> labels = labeled(ticks);
            for (qsizetype i = 1; i < labels.size(); ++i) {
                EXPECT_GE(labels.at(i).pixel - labels.at(i - 1).pixel, 50.0);
            }
        }
    }
}

TEST(RulerScale, ImpossibleScalesHaveNoTicks)
{
    for (const double scale : {0.0, -1.0, std::numeric_limits<double>::infinity(),
                               std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_TRUE(rulerTicks({0.0, scale, 500}, LengthUnit::Inch).isEmpty());
    }
    EXPECT_TRUE(rulerTicks({1e300, 1.0, 500}, LengthUnit::Millimeter).isEmpty());
}

TEST(LengthUnit, LengthsAreShownInTheUnitAndTheLocale)
{
    EXPECT_EQ(lengthText(72.0, LengthUnit::Inch), QLocale().toString(1.0, 'f', 3) + u" in"_s);
    EXPECT_EQ(lengthText(72.0, LengthUnit::Millimeter),
              QLocale().toString(25.4, 'f', 2) + u" mm"_s);
    EXPECT_EQ(areaText(144.0, 72.0, LengthUnit::Inch), QLocale().toString(2.0, 'f', 3) + u" × "_s +
                                                           QLocale().toString(1.0, 'f', 3) +
                                                           u" in"_s);
}
