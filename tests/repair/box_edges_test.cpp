// Borders on single sides of cells.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/box_edges.h"
#include "repair/lengths.h"
#include "repair/repaired_import.h"
#include "repair/shape_steps.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double EdgeUnit = 72.0 / 2.54;
constexpr double Widest = 6.0; // points, of a line in these documents

/// What a text document shows, in points.
struct ShownEdges
{
    QList<QRectF> lines; ///< filled boxes as thin as a line
    QStringList colors;  ///< of these
    int pens = 0;        ///< boxes with a pen
    QMap<QString, QRectF> texts;
};

QByteArray edgeStyle(const QByteArray& name, const QByteArray& family, const QByteArray& properties)
{
    return "<style:style style:name=\"" + name + "\" style:family=\"" + family +
           "\"><style:" + family + "-properties " + properties + "/></style:style>";
}

ShownEdges edgesShownBy(const QByteArray& body, const QByteArray& styles)
{
    const QTemporaryDir folder;
    const QByteArray content = "<office:document-content><office:automatic-styles>" + styles +
                               "</office:automatic-styles><office:body><office:text>" + body +
                               "</office:text></office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    EXPECT_TRUE(import.isRepaired());
    ShownEdges shown;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        const QRectF box(values.placement.position, values.box.size);
        if (auto* const text = dynamic_cast<RichTextItem*>(item->contractItem())) {
            shown.texts.insert(text->toPlainText(), box);
        } else if (values.pen && values.pen->style != Qt::NoPen) {
            ++shown.pens;
        } else if (std::min(box.width(), box.height()) < Widest) {
            shown.lines.append(box);
            shown.colors.append(values.fill->color.name());
        }
    }
    return shown;
}

QByteArray edgeCell(const QByteArray& style, const QByteArray& text,
                    const QByteArray& attributes = {})
{
    return "<table:table-cell table:style-name=\"" + style + "\" " + attributes + "><text:p>" +
           text + "</text:p></table:table-cell>";
}

QByteArray edgeRow(const QByteArray& cells)
{
    return "<table:table-row>" + cells + "</table:table-row>";
}

QByteArray edgeTable(const QByteArray& rows)
{
    return "<table:table table:style-name=\"t\"><table:table-column table:style-name=\"c\" "
           "table:number-columns-repeated=\"2\"/>" +
           rows + "</table:table>";
}

const QByteArray EdgeColumns = edgeStyle("c", "table-column", "style:column-width=\"2cm\"") +
                               edgeStyle("t", "table", "fo:margin-top=\"0.5cm\"");

void expectLine(const ShownEdges& shown, int index, const QRectF& expected)
{
    const QRectF line = shown.lines.value(index);
    EXPECT_NEAR(line.left(), expected.left(), 0.1) << index;
    EXPECT_NEAR(line.top(), expected.top(), 0.1) << index;
    EXPECT_NEAR(line.width(), expected.width(), 0.1) << index;
    EXPECT_NEAR(line.height(), expected.height(), 0.1) << index;
}

} // namespace

TEST(BoxEdges, AreThoseThatTheBordersState)
{
    const repair::Edges edges = repair::edgesOf({{u"fo:border"_s, u"1pt solid #ff0000"_s},
                                                 {u"fo:border-left"_s, u"none"_s},
                                                 {u"fo:border-top"_s, u"2pt double #00ff00"_s}});
    EXPECT_EQ(edges.left, repair::Edge());
    EXPECT_EQ(edges.right, (repair::Edge{1.0, u"#ff0000"_s, false}));
    EXPECT_EQ(edges.top, (repair::Edge{2.0, u"#00ff00"_s, true}));
    EXPECT_FALSE(edges.isPen());
    EXPECT_TRUE(repair::edgesOf({{u"fo:border"_s, u"1pt solid #ff0000"_s}}).isPen());
    EXPECT_FALSE(repair::edgesOf({{u"fo:border"_s, u"1pt double #ff0000"_s}}).isPen());
    EXPECT_FALSE(repair::edgesOf({{u"fo:border"_s, u"1pt hidden #ff0000"_s}}).isDrawn());
    EXPECT_FALSE(repair::edgesOf({{u"fo:border"_s, u"solid"_s}}).isDrawn());
}

