// Where the tables of a text document are: their sides, their columns, and the space around them.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double TableUnit = 72.0 / 2.54;

/// A page of 10 by 5 cm without margins: the boxes of its texts in centimeters, by their words.
QMap<QString, QRectF> textsOf(const QByteArray& body, const QByteArray& tableProperties,
                              const QByteArray& columnProperties = "style:column-width=\"2cm\"",
                              const QByteArray& cellProperties = {},
                              const QByteArray& settings = {})
{
    const QTemporaryDir folder;
    const auto style = [](const QByteArray& name, const QByteArray& family,
                          const QByteArray& properties) {
        return "<style:style style:name=\"" + name + "\" style:family=\"" + family +
               "\"><style:" + family + "-properties " + properties + "/></style:style>";
    };
    const QByteArray content =
        "<office:document-content><office:automatic-styles>" +
        style("t", "table", tableProperties) + style("c", "table-column", columnProperties) +
        style("wide", "table-column", "style:rel-column-width=\"3*\"") +
        style("cell", "table-cell", cellProperties) +
        style("space", "paragraph", "fo:margin-top=\"0.5cm\" fo:margin-bottom=\"0.5cm\"") +
        "</office:automatic-styles><office:body><office:text>" + body +
        "</office:text></office:body></office:document-content>";
    const repair::RepairedImport import = repair::importRepaired(
        writePackage(folder.path(), content, drawingStyles(), {{u"settings.xml"_s, settings}}));
    QMap<QString, QRectF> texts;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        if (auto* const text = dynamic_cast<RichTextItem*>(item->contractItem())) {
            texts.insert(text->toPlainText(),
                         {text->pos() / TableUnit,
                          QSizeF(text->getItemWidth(), text->getItemHeight()) / TableUnit});
        }
    }
    return texts;
}

QByteArray pairRow(const QByteArray& first, const QByteArray& second)
{
    const auto cell = [](const QByteArray& text) {
        return "<table:table-cell table:style-name=\"cell\"><text:p>" + text +
               "</text:p></table:table-cell>";
    };
    return "<table:table-row>" + cell(first) + cell(second) + "</table:table-row>";
}

QByteArray pairTable(const QByteArray& secondColumn = "c",
                     const QByteArray& rows = pairRow("a", "b"))
{
    return "<table:table table:style-name=\"t\"><table:table-column table:style-name=\"c\"/>"
           "<table:table-column table:style-name=\"" +
           secondColumn + "\"/>" + rows + "</table:table>";
}

void expectRange(const QMap<QString, QRectF>& texts, double first, double second, double end)
{
    EXPECT_NEAR(texts.value(u"a"_s).left(), first, 0.02);
    EXPECT_NEAR(texts.value(u"b"_s).left(), second, 0.02);
    EXPECT_NEAR(texts.value(u"b"_s).right(), end, 0.02);
}

QByteArray largerSpaces()
{
    return "<office:document-settings><config:config-item config:name=\"AddParaTableSpacing\">"
           "false</config:config-item></office:document-settings>";
}

} // namespace

TEST(TablePlaces, AreAtTheSideOfTheTablesAlignment)
{
    expectRange(textsOf(pairTable(), ""), 0.0, 2.0, 4.0);
    expectRange(
        textsOf(pairTable(), "style:width=\"4cm\" table:align=\"left\" fo:margin-left=\"1cm\""),
        1.0, 3.0, 5.0);
    expectRange(textsOf(pairTable(), "style:width=\"4cm\" table:align=\"center\""), 3.0, 5.0, 7.0);
    expectRange(
        textsOf(pairTable(), "style:width=\"4cm\" table:align=\"right\" fo:margin-right=\"1cm\""),
        5.0, 7.0, 9.0);
    expectRange(textsOf(pairTable(), "style:width=\"4cm\" table:align=\"margins\" "
                                     "fo:margin-left=\"1cm\" fo:margin-right=\"1cm\""),
                1.0, 5.0, 9.0);
}

