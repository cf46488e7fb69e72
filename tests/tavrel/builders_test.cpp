// What the builders ask of a host, call by call.

#include "tavrel/barcode_builder.h"
#include "tavrel/datasource_binder.h"
#include "tavrel/picture_builder.h"
#include "tavrel/shape_builder.h"
#include "tavrel/symbol_builder.h"
#include "tavrel/text_builder.h"
#include "tests/tavrel/fake_host.h"
#include "tests/tavrel/fake_services.h"

#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tavrel;
using namespace tavrel_test;

namespace {

constexpr Resolution Printer{300.0, 150.0};

QStringList lines(std::initializer_list<const char*> texts)
{
    QStringList all;
    for (const char* text : texts) {
        all.append(QString::fromUtf8(text));
    }
    return all;
}

class Builders : public testing::Test
{
protected:
    Builders()
    {
        FakeServices::reset();
        header.movable = true;
        header.x = 100.0;
        header.y = 50.0;
        header.zValue = 1003.0;
        header.rotation = 30.0;
        header.width = 60.0;
        header.height = 20.0;
        fake.canvas.setCanvasBackgroundColor(Qt::yellow);
        fake.canvas.setCanvasDefaultPenColor(Qt::red);
        fake.calls.clear();
    }
    ~Builders() override
    {
        fake.canvas.clear();
        EXPECT_EQ(fake.calls.itemsAlive, 0) << "every item has one owner";
    }

    [[nodiscard]] HostCanvas host() { return {&fake.canvas, &fake.canvas.factory}; }
    [[nodiscard]] DatasourceBinder binder() { return {&fake.datasources, sequence}; }

    void expectPlaced(const QPointF& position = {100.0, 50.0})
    {
        ASSERT_EQ(fake.canvas.itemCount(), 1U);
        const QGraphicsItem* const item = fake.canvas.item(0);
        EXPECT_EQ(item->zValue(), 1003.0);
        EXPECT_EQ(item->pos(), position);
        EXPECT_TRUE(item->flags().testFlag(QGraphicsItem::ItemIsMovable));
    }

    FakeHost fake;
    SequenceSettings sequence;
    ItemHeader header;
};

// Shapes and lines

class ShapeBuilder : public Builders
{
protected:
    [[nodiscard]] ShapeRecord shape(const char* name, qint32 fillMode = 0) const
    {
        return {header, 6, 2, fillMode, QLatin1String(name)};
    }
};

TEST_F(ShapeBuilder, SetsUpAShapeInItsBox)
{
    EXPECT_EQ(buildShape(host(), shape("Oval", 1)), BuildResult::Built);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"1002c\"", "item1 setItemSize 60x20", "item1 setItemRotation 30",
               "item1 setZValue 1003", "item1 setFlag movable yes", "item1 setPos 100x50",
               "item1 setPenWidth 6", "item1 setPenStyle 2", "item1 setPenColor #ffff0000",
               "item1 setFilled yes", "item1 setFillColor #ffffff00", "canvas importItem"}));
    expectPlaced();
}

struct FillRow
{
    qint32 mode;
    const char* filled;
    const char* color;
};

TEST_F(ShapeBuilder, FillModeChoosesBetweenBackgroundPenColourAndNothing)
{
    for (const FillRow& row : {FillRow{0, "no", "#ffffff00"}, FillRow{1, "yes", "#ffffff00"},
                               FillRow{2, "yes", "#ffff0000"}, FillRow{3, "no", "#ffffff00"},
                               FillRow{-1, "no", "#ffffff00"}}) {
        SCOPED_TRACE(row.mode);
        fake.calls.clear();
        EXPECT_EQ(buildShape(host(), shape("Diamond", row.mode)), BuildResult::Built);
        EXPECT_TRUE(fake.calls.with("setFilled").value(0).endsWith(QLatin1String(row.filled)));
        EXPECT_TRUE(fake.calls.with("setFillColor").value(0).endsWith(QLatin1String(row.color)));
    }
}

TEST_F(ShapeBuilder, EveryFilledShapeCanBeBuilt)
{
    for (const char* name : {"RoundedRectangle", "Triangle", "Octagon", "Diamond", "Hexagon",
                             "Oval", "Rectangle", "unheard of"}) {
        EXPECT_EQ(buildShape(host(), shape(name)), BuildResult::Built) << name;
    }
    EXPECT_EQ(fake.canvas.itemCount(), 8U);
}

