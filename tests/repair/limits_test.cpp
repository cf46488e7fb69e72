// The limits of docs/limits.md: what is below is repaired, what is above is left out or refused.

#include "tests/repair/documents.h"

#include "repair/enhanced_path.h"
#include "repair/fill_drawing.h"
#include "repair/page_steps.h"
#include "repair/repair.h"
#include "repair/shape_parts.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/svg_path.h"
#include "repair/table_rows.h"
#include "repair/text_anchor.h"
#include "repair/text_step.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

namespace {

bool isDrawn(const QByteArray& path, const QByteArray& equations = {})
{
    const auto geometry = parseTree("<draw:enhanced-geometry svg:viewBox=\"0 0 100 100\" "
                                    "draw:enhanced-path=\"" +
                                        path + "\">" + equations + "</draw:enhanced-geometry>",
                                    1 << 28);
    return geometry && drawCustomShape(*geometry, {10.0, 10.0}).has_value();
}

bool isComputed(const QByteArray& formula)
{
    return isDrawn("M ?f0 0 L 1 1 N",
                   "<draw:equation draw:name=\"f0\" draw:formula=\"" + formula + "\"/>");
}

QByteArray nested(const char* tag, int depth, const QByteArray& inside)
{
    const QByteArray name(tag);
    return ('<' + name + '>').repeated(depth) + inside + ("</" + name + '>').repeated(depth);
}

QString textOfShape(const QByteArray& text)
{
    Document document = drawing("<draw:rect>" + text + "</draw:rect>");
    (void)simplifyTexts(document);
    return object(document, u"draw:rect"_s).allText();
}

/// The pages of a text document, and the characters of its first one.
std::pair<int, QByteArray> textPage(const QByteArray& text)
{
    const QTemporaryDir folder;
    const auto page = repairPage(writePackage(
        folder.path(),
        "<office:document-content><office:automatic-styles/><office:body><office:text>" + text +
            "</office:text></office:body></office:document-content>",
        drawingStyles()));
    return page ? std::pair(page->pageCount, page->package) : std::pair(0, QByteArray());
}

/// A drawing with a frame that shows an embedded document with this body.
Document embedding(const QByteArray& body)
{
    Document document = drawing("<draw:frame svg:width=\"1in\" svg:height=\"1in\"><draw:object "
                                "xlink:href=\"./Object\"/></draw:frame>");
    document.readMember = [body](const QString& name) {
        return name == "Object/content.xml"_L1 ? "<office:document-content><office:body>" + body +
                                                     "</office:body></office:document-content>"
                                               : QByteArray();
    };
    return document;
}

QString textOfEmbedded(const QByteArray& body)
{
    Document document = embedding(body);
    (void)drawCharts(document);
    (void)unpackDocuments(document);
    return document.page()->allText();
}

} // namespace

TEST(RepairLimits, CountPages)
{
    QByteArray content = drawingContent({});
    content.replace("</draw:page>",
                    "</draw:page>" + QByteArray("<draw:page/>").repeated(MaximumPages));
    const QTemporaryDir folder;
    const QString file = writePackage(folder.path(), content, drawingStyles());
    const auto last = repairPage(file, MaximumPages);
    ASSERT_TRUE(last);
    EXPECT_EQ(last->pageCount, MaximumPages + 1);
    EXPECT_FALSE(repairPage(file, MaximumPages + 1));
}

