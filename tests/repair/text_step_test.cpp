// The texts of shapes: blanks, fields, lists, styles.

#include "tests/repair/documents.h"

#include "repair/lengths.h"
#include "repair/list_labels.h"
#include "repair/numbering.h"
#include "repair/text_step.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace repair;

namespace {

/// A rewritten text: its counts, and its paragraphs as "style-less" markup.
struct Rewritten
{
    TextCounts counts;
    QString text;
};

TextCounts simplified(Document& document)
{
    writeLabels(document.table(), outlineStyle(document.table()), *document.content);
    return simplifyTexts(document);
}

Rewritten rewritten(const QByteArray& text, const QByteArray& styles = {},
                    const QByteArray& common = {})
{
    Document document = drawing("<draw:rect>" + text + "</draw:rect>", styles, common);
    const TextCounts counts = simplified(document);
    QString result;
    for (const auto& paragraph : object(document, u"draw:rect"_s).children) {
        for (const auto& span : paragraph->children) {
            result += u'[' + span->allText() + u']';
        }
        result += u'/';
    }
    return {counts, result};
}

} // namespace

TEST(Texts, KeepBlanksBetweenSpans)
{
    const Rewritten text =
        rewritten("<text:p><text:span text:style-name=\"b\">net</text:span> "
                  "<text:span text:style-name=\"i\">weight</text:span></text:p>",
                  "<style:style style:name=\"b\" style:family=\"text\"><style:text-properties "
                  "fo:font-weight=\"bold\"/></style:style>"
                  "<style:style style:name=\"i\" style:family=\"text\"><style:text-properties "
                  "fo:font-style=\"italic\"/></style:style>");
    EXPECT_EQ(text.text, "[net ][weight]/"_L1);
    EXPECT_EQ(text.counts.blanks, 1);
}

TEST(Texts, CollapseBlanksAsTheFormatSays)
{
    EXPECT_EQ(rewritten("<text:p>\n  a\n  b<text:span> c</text:span></text:p>").text,
              "[a b c]/"_L1);
}

TEST(Texts, KeepSpacesTabsAndLineBreaks)
{
    const Rewritten text = rewritten("<text:p>a<text:s text:c=\"3\"/>b<text:s/>c<text:tab/>d"
                                     "<text:line-break/> e</text:p>");
    EXPECT_EQ(text.text, QString(u"[a   b c\td%1e]/"_s).arg(QChar(QChar::LineSeparator)));
    EXPECT_EQ(text.counts.blanks, 3);
}

TEST(Texts, BoundSpaces)
{
    EXPECT_LT(rewritten("<text:p>a<text:s text:c=\"2000000000\"/></text:p>").text.size(), 2000);
}

TEST(Texts, ReplaceFieldsAndLinksByTheirText)
{
    const Rewritten text = rewritten(
        "<text:p><text:date>1.2.2026</text:date><text:a xlink:href=\"http://x\"> see "
        "<text:span>there</text:span></text:a><office:annotation><text:p>no</text:p>"
        "</office:annotation><text:page-number>&lt;number&gt;</text:page-number></text:p>");
    EXPECT_EQ(text.text, "[1.2.2026 see there1]/"_L1);
    EXPECT_EQ(text.counts.fields, 4);
}

TEST(Texts, NumberListsAndMarkTheirItems)
{
    const Rewritten text = rewritten(
        "<text:list text:style-name=\"L\"><text:list-item><text:p>one</text:p>"
        "<text:p>more</text:p></text:list-item><text:list-item><text:p>two</text:p>"
        "<text:list><text:list-item><text:p>deep</text:p></text:list-item></text:list>"
        "</text:list-item></text:list>",
        "<text:list-style style:name=\"L\"><text:list-level-style-number text:level=\"1\" "
        "style:num-format=\"1\" style:num-suffix=\".\"/><text:list-level-style-bullet "
        "text:level=\"2\" text:bullet-char=\"-\"/></text:list-style>");
    EXPECT_EQ(text.text, "[1.  ][one]/[more]/[2.  ][two]/[-  ][deep]/"_L1);
    EXPECT_EQ(text.counts.lists, 2);
}