TEST_F(ShapeBuilder, HorizontalLineIsAsLongAsItsBoxIsWide)
{
    EXPECT_EQ(buildShape(host(), shape("HorizontalLine", 1)), BuildResult::Built);
    EXPECT_EQ(fake.calls.lines(),
              lines({"factory create \"1001f\"", "item1 setLineLength 60",
                     "item1 setItemRotation 30", "item1 setZValue 1003",
                     "item1 setFlag movable yes", "item1 setPenWidth 6", "item1 setPenStyle 2",
                     "item1 setPenColor #ffff0000", "item1 setPos 100x50", "canvas importItem"}))
        << "a line has no fill, whatever the mode";
    expectPlaced();
}

TEST_F(ShapeBuilder, VerticalLineIsTurnedAboutItsMiddle)
{
    header.x = 100.0;
    header.y = 100.0;
    header.height = 72.0;
    header.rotation = 0.0;
    EXPECT_EQ(buildShape(host(), shape("VerticalLine")), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("setLineLength"), lines({"item1 setLineLength 72"}));
    EXPECT_EQ(fake.calls.with("setItemRotation"), lines({"item1 setItemRotation 90"}));
    expectPlaced({64.0, 136.0});
}

TEST_F(ShapeBuilder, LockedItemIsNotMovable)
{
    header.movable = false;
    EXPECT_EQ(buildShape(host(), shape("Oval")), BuildResult::Built);
    EXPECT_FALSE(fake.canvas.item(0)->flags().testFlag(QGraphicsItem::ItemIsMovable));
}

TEST_F(ShapeBuilder, HostWithoutTheShapeLeavesItOut)
{
    fake.canvas.factory.makesNothingOf = {KestTypes::Ellipse};
    fake.canvas.factory.makesWrongOf = {KestTypes::Diamond, KestTypes::Line};
    EXPECT_EQ(buildShape(host(), shape("Oval")), BuildResult::NoItem);
    EXPECT_EQ(buildShape(host(), shape("Diamond")), BuildResult::NoItem);
    EXPECT_EQ(buildShape(host(), shape("HorizontalLine")), BuildResult::NoItem);
    EXPECT_EQ(fake.canvas.itemCount(), 0U);
}

TEST_F(ShapeBuilder, HostWithoutLinesIsStopped)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    fake.canvas.factory.makesNothingOf = {KestTypes::Line};
    EXPECT_DEATH((void)buildShape(host(), shape("HorizontalLine")), "makes no lines");
    EXPECT_DEATH((void)buildShape(host(), shape("VerticalLine")), "makes no lines");
}

// Pictures

class PictureBuilder : public Builders
{
protected:
    [[nodiscard]] PictureRecord picture(int width, int height) const
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::blue);
        return {header, {image, false}};
    }
};

TEST_F(PictureBuilder, ScalesThePicturesOwnSize)
{
    header.width = 600.0;
    header.height = 75.0;
    EXPECT_EQ(buildPicture(host(), picture(40, 30), Printer), BuildResult::Built);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"1000c\"", "item1 pixmapImportActions 40x30", "item1 getItemSize",
               "item1 setItemSize 80x15", "item1 setItemRotation 30", "item1 setZValue 1003",
               "item1 setFlag movable yes", "item1 setPos 100x50", "canvas importItem"}));
    expectPlaced();
}

TEST_F(PictureBuilder, NoPictureGivesAnItemOfNoSize)
{
    EXPECT_EQ(buildPicture(host(), {header, {}}, Printer), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("setItemSize"), lines({"item1 setItemSize 0x0"}));
}

TEST_F(PictureBuilder, OddNumbersPassToTheHost)
{
    header.width = HUGE_VAL;
    header.height = NAN;
    header.rotation = NAN;
    EXPECT_EQ(buildPicture(host(), picture(2, 2), Printer), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("setItemSize"), lines({"item1 setItemSize infxnan"}));
    EXPECT_EQ(fake.calls.with("setItemRotation"), lines({"item1 setItemRotation nan"}));
}

TEST_F(PictureBuilder, HostWithoutPicturesLeavesItOut)
{
    fake.canvas.factory.makesWrongOf = {KestTypes::Picture};
    EXPECT_EQ(buildPicture(host(), picture(2, 2), Printer), BuildResult::NoItem);
    EXPECT_EQ(fake.canvas.itemCount(), 0U);
}

// Symbols

using SymbolBuilder = Builders;

