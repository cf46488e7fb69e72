// The tree that can be changed, lengths, styles.

#include "tests/repair/documents.h"

#include "repair/lengths.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

namespace {

constexpr qint64 Bytes = 1 << 20;

QByteArray writtenAgain(const QByteArray& xml)
{
    const auto root = parseTree(xml, Bytes);
    return root ? writeTree(*root).mid(writeTree(*root).indexOf('\n') + 1) : QByteArray("none");
}

QByteArray convertedLengths(const QByteArray& attribute)
{
    const auto root = parseTree("<a><b " + attribute + "/></a>", Bytes);
    convertLengths(*root);
    return writeTree(*root->children.front()).mid(39);
}

} // namespace

TEST(XmlTree, KeepsBlanksBetweenElements)
{
    EXPECT_EQ(writtenAgain("<p><s>a</s> <s>b</s>\n</p>"), "<p><s>a</s> <s>b</s>\n</p>");
}

TEST(XmlTree, WritesWhatAParserReadsBack)
{
    const QByteArray xml = "<p a=\"&lt;&quot;&#10;&#9;&amp;\">&lt;&amp;&#13;</p>";
    const auto root = parseTree(xml, Bytes);
    EXPECT_EQ(root->attribute(u"a"), "<\"\n\t&"_L1);
    const auto again = parseTree(writeTree(*root), Bytes);
    EXPECT_EQ(again->attribute(u"a"), root->attribute(u"a"));
    EXPECT_EQ(again->allText(), "<&\r"_L1);
}

TEST(XmlTree, RefusesDamagedAndTooLargeDocuments)
{
    EXPECT_EQ(parseTree("<p><q></p>", Bytes), nullptr);
    EXPECT_EQ(parseTree("", Bytes), nullptr);
    QByteArray many = "<p>";
    for (int i = 0; i < 1000; ++i) {
        many += "<q/>";
    }
    many += "</p>";
    EXPECT_NE(parseTree(many, Bytes), nullptr);
    EXPECT_EQ(parseTree(many, 1000), nullptr);
}

TEST(Lengths, AreWrittenInInches)
{
    EXPECT_EQ(convertedLengths("svg:x=\"2.54cm\""), "<b svg:x=\"1.000000in\"/>");
    EXPECT_EQ(convertedLengths("svg:x=\"25.4mm\""), "<b svg:x=\"1.000000in\"/>");
    EXPECT_EQ(convertedLengths("fo:margin-left=\"36pt\""), "<b fo:margin-left=\"0.500000in\"/>");
    EXPECT_EQ(convertedLengths("fo:border=\"72pt solid #000000\""),
              "<b fo:border=\"1.000000in solid #000000\"/>");
    EXPECT_EQ(convertedLengths("draw:transform=\"rotate (1.5) translate (2.54cm 5.08cm)\""),
              "<b draw:transform=\"rotate (1.5) translate (1.000000in 2.000000in)\"/>");
}

TEST(Lengths, LeavesOtherTextsAlone)
{
    for (const QByteArray attribute :
         {"fo:font-size=\"12pt\"", "draw:name=\"12pt\"", "svg:x=\"3in\"", "svg:d=\"M1 2\"",
          "fo:color=\"#12cm\"", "style:display-name=\"5mm\"", "svg:x=\"cm\"", "svg:x=\"\""}) {
        EXPECT_EQ(convertedLengths(attribute), "<b " + attribute + "/>");
    }
}

TEST(Styles, InheritFromParentsAndDefaults)
{
    Document document = drawing(
        {},
        "<style:style style:name=\"child\" style:family=\"graphic\" "
        "style:parent-style-name=\"parent\"><style:text-properties fo:font-size=\"50%\"/>"
        "</style:style>",
        "<style:default-style style:family=\"graphic\"><style:graphic-properties "
        "draw:fill=\"solid\" draw:stroke=\"none\"/></style:default-style>"
        "<style:style style:name=\"parent\" style:family=\"graphic\"><style:graphic-properties "
        "draw:fill=\"none\"/><style:text-properties fo:font-size=\"20pt\"/></style:style>");
    const StyleProperties child = document.table().resolved(u"graphic"_s, u"child"_s, true);
    EXPECT_EQ(child.graphic.value(u"draw:fill"_s), "none"_L1);
    EXPECT_EQ(child.graphic.value(u"draw:stroke"_s), "none"_L1);
    EXPECT_EQ(child.text.value(u"fo:font-size"_s), "10pt"_L1);
}

TEST(Styles, KnowListsOfFamilies)
{
    EXPECT_EQ(shownFamily(u"'Liberation Sans', Arial"_s), u"Liberation Sans"_s);
    EXPECT_EQ(shownFamily(u"'No Such Font', \"DejaVu Sans\""_s), u"DejaVu Sans"_s);
    EXPECT_EQ(shownFamily(u"'No Such Font', None"_s), u"No Such Font"_s);
    EXPECT_EQ(shownFamily(QString()), QString());
}

TEST(Styles, SurviveParentsInACircle)
{
    Document document =
        drawing({}, "<style:style style:name=\"a\" style:family=\"text\" "
                    "style:parent-style-name=\"b\"><style:text-properties fo:color=\"#010203\"/>"
                    "</style:style><style:style style:name=\"b\" style:family=\"text\" "
                    "style:parent-style-name=\"a\"/>");
    EXPECT_EQ(document.table().resolved(u"text"_s, u"b"_s, false).text.value(u"fo:color"_s),
              "#010203"_L1);
}

TEST(Styles, AreMadeOncePerContent)
{
    Document document = drawing({});
    StyleProperties bold;
    bold.text.insert(u"fo:font-weight"_s, u"bold"_s);
    const QString name = document.styleFor(u"text"_s, bold);
    EXPECT_EQ(document.styleFor(u"text"_s, bold), name);
    EXPECT_NE(document.styleFor(u"paragraph"_s, bold), name);
    EXPECT_EQ(document.table().resolved(u"text"_s, name, false).text, bold.text);
}
