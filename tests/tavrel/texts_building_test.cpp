// The calls of the text builder to a host.

#include "tavrel/texts.h"

#include "tests/tavrel/builder_fixture.h"

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using namespace tavrel_test;

namespace {

class TextBuilder : public Builders
{
protected:
    [[nodiscard]] TextRecord text() const
    {
        TextRecord record;
        record.header = header;
        record.header.width = 72.0;
        record.header.height = 72.0;
        record.content = u"Net  weight"_s;
        record.penWidth = 6;
        record.penStyle = 2;
        record.fontSize = 12;
        record.bold = true;
        record.underline = true;
        record.alignment = Qt::AlignRight;
        record.optionB = true;
        return record;
    }
    TextOutcome build(const TextRecord& record) { return buildText(canvas(), record, binder()); }
};

TEST_F(TextBuilder, ImportsTheItemBeforeItSetsItUp)
{
    const TextOutcome outcome = build(text());
    EXPECT_EQ(outcome.result, BuildResult::Built);
    EXPECT_FALSE(outcome.scaled);
    EXPECT_EQ(host.calls(), lines({"canvas canvasDefaultPenColor",
                                   "canvas canvasBackgroundColor",
                                   "factory create 10015",
                                   "item:1 setZValue 1003",
                                   "canvas importItem 'item:1'",
                                   "item:1 getItemSize",
                                   "item:1 getItemSize",
                                   "item:1 setItemSizeLimiting 0",
                                   "item:1 setTextBoxSize 33 11",
                                   "item:1 importTextProperties 'Net  weight' 12 true false true 2",
                                   "item:1 setPenWidth 6",
                                   "item:1 setPenStyle 2",
                                   "item:1 setPenColor '#ffff0000'",
                                   "item:1 setFillColor '#ffffff00'",
                                   "item:1 setTextColor '#ffff0000'",
                                   "item:1 setOptionA false",
                                   "item:1 setOptionB true",
                                   "item:1 applyTextOptions",
                                   "item:1 setMovable true",
                                   "item:1 setPos 100 50"}));
    expectPlaced();
}

TEST_F(TextBuilder, EachFlagHasItsPlace)
{
    for (bool TextRecord::*flag :
         {&TextRecord::bold, &TextRecord::italic, &TextRecord::underline, &TextRecord::optionA}) {
        TextRecord record = text();
        record.bold = record.underline = record.optionB = false;
        record.*flag = true;
        EXPECT_EQ(build(record).result, BuildResult::Built);
    }
    EXPECT_EQ(host.callsWith("importTextProperties"),
              lines({"item:1 importTextProperties 'Net  weight' 12 true false false 2",
                     "item:2 importTextProperties 'Net  weight' 12 false true false 2",
                     "item:3 importTextProperties 'Net  weight' 12 false false true 2",
                     "item:4 importTextProperties 'Net  weight' 12 false false false 2"}));
    EXPECT_EQ(host.callsWith("item:4 setOption"),
              lines({"item:4 setOptionA true", "item:4 setOptionB false"}));
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
    for (const BoxRow& row : {BoxRow{-1, -1, 72.0, 72.0, 0, "33 11", false},
                              BoxRow{2, -1, 72.0, 72.0, 1, "144 11", false},
                              BoxRow{-1, 0.5, 72.0, 72.0, 2, "33 36", false},
                              BoxRow{2, 0.5, 72.0, 72.0, 3, "144 36", false},
                              BoxRow{2, 0.5, 144.0, 10.0, 3, "144 36", false},
                              BoxRow{0, 0, 72.0, 72.0, 0, "33 11", false},
                              BoxRow{-1, -1, 144.0, 72.0, 0, "144 11", true},
                              BoxRow{-1, -1, 72.0, 36.0, 0, "33 36", true},
                              BoxRow{-1, -1, 144.0, 36.0, 0, "144 36", true},
                              BoxRow{2, -1, 72.0, 36.0, 1, "144 36", true},
                              BoxRow{-1, -1, 72.0004, 71.9996, 0, "33 11", false},
                              BoxRow{-1, -1, 72.0006, 72.0, 0, "72.0006 11", true},
                              BoxRow{NAN, -1, 72.0, 72.0, 0, "33 11", false},
                              BoxRow{-1, -1, NAN, 72.0, 0, "'nan' 11", true}}) {
        SCOPED_TRACE(row.size);
        host.forgetCalls();
        TextRecord record = text();
        record.fixedWidth = row.fixedWidth;
        record.fixedHeight = row.fixedHeight;
        record.header.width = row.headerWidth;
        record.header.height = row.headerHeight;
        EXPECT_EQ(build(record).scaled, row.scaled);
        EXPECT_TRUE(
            host.callsWith("setItemSizeLimiting").value(0).endsWith(u" %1"_s.arg(row.limiting)));
        EXPECT_TRUE(host.callsWith("setTextBoxSize")
                        .value(0)
                        .endsWith(QLatin1Char(' ') + QLatin1String(row.size)));
    }
}

struct ColorRow
{
    bool inverse;
    bool transparent;
    const char* text;
    const char* background;
};

TEST_F(TextBuilder, InverseSwapsTheColorsAndTransparencyComesLast)
{
    for (const ColorRow& row : {ColorRow{false, false, "'#ffff0000'", "'#ffffff00'"},
                                ColorRow{true, false, "'#ffffff00'", "'#ffff0000'"},
                                ColorRow{false, true, "'#ffff0000'", "'#00000000'"},
                                ColorRow{true, true, "'#ffffff00'", "'#00000000'"}}) {
        host.forgetCalls();
        TextRecord record = text();
        record.inverse = row.inverse;
        record.transparentBackground = row.transparent;
        build(record);
        EXPECT_TRUE(host.callsWith("setPenColor").value(0).endsWith(QLatin1String(row.text)));
        EXPECT_TRUE(host.callsWith("setTextColor").value(0).endsWith(QLatin1String(row.text)));
        EXPECT_TRUE(
            host.callsWith("setFillColor").value(0).endsWith(QLatin1String(row.background)));
    }
}

TEST_F(TextBuilder, BindsBetweenContentAndLook)
{
    TextRecord record = text();
    record.datasourceKey = u"_DATE"_s;
    build(record);
    EXPECT_EQ(host.calls().mid(9, 4),
              lines({"item:1 importTextProperties 'Net  weight' 12 true false true 2",
                     "datasources createDatasource 'SystemDatasource'", "item:1 setDatasourceId 1",
                     "datasources getDatasource 1"}));
    EXPECT_EQ(host.calls().value(15), u"item:1 setPenWidth 6"_s);
}

TEST(ScaledTextNote, NamesTheWordsAndTheFontSize)
{
    EXPECT_EQ(scaledTextNote(u"Net  weight"_s, 6), u"\"Net weight\":\n\tOriginal font size: 6."_s);
}

TEST(ScaledTextNote, JoinsWhitespaceAndLeavesTheRest)
{
    EXPECT_EQ(scaledTextNote(u"a\n\t b %1 \"c\""_s, 7),
              u"\"a b %1 \"c\"\":\n\tOriginal font size: 7."_s);
    EXPECT_EQ(scaledTextNote(QString(), 0), u"\"\":\n\tOriginal font size: 0."_s);
}

TEST_F(TextBuilder, HostWithoutTextsLeavesItOut)
{
    host.behavior().refusedTypes = {KestTypes::SimpleText};
    TextRecord record = text();
    record.header.width = 144.0;
    const TextOutcome outcome = build(record);
    EXPECT_EQ(outcome.result, BuildResult::NoItem);
    EXPECT_FALSE(outcome.scaled);
}

} // namespace
