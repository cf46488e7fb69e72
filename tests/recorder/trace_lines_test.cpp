// The kinds of lines, byte for byte, and the final state of items.

#include "host/items/rich_text_item.h"
#include "recorder_fixture.h"

#include <QGraphicsRectItem>
#include <QGraphicsTextItem>

#include <Logger.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using TraceLines = RecorderTest;

TEST_F(TraceLines, StartAndEnd)
{
    m_host->trace().start(u"label.odg"_s, u"opendocument"_s);
    EXPECT_EQ(newLine(), uR"({"trace":1,"file":"label.odg","reader":"opendocument"})"_s);
    m_host->trace().end(true);
    EXPECT_EQ(newLine(), uR"({"result":true})"_s);
    m_host->trace().end(false);
    EXPECT_EQ(newLine(), uR"({"result":false})"_s);
}

TEST_F(TraceLines, CallsWithAndWithoutResult)
{
    m_host->trace().call(u"canvas"_s, "completeCanvasLoading", {});
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"completeCanvasLoading","args":[]})"_s);
    m_host->trace().call(u"lists"_s, "isValidFamily", {u"x"_s}, false);
    EXPECT_EQ(newLine(),
              uR"({"on":"lists","call":"isValidFamily","args":["x"],"returns":false})"_s);
}

TEST_F(TraceLines, SignalsHaveOneKey)
{
    m_host->trace().signal("popupShowSignal");
    EXPECT_EQ(newLine(), uR"({"signal":"popupShowSignal"})"_s);
}

TEST_F(TraceLines, LogRecordsAreBetweenTheCalls)
{
    canvas().completeCanvasLoading();
    CuteMessageLogger(loggerInstance(), Logger::Error, "reader.cpp", 7, "bool Reader::read(int)")
        .write("record %d is %s", 3, "\"bad\"");
    CuteMessageLogger(loggerInstance(), Logger::Debug, "other.cpp", 8, "void f()").write("seen");
    canvas().completeCanvasLoading();
    const QStringList lines = newLines();
    ASSERT_EQ(lines.size(), 4);
    EXPECT_EQ(lines.at(1), u"{\"log\":\"error\",\"source\":\"reader.cpp\","
                           "\"function\":\"bool Reader::read(int)\","
                           "\"message\":\"record 3 is \\\"bad\\\"\"}"_s);
    EXPECT_EQ(lines.at(2), u"{\"log\":\"debug\",\"source\":\"other.cpp\","
                           "\"function\":\"void f()\",\"message\":\"seen\"}"_s);
}

TEST_F(TraceLines, TheLogIsReleasedWithTheHost)
{
    m_host.reset();
    CuteMessageLogger(loggerInstance(), Logger::Error, "reader.cpp", 7, "f").write("late");
    EXPECT_EQ(newLines(), QStringList());
}

// --- items ---

TEST_F(TraceLines, TheFactoryNumbersItsItems)
{
    const std::unique_ptr<Item> first(create(KestTypes::Line));
    EXPECT_EQ(newLine(),
              uR"({"on":"factory","call":"create","args":[65567],"returns":"item:1"})"_s);
    const std::unique_ptr<Item> second(create(KestTypes::Barcode));
    EXPECT_EQ(newLine(),
              uR"({"on":"factory","call":"create","args":[65565],"returns":"item:2"})"_s);
}

TEST_F(TraceLines, AnUnknownShapeCreatesNoItemAndUsesNoNumber)
{
    EXPECT_EQ(create(static_cast<KestTypes::ShapeType>(1)), nullptr);
    EXPECT_EQ(newLine(), uR"({"on":"factory","call":"create","args":[1],"returns":null})"_s);
    const std::unique_ptr<Item> item(create(KestTypes::Line));
    EXPECT_TRUE(newLine().contains(u"\"item:1\""_s));
}

TEST_F(TraceLines, StatesContainTheStackingOrder)
{
    canvas().importItem(create(KestTypes::Rectangle));
    const std::unique_ptr<Item> kept(create(KestTypes::Ellipse));
    auto* graphics = dynamic_cast<QGraphicsItem*>(kept.get());
    graphics->setPos(1.5, -2);
    graphics->setZValue(0.001);
    graphics->setFlag(QGraphicsItem::ItemIsMovable);
    (void)newLines();

    m_host->writeItemStates();
    EXPECT_EQ(newLines(), (QStringList{
                              uR"({"item":"item:1","type":65578,"imported":true,)"
                              R"("pos":[0,0],"z":0,"movable":false})"_s,
                              uR"({"item":"item:2","type":65580,"imported":false,)"
                              R"("pos":[1.5,-2],"z":0.001,"movable":true})"_s,
                          }));
}

TEST_F(TraceLines, StatesFollowTheOrderOfCreation)
{
    Item* first = create(KestTypes::Line);
    Item* second = create(KestTypes::Line);
    canvas().importItem(second);
    canvas().importItem(first);
    (void)newLines();
    m_host->writeItemStates();
    const QStringList lines = newLines();
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines.at(0).startsWith(uR"({"item":"item:1")"_s));
    EXPECT_TRUE(lines.at(1).startsWith(uR"({"item":"item:2")"_s));
}

