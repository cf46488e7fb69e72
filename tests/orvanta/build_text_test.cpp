#include "tests/orvanta/reader_fixture.h"

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
                               QStringLiteral("lists isValidFamily 'Courier New'"),
                               QStringLiteral("factory create 10016"),
                               QStringLiteral("canvas importItem 'item:1'"),
                               QStringLiteral("item:1 setPenColor '#ff0000ff'"),
                               QStringLiteral("item:1 setFillColor '#ff00ff00'"),
                               QStringLiteral("item:1 setTextColor '#ff0000ff'"),
                               QStringLiteral("item:1 setItemSize 300 75"),
                               QStringLiteral("item:1 setFlipHorizontal true"),
                               QStringLiteral("item:1 setFlipVertical false"),
                               QStringLiteral("item:1 setItemRotation 30"),
                               QStringLiteral("item:1 setText 'Bread'"),
                               QStringLiteral("item:1 setFontFamily 'Courier New'"),
                               QStringLiteral("item:1 setFontBold true"),
                               QStringLiteral("item:1 setFontItalic false"),
                               QStringLiteral("item:1 setFontUnderline true"),
                               QStringLiteral("item:1 setFontPointSize 10"),
                               QStringLiteral("item:1 setTextAlignment 2"),
                           }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(75, 30));
    EXPECT_EQ(logText(), QString());
}

TEST_F(TextBuilding, AScalableTextIsSimpleAndKeepsTheHostsFontSize)
{
    readControls(QByteArray("<swap_text_box>") + FullProperties +
                 "<scaleable>true</scaleable></swap_text_box>");
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.at(1), QStringLiteral("factory create 10015"));
    EXPECT_TRUE(calls.filter(QStringLiteral("setFontPointSize")).isEmpty());
    EXPECT_EQ(calls.last(), QStringLiteral("item:1 setTextAlignment 132"));
}

TEST_F(TextBuilding, AnEmptyObjectHasDefaults)
{
    readControls("<transparent_label/>");
    EXPECT_EQ(callsOf("item:1"), QStringList({
                                     QStringLiteral("setPenColor '#ff000000'"),
                                     QStringLiteral("setFillColor '#00000000'"),
                                     QStringLiteral("setTextColor '#ff000000'"),
                                     QStringLiteral("setItemSize 0 0"),
                                     QStringLiteral("setFlipHorizontal false"),
                                     QStringLiteral("setFlipVertical false"),
                                     QStringLiteral("setItemRotation 0"),
                                     QStringLiteral("setText ''"),
                                     QStringLiteral("setFontFamily 'Arial'"),
                                     QStringLiteral("setFontBold false"),
                                     QStringLiteral("setFontItalic false"),
                                     QStringLiteral("setFontUnderline false"),
                                     QStringLiteral("setFontPointSize 24"),
                                     QStringLiteral("setTextAlignment 132"),
                                 }));
    EXPECT_EQ(host.item(1)->pos(), QPointF(0, 0));
}

TEST_F(TextBuilding, ANegativeTextIsWrittenInTheBackColor)
{
    readControls("<transparent_label><printable_control><negative>true</negative>"
                 "<fore_color>16711680</fore_color><back_color>16777215</back_color>"
                 "<transparency>false</transparency></printable_control></transparent_label>");
    const QStringList calls = callsOf("item:1");
    EXPECT_EQ(calls.mid(0, 3), QStringList({QStringLiteral("setPenColor '#ffffffff'"),
                                            QStringLiteral("setFillColor '#ffff0000'"),
                                            QStringLiteral("setTextColor '#ffffffff'")}));
}

TEST_F(TextBuilding, TextIsPassedOnUnchanged)
{
    readControls("<transparent_label><printable_control><text>&lt;b&gt; 50 %s\nend</text>"
                 "</printable_control></transparent_label>");
    EXPECT_TRUE(callsOf("item:1").contains(QStringLiteral("setText '<b> 50 %s\nend'")));
}

TEST_F(TextBuilding, ATextThatTheHostDoesNotMakeIsLeftOut)
{
    host.behavior().refusedTypes = {KestTypes::RichText};
    readControls("<transparent_label><items><s>a</s></items></transparent_label>"
                 "<swap_text_box><scaleable>true</scaleable></swap_text_box>");
    EXPECT_EQ(host.itemCount(), 1) << "the walk continues";
    EXPECT_TRUE(callsOf("datasources").isEmpty());
    EXPECT_EQ(logText(),
              QStringLiteral("Left out of the label: a text, for which the host made no item"));
}

TEST_F(TextBuilding, AnItemOfAnotherClassIsDeletedAndLeftOut)
{
    host.behavior().mismatchedTypes = {KestTypes::RichText};
    readControls("<transparent_label/>");
    EXPECT_EQ(host.itemCount(), 0);
    EXPECT_EQ(host.livingItems(), 0);
    EXPECT_EQ(log.records().size(), 1);
}
