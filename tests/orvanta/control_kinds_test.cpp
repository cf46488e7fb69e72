#include "orvanta/control_kinds.h"
#include "tests/orvanta/element_support.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using element_support::knowsFamily;
using element_support::ParsedElement;

namespace {

constexpr char TurnsAndText[] = "<rotation>30</rotation>"
                                "<flip_horizontally>true</flip_horizontally>"
                                "<flip_vertically>true</flip_vertically>"
                                "<printable_control><text>t</text></printable_control>";

template <typename Control>
Control decode(Control (*read)(const orvanta::Element&, orvanta::FamilyCheck),
               const QByteArray& children)
{
    const QByteArray xml = "<control>" + children + "</control>";
    return read(ParsedElement(xml.constData()).element(), knowsFamily);
}

template <typename Control>
void expectTurns(const Control& control, bool expected)
{
    EXPECT_EQ(control.properties.text, u"t"_s);
    EXPECT_EQ(control.properties.rotation, expected ? 30.0 : 0.0);
    EXPECT_EQ(control.properties.flipHorizontal, expected);
    EXPECT_EQ(control.properties.flipVertical, expected);
}

const QStringList OneAndTwo = {u"one"_s, u"two"_s};

} // namespace

TEST(Controls, TextsShapesAndPicturesTurnTheOthersDoNot)
{
    expectTurns(decode(orvanta::readTextControl, TurnsAndText), true);
    expectTurns(decode(orvanta::readShapeControl, TurnsAndText), true);
    expectTurns(decode(orvanta::readPictureControl, TurnsAndText), true);
    expectTurns(decode(orvanta::readBarcodeControl, TurnsAndText), false);
    expectTurns(decode(orvanta::readListControl, TurnsAndText), false);
    expectTurns(decode(orvanta::readDateTimeControl, TurnsAndText), false);
    expectTurns(decode(orvanta::readNumericControl, TurnsAndText), false);
}

TEST(Controls, ALaterPrintableControlReplacesTheEarlierButNotTheTurns)
{
    const auto control =
        decode(orvanta::readShapeControl,
               "<printable_control><text>a</text><negative>true</negative></printable_control>"
               "<rotation>30</rotation><flip_vertically>true</flip_vertically>"
               "<printable_control><text>b</text></printable_control>");
    EXPECT_EQ(control.properties.text, u"b"_s);
    EXPECT_FALSE(control.properties.negative);
    EXPECT_EQ(control.properties.rotation, 30.0);
    EXPECT_TRUE(control.properties.flipVertical);
}

TEST(Controls, RotationIsAWholeNumber)
{
    EXPECT_EQ(decode(orvanta::readTextControl, "<rotation>-90</rotation>").properties.rotation,
              -90.0);
    EXPECT_EQ(decode(orvanta::readTextControl, "<rotation>22.5</rotation>").properties.rotation,
              0.0);
}

TEST(TextControl, HasDefaults)
{
    const auto control = decode(orvanta::readTextControl, "");
    EXPECT_EQ(control.items, QStringList());
    EXPECT_FALSE(control.scaleable);
    EXPECT_EQ(control.alignment, Qt::AlignHCenter | Qt::AlignVCenter);
}

TEST(TextControl, ReadsItemsScalingAndAlignment)
{
    const auto control =
        decode(orvanta::readTextControl, "<items><string>one</string><string>two</string></items>"
                                         "<scaleable>true</scaleable><alignment>2</alignment>");
    EXPECT_EQ(control.items, OneAndTwo);
    EXPECT_TRUE(control.scaleable);
    EXPECT_EQ(control.alignment, Qt::AlignRight);
}

TEST(TextControl, AnInvalidAlignmentIsLeft)
{
    EXPECT_EQ(decode(orvanta::readTextControl, "<alignment>left</alignment>").alignment,
              Qt::AlignLeft);
    EXPECT_EQ(decode(orvanta::readTextControl, "<alignment/>").alignment, Qt::AlignLeft);
    EXPECT_EQ(decode(orvanta::readTextControl, "<alignment>1</alignment>").alignment,
              Qt::AlignHCenter | Qt::AlignVCenter);
}

TEST(TextControl, KnowsOnlyItsOwnList)
{
    const auto control =
        decode(orvanta::readTextControl, "<ArrayOfString><a>x</a></ArrayOfString>"
                                         "<ArrayOfAnyType><a>x</a></ArrayOfAnyType>");
    EXPECT_EQ(control.items, QStringList());
}

TEST(Controls, ARepeatedListReplacesTheEarlier)
{
    EXPECT_EQ(decode(orvanta::readTextControl,
                     "<items><s>x</s></items><items><s>one</s><s>two</s></items>")
                  .items,
              OneAndTwo);
    EXPECT_EQ(decode(orvanta::readBarcodeControl,
                     "<ArrayOfString><s>x</s></ArrayOfString><ArrayOfString/>")
                  .texts,
              QStringList());
    EXPECT_EQ(decode(orvanta::readListControl, "<ArrayOfAnyType><s>x</s></ArrayOfAnyType>"
                                               "<ArrayOfAnyType><s>one</s><s>two</s>"
                                               "</ArrayOfAnyType>")
                  .entries,
              OneAndTwo);
}