TEST_F(TraceLines, DeletedItemsAreLeftOut)
{
    delete create(KestTypes::Picture);
    const std::unique_ptr<Item> kept(create(KestTypes::Symbol));
    (void)newLines();
    m_host->writeItemStates();
    EXPECT_TRUE(newLine().startsWith(uR"({"item":"item:2","type":65549)"_s));
}

TEST_F(TraceLines, RichTextShowsItsDocument)
{
    const std::unique_ptr<Item> item = make(KestTypes::RichText);
    auto* text = dynamic_cast<QGraphicsTextItem*>(item.get());
    text->setHtml(u"<p>a <b>b</b></p>"_s);
    m_host->writeItemStates();
    const QString line = newLine();
    EXPECT_TRUE(line.contains(uR"("movable":false,"html":"<!DOCTYPE HTML)"_s)) << qPrintable(line);
    EXPECT_TRUE(line.contains(u">b</span>"_s));
}

TEST_F(TraceLines, EmptyRichTextHasNoHtml)
{
    const std::unique_ptr<Item> item = make(KestTypes::RichText);
    // Setting text through the facet is a call, and does not change the document.
    dynamic_cast<ITextGenericItem&>(*item).setText(u"plain"_s);
    (void)newLines();
    m_host->writeItemStates();
    EXPECT_FALSE(newLine().contains(u"html"_s));
}

TEST_F(TraceLines, PlainTextHasNoHtml)
{
    const std::unique_ptr<Item> item = make(KestTypes::SimpleText);
    dynamic_cast<QGraphicsTextItem&>(*item).setPlainText(u"plain"_s);
    m_host->writeItemStates();
    EXPECT_FALSE(newLine().contains(u"html"_s));
}

TEST_F(TraceLines, ItemsMayOutliveTheHost)
{
    const std::unique_ptr<Item> item = make(KestTypes::Line);
    m_host.reset();
    item->setItemRotation(1);
    EXPECT_EQ(newLines().size(), 1);
}

// --- canvas ---

TEST_F(TraceLines, CanvasCalls)
{
    canvas().importCanvasParameters(612, 283.5, false, true);
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"importCanvasParameters",)"
                         R"("args":[612,283.5,false,true]})"_s);
    canvas().completeCanvasLoading();
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"completeCanvasLoading","args":[]})"_s);
}

TEST_F(TraceLines, CanvasColorsStartWhiteAndBlackAndFollowTheSetters)
{
    EXPECT_EQ(canvas().canvasBackgroundColor(), QColor(Qt::white));
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"canvasBackgroundColor",)"
                         R"("args":[],"returns":"#ffffffff"})"_s);
    EXPECT_EQ(canvas().canvasDefaultPenColor(), QColor(Qt::black));
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"canvasDefaultPenColor",)"
                         R"("args":[],"returns":"#ff000000"})"_s);

    canvas().setCanvasBackgroundColor(QColor(1, 2, 3));
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"setCanvasBackgroundColor",)"
                         R"("args":["#ff010203"]})"_s);
    canvas().setCanvasDefaultPenColor(QColor(4, 5, 6));
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"setCanvasDefaultPenColor",)"
                         R"("args":["#ff040506"]})"_s);
    EXPECT_EQ(canvas().canvasBackgroundColor(), QColor(1, 2, 3));
    EXPECT_EQ(canvas().canvasDefaultPenColor(), QColor(4, 5, 6));
    EXPECT_TRUE(newLines().last().endsWith(uR"("returns":"#ff040506"})"_s));
}

TEST_F(TraceLines, CanvasTakesItemsAndListsOfThem)
{
    Item* item = create(KestTypes::Line);
    Item* other = create(KestTypes::Line);
    (void)newLines();
    canvas().importItem(item);
    canvas().importItem(other);
    EXPECT_EQ(newLines(), (QStringList{
                              uR"({"on":"canvas","call":"importItem","args":["item:1"]})"_s,
                              uR"({"on":"canvas","call":"importItem","args":["item:2"]})"_s,
                          }));
    const QList<QGraphicsItem*> items{dynamic_cast<QGraphicsItem*>(other),
                                      dynamic_cast<QGraphicsItem*>(item), nullptr};
    canvas().setReadOnlyStateOnItemsInList(true, items);
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"setReadOnlyStateOnItemsInList",)"
                         R"("args":[true,["item:2","item:1",null]]})"_s);
    canvas().setUserBackgroundStateOnItemsInList(false, {});
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"setUserBackgroundStateOnItemsInList",)"
                         R"("args":[false,[]]})"_s);
}

TEST_F(TraceLines, CanvasSurvivesNoItemAndTheSameItemTwice)
{
    canvas().importItem(nullptr);
    EXPECT_EQ(newLine(), uR"({"on":"canvas","call":"importItem","args":[null]})"_s);
    Item* item = create(KestTypes::Line);
    canvas().importItem(item);
    canvas().importItem(item);
    EXPECT_EQ(newLines().size(), 3);
}

TEST_F(TraceLines, AnItemOfAnotherHostIsUnknown)
{
    QGraphicsRectItem foreign;
    canvas().setReadOnlyStateOnItemsInList(true, {&foreign});
    EXPECT_TRUE(newLine().endsWith(u"[true,[null]]}"_s));
}

} // namespace