TEST_F(SymbolBuilder, ScalesTheSymbolsOwnSizeAndColoursIt)
{
    header.width = 600.0;
    header.height = 75.0;
    EXPECT_EQ(buildSymbol(host(), header, Printer, "40x30"), BuildResult::Built);
    EXPECT_EQ(fake.calls.lines(),
              lines({"factory create \"1000d\"", "item1 loadItemFromData \"40x30\"",
                     "item1 getItemSize", "item1 setItemSize 80x15", "item1 setItemRotation 30",
                     "item1 setZValue 1003", "item1 setFlag movable yes", "item1 setPos 100x50",
                     "item1 setForegroundColor #ffff0000", "item1 setBackgroundColor #ffffff00",
                     "canvas importItem"}));
    expectPlaced();
}

TEST_F(SymbolBuilder, SymbolThatDrawsNothingIsDropped)
{
    for (const char* data : {"0x30", "40x0", "-1x30", "nonsense"}) {
        EXPECT_EQ(buildSymbol(host(), header, Printer, data), BuildResult::NoSize) << data;
        EXPECT_EQ(fake.calls.itemsAlive, 0) << data;
    }
    EXPECT_TRUE(fake.calls.with("importItem").isEmpty());
    EXPECT_TRUE(fake.calls.with("setItemSize").isEmpty());
}

TEST_F(SymbolBuilder, HostWithoutSymbolsLeavesItOut)
{
    fake.canvas.factory.makesNothingOf = {KestTypes::Symbol};
    EXPECT_EQ(buildSymbol(host(), header, Printer, "40x30"), BuildResult::NoItem);
}

// Barcodes

class BarcodeBuilder : public Builders
{
protected:
    [[nodiscard]] BarcodeRecord barcode() const
    {
        BarcodeRecord record;
        record.header = header;
        record.content = QStringLiteral("42");
        record.symbology = 20;
        record.moduleWidth = 2;
        record.textAlignment = Qt::AlignCenter;
        record.flag1 = true;
        record.flag3 = true;
        record.flag4 = true;
        record.number = 17;
        record.value1 = 3;
        record.value2 = 9;
        return record;
    }
};

TEST_F(BarcodeBuilder, HandsTheStoredPropertiesOver)
{
    EXPECT_EQ(buildBarcode(host(), barcode(), binder()), BuildResult::Built);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"1001d\"",
               "item1 importBarcodeProperties 20 \"42\" yes 132 2 yes no 1 17 3",
               "item1 setItemSize 60x20", "item1 setItemRotation 30", "item1 setZValue 1003",
               "item1 setFlag movable yes", "item1 setForegroundColor #ffff0000",
               "item1 setBackgroundColor #ffffff00", "item1 setPos 100x50", "canvas importItem"}));
    expectPlaced();
}

TEST_F(BarcodeBuilder, Symbology55TakesItsNumberOption)
{
    BarcodeRecord record = barcode();
    record.symbology = 55;
    EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("importBarcodeProperties"),
              lines({"item1 importBarcodeProperties 55 \"42\" yes 132 2 yes no 9 17 3"}));
}

TEST_F(BarcodeBuilder, EachFlagHasItsPlace)
{
    for (bool BarcodeRecord::*flag : {&BarcodeRecord::flag1, &BarcodeRecord::flag2,
                                      &BarcodeRecord::flag3, &BarcodeRecord::flag4}) {
        BarcodeRecord record = barcode();
        record.flag1 = record.flag2 = record.flag3 = record.flag4 = false;
        record.*flag = true;
        EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    }
    EXPECT_EQ(fake.calls.with("importBarcodeProperties"),
              lines({"item1 importBarcodeProperties 20 \"42\" no 132 2 yes no 0 17 3",
                     "item2 importBarcodeProperties 20 \"42\" no 132 2 no yes 0 17 3",
                     "item3 importBarcodeProperties 20 \"42\" yes 132 2 no no 0 17 3",
                     "item4 importBarcodeProperties 20 \"42\" no 132 2 no no 1 17 3"}));
}

TEST_F(BarcodeBuilder, HandsTheWholeSymbologyNumberOver)
{
    BarcodeRecord record = barcode();
    record.symbology = 0x10014; // its low 16 bits, 20, are only for the question of validity
    EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    EXPECT_EQ(fake.calls.with("importBarcodeProperties"),
              lines({"item1 importBarcodeProperties 65556 \"42\" yes 132 2 yes no 1 17 3"}));
}

TEST_F(BarcodeBuilder, BindsBeforeItHandsOver)
{
    BarcodeRecord record = barcode();
    record.datasourceKey = QStringLiteral("_SPECIAL");
    record.datasourceText = QStringLiteral("%_TIME%");
    EXPECT_EQ(buildBarcode(host(), record, binder()), BuildResult::Built);
    EXPECT_EQ(fake.calls.lines().mid(9),
              lines({"datasources createDatasource \"SystemDatasource\"", "item1 setDatasourceId 1",
                     "datasources getDatasource 1",
                     "datasource1 setDatasourceProperty \"DateFormat\" \"\"",
                     "datasource1 setDatasourceProperty \"TimeFormat\" \"hh:mm:ss\"",
                     "canvas importItem"}));
}

