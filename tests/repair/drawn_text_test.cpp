// Texts that fit their shapes or are turned in them, and the cells of drawings.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/page_steps.h"
#include "repair/repaired_import.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/text_step.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

namespace {

struct PlacedText
{
    QRectF box; // before it turns
    double rotation = 0.0;
};

// The only text of a drawing, in points.
PlacedText textOn(const QByteArray& shapes, const QByteArray& properties,
                  const QByteArray& further = {})
{
    const QTemporaryDir folder;
    const QByteArray styles =
        "<style:style style:name=\"s\" style:family=\"graphic\"><style:graphic-properties "
        "draw:stroke=\"none\" draw:fill=\"none\" fo:padding=\"0in\" " +
        properties + "/>" + further + "</style:style>";
    const RepairedImport import = importRepaired(
        writePackage(folder.path(), drawingContent(shapes, styles), drawingStyles()));
    EXPECT_TRUE(import.isRepaired());
    PlacedText placed;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        if (auto* const text = dynamic_cast<RichTextItem*>(item->contractItem())) {
            placed = {{item->graphicsItem()->pos(), text->getItemSize()},
                      item->graphicsItem()->rotation()};
        }
    }
    return placed;
}

QByteArray frameOf(const QByteArray& text)
{
    return "<draw:frame draw:style-name=\"s\" svg:x=\"1in\" svg:y=\"0.5in\" svg:width=\"2in\" "
           "svg:height=\"1in\"><draw:text-box><text:p>" +
           text + "</text:p></draw:text-box></draw:frame>";
}

const QByteArray LongText = QByteArray("Keep away from heat, sparks and open flames. ").repeated(5);

} // namespace

TEST(FittedText, ShrinksUntilItIsInItsShape)
{
    const QByteArray large = "<style:text-properties fo:font-size=\"24pt\"/>";
    EXPECT_GT(textOn(frameOf(LongText), {}, large).box.height(), 144.0);
    for (const QByteArray shrinks :
         {"draw:fit-to-size=\"shrink-to-fit\"", "style:shrink-to-fit=\"true\""}) {
        const QRectF box = textOn(frameOf(LongText), shrinks, large).box;
        EXPECT_LE(box.height(), 74.0);
        EXPECT_GT(box.height(), 50.0) << "not smaller than necessary";
        EXPECT_NEAR(box.width(), 144.0, 1.0);
    }
}

TEST(FittedText, DoesNotShrinkIfItFits)
{
    const QByteArray small = "<style:text-properties fo:font-size=\"9pt\"/>";
    EXPECT_NEAR(textOn(frameOf("Keep"), "draw:fit-to-size=\"shrink-to-fit\"", small).box.height(),
                textOn(frameOf("Keep"), {}, small).box.height(), 0.1);
}

TEST(FittedText, GrowsIfItFillsItsShape)
{
    const QRectF box = textOn(frameOf("FIT"), "draw:fit-to-size=\"true\"").box;
    EXPECT_GT(box.height(), 60.0);
    EXPECT_LE(box.height(), 74.0);
}

TEST(FittedText, GrowsToALimit)
{
    const QByteArray tiny = "<style:text-properties fo:font-size=\"2pt\"/>";
    const QRectF box = textOn(frameOf("I"), "draw:fit-to-size=\"true\"", tiny).box;
    EXPECT_GT(box.height(), 25.0) << "as far as the limit allows";
    EXPECT_LT(box.height(), 50.0) << "not as far as there is room";
}

TEST(TurnedText, RunsDownABoxWithVerticalText)
{
    const PlacedText text = textOn(frameOf("Keep"), "draw:textarea-horizontal-align=\"right\"",
                                   "<style:paragraph-properties style:writing-mode=\"tb-rl\"/>");
    EXPECT_DOUBLE_EQ(text.rotation, 90.0);
    EXPECT_NEAR(text.box.width(), 72.0, 1.0) << "lines are as long as the box is high";
    const double half = text.box.height() / 2.0;
    EXPECT_NEAR(text.box.center().x(), 3.0 * 72.0 - half, 1.0) << "the first line is at the right";
    EXPECT_NEAR(text.box.center().y(), 72.0, 1.0);
}

TEST(TurnedText, TurnsWithTheAngleOfItsShape)
{
    const auto shape = [](const QByteArray& type) {
        return "<draw:custom-shape draw:style-name=\"s\" svg:x=\"1in\" svg:y=\"0.5in\" "
               "svg:width=\"2in\" svg:height=\"1in\"><text:p>Keep</text:p><draw:enhanced-geometry "
               "svg:viewBox=\"0 0 100 100\" draw:text-rotate-angle=\"-90\" draw:type=\"" +
               type + "\" draw:enhanced-path=\"M 0 0 L 100 0 50 100 Z N\"/></draw:custom-shape>";
    };
    for (const QByteArray type : {"rectangle", "unknown"}) {
        const PlacedText text = textOn(shape(type), "draw:textarea-vertical-align=\"middle\"");
        EXPECT_DOUBLE_EQ(text.rotation, 90.0) << type.constData();
        EXPECT_NEAR(text.box.center().x(), 144.0, 1.0) << type.constData();
        EXPECT_NEAR(text.box.center().y(), 72.0, 1.0) << type.constData();
    }
}