TEST(RepairLimits, CountPartsOfEnhancedPaths)
{
    EXPECT_TRUE(isDrawn("M 0 0 " + QByteArray("L 1 1 ").repeated(5'000) + "N"));
    EXPECT_FALSE(isDrawn("M 0 0 " + QByteArray("L 1 1 ").repeated(20'001) + "N"));
}

TEST(RepairLimits, CountPointsOfPaths)
{
    const QString pair = u"1,1 2,2 "_s; // points that differ, since a path joins equal ones
    EXPECT_TRUE(parsePoints(pair.repeated(50'000), false));
    EXPECT_FALSE(parsePoints(pair.repeated(50'001), false));
    EXPECT_TRUE(parseSvgPath(u"M0 0"_s + u"l1 1"_s.repeated(99'999)));
    EXPECT_FALSE(parseSvgPath(u"M0 0"_s + u"l1 1"_s.repeated(100'001)));
}

TEST(RepairLimits, HoldCoordinatesOfPaths)
{
    EXPECT_TRUE(parseSvgPath(u"M1e7 0L0 0"_s));
    EXPECT_FALSE(parseSvgPath(u"M1.1e7 0L0 0"_s));
}

TEST(RepairLimits, CountStepsAndDepthOfFormulas)
{
    EXPECT_TRUE(isComputed(QByteArray("1+").repeated(1'000) + "1"));
    EXPECT_FALSE(isComputed(QByteArray("1+").repeated(200'001) + "1"));
    EXPECT_TRUE(isComputed(QByteArray(99, '(') + '1' + QByteArray(99, ')')));
    EXPECT_FALSE(isComputed(QByteArray(101, '(') + '1' + QByteArray(101, ')')));
    EXPECT_TRUE(isComputed("1000*1000000"));
    EXPECT_FALSE(isComputed("1001*1000000"));
}

TEST(RepairLimits, HoldChainsOfEquations)
{
    const auto chain = [](int length) {
        QByteArray equations;
        for (int i = 0; i < length; ++i) {
            equations += "<draw:equation draw:name=\"f" + QByteArray::number(i) +
                         "\" draw:formula=\"?f" + QByteArray::number(i + 1) + "\"/>";
        }
        return equations + "<draw:equation draw:name=\"f" + QByteArray::number(length) +
               "\" draw:formula=\"1\"/>";
    };
    EXPECT_TRUE(isDrawn("M ?f0 0 L 1 1 N", chain(99)));
    EXPECT_FALSE(isDrawn("M ?f0 0 L 1 1 N", chain(100)));
}

TEST(RepairLimits, CountLinesOfHatches)
{
    Document document =
        drawing({}, {},
                "<draw:hatch draw:name=\"h\" draw:style=\"single\" draw:color=\"#000000\" "
                "draw:distance=\"1pt\" draw:rotation=\"0\"/>");
    QPainterPath square;
    square.addRect(0.0, 0.0, 1e6, 1e6);
    const Properties graphic{{u"draw:fill"_s, u"hatch"_s}, {u"draw:fill-hatch-name"_s, u"h"_s}};
    const qsizetype lines = FillWriter().fill(square, graphic, document.table()).count(u'M');
    EXPECT_GT(lines, 1'000);
    EXPECT_LE(lines, 2'001);
}

TEST(RepairLimits, CountCornersOfRegularPolygons)
{
    const auto corners = [](const QByteArray& count) {
        const auto shape =
            parseTree("<draw:regular-polygon draw:corners=\"" + count + "\"/>", 1 << 16);
        return outlineInBox(*shape, {10.0, 10.0}).elementCount();
    };
    EXPECT_EQ(corners("1000"), 1'001);
    EXPECT_EQ(corners("2000000000"), 1'001);
}

TEST(RepairLimits, CountParentsOfStyles)
{
    QByteArray styles = "<style:style style:name=\"s0\" style:family=\"text\">"
                        "<style:text-properties fo:color=\"#010203\"/></style:style>";
    for (int i = 1; i <= 100; ++i) {
        styles += "<style:style style:name=\"s" + QByteArray::number(i) +
                  "\" style:family=\"text\" style:parent-style-name=\"s" +
                  QByteArray::number(i - 1) + "\"/>";
    }
    Document document = drawing({}, styles);
    const auto colorOf = [&document](const QString& name) {
        return document.table().resolved(u"text"_s, name, false).text.value(u"fo:color"_s);
    };
    EXPECT_EQ(colorOf(u"s63"_s), "#010203"_L1);
    EXPECT_EQ(colorOf(u"s64"_s), QString());
}

TEST(RepairLimits, CountRowsAndColumnsOfTables)
{
    const auto table = parseTree(
        "<table:table><table:table-column table:number-columns-repeated=\"2000000000\"/>" +
            QByteArray("<table:table-row><table:table-cell/></table:table-row>").repeated(2'001) +
            "</table:table>",
        1 << 24);
    Document document = drawing({});
    int row = 0;
    const PageArea page;
    const TextPlace place{page, {0.0, 0.0, 256.0 * 72.0, 100.0}};
    const Node::Children cells = tableCells(document, *table, place, row);
    EXPECT_EQ(cells.size(), 2'000U);
    EXPECT_EQ(cells.front()->attribute(u"svg:width"), "1.000000in"_L1);
}

TEST(RepairLimits, HoldTheDepthOfTexts)
{
    EXPECT_EQ(textOfShape("<text:p>" + nested("text:span", 199, "a") + "</text:p>"), "a"_L1);
    EXPECT_EQ(textOfShape("<text:p>" + nested("text:span", 202, "a") + "</text:p>"), QString());
    EXPECT_EQ(textOfShape(nested("text:section", 99, "<text:p>a</text:p>")), "a"_L1);
    EXPECT_EQ(textOfShape(nested("text:section", 102, "<text:p>a</text:p>")), QString());
}

TEST(RepairLimits, HoldTheDepthOfTextDocuments)
{
    const QByteArray paragraph = "<text:p>sugar</text:p>";
    EXPECT_TRUE(textPage(nested("text:section", 99, paragraph)).second.contains("sugar"));
    EXPECT_FALSE(textPage(nested("text:section", 102, paragraph)).second.contains("sugar"));
}

TEST(RepairLimits, HoldTheDepthOfObjectsInTexts)
{
    const auto hasMark = [](int lists) {
        const QByteArray object = "<text:p>x<draw:rect text:anchor-type=\"as-char\" "
                                  "svg:width=\"1in\" svg:height=\"1in\"/></text:p>";
        return textPage(nested("text:list", lists, object)).second.contains("labelport:anchor");
    };
    EXPECT_TRUE(hasMark(100));
    EXPECT_FALSE(hasMark(101));
    const auto widthOf = [](int groups) {
        const auto group = parseTree(
            "<all>" +
                nested("draw:g", groups, "<draw:rect svg:width=\"1in\" svg:height=\"1in\"/>") +
                "</all>",
            1 << 24);
        return boundsOf(*group->firstElement()).width();
    };
    EXPECT_NEAR(widthOf(100), 72.0, 0.01);
    EXPECT_EQ(widthOf(102), 0.0);
    const QByteArray box = nested("text:p", 1, "x");
    QByteArray frames = box;
    for (int depth = 0; depth < 200; ++depth) {
        frames = "<text:p><draw:frame text:anchor-type=\"as-char\"><draw:text-box>" + frames +
                 "</draw:text-box></draw:frame></text:p>";
    }
    EXPECT_EQ(textPage(frames).first, 1);
}

TEST(RepairLimits, CountEmbeddedDocuments)
{
    QByteArray frames;
    for (int number = 0; number < 51; ++number) {
        frames += "<draw:frame svg:width=\"1in\" svg:height=\"1in\"><draw:object "
                  "xlink:href=\"./Object\"/></draw:frame>";
    }
    Document document = drawing(frames);
    document.readMember = [](const QString& name) {
        return name == "Object/content.xml"_L1
                   ? QByteArray("<office:document-content><office:body><office:text><text:p>a"
                                "</text:p></office:text></office:body></office:document-content>")
                   : QByteArray();
    };
    EXPECT_EQ(unpackDocuments(document), 50);
    const auto textOfRow = [](const QByteArray& kind, int groups) {
        const QByteArray table =
            "<table:table>" +
            nested("table:table-row-group", groups,
                   "<table:table-row><table:table-cell><text:p>cell</text:p></table:table-cell>"
                   "</table:table-row>") +
            "</table:table>";
        return textOfEmbedded(
            "<office:" + kind + '>' +
            (kind == "chart" ? "<chart:chart>" + table + "</chart:chart>" : table) +
            "</office:" + kind + '>');
    };
    EXPECT_EQ(textOfRow("spreadsheet", 20), u"cell"_s);
    EXPECT_EQ(textOfRow("spreadsheet", 21), QString());
    EXPECT_EQ(textOfRow("chart", 20), u"cell"_s);
    EXPECT_EQ(textOfRow("chart", 21), QString());
}

TEST(RepairLimits, CountCellsOfSheets)
{
    const auto cellsOfRows = [](int rows) {
        const QString text = textOfEmbedded(
            "<office:spreadsheet><table:table><table:table-row table:number-rows-repeated=\"" +
            QByteArray::number(rows) +
            "\"><table:table-cell table:number-columns-repeated=\"100\"><text:p>c</text:p>"
            "</table:table-cell></table:table-row></table:table></office:spreadsheet>");
        return text.size();
    };
    EXPECT_EQ(cellsOfRows(49), 4'900);
    EXPECT_EQ(cellsOfRows(51), 5'000);
}

TEST(RepairLimits, CountValuesOfCharts)
{
    const auto rectangles = [](int series, int categories, const QByteArray& value = "1") {
        QByteArray plot = "<chart:plot-area>";
        for (int i = 0; i < series; ++i) {
            plot += "<chart:series chart:values-cell-range-address=\"t.$A$1:.$A$" +
                    QByteArray::number(categories) + "\"/>";
        }
        Document document =
            embedding("<office:chart><chart:chart chart:class=\"chart:bar\" svg:width=\"4in\" "
                      "svg:height=\"4in\">" +
                      plot + "</chart:plot-area><table:table>" +
                      ("<table:table-row><table:table-cell office:value=\"" + value +
                       "\"><text:p>1</text:p></table:table-cell></table:table-row>")
                          .repeated(categories) +
                      "</table:table></chart:chart></office:chart>");
        EXPECT_EQ(drawCharts(document), 1);
        (void)dissolveGroups(document);
        return tags(document).count(u"draw:rect"_s);
    };
    EXPECT_EQ(rectangles(30, 1), 30);
    EXPECT_EQ(rectangles(31, 1), 0) << "only the table";
    EXPECT_EQ(rectangles(1, 200), 200);
    EXPECT_EQ(rectangles(1, 201), 0);
    EXPECT_EQ(rectangles(1, 1, "1e12"), 1);
    EXPECT_EQ(rectangles(1, 1, "1.1e12"), 0);
    EXPECT_EQ(rectangles(1, 1, "4e-324"), 1) << "no number of the axis is infinite";
}

TEST(RepairLimits, HoldTheLengthOfNotes)
{
    const auto isBelow = [](int length) {
        const QByteArray package =
            textPage(
                "<text:p>a<text:note><text:note-citation>1</text:note-citation><text:note-body>"
                "<text:p>" +
                QByteArray(length, 'n') + "</text:p></text:note-body></text:note></text:p>")
                .second;
        return package.contains("labelport:note");
    };
    EXPECT_TRUE(isBelow(1'000));
    EXPECT_FALSE(isBelow(1'001));
}

TEST(RepairLimits, CountPagesOfObjects)
{
    const auto pages = [](const QByteArray& number) {
        return textPage("<draw:rect text:anchor-type=\"page\" text:anchor-page-number=\"" + number +
                        "\" svg:width=\"1in\" svg:height=\"1in\"/><text:p>a</text:p>")
            .first;
    };
    EXPECT_EQ(pages("100"), 100);
    EXPECT_EQ(pages("101"), 100);
    EXPECT_EQ(pages("2000000000"), 100);
    EXPECT_EQ(pages("-1"), 1);
}

TEST(RepairLimits, BreakEndlessPages)
{
    const QByteArray paragraph = "<text:p>" + QByteArray(4'998, 'a') + "</text:p>";
    EXPECT_EQ(textPage(paragraph + paragraph + "<text:p>b</text:p>").first, 1);
    EXPECT_EQ(textPage(paragraph + paragraph + "<text:p>bc</text:p>").first, 2);
    EXPECT_EQ(textPage("<text:p>" + QByteArray(10'001, 'a') + "</text:p>").first, 2);
    const QByteArray note = "<text:p>a<text:note><text:note-body><text:p>" + QByteArray(900, 'n') +
                            "</text:p></text:note-body></text:note></text:p>";
    EXPECT_EQ(textPage(note.repeated(11)).first, 1);
    EXPECT_EQ(textPage(note.repeated(12)).first, 2) << "notes count too";
}
