// Square and rectangular gradients.

#include "tests/repair/documents.h"

#include "repair/fill_drawing.h"
#include "repair/repaired_import.h"

#include "workbench/rendering/page_image.h"

#include <QImage>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using namespace repair;

namespace {

// A rectangle of two by one inches, whose gradient is blue inside and red outside.
class NestedGradient
{
public:
    explicit NestedGradient(const QByteArray& gradient)
    {
        const QTemporaryDir folder;
        const QByteArray content = drawingContent(
            "<draw:rect draw:style-name=\"g\" svg:width=\"2in\" svg:height=\"1in\" "
            "svg:x=\"0in\" svg:y=\"0in\"/>",
            "<style:style style:name=\"g\" style:family=\"graphic\"><style:graphic-properties "
            "draw:stroke=\"none\" draw:fill=\"gradient\" draw:fill-gradient-name=\"G\"/>"
            "</style:style>");
        const QByteArray common = "<draw:gradient draw:name=\"G\" draw:start-color=\"#ff0000\" "
                                  "draw:end-color=\"#0000ff\" " +
                                  gradient + "/>";
        const RepairedImport import =
            importRepaired(writePackage(folder.path(), content, drawingStyles(common)));
        EXPECT_TRUE(import.isRepaired());
        m_picture = workbench::renderPage(*import.result.canvas, 72.0).image;
    }

    // How far outside a point is, given from the center of the rectangle: from 0 to 1.
    [[nodiscard]] double at(int x, int y) const
    {
        return m_picture.pixelColor(72 + x, 36 + y).redF();
    }

private:
    QImage m_picture;
};

constexpr double Tolerance = 0.03;

} // namespace

TEST(NestedGradients, OfSquaresAreAsLargeAsTheLongerSide)
{
    const NestedGradient gradient("draw:style=\"square\" draw:angle=\"0deg\"");
    EXPECT_NEAR(gradient.at(0, 0), 0.0, Tolerance);
    EXPECT_NEAR(gradient.at(36, 0), 0.5, Tolerance);
    EXPECT_NEAR(gradient.at(36, 33), 0.5, Tolerance);
    EXPECT_NEAR(gradient.at(-36, -30), 0.5, Tolerance);
    EXPECT_NEAR(gradient.at(0, -30), 30.0 / 72.0, Tolerance);
    EXPECT_NEAR(gradient.at(20, 30), 30.0 / 72.0, Tolerance);
}

TEST(NestedGradients, OfRectanglesBeginAtALine)
{
    const NestedGradient gradient("draw:style=\"rectangular\" draw:angle=\"0deg\"");
    EXPECT_NEAR(gradient.at(0, 0), 0.0, Tolerance);
    EXPECT_NEAR(gradient.at(-34, 0), 0.0, Tolerance);
    EXPECT_NEAR(gradient.at(36 + 18, 0), 0.5, Tolerance);
    EXPECT_NEAR(gradient.at(36 + 18, 17), 0.5, Tolerance);
    EXPECT_NEAR(gradient.at(36, -18), 0.5, Tolerance);
    EXPECT_NEAR(gradient.at(-20, 27), 0.75, Tolerance);
}

TEST(NestedGradients, EndAtTheirBorder)
{
    const NestedGradient gradient("draw:style=\"square\" draw:angle=\"0deg\" draw:border=\"50%\"");
    EXPECT_NEAR(gradient.at(18, 10), 0.5, Tolerance);
    EXPECT_EQ(gradient.at(-40, 20), 1.0);
    EXPECT_EQ(gradient.at(60, 0), 1.0);
}

TEST(NestedGradients, TurnCounterclockwise)
{
    const NestedGradient gradient("draw:style=\"rectangular\" draw:angle=\"60deg\" "
                                  "draw:border=\"20%\"");
    // The turned box is 134.3 points wide and 160.7 points high.
    const auto expected = [](double x, double y) {
        const double along = std::abs(x * 0.5 - y * 0.866);
        const double beside = std::abs(x * 0.866 + y * 0.5);
        const double half = 0.8 * 134.35 / 2.0;
        const double ridge = 0.8 * 160.71 / 2.0 - half;
        return std::clamp(std::max(along, beside - ridge) / half, 0.0, 1.0);
    };
    for (const QPoint point : {QPoint(20, -20), QPoint(20, 20), QPoint(-50, 10), QPoint(-30, 30),
                               QPoint(60, 30), QPoint(2, -30)}) {
        EXPECT_NEAR(gradient.at(point.x(), point.y()), expected(point.x(), point.y()), Tolerance)
            << point.x() << ' ' << point.y();
    }
}

TEST(NestedGradients, HaveTheirCenterInTheShape)
{
    const NestedGradient gradient("draw:style=\"square\" draw:angle=\"45deg\" draw:cx=\"60%\"");
    // The turned square is 203.6 points wide.
    const double expected = 30.0 * M_SQRT1_2 / 101.8;
    EXPECT_NEAR(gradient.at(14, 0), 0.0, Tolerance);
    EXPECT_NEAR(gradient.at(44, 0), expected, Tolerance);
    EXPECT_NEAR(gradient.at(-16, 0), expected, Tolerance);
    EXPECT_NEAR(gradient.at(14, 30), expected, Tolerance);
}

TEST(NestedGradients, PartsThatAreTransparentDoNotOverlap)
{
    Document document =
        drawing({}, {},
                "<draw:opacity draw:name=\"O\" draw:style=\"square\" draw:start=\"100%\" "
                "draw:end=\"25%\"/>");
    const Properties graphic{{u"draw:fill"_s, u"solid"_s},
                             {u"draw:fill-color"_s, u"#00ff00"_s},
                             {u"draw:opacity-name"_s, u"O"_s}};
    QPainterPath square;
    square.addRect(0.0, 0.0, 100.0, 100.0);
    FillWriter writer;
    const QString svg = writer.fill(square, graphic, document.table());
    EXPECT_EQ(writer.definitions().count("<linearGradient"_L1), 2);
    EXPECT_EQ(svg.count("<path"_L1), 2);
    // The corner of the square belongs to both parts, the middle of its upper side only to one.
    EXPECT_EQ(svg.count("M0.000 0.000L100.000 0.000L100.000 100.000L0.000 100.000"_L1), 0)
        << svg.toStdString();
}

TEST(RepairLimits, CutOnlySimpleOutlines)
{
    Document document = drawing(
        {}, {}, "<draw:gradient draw:name=\"G\" draw:style=\"square\" draw:angle=\"0deg\"/>");
    const Properties graphic{{u"draw:fill"_s, u"gradient"_s},
                             {u"draw:fill-gradient-name"_s, u"G"_s}};
    const auto definitions = [&](int elements) {
        QPainterPath path;
        for (int i = 0; i < elements; ++i) {
            // A star: all lines cross.
            const double angle = 2.0 * M_PI * (elements / 2) * i / elements;
            const QPointF corner(100.0 * std::cos(angle), 100.0 * std::sin(angle));
            i == 0 ? path.moveTo(corner) : path.lineTo(corner);
        }
        FillWriter writer;
        EXPECT_FALSE(writer.fill(path, graphic, document.table()).isEmpty());
        return writer.definitions();
    };
    EXPECT_EQ(definitions(99).count("<linearGradient"_L1), 2);
    EXPECT_EQ(definitions(101).count("<radialGradient"_L1), 1);
}