TEST(TablePlaces, HaveTheWidthOfTheTable)
{
    expectRange(textsOf(pairTable(), "style:width=\"6cm\" table:align=\"left\""), 0.0, 3.0, 6.0);
    expectRange(
        textsOf(pairTable(), "style:width=\"1cm\" style:rel-width=\"80%\" table:align=\"right\""),
        2.0, 6.0, 10.0);
    expectRange(textsOf(pairTable("wide"), "style:width=\"8cm\" table:align=\"left\"",
                        "style:column-width=\"5cm\" style:rel-column-width=\"1*\""),
                0.0, 2.0, 8.0);
    expectRange(textsOf(pairTable("wide"), "", "style:rel-column-width=\"1*\""), 0.0, 2.5, 10.0);
}

TEST(TablePlaces, HaveThePaddingOfEachSideOfACell)
{
    const QMap<QString, QRectF> texts = textsOf(
        pairTable("c", pairRow("a", "b") + pairRow("c", "d")), "", "style:column-width=\"2cm\"",
        "fo:padding-left=\"0.5cm\" fo:padding-right=\"0.25cm\" fo:padding-top=\"0.125cm\" "
        "fo:padding-bottom=\"1cm\"");
    expectRange(texts, 0.5, 2.5, 3.75);
    const QRectF first = texts.value(u"a"_s);
    EXPECT_NEAR(first.top(), 0.125, 0.02);
    EXPECT_NEAR(texts.value(u"c"_s).top(), first.bottom() + 1.0 + 0.125, 0.02);
}

TEST(TablePlaces, KeepTheSpaceAboveAndBelowTheTable)
{
    const QByteArray body = "<text:p>x</text:p>" + pairTable() + "<text:p>y</text:p>" +
                            pairTable("c", pairRow("c", "d"));
    const QByteArray margins = "fo:margin-top=\"0.25cm\" fo:margin-bottom=\"0.5cm\"";
    const auto tops = [&](const QByteArray& settings) {
        const QMap<QString, QRectF> texts = textsOf(body, margins, "", "", settings);
        EXPECT_NEAR(texts.value(u"a"_s).top() - texts.value(u"x"_s).bottom(), 0.25, 0.02);
        EXPECT_NEAR(texts.value(u"y"_s).top() - texts.value(u"a"_s).bottom(), 0.5, 0.02);
        EXPECT_NEAR(texts.value(u"c"_s).top() - texts.value(u"y"_s).bottom(), 0.25, 0.02);
    };
    tops({});
    tops(largerSpaces());
}

TEST(TablePlaces, KeepTheSpacesOfAnEmptyParagraphBetweenThem)
{
    const auto gap = [](const QByteArray& style) {
        const QMap<QString, QRectF> texts =
            textsOf(pairTable() + "<text:p text:style-name=\"" + style + "\"/>" +
                        pairTable("c", pairRow("c", "d")),
                    "");
        return texts.value(u"c"_s).top() - texts.value(u"a"_s).bottom();
    };
    EXPECT_NEAR(gap("space"), gap("") + 0.5 + 0.5, 0.02);
}

TEST(TablePlaces, AddTheSpacesOfParagraphsUnlessTheSettingsTakeTheLargerOne)
{
    const QByteArray body = "<text:p text:style-name=\"space\">x</text:p>" + pairTable() +
                            "<text:p text:style-name=\"space\">y</text:p>";
    const auto expectSpaces = [&body](const QByteArray& settings, double above, double below) {
        const QMap<QString, QRectF> texts =
            textsOf(body, "fo:margin-top=\"0.75cm\" fo:margin-bottom=\"0.25cm\"", "", "", settings);
        EXPECT_NEAR(texts.value(u"a"_s).top() - texts.value(u"x"_s).bottom(), above, 0.02);
        EXPECT_NEAR(texts.value(u"y"_s).top() - texts.value(u"a"_s).bottom(), below, 0.02);
    };
    expectSpaces({}, 1.25, 0.75);
    expectSpaces(largerSpaces(), 0.75, 0.5);
}