namespace {

const QByteArray NumberedLevels =
    "<text:list-style style:name=\"N\"><text:list-level-style-number text:level=\"1\" "
    "style:num-format=\"1\" style:num-suffix=\".\" text:start-value=\"3\"/>"
    "<text:list-level-style-number text:level=\"2\" style:num-format=\"a\" "
    "text:display-levels=\"2\"/></text:list-style>";

const QByteArray HeadingOutline =
    "<text:outline-style style:name=\"Outline\"><text:outline-level-style text:level=\"1\" "
    "style:num-format=\"1\"/><text:outline-level-style text:level=\"2\" style:num-format=\"1\" "
    "text:display-levels=\"2\"><style:list-level-properties "
    "text:list-level-position-and-space-mode=\"label-alignment\"><style:list-level-label-alignment "
    "text:label-followed-by=\"space\"/></style:list-level-properties></text:outline-level-style>"
    "<text:outline-level-style text:level=\"3\" style:num-format=\"\"/></text:outline-style>"
    "<style:style style:name=\"Plain\" style:family=\"paragraph\" style:list-style-name=\"\"/>"
    "<style:style style:name=\"Child\" style:family=\"paragraph\" "
    "style:parent-style-name=\"Plain\"/>";

QByteArray heading(int level, const QByteArray& text, const QByteArray& attributes = {})
{
    return "<text:h text:outline-level=\"" + QByteArray::number(level) + "\" " + attributes + '>' +
           text + "</text:h>";
}

QByteArray listOf(const QByteArray& items, const QByteArray& attributes = {})
{
    return "<text:list text:style-name=\"N\" " + attributes + '>' + items + "</text:list>";
}

QByteArray itemOf(const QByteArray& text, const QByteArray& inside = {})
{
    return "<text:list-item><text:p>" + text + "</text:p>" + inside + "</text:list-item>";
}

} // namespace

TEST(Numbering, ShowsTheLevelsAbove)
{
    const QByteArray list =
        listOf(itemOf("x", listOf(itemOf("p") + itemOf("q"))) + itemOf("y", listOf(itemOf("r"))));
    EXPECT_EQ(rewritten(list, NumberedLevels).text,
              "[3.  ][x]/[3.a  ][p]/[3.b  ][q]/[4.  ][y]/[4.a  ][r]/"_L1);
}

TEST(Numbering, ContinuesTheListBeforeIfAsked)
{
    const QByteArray first = listOf(itemOf("x"));
    EXPECT_EQ(rewritten(first + first, NumberedLevels).text, "[3.  ][x]/[3.  ][x]/"_L1);
    EXPECT_EQ(
        rewritten(first + listOf(itemOf("y"), "text:continue-numbering=\"true\""), NumberedLevels)
            .text,
        "[3.  ][x]/[4.  ][y]/"_L1);
    EXPECT_EQ(rewritten(first + listOf("<text:list-item text:start-value=\"8\"><text:p>y</text:p>"
                                       "</text:list-item>" +
                                       itemOf("z")),
                        NumberedLevels)
                  .text,
              "[3.  ][x]/[8.  ][y]/[9.  ][z]/"_L1);
}

TEST(Numbering, DoesNotCountHeadersOfListsAndDeletedText)
{
    EXPECT_EQ(
        rewritten(
            "<text:tracked-changes>" + listOf(itemOf("gone")) + "</text:tracked-changes>" +
                listOf("<text:list-header><text:p>h</text:p></text:list-header>" + itemOf("x")),
            NumberedLevels)
            .text,
        "[h]/[3.  ][x]/"_L1);
}

TEST(Numbering, OfHeadingsFollowsTheOutline)
{
    EXPECT_EQ(rewritten(heading(1, "A") + heading(2, "B") + heading(2, "C") + heading(1, "D") +
                            heading(2, "E") + heading(3, "F"),
                        {}, HeadingOutline)
                  .text,
              "[1  ][A]/[1.1 ][B]/[1.2 ][C]/[2  ][D]/[2.1 ][E]/[F]/"_L1);
}

