// What a reader of the document sees, and a label does not show: each is reported.

#include "migration/census/counting.h"
#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"

#include <gtest/gtest.h>

#include <algorithm>

using namespace migration;

namespace {

/// A text document with one property or element that a label does not show.
struct Look
{
    const char* name;
    LossKind kind;
    QByteArray body;
    QByteArray styles;
};

QByteArray style(const char* family, const QByteArray& properties)
{
    return "<style:style style:name=\"S\" style:family=\"" + QByteArray(family) + "\">" +
           properties + "</style:style>";
}

const QByteArray Span = "<text:p><text:span text:style-name=\"S\">Words</text:span></text:p>";
const QByteArray Paragraph = "<text:p text:style-name=\"S\">Words</text:p>";
const QByteArray Frame =
    "<text:p><draw:frame draw:style-name=\"S\" text:anchor-type=\"paragraph\" svg:x=\"1in\" "
    "svg:y=\"1in\" svg:width=\"1in\" svg:height=\"1in\"><draw:text-box><text:p>Words</text:p>"
    "</draw:text-box></draw:frame></text:p>";
const QByteArray Cell = "<table:table><table:table-row><table:table-cell table:style-name=\"S\">"
                        "<text:p>Words</text:p></table:table-cell></table:table-row></table:table>";
const QByteArray Section =
    "<text:section text:style-name=\"S\"><text:p>Words</text:p></text:section>";

Look letters(const char* name, const char* properties)
{
    return {name, LossKind::TextEffect, Span,
            style("text", "<style:text-properties " + QByteArray(properties) + "/>")};
}

Look paragraph(const char* name, const char* properties)
{
    return {name, LossKind::TextEffect, Paragraph,
            style("paragraph", "<style:paragraph-properties " + QByteArray(properties) + "/>")};
}

Look frame(const char* name, LossKind kind, const char* properties)
{
    return {name, kind, Frame,
            style("graphic", "<style:graphic-properties " + QByteArray(properties) + "/>")};
}

QByteArray note(const char* type)
{
    return "<text:p>Words<text:note text:note-class=\"" + QByteArray(type) +
           "\"><text:note-citation>1</text:note-citation><text:note-body><text:p>Note</text:p>"
           "</text:note-body></text:note></text:p>";
}

QList<Look> looks()
{
    const QByteArray columns = "<style:columns fo:column-count=\"2\"/>";
    return {
        letters("wave", "style:text-underline-style=\"wave\""),
        letters("double",
                "style:text-underline-style=\"solid\" style:text-underline-type=\"double\""),
        letters("red",
                "style:text-underline-style=\"solid\" style:text-underline-color=\"#ff0000\""),
        letters("bold", "style:text-underline-style=\"solid\" style:text-underline-width=\"bold\""),
        letters("overline", "style:text-overline-style=\"solid\""),
        letters("struck twice", "style:text-line-through-type=\"double\""),
        letters("struck by letters", "style:text-line-through-text=\"X\""),
        letters("emphasis", "style:text-emphasize=\"dot above\""),
        letters("first letters", "fo:text-transform=\"capitalize\""),
        letters("box", "fo:border=\"1pt solid #000000\""),
        paragraph("shadow", "style:shadow=\"#808080 2pt 2pt\""),
        paragraph("fixed height", "fo:line-height=\"1cm\""),
        paragraph("least height", "style:line-height-at-least=\"1cm\""),
        paragraph("distance", "style:line-spacing=\"2mm\""),
        paragraph("vertical", "style:writing-mode=\"tb-rl\""),
        {"first letter", LossKind::TextEffect, Paragraph,
         style("paragraph", "<style:paragraph-properties><style:drop-cap style:lines=\"3\"/>"
                            "</style:paragraph-properties>")},
        {"picture below a paragraph", LossKind::TextEffect, Paragraph,
         style("paragraph", "<style:paragraph-properties><style:background-image "
                            "xlink:href=\"a.png\"/></style:paragraph-properties>")},
        frame("vertical text", LossKind::TextEffect, "style:writing-mode=\"bt-lr\""),
        frame("one side", LossKind::EffectDropped,
              "fo:border-top=\"none\" fo:border-bottom=\"1pt solid #000000\""),
        frame("gamma", LossKind::EffectDropped, "draw:gamma=\"150%\""),
        frame("reddish", LossKind::EffectDropped, "draw:red=\"20%\""),
        {"columns of a frame", LossKind::LayoutSimplified, Frame,
         style("graphic", "<style:graphic-properties>" + columns + "</style:graphic-properties>")},
        {"columns of a section", LossKind::LayoutSimplified, Section,
         style("section", "<style:section-properties>" + columns + "</style:section-properties>")},
        {"ground of a section", LossKind::TextEffect, Section,
         style("section", "<style:section-properties fo:background-color=\"#ffff00\"/>")},
        {"picture below a frame", LossKind::EffectDropped, Frame,
         style("graphic", "<style:graphic-properties><style:background-image "
                          "xlink:href=\"a.png\"/></style:graphic-properties>")},
        {"picture below a cell", LossKind::TextEffect, Cell,
         style("table-cell", "<style:table-cell-properties><style:background-image "
                             "xlink:href=\"a.png\"/></style:table-cell-properties>")},
        {"rotated cell", LossKind::TextEffect, Cell,
         style("table-cell", "<style:table-cell-properties style:rotation-angle=\"90\"/>")},
        {"letters in a list", LossKind::TextEffect,
         "<text:list><text:list-item>" + Span + "</text:list-item></text:list>",
         style("text", "<style:text-properties style:text-emphasize=\"dot\"/>")},
        {"shadow of a table", LossKind::TextEffect,
         QByteArray(Cell).replace("<table:table>", "<table:table table:style-name=\"S\">"),
         style("table", "<style:table-properties style:shadow=\"#808080 2pt 2pt\"/>")},
        {"picture bullets", LossKind::TextEffect,
         "<text:list text:style-name=\"L\"><text:list-item><text:p>Words</text:p></text:list-item>"
         "</text:list>",
         "<text:list-style style:name=\"L\"><text:list-level-style-image text:level=\"1\" "
         "xlink:href=\"a.png\"/></text:list-style>"},
        {"placeholder",
         LossKind::FixedField,
         "<text:p>To <text:placeholder>&lt;Name&gt;</text:placeholder></text:p>",
         {}},
        {"table in a table",
         LossKind::LayoutSimplified,
         QByteArray(Cell).replace("<text:p>Words</text:p>", Cell),
         {}},
        {"linked boxes",
         LossKind::LayoutSimplified,
         QByteArray(Frame).replace("<draw:text-box>", "<draw:text-box draw:chain-next-name=\"B\">"),
         {}},
        {"endnote", LossKind::LayoutSimplified, note("endnote"), {}},
        {"footnote", LossKind::TextEffect, note("footnote"), {}},
        {"changes",
         LossKind::TextEffect,
         "<text:tracked-changes><text:changed-region><text:deletion><text:p>old</text:p>"
         "</text:deletion></text:changed-region></text:tracked-changes><text:p>Words</text:p>",
         {}},
    };
}

bool isReported(const Census& census, LossKind kind)
{
    return census.tallies.count(kind) > 0 ||
           std::any_of(census.objects.begin(), census.objects.end(),
                       [kind](const CountedObject& object) { return object.changes.has(kind); });
}

} // namespace

