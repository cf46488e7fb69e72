// Charts without a picture that can be read are drawn again from their values.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/page_steps.h"
#include "repair/repaired_import.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double InchInPoints = 72.0;

QByteArray row(const QList<QByteArray>& cells)
{
    QByteArray row = "<table:table-row>";
    for (const QByteArray& cell : cells) {
        bool isNumber = false;
        (void)cell.toDouble(&isNumber);
        row += "<table:table-cell" + (isNumber ? " office:value=\"" + cell + "\"" : QByteArray()) +
               "><text:p>" + cell + "</text:p></table:table-cell>";
    }
    return row + "</table:table-row>";
}

/// A chart of 4 by 2 inches, whose bars are in an area of 2 inches by 1 from (1, 0.5): two
/// series with values for two categories.
struct Chart
{
    QByteArray kind = "chart:bar";
    QByteArray plotStyle;
    QList<QByteArray> jam = {"Jam", "9", "4"};
    QList<QByteArray> tea = {"Tea", "2", "-1"};

    [[nodiscard]] QByteArray content() const
    {
        return "<office:document-content><office:automatic-styles>"
               "<style:style style:name=\"P\" style:family=\"chart\"><style:chart-properties " +
               plotStyle +
               "/></style:style><style:style style:name=\"R\" style:family=\"chart\">"
               "<style:graphic-properties draw:fill-color=\"#ff0000\" "
               "svg:stroke-color=\"#00ff00\"/>"
               "</style:style></office:automatic-styles><office:body><office:chart>"
               "<chart:chart chart:class=\"" +
               kind +
               "\" svg:width=\"4in\" svg:height=\"2in\"><chart:title><text:p>Sales</text:p>"
               "</chart:title><chart:legend chart:legend-position=\"end\" svg:x=\"3.2in\" "
               "svg:y=\"1in\"/><chart:plot-area chart:style-name=\"P\"><chartooo:coordinate-region "
               "svg:x=\"1in\" svg:y=\"0.5in\" svg:width=\"2in\" svg:height=\"1in\"/>"
               "<chart:axis chart:dimension=\"x\"><chart:title><text:p>Year</text:p></chart:title>"
               "<chart:categories table:cell-range-address=\"local-table.$A$2:.$A$3\"/>"
               "</chart:axis><chart:axis chart:dimension=\"y\"><chart:grid/></chart:axis>"
               "<chart:series chart:style-name=\"R\" chart:label-cell-address=\"local-table.$B$1\" "
               "chart:values-cell-range-address=\"local-table.$B$2:.$B$3\"/>"
               "<chart:series chart:label-cell-address=\"local-table.$C$1\" "
               "chart:values-cell-range-address=\"local-table.$C$2:.$C$3\"/>"
               "</chart:plot-area><table:table "
               "table:name=\"local-table\"><table:table-header-rows>" +
               row({"", jam[0], tea[0]}) + "</table:table-header-rows><table:table-rows>" +
               row({"North", jam[1], tea[1]}) + row({"South", jam[2], tea[2]}) +
               "</table:table-rows></table:table></chart:chart></office:chart></office:body>"
               "</office:document-content>";
    }
};

const QByteArray Frame = "<draw:frame svg:x=\"1in\" svg:y=\"1in\" svg:width=\"4in\" "
                         "svg:height=\"2in\" text:anchor-type=\"as-char\"><draw:object "
                         "xlink:href=\"./Object 1\"/></draw:frame>";

repair::Document drawn(const Chart& chart)
{
    repair::Document document = drawing(Frame);
    document.readMember = [bytes = chart.content()](const QString& name) {
        return name == "Object 1/content.xml"_L1 ? bytes : QByteArray();
    };
    EXPECT_EQ(repair::drawCharts(document), 1);
    (void)repair::dissolveGroups(document);
    return document;
}

/// Boxes of the rectangles whose fill has this color, from the chart's corner, in inches.
QList<QRectF> bars(repair::Document& document, const QString& color)
{
    QList<QRectF> boxes;
    for (const auto& shape : document.page()->children) {
        if (shape->is(u"draw:rect") &&
            repair::graphicOf(document, *shape).value(u"draw:fill-color"_s) == color) {
            const QRectF box = repair::boundsOf(*shape);
            boxes.append(
                QRectF(box.topLeft() / InchInPoints - QPointF(1, 1), box.size() / InchInPoints));
        }
    }
    return boxes;
}

QStringList words(const repair::Document& document)
{
    QStringList words;
    for (const auto& shape : document.page()->children) {
        if (shape->is(u"draw:frame")) {
            words.append(shape->allText());
        }
    }
    words.sort();
    return words;
}

} // namespace