TEST(Numbering, LeavesOutHeadingsWithoutANumber)
{
    EXPECT_EQ(rewritten(heading(1, "A") + heading(1, "B", "text:style-name=\"Child\"") +
                            heading(1, "C", "text:is-list-header=\"true\"") + heading(1, "D") +
                            heading(1, "E", "text:restart-numbering=\"true\"") +
                            heading(2000000000, "F"),
                        {}, HeadingOutline)
                  .text,
              "[1  ][A]/[B]/[C]/[2  ][D]/[1  ][E]/[F]/"_L1);
    EXPECT_EQ(rewritten(heading(1, "A", "labelport:label=\"9\"")).text, "[A]/"_L1);
}

TEST(Texts, HaveBulletsThatEveryFontHas)
{
    const auto bulletOf = [](const QByteArray& character) {
        return rewritten("<text:list text:style-name=\"L\"><text:list-item><text:p>one</text:p>"
                         "</text:list-item></text:list>",
                         "<text:list-style style:name=\"L\"><text:list-level-style-bullet "
                         "text:level=\"1\" text:bullet-char=\"" +
                             character + "\"/></text:list-style>")
            .text;
    };
    EXPECT_EQ(bulletOf("&#xF0B7;"), u"[\u2022  ][one]/"_s); // Symbol
    EXPECT_EQ(bulletOf("&#xF0FC;"), u"[\u2713  ][one]/"_s); // Wingdings
    EXPECT_EQ(bulletOf("&#xE00C;"), u"[\u2022  ][one]/"_s);
    EXPECT_EQ(bulletOf("&#x2713;"), u"[\u2713  ][one]/"_s);
}

TEST(Texts, DoNotUnderlineBullets)
{
    Document document =
        drawing("<draw:rect><text:list text:style-name=\"L\"><text:list-item><text:p "
                "text:style-name=\"U\">one</text:p></text:list-item></text:list></draw:rect>",
                "<style:style style:name=\"U\" style:family=\"paragraph\"><style:text-properties "
                "style:text-underline-style=\"solid\"/></style:style>"
                "<text:list-style style:name=\"L\"><text:list-level-style-bullet text:level=\"1\" "
                "text:bullet-char=\"-\"/></text:list-style>");
    (void)simplified(document);
    const Node& paragraph = *object(document, u"draw:rect"_s).firstElement();
    ASSERT_EQ(paragraph.children.size(), 2U);
    const auto underline = [&document](const Node& span) {
        return document.table()
            .resolved(u"text"_s, span.attribute(u"text:style-name"), false)
            .text.value(u"style:text-underline-style"_s);
    };
    EXPECT_EQ(underline(*paragraph.children[0]), QString());
    EXPECT_EQ(underline(*paragraph.children[1]), u"solid"_s);
}