TEST(Looks, ThatLabelsDoNotShowAreReported)
{
    for (const Look& look : looks()) {
        const Census census =
            countOpenDocument(textOf(look.body, {.automaticStyles = look.styles}));
        EXPECT_TRUE(census.unknown.isEmpty()) << look.name;
        EXPECT_TRUE(isReported(census, look.kind)) << look.name;
    }
}

// The same elements without their special value.
TEST(Looks, ThatLabelsShowAreNotReported)
{
    const QList<Look> plain{
        letters("underlined",
                "style:text-underline-style=\"solid\" style:text-underline-type="
                "\"single\" style:text-underline-color=\"font-color\" "
                "style:text-underline-width=\"auto\" style:text-overline-style=\"none\""),
        paragraph("plain",
                  "style:shadow=\"none\" style:writing-mode=\"rl-tb\" fo:line-height=\"120%\""),
        {"list", LossKind::TextEffect,
         "<text:list text:style-name=\"L\"><text:list-item><text:p>Words</text:p></text:list-item>"
         "</text:list>",
         "<text:list-style style:name=\"L\"><text:list-level-style-bullet text:level=\"1\"/>"
         "</text:list-style>"},
        frame("frame", LossKind::EffectDropped,
              "fo:border-top=\"none\" fo:border-left=\"none\" draw:gamma=\"100%\" draw:red=\"0%\" "
              "style:writing-mode=\"lr-tb\""),
        {"drawn picture below a frame", LossKind::EffectDropped, Frame,
         style("graphic", "<style:graphic-properties draw:fill=\"bitmap\">"
                          "<style:background-image xlink:href=\"a.png\"/>"
                          "</style:graphic-properties>")},
        {"no picture below a cell", LossKind::TextEffect, Cell,
         style("table-cell", "<style:table-cell-properties><style:background-image/>"
                             "</style:table-cell-properties>")},
        {"one column", LossKind::LayoutSimplified, Section,
         style("section", "<style:section-properties><style:columns fo:column-count=\"1\"/>"
                          "</style:section-properties>")},
        {"configuration",
         LossKind::LayoutSimplified,
         "<text:notes-configuration text:note-class=\"endnote\"/>" + Paragraph,
         {}},
        {"cell", LossKind::TextEffect, Cell,
         style("table-cell", "<style:table-cell-properties style:rotation-angle=\"0\"/>")},
    };
    for (const Look& look : plain) {
        const Census census =
            countOpenDocument(textOf(look.body, {.automaticStyles = look.styles}));
        for (const LossKind kind :
             {LossKind::TextEffect, LossKind::EffectDropped, LossKind::LayoutSimplified}) {
            EXPECT_FALSE(isReported(census, kind)) << look.name;
        }
    }
}

