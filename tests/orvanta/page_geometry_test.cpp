#include "orvanta/page_geometry.h"

#include "tests/orvanta/element_support.h"

#include <gtest/gtest.h>

#include <cmath>

using element_support::ParsedElement;

TEST(Bounds, PixelsBehindTheMarginBecomePoints)
{
    const struct
    {
        const char* why;
        const char* xml;
        QRectF points;
    } rows[] = {
        {"nothing given", "<bounds/>", {0, 0, 0, 0}},
        {"x within the margin, y behind it",
         "<bounds><x>150</x><y>260</y><w>400</w><h>100</h></bounds>",
         {0, 45, 300, 75}},
        {"on the margin", "<bounds><x>200</x><y>200</y><w>4</w><h>8</h></bounds>", {0, 0, 3, 6}},
        {"one pixel behind it",
         "<bounds><x>201</x><y>202</y><w>4</w><h>8</h></bounds>",
         {0.75, 1.5, 3, 6}},
        {"a fraction behind it", "<bounds><x>200.5</x><w>4</w></bounds>", {0.375, 0, 3, 0}},
        {"negative", "<bounds><x>-300</x><y>-1</y></bounds>", {0, 0, 0, 0}},
        {"no numbers", "<bounds><x>a</x><y>b</y><w>c</w><h>d</h></bounds>", {0, 0, 0, 0}},
        {"only a position: the far edges stay at the corner",
         "<bounds><x>300</x><y>240</y></bounds>",
         {75, 30, -75, -30}},
        {"x and y behind w and h narrow the rectangle",
         "<bounds><w>400</w><h>200</h><x>300</x><y>240</y></bounds>",
         {75, 30, 225, 120}},
        {"x behind w, within the margin", "<bounds><w>400</w><x>100</x></bounds>", {0, 0, 300, 0}},
        {"x, w, x: the second x moves the left edge alone",
         "<bounds><x>300</x><w>400</w><x>340</x></bounds>",
         {105, 0, 270, 0}},
        {"the last w holds", "<bounds><w>4</w><w>8</w></bounds>", {0, 0, 6, 0}},
        {"a negative width", "<bounds><w>-4</w><h>-8</h></bounds>", {0, 0, -3, -6}},
        {"names are case-sensitive, others ignored",
         "<bounds><X>300</X><W>4</W><width>4</width><z>1</z></bounds>",
         {0, 0, 0, 0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const QRectF points = orvanta::readBounds(ParsedElement(row.xml).element());
        EXPECT_DOUBLE_EQ(points.x(), row.points.x());
        EXPECT_DOUBLE_EQ(points.y(), row.points.y());
        EXPECT_DOUBLE_EQ(points.width(), row.points.width());
        EXPECT_DOUBLE_EQ(points.height(), row.points.height());
    }
}

TEST(Bounds, NotANumberIsZeroAsPositionButKeptAsWidth)
{
    const QRectF points =
        orvanta::readBounds(ParsedElement("<bounds><x>nan</x><w>nan</w></bounds>").element());
    EXPECT_EQ(points.x(), 0.0);
    EXPECT_TRUE(std::isnan(points.width()));
}

TEST(LabelPage, ComesFromTheFirstBoundsOfTheFirstPrintableControl)
{
    const struct
    {
        const char* why;
        const char* xml;
        double width;
        double height;
        bool higherThanWide;
    } rows[] = {
        {"no children", "<qmtx/>", 432, 288, false},
        {"no bounds", "<qmtx><printable_control/></qmtx>", 432, 288, false},
        {"bounds elsewhere", "<qmtx><bounds><w>4</w></bounds></qmtx>", 432, 288, false},
        {"bounds deeper",
         "<qmtx><a><printable_control><bounds><w>4</w></bounds></printable_control></a></qmtx>",
         432, 288, false},
        {"empty bounds", "<qmtx><printable_control><bounds/></printable_control></qmtx>", 0, 0,
         false},
        {"wide",
         "<qmtx><printable_control><bounds><w>576</w><h>384</h></bounds></printable_control>"
         "</qmtx>",
         432, 288, false},
        {"high",
         "<qmtx><printable_control><bounds><w>400</w><h>600</h></bounds></printable_control>"
         "</qmtx>",
         300, 450, true},
        {"square",
         "<qmtx><printable_control><bounds><w>600</w><h>600</h></bounds></printable_control>"
         "</qmtx>",
         450, 450, false},
        {"the position is not the page's",
         "<qmtx><printable_control><bounds><x>300</x><y>300</y><w>400</w><h>200</h></bounds>"
         "</printable_control></qmtx>",
         300, 150, false},
        {"repeated",
         "<qmtx><printable_control><bounds><w>4</w><h>4</h></bounds><bounds><w>8</w></bounds>"
         "</printable_control><printable_control><bounds><w>12</w></bounds></printable_control>"
         "</qmtx>",
         3, 3, false},
        {"the first has no bounds",
         "<qmtx><printable_control/><printable_control><bounds><w>12</w></bounds>"
         "</printable_control></qmtx>",
         432, 288, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        const orvanta::LabelPage page = orvanta::readLabelPage(ParsedElement(row.xml).element());
        EXPECT_EQ(page.width, row.width);
        EXPECT_EQ(page.height, row.height);
        EXPECT_EQ(page.higherThanWide, row.higherThanWide);
    }
}
