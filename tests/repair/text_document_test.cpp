// Text documents as labels: paragraphs, tables and headers get their places.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTextDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(TextDocument, IsLaidOut)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles><style:style style:name=\"c\" "
        "style:family=\"table-column\"><style:table-column-properties "
        "style:column-width=\"2cm\"/></style:style></office:automatic-styles><office:body>"
        "<office:text><text:p>one</text:p><text:p>two</text:p><table:table><table:table-column "
        "table:style-name=\"c\" table:number-columns-repeated=\"2\"/><table:table-row>"
        "<table:table-cell><text:p>left</text:p></table:table-cell><table:table-cell>"
        "<text:p>right</text:p></table:table-cell></table:table-row></table:table>"
        "<text:p>end</text:p><text:soft-page-break/><text:p>next page</text:p>"
        "</office:text></office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    EXPECT_EQ(import.pageCount, 2);
    QList<workbench::ItemValues> texts;
    for (const workbench::CanvasItem* item : import.result.canvas->items()) {
        if (item->shapeType() == KestTypes::RichText) {
            texts.append(item->values());
        }
    }
    ASSERT_EQ(texts.size(), 4);
    const auto top = [&texts](int index) { return texts[index].placement.position.y(); };
    const auto bottom = [&](int index) { return top(index) + texts[index].box.size.height(); };
    EXPECT_NEAR(top(1), bottom(0), 0.01);
    EXPECT_NEAR(top(2), top(1), 0.01);
    EXPECT_NEAR(texts[2].placement.position.x(), 2 * 72 / 2.54, 0.01);
    EXPECT_NEAR(top(3), bottom(1), 0.01);
    EXPECT_TRUE(texts[3].text->html.contains("end"_L1));
}

TEST(TextDocument, BeginsBelowTheHeaderOfItsPage)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:body><office:text><text:p>article</text:p></office:text>"
        "</office:body></office:document-content>";
    QByteArray styles = drawingStyles({}, {}, "<style:header><text:p>top</text:p></style:header>");
    styles.replace("fo:page-height=\"5cm\" fo:margin=\"0cm\"/>",
                   "fo:page-height=\"5cm\" fo:margin=\"1in\"/><style:header-style>"
                   "<style:header-footer-properties fo:min-height=\"0in\" "
                   "fo:margin-bottom=\"0.5in\"/></style:header-style>");
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, styles));
    ASSERT_TRUE(import.isRepaired());
    int texts = 0;
    for (const workbench::CanvasItem* item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        if (item->shapeType() == KestTypes::RichText) {
            ++texts;
            // One line of 12 points, and the distance.
            const bool isArticle = values.text->html.contains("article"_L1);
            EXPECT_NEAR(values.placement.position.y(), isArticle ? 72.0 + 13.8 + 36.0 : 72.0, 0.1);
        }
    }
    EXPECT_EQ(texts, 2);
}

TEST(TextDocument, HasTheSizeAndMarginsThatOfficeSuitesAssume)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:body><office:text><text:p>words</text:p></office:text>"
        "</office:body></office:document-content>";
    const auto importWith = [&](const QByteArray& properties) {
        QByteArray styles = drawingStyles();
        const auto start = styles.indexOf("<style:page-layout-properties");
        styles.replace(start, styles.indexOf("/>", start) + 2 - start, properties);
        return repair::importRepaired(writePackage(folder.path(), content, styles));
    };
    const auto cornerOf = [](const repair::RepairedImport& import) {
        return import.result.canvas->items().first()->values().placement.position;
    };
    constexpr double Centimeter = 72.0 / 2.54;
    QByteArray noLayout = drawingStyles();
    const auto begin = noLayout.indexOf("<style:page-layout ");
    const QByteArray end = "</style:page-layout>";
    noLayout.remove(begin, noLayout.indexOf(end) + end.size() - begin);
    const repair::RepairedImport plain =
        repair::importRepaired(writePackage(folder.path(), content, noLayout));
    EXPECT_NEAR(plain.result.canvas->page().size.width(), 21.0 * Centimeter, 0.1);
    EXPECT_NEAR(cornerOf(plain).x(), 2.0 * Centimeter, 0.1);
    for (const QByteArray none : {"", "<style:page-layout-properties/>"}) {
        const repair::RepairedImport import = importWith(none);
        EXPECT_NEAR(import.result.canvas->page().size.width(), 21.0 * Centimeter, 0.1);
        EXPECT_NEAR(import.result.canvas->page().size.height(), 29.7 * Centimeter, 0.1);
        EXPECT_NEAR(cornerOf(import).x(), 2.0 * Centimeter, 0.1);
        EXPECT_NEAR(cornerOf(import).y(), 2.0 * Centimeter, 0.1);
        EXPECT_TRUE(import.repairs.contains(repair::Repair{u"page-layout-completed"_s, 1}));
    }
    const repair::RepairedImport part =
        importWith("<style:page-layout-properties fo:page-width=\"10cm\" fo:margin-left=\"1cm\"/>");
    EXPECT_NEAR(part.result.canvas->page().size.width(), 10.0 * Centimeter, 0.1);
    EXPECT_NEAR(part.result.canvas->page().size.height(), 29.7 * Centimeter, 0.1);
    EXPECT_NEAR(cornerOf(part).x(), 1.0 * Centimeter, 0.1);
    EXPECT_NEAR(cornerOf(part).y(), 2.0 * Centimeter, 0.1);
}

