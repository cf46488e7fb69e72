// Documents inside a document become their content.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/lengths.h"
#include "repair/page_steps.h"
#include "repair/repaired_import.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/text_step.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray ObjectFrame = "<draw:frame draw:name=\"F\" svg:x=\"1in\" svg:y=\"2in\" "
                               "svg:width=\"2in\" svg:height=\"1in\"><draw:object "
                               "xlink:href=\"./Object 1\"/><draw:image "
                               "xlink:href=\"./ObjectReplacements/Object 1\"/></draw:frame>";

QByteArray contentOf(const QByteArray& body, const QByteArray& styles = {})
{
    return "<office:document-content><office:automatic-styles>" + styles +
           "</office:automatic-styles><office:body>" + body +
           "</office:body></office:document-content>";
}

repair::Document holding(const QHash<QString, QByteArray>& members)
{
    repair::Document document = drawing(ObjectFrame, "<style:style style:name=\"T\" "
                                                     "style:family=\"paragraph\"/>");
    document.readMember = [members](const QString& name) { return members.value(name); };
    return document;
}

} // namespace

TEST(EmbeddedDocument, TextIsInItsFrame)
{
    const QByteArray red = "<style:style style:name=\"T\" style:family=\"paragraph\">"
                           "<style:text-properties fo:color=\"#ff0000\"/></style:style>";
    repair::Document document =
        holding({{u"Object 1/content.xml"_s,
                  contentOf("<office:text><text:p text:style-name=\"T\">hello</text:p>"
                            "<text:p>there</text:p></office:text>",
                            red)},
                 {u"ObjectReplacements/Object 1"_s, "VCLMTF"}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    const repair::Node& frame = object(document, u"draw:frame"_s);
    EXPECT_EQ(frame.attribute(u"svg:x"), u"1in"_s);
    ASSERT_NE(frame.child(u"draw:text-box"), nullptr);
    EXPECT_EQ(frame.allText(), u"hellothere"_s);
    const QString style =
        frame.child(u"draw:text-box")->firstElement()->attribute(u"text:style-name");
    EXPECT_NE(style, u"T"_s) << "the document has a style of this name";
    EXPECT_EQ(document.table().resolved(u"paragraph"_s, style, false).text.value(u"fo:color"_s),
              u"#ff0000"_s);
}

TEST(EmbeddedDocument, DrawingIsScaledIntoItsFrame)
{
    // What is shown is 100 by 50 millimeters, from (10, 20): half of it is an inch.
    repair::Document document = holding(
        {{u"Object 1/content.xml"_s,
          contentOf("<office:drawing><draw:page><draw:rect svg:x=\"60mm\" svg:y=\"20mm\" "
                    "svg:width=\"50mm\" svg:height=\"50mm\"/></draw:page></office:drawing>")},
         {u"Object 1/settings.xml"_s,
          "<office:document-settings><config:config-item config:name=\"VisibleAreaLeft\">1000"
          "</config:config-item><config:config-item config:name=\"VisibleAreaTop\">2000"
          "</config:config-item><config:config-item config:name=\"VisibleAreaWidth\">10000"
          "</config:config-item><config:config-item config:name=\"VisibleAreaHeight\">5000"
          "</config:config-item></office:document-settings>"}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    EXPECT_EQ(repair::dissolveGroups(document), 1);
    const QRectF box = repair::boundsOf(object(document, u"draw:rect"_s));
    EXPECT_NEAR(box.left(), 2.0 * 72.0, 0.1);
    EXPECT_NEAR(box.top(), 2.0 * 72.0, 0.1);
    EXPECT_NEAR(box.width(), 72.0, 0.1);
    EXPECT_NEAR(box.height(), 72.0, 0.1);
}

TEST(EmbeddedDocument, SheetHasItsCellsInTheirPlaces)
{
    repair::Document document = holding(
        {{u"Object 1/content.xml"_s,
          contentOf("<office:spreadsheet><table:table><table:table-column table:style-name=\"C\" "
                    "table:number-columns-repeated=\"3\"/><table:table-row table:style-name=\"R\" "
                    "table:number-rows-repeated=\"2\"/><table:table-row table:style-name=\"R\">"
                    "<table:table-cell><text:p>a</text:p></table:table-cell><table:table-cell/>"
                    "<table:table-cell office:value=\"7\"><text:p>7</text:p></table:table-cell>"
                    "</table:table-row></table:table></office:spreadsheet>",
                    "<style:style style:name=\"C\" style:family=\"table-column\">"
                    "<style:table-column-properties style:column-width=\"0.5in\"/></style:style>"
                    "<style:style style:name=\"R\" style:family=\"table-row\">"
                    "<style:table-row-properties style:row-height=\"0.25in\"/></style:style>")}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    EXPECT_EQ(repair::dissolveGroups(document), 1);
    EXPECT_EQ(tags(document), u"draw:frame draw:frame"_s) << "only cells with text";
    const repair::Node& first = *document.page()->children[0];
    const repair::Node& second = *document.page()->children[1];
    EXPECT_EQ(first.allText(), u"a"_s);
    EXPECT_NEAR(repair::boundsOf(first).top(), (2.0 + 0.5) * 72.0, 0.1) << "in the third row";
    EXPECT_NEAR(repair::boundsOf(first).left(), 72.0, 3.0);
    EXPECT_NEAR(repair::boundsOf(second).left(), 2.0 * 72.0, 3.0) << "in the third column";
    const auto alignment = [&document](const repair::Node& cell) {
        const QString style =
            cell.child(u"draw:text-box")->firstElement()->attribute(u"text:style-name");
        return document.table()
            .resolved(u"paragraph"_s, style, false)
            .paragraph.value(u"fo:text-align"_s);
    };
    EXPECT_EQ(alignment(first), u"start"_s);
    EXPECT_EQ(alignment(second), u"end"_s) << "a number";
}

TEST(EmbeddedDocument, HasTheDefaultsOfItsOwnStyles)
{
    const QByteArray styles =
        "<office:document-styles><office:styles><style:default-style style:family=\"graphic\">"
        "<style:text-properties fo:font-size=\"24pt\"/></style:default-style><style:default-style "
        "style:family=\"paragraph\"><style:text-properties fo:color=\"#00ff00\"/>"
        "</style:default-style></office:styles></office:document-styles>";
    const auto styleOf = [&styles](const QByteArray& body) {
        repair::Document document = holding(
            {{u"Object 1/content.xml"_s, contentOf(body)}, {u"Object 1/styles.xml"_s, styles}});
        EXPECT_EQ(repair::unpackDocuments(document), 1);
        (void)repair::dissolveGroups(document);
        QString name;
        repair::forEachElement(*document.page(), [&name](const repair::Node& node) {
            name = node.is(u"text:p") ? node.attribute(u"text:style-name") : name;
        });
        return document.table().resolved(u"paragraph"_s, name, false).text;
    };
    const auto text = styleOf("<office:text><text:p>a</text:p></office:text>");
    EXPECT_EQ(text.value(u"fo:color"_s), u"#00ff00"_s);
    const auto shape = styleOf("<office:drawing><draw:page><draw:rect svg:width=\"1in\" "
                               "svg:height=\"1in\"><text:p>a</text:p></draw:rect></draw:page>"
                               "</office:drawing>");
    EXPECT_EQ(repair::toPoints(shape.value(u"fo:font-size"_s)), 24.0);
}

TEST(EmbeddedDocument, IsAsHighAsItsFrameInATextDocument)
{
    const QTemporaryDir folder;
    const QByteArray object =
        "<text:p>before</text:p><text:p><draw:frame draw:style-name=\"N\" "
        "text:anchor-type=\"paragraph\" svg:width=\"3in\" svg:height=\"1in\"><draw:object "
        "xlink:href=\"./Object 1\"/></draw:frame></text:p><text:p>after</text:p>";
    const repair::RepairedImport import = repair::importRepaired(writePackage(
        folder.path(),
        contentOf("<office:text>" + object + "</office:text>",
                  "<style:style style:name=\"N\" style:family=\"graphic\">"
                  "<style:graphic-properties style:wrap=\"none\" style:vertical-pos=\"top\"/>"
                  "</style:style>"),
        drawingStyles(),
        {{u"Object 1/content.xml"_s,
          contentOf("<office:drawing><draw:page><draw:rect svg:width=\"1in\" "
                    "svg:height=\"0.2in\"/></draw:page></office:drawing>")}}));
    ASSERT_TRUE(import.isRepaired());
    double before = 0.0;
    double after = 0.0;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        if (const auto* const text = dynamic_cast<const RichTextItem*>(item->contractItem())) {
            const double top = item->graphicsItem()->pos().y();
            (text->toPlainText().contains(u"after"_s) ? after : before) = top;
        }
    }
    EXPECT_GE(after - before, 72.0);
}

TEST(EmbeddedDocument, TextHasTheSizeOfThePictureThatReplacesIt)
{
    // Four by two inches in twips, shown in two by one.
    QByteArray picture(0x39, '\0');
    picture.replace(0, 6, "VCLMTF");
    picture[0x16] = 9;
    picture.replace(0x31, 2, "\x80\x16");
    picture.replace(0x35, 2, "\x40\x0b");
    repair::Document document = holding(
        {{u"Object 1/content.xml"_s,
          contentOf("<office:text><text:p text:style-name=\"T\">hello</text:p></office:text>",
                    "<style:style style:name=\"T\" style:family=\"paragraph\">"
                    "<style:paragraph-properties fo:margin-left=\"1in\" fo:line-height=\"90%\"/>"
                    "<style:text-properties fo:font-size=\"24pt\"/></style:style>")},
         {u"Object 1/styles.xml"_s,
          "<office:document-styles><office:automatic-styles><style:page-layout>"
          "<style:page-layout-properties fo:page-width=\"5in\" fo:margin-left=\"0.5in\" "
          "fo:margin-top=\"0.25in\" fo:margin-right=\"1.5in\"/></style:page-layout>"
          "</office:automatic-styles></office:document-styles>"},
         {u"ObjectReplacements/Object 1"_s, picture}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    const repair::Node& frame = object(document, u"draw:frame"_s);
    const repair::Properties box =
        document.table().resolved(u"graphic"_s, frame.attribute(u"draw:style-name"), false).graphic;
    EXPECT_EQ(box.value(u"fo:padding-left"_s), u"0.250000in"_s);
    EXPECT_EQ(box.value(u"fo:padding-top"_s), u"0.125000in"_s);
    EXPECT_EQ(box.value(u"fo:padding-right"_s), u"0.250000in"_s);
    const auto style = document.table().resolved(
        u"paragraph"_s,
        frame.child(u"draw:text-box")->firstElement()->attribute(u"text:style-name"), false);
    EXPECT_EQ(repair::toPoints(style.text.value(u"fo:font-size"_s)), 12.0);
    EXPECT_EQ(style.paragraph.value(u"fo:margin-left"_s), u"0.500000in"_s);
    EXPECT_EQ(style.paragraph.value(u"fo:line-height"_s), u"90%"_s);
}

namespace {

// Shows two by one inches of a page, in a frame of the same size.
const QByteArray ShownPart =
    "<office:document-settings><config:config-item config:name=\"VisibleAreaWidth\">5080"
    "</config:config-item><config:config-item config:name=\"VisibleAreaHeight\">2540"
    "</config:config-item></office:document-settings>";

} // namespace

TEST(EmbeddedDocument, ShowsNothingOutsideItsFrame)
{
    repair::Document document = holding(
        {{u"Object 1/content.xml"_s,
          contentOf("<office:drawing><draw:page><draw:rect svg:x=\"1.5in\" svg:width=\"1in\" "
                    "svg:height=\"1in\"/><draw:circle svg:x=\"3in\" svg:width=\"1in\" "
                    "svg:height=\"1in\"/></draw:page></office:drawing>")},
         {u"Object 1/settings.xml"_s, ShownPart}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    EXPECT_EQ(repair::dissolveGroups(document), 1);
    EXPECT_EQ(tags(document), u"draw:rect"_s);
}

TEST(EmbeddedDocument, SlidesHaveTheirOwnStyles)
{
    repair::Document document = holding(
        {{u"Object 1/content.xml"_s,
          contentOf("<office:presentation><draw:page><draw:frame presentation:style-name=\"S\" "
                    "svg:width=\"1in\" svg:height=\"1in\"><draw:text-box><text:p>a</text:p>"
                    "</draw:text-box></draw:frame></draw:page></office:presentation>",
                    "<style:style style:name=\"S\" style:family=\"presentation\">"
                    "<style:text-properties fo:font-size=\"44pt\"/></style:style>")}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    EXPECT_EQ(repair::dissolveGroups(document), 1);
    const repair::Node& frame = object(document, u"draw:frame"_s);
    const QString style =
        frame.child(u"draw:text-box")->firstElement()->attribute(u"text:style-name");
    EXPECT_EQ(
        repair::toPoints(
            document.table().resolved(u"paragraph"_s, style, false).text.value(u"fo:font-size"_s)),
        44.0);
}

TEST(EmbeddedDocument, NeedsNoPagesBesidesThoseOfItsFrame)
{
    const QTemporaryDir folder;
    const QByteArray object =
        "<text:p>before</text:p><text:p><draw:frame draw:style-name=\"N\" "
        "text:anchor-type=\"paragraph\" svg:width=\"2in\" svg:height=\"1in\"><draw:object "
        "xlink:href=\"./Object 1\"/></draw:frame></text:p><text:p>after</text:p>";
    const repair::RepairedImport import = repair::importRepaired(writePackage(
        folder.path(),
        contentOf("<office:text>" + object + "</office:text>",
                  "<style:style style:name=\"N\" style:family=\"graphic\">"
                  "<style:graphic-properties style:wrap=\"none\" style:vertical-pos=\"top\"/>"
                  "</style:style>"),
        drawingStyles(),
        {{u"Object 1/content.xml"_s,
          contentOf("<office:drawing><draw:page><draw:g><draw:rect svg:width=\"1in\" "
                    "svg:height=\"30in\"/></draw:g><draw:frame svg:width=\"1in\" "
                    "svg:height=\"30in\"><draw:text-box><text:p>a</text:p></draw:text-box>"
                    "</draw:frame></draw:page></office:drawing>")},
         {u"Object 1/settings.xml"_s, ShownPart}}));
    ASSERT_TRUE(import.isRepaired());
    EXPECT_EQ(import.pageCount, 1);
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        const auto* const text = dynamic_cast<const RichTextItem*>(item->contractItem());
        if (text != nullptr && text->toPlainText().contains(u"after"_s)) {
            EXPECT_LT(item->graphicsItem()->pos().y(), 3.0 * 72.0);
        }
    }
}

TEST(EmbeddedDocument, StaysIfItsPictureCanBeReadOrItCannot)
{
    const QByteArray content = contentOf("<office:text><text:p>a</text:p></office:text>");
    repair::Document withPicture = holding(
        {{u"Object 1/content.xml"_s, content}, {u"ObjectReplacements/Object 1"_s, "\x89PNG"}});
    EXPECT_EQ(repair::unpackDocuments(withPicture), 0);
    repair::Document chart = holding({{u"Object 1/content.xml"_s, contentOf("<office:chart/>")}});
    EXPECT_EQ(repair::unpackDocuments(chart) + repair::drawCharts(chart), 0);
    repair::Document broken = holding({{u"Object 1/content.xml"_s, "<office:document"}});
    EXPECT_EQ(repair::unpackDocuments(broken), 0);
}