TEST(Looks, ColumnsOfThePageAreReported)
{
    const QByteArray columns = "<style:page-layout style:name=\"P\"><style:page-layout-properties>"
                               "<style:columns fo:column-count=\"%1\"/>"
                               "</style:page-layout-properties></style:page-layout>";
    for (const auto& [count, isChanged] : {std::pair("1", false), std::pair("2", true)}) {
        const DocumentParts parts = {.commonStyles = QByteArray(columns).replace("%1", count),
                                     .masterPages = "<style:master-page style:name=\"Standard\" "
                                                    "style:page-layout-name=\"P\"/>"};
        EXPECT_EQ(
            isReported(countOpenDocument(textOf(Paragraph, parts)), LossKind::LayoutSimplified),
            isChanged);
    }
}

TEST(Looks, TablesInHeadersAreReported)
{
    const auto header = [](const QByteArray& content) {
        return countOpenDocument(
            textOf(Paragraph, {.masterPages = "<style:master-page style:name=\"Standard\" "
                                              "style:page-layout-name=\"L\"><style:header>" +
                                              content + "</style:header></style:master-page>"}));
    };
    EXPECT_TRUE(isReported(header(Cell), LossKind::LayoutSimplified));
    EXPECT_FALSE(isReported(header(Paragraph), LossKind::LayoutSimplified));
}

TEST(Looks, HiddenTextIsNotCounted)
{
    const QByteArray hidden = style("text", "<style:text-properties text:display=\"none\"/>");
    const Census census = countOpenDocument(textOf(Span, {.automaticStyles = hidden}));
    EXPECT_TRUE(census.objects.isEmpty());
    EXPECT_EQ(countOpenDocument(textOf(Span)).objects.size(), 1);
}
