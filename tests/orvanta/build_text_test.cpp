#include "tests/orvanta/reader_fixture.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using TextBuilding = ReaderFixture;

constexpr char FullProperties[] =
    "<printable_control><text>Bread</text><transparency>false</transparency>"
    "<fore_color>255</fore_color><back_color>65280</back_color>"
    "<bounds><x>300</x><y>240</y><w>400</w><h>100</h></bounds>"
    "<font><family>Courier New</family><size>10.7</size><style>5</style></font>"
    "</printable_control>";

} // namespace

TEST_F(TextBuilding, ARichTextIsMadeImportedAndSetUpInOrder)
{
    readControls(QByteArray("<transparent_label>") + FullProperties +
                 "<rotation>30</rotation><flip_horizontally>true</flip_horizontally>"
                 "<alignment>2</alignment></transparent_label>");
    EXPECT_EQ(takeCalls(), QStringList({
                               u"lists isValidFamily 'Courier New'"_s,
                               u"factory create 10016"_s,
                               u"canvas importItem 'item:1'"_s,
                               u"item:1 setPenColor '#ff0000ff'"_s,
                               u"item:1 setFillColor '#ff00ff00'"_s,
                               u"item:1 setTextColor '#ff0000ff'"_s,
                               u"item:1 setItemSize 300 75"_s,
                               u"item:1 setFlipHorizontal true"_s,
                               u"item:1 setFlipVertical false"_s,
                               u"item:1 setItemRotation 30"_s,
                               u"item:1 setText 'Bread'"_s,
                               u"item:1 setFontFamily 'Courier New'"_s,
                               u"item:1 setFontBold true"_s,
                               u"item:1 setFontItalic false"_s,
                               u"item:1 setFontUnderline true"_s,
                               u"item:1 setFontPointSize 10"_s,
                               u"item:1 setTextAlignment 2"_s,
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
    EXPECT_EQ(logText(), QString());
}

TEST_F(TextBuilding, AScalableTextIsSimpleAndKeepsTheHostsFontSize)
{
    readControls(QByteArray("<swap_text_box>") + FullProperties +
                 "<scaleable>true</scaleable></swap_text_box>");
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.at(1), u"factory create 10015"_s);
    EXPECT_TRUE(calls.filter(u"setFontPointSize"_s).isEmpty());
    EXPECT_EQ(calls.last(), u"item:1 setTextAlignment 132"_s);
}

TEST_F(TextBuilding, AnEmptyObjectHasDefaults)
{
    readControls("<transparent_label/>");
    EXPECT_EQ(callsOf("item:1"), QStringList({
                                     u"setPenColor '#ff000000'"_s,
                                     u"setFillColor '#00000000'"_s,
                                     u"setTextColor '#ff000000'"_s,
                                     u"setItemSize 0 0"_s,
                                     u"setFlipHorizontal false"_s,
                                     u"setFlipVertical false"_s,
                                     u"setItemRotation 0"_s,
                                     u"setText ''"_s,
                                     u"setFontFamily 'Arial'"_s,
                                     u"setFontBold false"_s,
                                     u"setFontItalic false"_s,
                                     u"setFontUnderline false"_s,
                                     u"setFontPointSize 24"_s,
                                     u"setTextAlignment 132"_s,
                                 }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(0, 0));
}

TEST_F(TextBuilding, ANegativeTextIsWrittenInTheBackColor)
{
    readControls("<transparent_label><printable_control><negative>true</negative>"
                 "<fore_color>16711680</fore_color><back_color>16777215</back_color>"
                 "<transparency>false</transparency></printable_control></transparent_label>");
    const QStringList calls = callsOf("item:1");
    EXPECT_EQ(calls.mid(0, 3),
              QStringList({u"setPenColor '#ffffffff'"_s, u"setFillColor '#ffff0000'"_s,
                           u"setTextColor '#ffffffff'"_s}));
}

TEST_F(TextBuilding, TextIsPassedOnUnchanged)
{
    readControls("<transparent_label><printable_control><text>&lt;b&gt; 50 %s\nend</text>"
                 "</printable_control></transparent_label>");
    EXPECT_TRUE(callsOf("item:1").contains(u"setText '<b> 50 %s\nend'"_s));
}

TEST_F(TextBuilding, ATextThatTheHostDoesNotMakeIsLeftOut)
{
    host.behavior().refusedTypes = {KestTypes::RichText};
    readControls("<transparent_label><items><s>a</s></items></transparent_label>"
                 "<swap_text_box><scaleable>true</scaleable></swap_text_box>");
    EXPECT_EQ(host.itemCount(), 1) << "the walk continues";
    EXPECT_TRUE(callsOf("datasources").isEmpty());
    EXPECT_EQ(logText(), u"Left out of the label: a text, for which the host made no item"_s);
}

TEST_F(TextBuilding, AnItemOfAnotherClassIsDeletedAndLeftOut)
{
    host.behavior().mismatchedTypes = {KestTypes::RichText};
    readControls("<transparent_label/>");
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_EQ(host.livingItems(), 0);
    EXPECT_EQ(log.records().size(), 1);
}