TEST_F(BarcodeBuilder, HostWithoutBarcodesLeavesItOut)
{
    fake.canvas.factory.makesWrongOf = {KestTypes::Barcode};
    EXPECT_EQ(buildBarcode(host(), barcode(), binder()), BuildResult::NoItem);
}

TEST(Symbology, IsAskedOfItsOwnListWithSixteenBits)
{
    FakeServices& services = FakeServices::reset();
    services.linearCodes = {20};
    services.matrixCodes = {55};
    EXPECT_TRUE(isValidSymbology(20, true));
    EXPECT_FALSE(isValidSymbology(20, false));
    EXPECT_FALSE(isValidSymbology(55, true));
    EXPECT_TRUE(isValidSymbology(55, false));
    EXPECT_TRUE(isValidSymbology(0x10014, true)) << "the low bits are 20";
    EXPECT_FALSE(isValidSymbology(-1, true));
    EXPECT_EQ(services.askedCodes, (QList<int>{20, 20, 55, 55, 20, 65535}));
}

// Texts

class TextBuilder : public Builders
{
protected:
    [[nodiscard]] TextRecord text() const
    {
        TextRecord record;
        record.header = header;
        record.header.width = 72.0;
        record.header.height = 72.0;
        record.content = QStringLiteral("Net  weight");
        record.penWidth = 6;
        record.penStyle = 2;
        record.fontSize = 12;
        record.styleFlag1 = true;
        record.styleFlag3 = true;
        record.alignment = Qt::AlignRight;
        record.optionB = true;
        return record;
    }
    TextOutcome build(const TextRecord& record) { return buildText(host(), record, binder()); }
};

TEST_F(TextBuilder, ImportsTheItemBeforeItSetsItUp)
{
    const TextOutcome outcome = build(text());
    EXPECT_EQ(outcome.result, BuildResult::Built);
    EXPECT_FALSE(outcome.scaled);
    EXPECT_EQ(
        fake.calls.lines(),
        lines({"factory create \"10015\"", "item1 setZValue 1003", "canvas importItem",
               "item1 getItemSize", "item1 getItemSize", "item1 setItemSizeLimiting 0",
               "item1 setTextBoxSize 33x11",
               "item1 importTextProperties \"Net  weight\" 12 yes no yes 2", "item1 setPenWidth 6",
               "item1 setPenStyle 2", "item1 setPenColor #ffff0000", "item1 setFillColor #ffffff00",
               "item1 setTextColor #ffff0000", "item1 setOptionA no", "item1 setOptionB yes",
               "item1 applyTextOptions", "item1 setFlag movable yes", "item1 setPos 100x50"}));
    expectPlaced();
}

TEST_F(TextBuilder, EachFlagHasItsPlace)
{
    for (bool TextRecord::*flag : {&TextRecord::styleFlag1, &TextRecord::styleFlag2,
                                   &TextRecord::styleFlag3, &TextRecord::optionA}) {
        TextRecord record = text();
        record.styleFlag1 = record.styleFlag3 = record.optionB = false;
        record.*flag = true;
        EXPECT_EQ(build(record).result, BuildResult::Built);
    }
    EXPECT_EQ(fake.calls.with("importTextProperties"),
              lines({"item1 importTextProperties \"Net  weight\" 12 yes no no 2",
                     "item2 importTextProperties \"Net  weight\" 12 no yes no 2",
                     "item3 importTextProperties \"Net  weight\" 12 no no yes 2",
                     "item4 importTextProperties \"Net  weight\" 12 no no no 2"}));
    EXPECT_EQ(fake.calls.with("item4 setOption"),
              lines({"item4 setOptionA yes", "item4 setOptionB no"}));
}

struct BoxRow
{
    double fixedWidth;
    double fixedHeight;
    double headerWidth;
    double headerHeight;
    int limiting;
    const char* size;
    bool scaled;
};

