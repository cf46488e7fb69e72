#include "orvanta/control_properties.h"

#include "tests/orvanta/element_support.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using element_support::knowsFamily;
using element_support::ParsedElement;
using orvanta::ControlProperties;

namespace {

ControlProperties read(const QByteArray& children)
{
    const QByteArray xml = "<printable_control>" + children + "</printable_control>";
    return orvanta::readControlProperties(ParsedElement(xml.constData()).element(), knowsFamily);
}

} // namespace

TEST(ControlProperties, StartFromDefaults)
{
    const ControlProperties properties = read("");
    EXPECT_EQ(properties.text, QString());
    EXPECT_TRUE(properties.transparent);
    EXPECT_FALSE(properties.negative);
    EXPECT_EQ(properties.foreColor, QColor(Qt::black));
    EXPECT_EQ(properties.backColor, QColor(Qt::white));
    EXPECT_EQ(properties.bounds, QRectF());
    EXPECT_EQ(properties.fontFamily, u"Arial"_s);
    EXPECT_EQ(properties.fontSize, 24.0);
    EXPECT_EQ(properties.fontStyle, 0);
    EXPECT_EQ(properties.rotation, 0.0);
    EXPECT_FALSE(properties.flipHorizontal);
    EXPECT_FALSE(properties.flipVertical);
}

TEST(ControlProperties, ReadEveryChild)
{
    const ControlProperties properties =
        read("<text>Flour &amp; salt</text><transparency>false</transparency>"
             "<negative>true</negative><fore_color>255</fore_color><back_color>65280</back_color>"
             "<bounds><x>204</x><y>208</y><w>40</w><h>20</h></bounds>"
             "<font><family>Courier New</family><size>8.5</size><style>3</style></font>");
    EXPECT_EQ(properties.text, u"Flour & salt"_s);
    EXPECT_FALSE(properties.transparent);
    EXPECT_TRUE(properties.negative);
    EXPECT_EQ(properties.foreColor, QColor(0, 0, 255));
    EXPECT_EQ(properties.backColor, QColor(0, 255, 0));
    EXPECT_EQ(properties.bounds, QRectF(3, 6, 30, 15));
    EXPECT_EQ(properties.fontFamily, u"Courier New"_s);
    EXPECT_EQ(properties.fontSize, 8.5);
    EXPECT_EQ(properties.fontStyle, 3);
}

TEST(ControlProperties, TransparencyMustBeExactlyTrueIfPresent)
{
    EXPECT_TRUE(read("<transparency>true</transparency>").transparent);
    EXPECT_FALSE(read("<transparency>True</transparency>").transparent);
    EXPECT_FALSE(read("<transparency/>").transparent);
}

TEST(ControlProperties, ARepeatedChildReplacesTheEarlier)
{
    const ControlProperties properties =
        read("<text>a</text><text>b</text>"
             "<bounds><x>300</x><w>4</w></bounds><bounds><h>8</h></bounds>"
             "<font><size>8</size><style>1</style></font><font><size>9</size></font>");
    EXPECT_EQ(properties.text, u"b"_s);
    EXPECT_EQ(properties.bounds, QRectF(0, 0, 0, 6));
    EXPECT_EQ(properties.fontSize, 9.0);
    EXPECT_EQ(properties.fontStyle, 0) << "a font element starts from the defaults";
}

TEST(ControlProperties, IgnoreOtherChildrenAndOtherCapitals)
{
    const ControlProperties properties =
        read("<Text>a</Text><NEGATIVE>true</NEGATIVE><rotation>30</rotation>"
             "<flip_horizontally>true</flip_horizontally><a><text>b</text></a>");
    EXPECT_EQ(properties.text, QString());
    EXPECT_FALSE(properties.negative);
    EXPECT_EQ(properties.rotation, 0.0);
    EXPECT_FALSE(properties.flipHorizontal);
}

TEST(ControlProperties, KeepLineFeedsAndBlanksOfATextButNotBlanksAlone)
{
    EXPECT_EQ(read("<text> one\n two </text>").text, u" one\n two "_s);
    EXPECT_EQ(read("<text>   </text>").text, QString()) << "the parser drops white space alone";
    EXPECT_EQ(read("<text>a&#13;b&#x20AC;</text>").text, u"a\rb\u20AC"_s);
}

TEST(Colors, AreTheLow24BitsAndOpaque)
{
    const struct
    {
        qint32 value;
        QRgb color;
    } rows[] = {
        {0, 0xFF000000},
        {-16777216, 0xFF000000},
        {16711680, 0xFFFF0000},
        {65280, 0xFF00FF00},
        {255, 0xFF0000FF},
        {0x123456, 0xFF123456},
        {0x7F123456, 0xFF123456},
        {-1, 0xFFFFFFFF},
        {16777215, 0xFFFFFFFF},
        {16777216, 0xFF000000},
        {-2147483647 - 1, 0xFF000000},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.value);
        EXPECT_EQ(orvanta::colorFromInteger(row.value), QColor::fromRgba(row.color));
    }
    EXPECT_EQ(read("<fore_color>abc</fore_color>").foreColor, QColor(Qt::black));
    EXPECT_EQ(read("<back_color>4294967295</back_color>").backColor, QColor(Qt::black))
        << "a number beyond 32 signed bits counts as 0";
}

TEST(Colors, OfTheProcessAreFive)
{
    EXPECT_EQ(orvanta::colors::Black, QColor(0, 0, 0));
    EXPECT_EQ(orvanta::colors::White, QColor(255, 255, 255));
    EXPECT_EQ(orvanta::colors::Transparent, QColor(0, 0, 0, 0));
    EXPECT_EQ(QString(orvanta::colors::TransparentName), u"transparent"_s);
    EXPECT_EQ(orvanta::colors::AlmostWhite, QColor(255, 255, 254));
}

TEST(Colors, NegativeExchangesThenTransparencyOpensTheInside)
{
    const QColor red(Qt::red);
    const QColor white(Qt::white);
    const QColor none(Qt::transparent);
    const struct
    {
        bool negative;
        bool transparent;
        QColor pen;
        QColor fill;
    } rows[] = {
        {false, false, red, white},
        {false, true, red, none},
        {true, false, white, red},
        {true, true, white, none},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.negative);
        SCOPED_TRACE(row.transparent);
        ControlProperties properties;
        properties.foreColor = red;
        properties.backColor = white;
        properties.negative = row.negative;
        properties.transparent = row.transparent;
        const orvanta::DrawingColors colors = orvanta::drawingColors(properties);
        EXPECT_EQ(colors.pen, row.pen);
        EXPECT_EQ(colors.fill, row.fill);
    }
}

TEST(FontStyle, IsThreeBits)
{
    for (const qint32 style : {0, 1, 2, 3, 4, 5, 6, 7, 8, 15, -1, -8}) {
        SCOPED_TRACE(style);
        ControlProperties properties;
        properties.fontStyle = style;
        EXPECT_EQ(properties.isBold(), (style & 1) == 1);
        EXPECT_EQ(properties.isItalic(), (style & 2) == 2);
        EXPECT_EQ(properties.isUnderlined(), (style & 4) == 4);
    }
}