TEST(TextDocument, CellsHaveTheColorOfTheirRowOrTable)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles>"
        "<style:style style:name=\"t\" style:family=\"table\"><style:table-properties "
        "fo:background-color=\"#0000ff\"/></style:style>"
        "<style:style style:name=\"r\" style:family=\"table-row\"><style:table-row-properties "
        "fo:background-color=\"#00ff00\"/></style:style>"
        "<style:style style:name=\"c\" style:family=\"table-cell\"><style:table-cell-properties "
        "fo:background-color=\"#ff0000\"/></style:style></office:automatic-styles><office:body>"
        "<office:text><table:table "
        "table:style-name=\"t\"><table:table-column/><table:table-column/>"
        "<table:table-row table:style-name=\"r\"><table:table-cell table:style-name=\"c\"/>"
        "<table:table-cell/></table:table-row><table:table-row><table:table-cell/>"
        "<table:table-cell><text:p/></table:table-cell></table:table-row></table:table>"
        "</office:text></office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    QStringList colors;
    for (const workbench::CanvasItem* item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        if (values.fill) {
            colors.append(values.fill->color.name());
        }
    }
    EXPECT_EQ(colors, (QStringList{u"#ff0000"_s, u"#00ff00"_s, u"#0000ff"_s, u"#0000ff"_s}));
}

TEST(TextDocument, RowsOfTablesHaveRoomForTheirBorders)
{
    const QTemporaryDir folder;
    const QByteArray cell = "<table:table-row><table:table-cell table:style-name=\"c\">"
                            "<text:p>cell</text:p></table:table-cell></table:table-row>";
    const auto distanceOfRows = [&folder, &cell](const QByteArray& border) {
        const QByteArray content =
            "<office:document-content><office:automatic-styles><style:style style:name=\"c\" "
            "style:family=\"table-cell\"><style:table-cell-properties fo:padding=\"3pt\" "
            "fo:border=\"" +
            border +
            " solid #000000\"/></style:style></office:automatic-styles><office:body><office:text>"
            "<table:table><table:table-column/>" +
            cell + cell + "</table:table></office:text></office:body></office:document-content>";
        const repair::RepairedImport import =
            repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
        QList<double> tops;
        for (const workbench::CanvasItem* item : import.result.canvas->items()) {
            if (item->shapeType() == KestTypes::RichText) {
                tops.append(item->values().placement.position.y());
            }
        }
        return tops.size() == 2 ? tops[1] - tops[0] : 0.0;
    };
    EXPECT_NEAR(distanceOfRows("4pt") - distanceOfRows("1pt"), 3.0, 0.01);
}

TEST(TextDocument, RowsOfTablesHaveTheirLeastHeight)
{
    const QTemporaryDir folder;
    const auto topOf = [&folder](const QByteArray& alignment, const QString& words) {
        const QByteArray content =
            "<office:document-content><office:automatic-styles><style:style style:name=\"c\" "
            "style:family=\"table-cell\"><style:table-cell-properties style:vertical-align=\"" +
            alignment +
            "\"/></style:style><style:style style:name=\"r\" style:family=\"table-row\">"
            "<style:table-row-properties style:min-row-height=\"60pt\"/></style:style>"
            "</office:automatic-styles><office:body><office:text><table:table><table:table-column/>"
            "<table:table-row table:style-name=\"r\"><table:table-cell table:style-name=\"c\">"
            "<text:p>cell</text:p></table:table-cell></table:table-row><table:table-row>"
            "<table:table-cell><text:p>next</text:p></table:table-cell></table:table-row>"
            "</table:table></office:text></office:body></office:document-content>";
        const repair::RepairedImport import =
            repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
        for (workbench::CanvasItem* item : import.result.canvas->items()) {
            const auto* const text = dynamic_cast<const RichTextItem*>(item->contractItem());
            if (text != nullptr && text->toPlainText() == words) {
                return item->values().placement.position.y();
            }
        }
        return -1000.0;
    };
    EXPECT_NEAR(topOf("top", u"next"_s), 60.0, 0.1);
    const double top = topOf("top", u"cell"_s);
    const double middle = topOf("middle", u"cell"_s);
    const double bottom = topOf("bottom", u"cell"_s);
    EXPECT_NEAR(top, 0.0, 4.0);
    EXPECT_NEAR(middle - top, bottom - middle, 0.1);
    EXPECT_GT(bottom - top, 30.0) << "a line is lower than half of the row";
    EXPECT_LT(bottom, 60.0 - 10.0);
}

