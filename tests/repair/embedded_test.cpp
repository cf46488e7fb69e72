// Documents inside a document become their content.

#include "tests/repair/documents.h"

#include "repair/page_steps.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/text_step.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray Frame = "<draw:frame draw:name=\"F\" svg:x=\"1in\" svg:y=\"2in\" "
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
    repair::Document document = drawing(Frame, "<style:style style:name=\"T\" "
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

TEST(EmbeddedDocument, SheetIsTheTextOfItsRows)
{
    repair::Document document = holding(
        {{u"Object 1/content.xml"_s,
          contentOf("<office:spreadsheet><table:table><table:table-row><table:table-cell><text:p>"
                    "a</text:p></table:table-cell><table:table-cell/><table:table-cell><text:p>c"
                    "</text:p></table:table-cell><table:table-cell/></table:table-row>"
                    "</table:table></office:spreadsheet>")}});
    EXPECT_EQ(repair::unpackDocuments(document), 1);
    repair::Node& frame = object(document, u"draw:frame"_s);
    (void)repair::simplifyTexts(document);
    EXPECT_EQ(frame.allText(), u"a\t\tc"_s);
}

TEST(EmbeddedDocument, StaysIfItsPictureCanBeReadOrItCannot)
{
    const QByteArray content = contentOf("<office:text><text:p>a</text:p></office:text>");
    repair::Document withPicture = holding(
        {{u"Object 1/content.xml"_s, content}, {u"ObjectReplacements/Object 1"_s, "\x89PNG"}});
    EXPECT_EQ(repair::unpackDocuments(withPicture), 0);
    repair::Document chart = holding({{u"Object 1/content.xml"_s, contentOf("<office:chart/>")}});
    EXPECT_EQ(repair::unpackDocuments(chart), 0);
    repair::Document broken = holding({{u"Object 1/content.xml"_s, "<office:document"}});
    EXPECT_EQ(repair::unpackDocuments(broken), 0);
}