TEST(UnprintedObjects, AreLeftOut)
{
    Document document = drawing(
        "<draw:rect draw:layer=\"hidden\"/><draw:circle draw:layer=\"notes\"/><draw:line "
        "draw:layer=\"shown\"/><draw:g><draw:rect draw:layer=\"hidden\"/><draw:ellipse/></draw:g>"
        "<draw:polygon draw:display=\"screen\"/><draw:path draw:display=\"printer\"/>");
    document.styles->childOrNew(u"office:master-styles"_s)
        .append(parseTree("<draw:layer-set><draw:layer draw:name=\"hidden\" draw:display=\"none\"/>"
                          "<draw:layer draw:name=\"notes\" draw:display=\"screen\"/><draw:layer "
                          "draw:name=\"shown\"/></draw:layer-set>",
                          1 << 16));
    EXPECT_EQ(removeUnprinted(document), 4);
    (void)dissolveGroups(document);
    EXPECT_EQ(tags(document), u"draw:line draw:ellipse draw:path"_s);
}

TEST(DrawnTable, HasTheGroundsThatOnlyNewerProgramsState)
{
    Document document = drawing(
        "<draw:frame svg:width=\"2in\" svg:height=\"1in\"><table:table><table:table-column/>"
        "<table:table-row><table:table-cell table:style-name=\"c\"/></table:table-row>"
        "</table:table></draw:frame>",
        "<style:style style:name=\"c\" style:family=\"table-cell\">"
        "<loext:graphic-properties draw:fill=\"solid\" draw:fill-color=\"#34495e\" "
        "draw:textarea-vertical-align=\"middle\"/></style:style>");
    EXPECT_EQ(splitTables(document), 1);
    const Properties cell = graphicOf(document, object(document, u"draw:frame"_s));
    EXPECT_EQ(cell.value(u"draw:fill-color"_s), u"#34495e"_s);
    EXPECT_EQ(cell.value(u"draw:textarea-vertical-align"_s), u"middle"_s);
}

TEST(DrawnTable, HasCellsOverSeveralRows)
{
    Document document = drawing(
        "<draw:frame svg:width=\"2in\" svg:height=\"1in\"><table:table><table:table-column/>"
        "<table:table-column/><table:table-row><table:table-cell "
        "table:number-rows-spanned=\"2\"/><table:table-cell/></table:table-row><table:table-row>"
        "<table:covered-table-cell/><table:table-cell/></table:table-row></table:table>"
        "</draw:frame>");
    EXPECT_EQ(splitTables(document), 1);
    const auto& cells = document.page()->children;
    ASSERT_EQ(cells.size(), 3U);
    EXPECT_NEAR(boundsOf(*cells[0]).height(), 72.0, 0.1);
    EXPECT_NEAR(boundsOf(*cells[1]).height(), 36.0, 0.1);
}

TEST(Bullets, HaveTheSizeOfTheirLevel)
{
    const auto sizeOf = [](const QByteArray& size) {
        Document document = drawing(
            "<draw:rect svg:width=\"1in\" svg:height=\"1in\"><text:list text:style-name=\"L\">"
            "<text:list-item><text:p text:style-name=\"P\">a</text:p></text:list-item></text:list>"
            "</draw:rect>",
            "<style:style style:name=\"P\" style:family=\"paragraph\"><style:text-properties "
            "fo:font-size=\"20pt\"/></style:style><text:list-style style:name=\"L\">"
            "<text:list-level-style-bullet text:level=\"1\" text:bullet-char=\"*\">"
            "<style:text-properties fo:font-size=\"" +
                size + "\"/></text:list-level-style-bullet></text:list-style>");
        forEachElement(*document.page(), [](Node& node) {
            if (node.is(u"text:p")) {
                node.setAttribute(u"labelport:label"_s, u"*"_s);
            }
        });
        (void)simplifyTexts(document);
        QString style;
        forEachElement(*document.page(), [&style](const Node& node) {
            style = style.isEmpty() && node.is(u"text:span") ? node.attribute(u"text:style-name")
                                                             : style;
        });
        return document.table().resolved(u"text"_s, style, false).text.value(u"fo:font-size"_s);
    };
    EXPECT_EQ(sizeOf("45%"), u"9.00pt"_s);
    EXPECT_EQ(sizeOf("7pt"), u"7.00pt"_s);
    EXPECT_EQ(sizeOf(""), u"20pt"_s);
}