TEST(BoxEdges, OfACellAreOnItsSidesOnly)
{
    const ShownEdges shown = edgesShownBy(
        edgeTable(edgeRow(edgeCell("e", "a") + edgeCell("", "one<text:line-break/>two")) +
                  edgeRow(edgeCell("", "b"))),
        EdgeColumns + edgeStyle("e", "table-cell",
                                "fo:border=\"none\" fo:border-left=\"2pt solid #ff0000\" "
                                "fo:border-bottom=\"1pt solid #0000ff\""));
    ASSERT_EQ(shown.lines.size(), 2);
    EXPECT_EQ(shown.pens, 0);
    EXPECT_EQ(shown.colors, QStringList({u"#ff0000"_s, u"#0000ff"_s}));
    const double top = 0.5 * EdgeUnit;
    const double bottom = shown.texts.value(u"b"_s).top() - 0.5; // half a line
    EXPECT_GT(bottom - top, 20.0) << "two lines";
    expectLine(shown, 0, {-1.0, top, 2.0, bottom - top});
    expectLine(shown, 1, {-0.5, bottom - 0.5, 2.0 * EdgeUnit + 1.0, 1.0});
}

TEST(BoxEdges, OfACellOverTwoRowsHaveTheHeightOfBoth)
{
    const ShownEdges shown = edgesShownBy(
        edgeTable(
            edgeRow(edgeCell("e", "a", "table:number-rows-spanned=\"2\"") + edgeCell("", "b")) +
            edgeRow("<table:covered-table-cell/>" + edgeCell("", "c")) +
            edgeRow(edgeCell("", "d"))),
        EdgeColumns +
            edgeStyle(
                "e", "table-cell",
                "fo:border-right=\"1pt solid #000000\" fo:border-bottom=\"1pt solid #000000\""));
    ASSERT_EQ(shown.lines.size(), 2);
    const double top = 0.5 * EdgeUnit;
    const double bottom = shown.texts.value(u"d"_s).top() - 0.5; // half a line
    expectLine(shown, 0, {2.0 * EdgeUnit - 0.5, top, 1.0, bottom - top});
    expectLine(shown, 1, {-0.5, bottom - 0.5, 2.0 * EdgeUnit + 1.0, 1.0});
}

// Office programs give a border between two cells to one of them.
TEST(BoxEdges, OfAGridArePens)
{
    const QByteArray side = "=\"1pt solid #000000\" ";
    const ShownEdges shown = edgesShownBy(
        edgeTable(edgeRow(edgeCell("a1", "a") + edgeCell("b1", "b")) +
                  edgeRow(edgeCell("a2", "c") + edgeCell("b2", "d"))),
        EdgeColumns +
            edgeStyle("a1", "table-cell",
                      "fo:border-left" + side + "fo:border-top" + side + "fo:border-bottom" +
                          side) +
            edgeStyle("b1", "table-cell", "fo:border" + side) +
            edgeStyle("a2", "table-cell", "fo:border-left" + side + "fo:border-bottom" + side) +
            edgeStyle("b2", "table-cell", "fo:border" + side + "fo:border-top=\"none\""));
    EXPECT_EQ(shown.pens, 4);
    EXPECT_TRUE(shown.lines.isEmpty());
}

TEST(BoxEdges, OfADoubleLineAreTwo)
{
    const ShownEdges shown = edgesShownBy(
        edgeTable(edgeRow(edgeCell("e", "a"))),
        EdgeColumns + edgeStyle("e", "table-cell", "fo:border-top=\"3pt double #000000\""));
    ASSERT_EQ(shown.lines.size(), 2);
    const double top = 0.5 * EdgeUnit;
    expectLine(shown, 0, {-1.5, top - 1.5, 2.0 * EdgeUnit + 3.0, 1.0});
    expectLine(shown, 1, {-1.5, top + 0.5, 2.0 * EdgeUnit + 3.0, 1.0});
}

TEST(BoxEdges, OfACellInADrawingAreOnItsSidesOnly)
{
    repair::Document document = drawing(
        "<draw:frame svg:x=\"1in\" svg:y=\"1in\" svg:width=\"4in\" svg:height=\"1in\"><table:table>"
        "<table:table-column/><table:table-row><table:table-cell table:style-name=\"c\">"
        "<text:p>a</text:p></table:table-cell></table:table-row></table:table></draw:frame>",
        "<style:style style:name=\"c\" style:family=\"table-cell\"><style:paragraph-properties "
        "fo:border-bottom=\"1pt solid #ff0000\"/></style:style>");
    EXPECT_EQ(repair::splitTables(document), 1);
    ASSERT_EQ(document.page()->children.size(), 2);
    const repair::Node& side = *document.page()->children.back();
    EXPECT_NEAR(repair::pointsOf(side, u"svg:x"), 71.5, 0.01);
    EXPECT_NEAR(repair::pointsOf(side, u"svg:y"), 143.5, 0.01);
    EXPECT_NEAR(repair::pointsOf(side, u"svg:width"), 4.0 * 72.0 + 1.0, 0.01);
    EXPECT_NEAR(repair::pointsOf(side, u"svg:height"), 1.0, 0.01);
}