TEST(TextDocument, CellsAreAsHighAsTheRowsThatTheySpan)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles><style:style style:name=\"c\" "
        "style:family=\"table-column\"><style:table-column-properties "
        "style:column-width=\"2cm\"/></style:style></office:automatic-styles><office:body>"
        "<office:text><table:table><table:table-column table:style-name=\"c\" "
        "table:number-columns-repeated=\"2\"/><table:table-row><table:table-cell "
        "table:number-rows-spanned=\"2\"><text:p>1</text:p><text:p>2</text:p><text:p>3</text:p>"
        "<text:p>4</text:p></table:table-cell><table:table-cell><text:p>above</text:p>"
        "</table:table-cell></table:table-row><table:table-row><table:covered-table-cell/>"
        "<table:table-cell><text:p>below</text:p></table:table-cell></table:table-row>"
        "</table:table><text:p>end</text:p></office:text></office:body>"
        "</office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    QMap<QString, QRectF> boxes; // by text; each follows its box
    QRectF box;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        if (const auto* const text = dynamic_cast<const ::RichTextItem*>(item->contractItem())) {
            boxes.insert(text->document()->toPlainText().simplified(), box);
        } else {
            box = {values.placement.position, values.box.size};
        }
    }
    ASSERT_EQ(boxes.size(), 4) << QStringList(boxes.keys()).join(u';').toStdString();
    const QRectF spanning = boxes.value(u"1 2 3 4"_s);
    EXPECT_NEAR(spanning.top(), boxes.value(u"above"_s).top(), 0.01);
    EXPECT_NEAR(spanning.bottom(), boxes.value(u"below"_s).bottom(), 0.01);
    EXPECT_NEAR(boxes.value(u"above"_s).bottom(), boxes.value(u"below"_s).top(), 0.01);
    EXPECT_LT(boxes.value(u"above"_s).height(), spanning.height() / 2.0);
    EXPECT_NEAR(boxes.value(u"end"_s).top(), spanning.bottom(), 0.01);
}

TEST(TextDocument, BreaksItsLines)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles><style:style style:name=\"t\" "
        "style:family=\"text\"><style:text-properties fo:background-color=\"transparent\"/>"
        "</style:style></office:automatic-styles><office:body><office:text><text:p><text:span "
        "text:style-name=\"t\">" +
        QByteArray("word ").repeated(100) +
        "</text:span></text:p></office:text></office:body></office:document-content>";
    const QByteArray noWrap = "<style:default-style style:family=\"graphic\">"
                              "<style:graphic-properties fo:wrap-option=\"no-wrap\"/>"
                              "</style:default-style>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles(noWrap)));
    ASSERT_TRUE(import.isRepaired());
    const workbench::ItemValues text = import.result.canvas->items().back()->values();
    ASSERT_EQ(text.type, KestTypes::RichText);
    EXPECT_LE(text.box.size.width(), import.result.canvas->page().size.width() + 1.0);
    EXPECT_GT(text.box.size.height(), 100.0);
    EXPECT_FALSE(text.text->html.contains("background-color"_L1));
}

// Only custom shapes have lines that are not broken; text boxes grow instead.
TEST(TextDocument, BreaksTheLinesOfTextBoxesThatDoNotGrow)
{
    const auto widthOf = [](const QByteArray& shape, const QByteArray& properties) {
        const QTemporaryDir folder;
        const QByteArray text = "<text:p>" + QByteArray("word ").repeated(40) + "</text:p>";
        const QByteArray box =
            shape == "frame" ? "<draw:text-box>" + text + "</draw:text-box>" : text;
        const QByteArray content = drawingContent(
            "<draw:" + shape +
                " draw:style-name=\"s\" svg:x=\"1in\" svg:y=\"0in\" svg:width=\"2in\" "
                "svg:height=\"1in\">" +
                box + "</draw:" + shape + ">",
            "<style:style style:name=\"s\" style:family=\"graphic\"><style:graphic-properties "
            "draw:stroke=\"none\" draw:fill=\"none\" " +
                properties + "/></style:style>");
        const repair::RepairedImport import =
            repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
        double widest = 0.0;
        for (const workbench::CanvasItem* const item : import.result.canvas->items()) {
            widest = std::max(widest, item->values().box.size.width());
        }
        return widest;
    };
    EXPECT_LE(widthOf("frame", "fo:wrap-option=\"no-wrap\""), 2.0 * 72.0 + 1.0);
    EXPECT_GT(widthOf("frame", "draw:auto-grow-width=\"true\""), 3.0 * 72.0);
    EXPECT_LE(widthOf("custom-shape", "fo:wrap-option=\"wrap\""), 2.0 * 72.0 + 1.0);
    EXPECT_GT(widthOf("custom-shape", "fo:wrap-option=\"no-wrap\""), 3.0 * 72.0);
}