TEST(Charts, HaveBarsAsHighAsTheirValues)
{
    repair::Document document = drawn(Chart());
    // From -2 to 10, at least 20 points from number to number: 12 units are an inch.
    const QList<QRectF> red = bars(document, u"#ff0000"_s);
    ASSERT_EQ(red.size(), 3) << "two bars and the legend";
    const QList<QRectF> other = bars(document, u"#ff420e"_s);
    ASSERT_EQ(other.size(), 3);
    const double unit = red[0].height() / 9.0;
    EXPECT_NEAR(red[1].height(), 4.0 * unit, 0.01);
    EXPECT_NEAR(other[0].height(), 2.0 * unit, 0.01);
    EXPECT_NEAR(other[1].height(), unit, 0.01);
    EXPECT_NEAR(red[0].bottom(), red[1].bottom(), 0.01) << "both begin at zero";
    EXPECT_NEAR(other[1].top(), red[0].bottom(), 0.01) << "below zero";
    EXPECT_LT(red[0].right(), other[0].right()) << "side by side";
    EXPECT_LT(other[0].right(), 2.0) << "of the first category";
    EXPECT_GT(red[1].left(), 2.0);
    EXPECT_GE(red[0].top(), 0.5) << "inside the area";
    EXPECT_LE(other[1].bottom(), 1.5);
}

TEST(Charts, HaveTheirTextsInPlace)
{
    const repair::Document document = drawn(Chart());
    const QStringList texts = words(document);
    for (const QString& word :
         {u"Sales"_s, u"Year"_s, u"North"_s, u"South"_s, u"Jam"_s, u"Tea"_s, u"0"_s, u"10"_s}) {
        EXPECT_TRUE(texts.contains(word)) << word.toStdString();
    }
    for (const auto& shape : document.page()->children) {
        const QRectF box = repair::boundsOf(*shape);
        if (shape->allText() == "North"_L1) {
            EXPECT_NEAR(box.center().x(), (1.0 + 1.5) * InchInPoints, 1.0) << "below its bars";
            EXPECT_GE(box.top(), (1.0 + 1.5) * InchInPoints);
        }
    }
}

TEST(Charts, StackTheirBars)
{
    Chart chart;
    chart.plotStyle = "chart:stacked=\"true\"";
    chart.tea = {"Tea", "2", "1"};
    repair::Document document = drawn(chart);
    const QRectF below = bars(document, u"#ff0000"_s).value(0);
    const QRectF above = bars(document, u"#ff420e"_s).value(0);
    EXPECT_NEAR(above.bottom(), below.top(), 0.01);
    EXPECT_NEAR(above.left(), below.left(), 0.01);
    EXPECT_NEAR(above.height() / below.height(), 2.0 / 9.0, 0.01);
}

TEST(Charts, JoinTheirValuesByLines)
{
    Chart chart;
    chart.kind = "chart:line";
    repair::Document document = drawn(chart);
    QList<QLineF> lines;
    for (const auto& shape : document.page()->children) {
        if (shape->is(u"draw:line") &&
            repair::graphicOf(document, *shape).value(u"svg:stroke-color"_s) == "#00ff00"_L1) {
            const QRectF box = repair::boundsOf(*shape);
            lines.append({box.topLeft(), box.bottomRight()});
        }
    }
    ASSERT_EQ(lines.size(), 1);
    EXPECT_NEAR(lines[0].dx(), InchInPoints, 0.1) << "from the middle of a category to the next";
    EXPECT_EQ(bars(document, u"#ff0000"_s).size(), 0);
}

TEST(Charts, OfOtherKindsAreTheirTable)
{
    Chart chart;
    chart.kind = "chart:circle";
    const repair::Document document = drawn(chart);
    EXPECT_EQ(words(document), QStringList{u"SalesJamTeaNorth92South4-1"_s});
}

TEST(Charts, WithoutValuesStayAsTheyAre)
{
    repair::Document document = drawing(Frame);
    document.readMember = [](const QString&) {
        return QByteArray("<office:document-content><office:body><office:chart><chart:chart/>"
                          "</office:chart></office:body></office:document-content>");
    };
    EXPECT_EQ(repair::drawCharts(document), 0);
}

TEST(Charts, AreOnTheLabelOfATextDocument)
{
    const QTemporaryDir folder;
    const QByteArray content = "<office:document-content><office:body><office:text><text:p>before "
                               "</text:p><text:p>" +
                               QByteArray(Frame)
                                   .replace("svg:width=\"4in", "svg:width=\"2in")
                                   .replace("svg:height=\"2in", "svg:height=\"1in") +
                               "</text:p></office:text></office:body>"
                               "</office:document-content>";
    const repair::RepairedImport import = repair::importRepaired(writePackage(
        folder.path(), content, drawingStyles(), {{u"Object 1/content.xml"_s, Chart().content()}}));
    ASSERT_TRUE(import.isRepaired());
    EXPECT_TRUE(import.repairs.contains(repair::Repair{u"charts-drawn"_s, 1}));
    int bars = 0;
    QStringList texts;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        const QString color = values.fill ? values.fill->color.name() : QString();
        bars += color == "#ff0000"_L1 || color == "#ff420e"_L1 ? 1 : 0;
        if (const auto* text = dynamic_cast<const RichTextItem*>(item->contractItem())) {
            texts.append(text->toPlainText());
        }
    }
    EXPECT_EQ(bars, 6) << "two of each series, two of the legend";
    EXPECT_TRUE(texts.contains(u"South"_s));
}