TEST_F(TextBuilder, BoxIsFixedScaledOrTheItemsOwn)
{
    for (const BoxRow& row : {BoxRow{-1, -1, 72.0, 72.0, 0, "33x11", false},
                              BoxRow{2, -1, 72.0, 72.0, 1, "144x11", false},
                              BoxRow{-1, 0.5, 72.0, 72.0, 2, "33x36", false},
                              BoxRow{2, 0.5, 72.0, 72.0, 3, "144x36", false},
                              BoxRow{2, 0.5, 144.0, 10.0, 3, "144x36", false},
                              BoxRow{0, 0, 72.0, 72.0, 0, "33x11", false},
                              BoxRow{-1, -1, 144.0, 72.0, 0, "144x11", true},
                              BoxRow{-1, -1, 72.0, 36.0, 0, "33x36", true},
                              BoxRow{-1, -1, 144.0, 36.0, 0, "144x36", true},
                              BoxRow{2, -1, 72.0, 36.0, 1, "144x36", true},
                              BoxRow{-1, -1, 72.0004, 71.9996, 0, "33x11", false},
                              BoxRow{-1, -1, 72.0006, 72.0, 0, "72.0006x11", true},
                              BoxRow{NAN, -1, 72.0, 72.0, 0, "33x11", false},
                              BoxRow{-1, -1, NAN, 72.0, 0, "nanx11", true}}) {
        SCOPED_TRACE(row.size);
        fake.calls.clear();
        TextRecord record = text();
        record.fixedWidth = row.fixedWidth;
        record.fixedHeight = row.fixedHeight;
        record.header.width = row.headerWidth;
        record.header.height = row.headerHeight;
        EXPECT_EQ(build(record).scaled, row.scaled);
        EXPECT_TRUE(fake.calls.with("setItemSizeLimiting")
                        .value(0)
                        .endsWith(QStringLiteral(" %1").arg(row.limiting)));
        EXPECT_TRUE(fake.calls.with("setTextBoxSize")
                        .value(0)
                        .endsWith(QLatin1Char(' ') + QLatin1String(row.size)));
    }
}

struct ColourRow
{
    bool inverse;
    bool transparent;
    const char* text;
    const char* background;
};

TEST_F(TextBuilder, InverseSwapsTheColoursAndTransparencyComesLast)
{
    for (const ColourRow& row : {ColourRow{false, false, "#ffff0000", "#ffffff00"},
                                 ColourRow{true, false, "#ffffff00", "#ffff0000"},
                                 ColourRow{false, true, "#ffff0000", "#00000000"},
                                 ColourRow{true, true, "#ffffff00", "#00000000"}}) {
        fake.calls.clear();
        TextRecord record = text();
        record.inverse = row.inverse;
        record.transparentBackground = row.transparent;
        build(record);
        EXPECT_TRUE(fake.calls.with("setPenColor").value(0).endsWith(QLatin1String(row.text)));
        EXPECT_TRUE(fake.calls.with("setTextColor").value(0).endsWith(QLatin1String(row.text)));
        EXPECT_TRUE(
            fake.calls.with("setFillColor").value(0).endsWith(QLatin1String(row.background)));
    }
}

TEST_F(TextBuilder, BindsBetweenContentAndLook)
{
    TextRecord record = text();
    record.datasourceKey = QStringLiteral("_DATE");
    build(record);
    EXPECT_EQ(fake.calls.lines().mid(7, 4),
              lines({"item1 importTextProperties \"Net  weight\" 12 yes no yes 2",
                     "datasources createDatasource \"SystemDatasource\"", "item1 setDatasourceId 1",
                     "datasources getDatasource 1"}));
    EXPECT_EQ(fake.calls.lines().value(13), QStringLiteral("item1 setPenWidth 6"));
}

TEST(ScaledTextNote, NamesTheWordsAndTheFontSize)
{
    EXPECT_EQ(scaledTextNote(QStringLiteral("Net  weight"), 6),
              QStringLiteral("\"Net weight\":\n\tOriginal font size: 6."));
}

TEST(ScaledTextNote, JoinsWhitespaceAndLeavesTheRest)
{
    EXPECT_EQ(scaledTextNote(QStringLiteral("a\n\t b %1 \"c\""), 7),
              QStringLiteral("\"a b %1 \"c\"\":\n\tOriginal font size: 7."));
    EXPECT_EQ(scaledTextNote(QString(), 0), QStringLiteral("\"\":\n\tOriginal font size: 0."));
}

TEST_F(TextBuilder, HostWithoutTextsLeavesItOut)
{
    fake.canvas.factory.makesNothingOf = {KestTypes::SimpleText};
    TextRecord record = text();
    record.header.width = 144.0;
    const TextOutcome outcome = build(record);
    EXPECT_EQ(outcome.result, BuildResult::NoItem);
    EXPECT_FALSE(outcome.scaled);
}

} // namespace