TEST(TextDocument, HasNoHiddenText)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles><style:style style:name=\"h\" "
        "style:family=\"text\"><style:text-properties text:display=\"none\"/></style:style>"
        "</office:automatic-styles><office:body><office:text>"
        "<text:section text:display=\"none\"><text:p>one</text:p></text:section>"
        "<text:section text:display=\"condition\" text:is-hidden=\"true\"><text:p>two</text:p>"
        "</text:section><text:p>shown<text:span text:style-name=\"h\">three</text:span>"
        "<text:hidden-text text:is-hidden=\"true\">four</text:hidden-text> and "
        "<text:hidden-text text:is-hidden=\"false\">five</text:hidden-text></text:p>"
        "<table:table><table:table-column/><table:table-row><table:table-cell><text:section "
        "text:display=\"none\"><text:p>six</text:p></text:section><text:p>cell</text:p>"
        "</table:table-cell></table:table-row></table:table></office:text></office:body>"
        "</office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    QStringList texts;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        if (const auto* text = dynamic_cast<RichTextItem*>(item->contractItem())) {
            texts.append(text->toPlainText());
        }
    }
    EXPECT_EQ(texts.join(u'|'), u"shown and five|cell"_s);
}

TEST(TextDocument, LinksHaveTheStyleOfLinks)
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles>"
        "<style:style style:name=\"Internet_20_link\" style:family=\"text\"><style:text-properties "
        "fo:color=\"#000080\"/></style:style><style:style style:name=\"own\" style:family=\"text\">"
        "<style:text-properties fo:color=\"#ff0000\"/></style:style></office:automatic-styles>"
        "<office:body><office:text><text:p>Links: <text:a xlink:href=\"x\">plain</text:a>, "
        "<text:a text:style-name=\"own\" xlink:href=\"x\">own</text:a></text:p>"
        "</office:text></office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    // The first item is from the master page.
    ASSERT_EQ(import.result.canvas->items().size(), 2);
    const workbench::ItemValues values = import.result.canvas->items().constLast()->values();
    for (const char* pattern : {"color:#000080[^>]*>plain<", "color:#ff0000[^>]*>own<"}) {
        const QRegularExpression link(QString::fromLatin1(pattern));
        EXPECT_TRUE(link.match(values.text->html).hasMatch()) << values.text->html.toStdString();
    }
}

// As on shapes: white if the color behind it is dark.
TEST(TextDocument, AutomaticTextIsWhiteOnADarkGround)
{
    const QTemporaryDir folder;
    const auto text = [](const QByteArray& name, const QByteArray& properties) -> QByteArray {
        return "<style:style style:name=\"" + name +
               "\" style:family=\"text\"><style:text-properties " + properties + "/></style:style>";
    };
    const QByteArray content =
        "<office:document-content><office:automatic-styles>" +
        text("dark", "fo:background-color=\"#0000ff\"") +
        text("red", "fo:background-color=\"#ff0000\"") +
        text("own", "fo:background-color=\"#0000ff\" fo:color=\"#000000\"") +
        "<style:style style:name=\"P\" style:family=\"paragraph\"><style:paragraph-properties "
        "fo:background-color=\"#000000\"/></style:style></office:automatic-styles><office:body>"
        "<office:text><text:p><text:span text:style-name=\"dark\">one</text:span>"
        "<text:span text:style-name=\"red\">two</text:span><text:span "
        "text:style-name=\"own\">three</text:span>four</text:p><text:p text:style-name=\"P\">five"
        "<text:span text:style-name=\"red\">six</text:span></text:p></office:text></office:body>"
        "</office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles()));
    ASSERT_TRUE(import.isRepaired());
    ASSERT_EQ(import.result.canvas->items().size(), 2);
    const QString html = import.result.canvas->items().constLast()->values().text->html;
    QStringList colors;
    for (const char* word : {"one", "two", "three", "four", "five", "six"}) {
        const QRegularExpression span(
            u"[; ]color:(#[0-9a-f]{6});[^>]*>%1<"_s.arg(QLatin1String(word)));
        colors.append(span.match(html).captured(1));
    }
    EXPECT_EQ(colors.join(u' '), u"#ffffff #000000 #000000 #000000 #ffffff #000000"_s)
        << html.toStdString();
}