TEST(Texts, OfListsHaveTheirOwnIndentIfTheyStateOne)
{
    const QByteArray list =
        "<text:list-style style:name=\"L\"><text:list-level-style-number text:level=\"1\">"
        "<style:list-level-properties text:list-level-position-and-space-mode=\"label-alignment\">"
        "<style:list-level-label-alignment fo:margin-left=\"0.5in\" fo:text-indent=\"-0.25in\"/>"
        "</style:list-level-properties></text:list-level-style-number></text:list-style>";
    const auto indentOf = [&list](const QByteArray& own, const QByteArray& parent) {
        Document document =
            drawing("<draw:rect><text:list text:style-name=\"L\"><text:list-item><text:p "
                    "text:style-name=\"P\">one</text:p></text:list-item></text:list></draw:rect>",
                    list +
                        "<style:style style:name=\"P\" style:family=\"paragraph\" "
                        "style:parent-style-name=\"Q\"><style:paragraph-properties " +
                        own + "/></style:style>",
                    "<style:style style:name=\"Q\" style:family=\"paragraph\" " + parent +
                        "</style:style>");
        (void)simplified(document);
        const QString style =
            object(document, u"draw:rect"_s).firstElement()->attribute(u"text:style-name");
        const Properties shown = document.table().resolved(u"paragraph"_s, style, false).paragraph;
        return QPointF(toPoints(shown.value(u"fo:margin-left"_s)).value_or(-1.0),
                       toPoints(shown.value(u"fo:text-indent"_s)).value_or(-1.0));
    };
    EXPECT_EQ(indentOf({}, ">"), QPointF(36.0, -18.0));
    EXPECT_EQ(indentOf("fo:margin-left=\"0in\" fo:text-indent=\"0.25in\"", ">"),
              QPointF(0.0, 18.0));
    const QByteArray margin = "<style:paragraph-properties fo:margin-left=\"1in\"/>";
    EXPECT_EQ(indentOf({}, ">" + margin), QPointF(36.0, -18.0)) << "the list is more specific";
    EXPECT_EQ(indentOf({}, "style:list-style-name=\"L\">" + margin), QPointF(72.0, -18.0));
}

TEST(Texts, ShowVariablesAsTheyWereSet)
{
    const Rewritten text =
        rewritten("<text:p><text:variable-set text:name=\"v\">new</text:variable-set>, "
                  "<text:variable-get text:name=\"v\">old</text:variable-get>, "
                  "<text:variable-get text:name=\"w\">stored</text:variable-get></text:p>");
    EXPECT_EQ(text.text, "[new, new, stored]/"_L1);
}

TEST(Texts, OfListsBeginAtTheirIndent)
{
    const auto blanks = [](const QByteArray& width) {
        const QString text =
            rewritten("<text:list text:style-name=\"L\"><text:list-item><text:p>one</text:p>"
                      "</text:list-item></text:list>",
                      "<text:list-style style:name=\"L\"><text:list-level-style-bullet "
                      "text:level=\"1\" text:bullet-char=\"-\"><style:list-level-properties "
                      "text:min-label-width=\"" +
                          width + "\"/></text:list-level-style-bullet></text:list-style>")
                .text;
        return text.count(u' ');
    };
    EXPECT_EQ(blanks("0in"), 2);
    EXPECT_GT(blanks("0.5in"), blanks("0.25in") + 1);
    EXPECT_LE(blanks("100in"), 40);
}

TEST(Texts, AppendNotes)
{
    const Rewritten text =
        rewritten("<text:p>a<text:note><text:note-citation>1</text:note-citation><text:note-body>"
                  "<text:p>why</text:p></text:note-body></text:note></text:p><text:p>b</text:p>");
    EXPECT_EQ(text.text, "[a][1]/[b]/[1 why]/"_L1);
    EXPECT_EQ(text.counts.notes, 1);
}

TEST(Texts, DissolveSections)
{
    const Rewritten text =
        rewritten("<text:section><text:p>a</text:p></text:section><text:p>b</text:p>");
    EXPECT_EQ(text.text, "[a]/[b]/"_L1);
    EXPECT_EQ(text.counts.sections, 1);
}

TEST(Texts, GetTheFontsOfTheirShape)
{
    Document document = drawing(
        "<draw:frame draw:style-name=\"g\"><draw:text-box><text:p>a</text:p></draw:text-box>"
        "</draw:frame>",
        "<style:style style:name=\"g\" style:family=\"graphic\"><style:text-properties "
        "fo:font-size=\"7pt\" fo:color=\"#112233\"/></style:style>");
    (void)simplified(document);
    const Node& span = *object(document, u"draw:frame"_s)
                            .child(u"draw:text-box")
                            ->child(u"text:p")
                            ->child(u"text:span");
    const Properties style =
        document.table().resolved(u"text"_s, span.attribute(u"text:style-name"), false).text;
    EXPECT_EQ(style.value(u"fo:font-size"_s), "7pt"_L1);
    EXPECT_EQ(style.value(u"fo:color"_s), "#112233"_L1);
}
