// Position, size, rotation and order of an element.

#include "documents.h"

#include "opendocument/element_geometry.h"

#include <gtest/gtest.h>

using namespace opendocument;

namespace {

constexpr double NotGiven = -1000000001;

Geometry of(const QByteArray& attributes, double unitFactor = 72.0)
{
    Geometry geometry;
    readGeometry(elementOf("<e " + attributes + "/>"), unitFactor, geometry);
    return geometry;
}

} // namespace

TEST(Geometry, IsNotGivenAtFirst)
{
    const Geometry geometry = of("");
    EXPECT_EQ(geometry.size, QSizeF(-1, -1));
    EXPECT_EQ(geometry.position, QPointF(NotGiven, NotGiven));
    EXPECT_EQ(geometry.z, NotGiven);
    EXPECT_EQ(geometry.rotation, 500.0);
    EXPECT_FALSE(geometry.hasX() || geometry.hasY() || geometry.hasZ() || geometry.hasRotation());
}

TEST(Geometry, HasSizeAndPosition)
{
    const Geometry geometry =
        of("svg:width=\"1in\" svg:height=\"2mm\" svg:x=\"3in\" svg:y=\"-4in\"");
    EXPECT_EQ(geometry.size, QSizeF(72, 144));
    EXPECT_EQ(geometry.position, QPointF(216, -288));
    EXPECT_TRUE(geometry.hasX() && geometry.hasY());
}

TEST(Geometry, LeavesWhatDoesNotConvert)
{
    const Geometry geometry = of("svg:width=\"x\" svg:height=\"nanin\" svg:x=\"\" svg:y=\"1in\" "
                                 "draw:z-index=\"1.5\" draw:transform=\"rotate (x)\"");
    EXPECT_EQ(geometry.size, QSizeF(-1, -1));
    EXPECT_EQ(geometry.position, QPointF(NotGiven, 72));
    EXPECT_FALSE(geometry.hasX());
    EXPECT_TRUE(geometry.hasY());
    EXPECT_FALSE(geometry.hasZ());
    EXPECT_FALSE(geometry.hasRotation());
}

TEST(Geometry, StacksInThousands)
{
    EXPECT_EQ(of("draw:z-index=\"3\"").z, 3000);
    EXPECT_EQ(of("draw:z-index=\"0\"").z, 0);
    EXPECT_TRUE(of("draw:z-index=\"0\"").hasZ());
    EXPECT_EQ(of("draw:z-index=\"-2\"").z, -2000);
    EXPECT_EQ(of("draw:z-index=\"2147483647\"").z, 2147483647000.0);
    EXPECT_FALSE(of("draw:z-index=\"2147483648\"").hasZ());
    EXPECT_FALSE(of("draw:z-index=\"-1000000\"").hasZ()) << "as low as the value for: not given";
}

TEST(Geometry, TurnsAgainstTheClockInRadians)
{
    const Geometry geometry =
        of("draw:transform=\"rotate (1.5707963267949) translate (2cm 3cm)\"", 72 / 2.54);
    EXPECT_NEAR(geometry.rotation, 270.0, 1e-9);
    EXPECT_NEAR(geometry.position.x(), 56.69, 0.01);
    EXPECT_NEAR(geometry.position.y(), 85.04, 0.01);
}

TEST(Geometry, TranslateReplacesThePosition)
{
    EXPECT_EQ(of("svg:x=\"9in\" svg:y=\"9in\" draw:transform=\"translate (1in 2in)\"").position,
              QPointF(72, 144));
    EXPECT_EQ(of("svg:x=\"9in\" svg:y=\"9in\" draw:transform=\"translate (x 2in)\"").position,
              QPointF(0, 144));
}

TEST(Geometry, TransformIsScannedPartByPart)
{
    const struct
    {
        QByteArray transform;
        double rotation;
        QPointF position;
    } rows[] = {
        {"rotate (-3.14159265358979)", 180, {NotGiven, NotGiven}},
        {"scale (2) rotate (0)", 0, {NotGiven, NotGiven}},
        {"translate (1in 1in) rotate (0)", 0, {72, 72}},
        // The last part is never a keyword, and an argument is never read as one.
        {"rotate", 500, {NotGiven, NotGiven}},
        {"translate", 500, {NotGiven, NotGiven}},
        {"rotate rotate (0)", 500, {NotGiven, NotGiven}},
        {"translate rotate (0)", 500, {0, 0}},
        {"translate (1in", 500, {72, 0}},
        {"rotate  (0)", 500, {NotGiven, NotGiven}},
        {"rotate(0)", 500, {NotGiven, NotGiven}},
        {"rotate (0) rotate (3.14159265358979)", 180, {NotGiven, NotGiven}},
        {"rotate (nan)", 500, {NotGiven, NotGiven}},
        {"translate (1e308in 1in)", 500, {0, 72}},
        {"", 500, {NotGiven, NotGiven}},
        {"   ", 500, {NotGiven, NotGiven}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.transform.toStdString());
        const Geometry geometry = of("draw:transform=\"" + row.transform + "\"");
        EXPECT_NEAR(geometry.rotation, row.rotation, 1e-9);
        EXPECT_EQ(geometry.position, row.position);
    }
}

TEST(PositionInRotatedBox, KeepsTheTextInItsCorner)
{
    Geometry box;
    box.position = {100, 200};
    box.size = {60, 40};
    const QSizeF text(60, 10);
    const struct
    {
        double rotation;
        QPointF center; // of the text
    } rows[] = {
        {0, {130, 205}},
        {90, {145, 220}},
        {180, {130, 235}},
        {270, {115, 220}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.rotation);
        box.rotation = row.rotation;
        const QPointF position = positionInRotatedBox(box, text);
        EXPECT_NEAR(position.x() + 30, row.center.x(), 1e-9);
        EXPECT_NEAR(position.y() + 5, row.center.y(), 1e-9);
    }
}