TEST(ShapeControl, ReadsItsNumbers)
{
    const auto nothing = decode(orvanta::readShapeControl, "");
    EXPECT_EQ(nothing.shapeIndex, 0);
    EXPECT_EQ(nothing.lineWidth, 0);
    EXPECT_EQ(nothing.sides, 0);
    const auto control =
        decode(orvanta::readShapeControl, "<shape_index>3</shape_index><line_width>2</line_width>"
                                          "<sides>8</sides>");
    EXPECT_EQ(control.shapeIndex, 3);
    EXPECT_EQ(control.lineWidth, 2);
    EXPECT_EQ(control.sides, 8);
}

TEST(BarcodeControl, ReadsListAndType)
{
    const struct
    {
        const char* children;
        int hostType;
    } rows[] = {
        {"", 8},
        {"<barcode_type>5</barcode_type>", 2},
        {"<barcode_type>112</barcode_type>", 71},
        {"<barcode_type>113</barcode_type>", 8},
        {"<barcode_type>x</barcode_type>", 8},
        {"<barcode_type>5</barcode_type><barcode_type>x</barcode_type>", 8},
        {"<barcode_type>2 </barcode_type>", 3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.children);
        EXPECT_EQ(decode(orvanta::readBarcodeControl, row.children).hostType, row.hostType);
    }
    EXPECT_EQ(decode(orvanta::readBarcodeControl,
                     "<ArrayOfString><string>one</string><string>two</string></ArrayOfString>")
                  .texts,
              OneAndTwo);
    EXPECT_EQ(decode(orvanta::readBarcodeControl, "<items><s>x</s></items>").texts, QStringList());
}

TEST(ListControl, ReadsItsEntries)
{
    const auto control = decode(orvanta::readListControl,
                                "<ArrayOfAnyType><a>x</a><b/></ArrayOfAnyType><items><a>y</a>"
                                "</items>");
    EXPECT_EQ(control.entries, QStringList({u"x"_s, QString()}));
}

TEST(DateTimeControl, ReadsItsFormat)
{
    EXPECT_EQ(decode(orvanta::readDateTimeControl, "").formats, QStringList());
    EXPECT_EQ(decode(orvanta::readDateTimeControl, "<format>4</format>").formats,
              QStringList({QString(), u"HH:mm:ss"_s}));
    for (const char* children : {"<format>3</format>", "<format>abc</format>", "<format/>",
                                 "<format>9999999999</format>"}) {
        SCOPED_TRACE(children);
        EXPECT_EQ(decode(orvanta::readDateTimeControl, children).formats,
                  QStringList({u"MM-dd-yyyy"_s, u"HH:mm:ss"_s}));
    }
}

TEST(NumericControl, ReadsItsNumbers)
{
    const auto nothing = decode(orvanta::readNumericControl, "");
    EXPECT_FALSE(nothing.readOnly);
    EXPECT_EQ(nothing.minimum, 0);
    EXPECT_EQ(nothing.maximum, 0);
    EXPECT_EQ(nothing.increment, 1);
    const auto control =
        decode(orvanta::readNumericControl,
               "<read_only>true</read_only><minimum>-3</minimum><maximum>99</maximum>"
               "<incrememnt>5</incrememnt>");
    EXPECT_TRUE(control.readOnly);
    EXPECT_EQ(control.minimum, -3);
    EXPECT_EQ(control.maximum, 99);
    EXPECT_EQ(control.increment, 5);
}

TEST(NumericControl, OnlyTheMisspelledIncrementCounts)
{
    EXPECT_EQ(decode(orvanta::readNumericControl, "<increment>5</increment>").increment, 1);
    EXPECT_EQ(decode(orvanta::readNumericControl, "<incrememnt>x</incrememnt>").increment, 0);
}

TEST(PictureControl, ReadsTheFirstContentOfItsImage)
{
    const struct
    {
        const char* children;
        QByteArray bytes;
    } rows[] = {
        {"", ""},
        {"<image/>", ""},
        {"<image>YWJj</image>", ""},
        {"<content>YWJj</content>", ""},
        {"<image><content>YWJj</content></image>", "abc"},
        {"<image><content> YW\nJj </content></image>", "abc"},
        {"<image><content>YWJj</content><content>ZGVm</content></image>", "abc"},
        {"<image><content>YWJj</content></image><image><content>ZGVm</content></image>", "def"},
        {"<image><content>@@ %%</content></image>", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.children);
        EXPECT_EQ(decode(orvanta::readPictureControl, row.children).bytes, row.bytes);
    }
}
