// The spaces above and below the paragraphs of a text document.

#include "tests/repair/documents.h"

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"

#include <QAbstractTextDocumentLayout>
#include <QTemporaryDir>
#include <QTextBlock>
#include <QTextLayout>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const QByteArray SpacedStyles =
    "<style:style style:name=\"plain\" style:family=\"paragraph\"><style:paragraph-properties "
    "fo:margin-top=\"10pt\" fo:margin-bottom=\"6pt\"/></style:style>"
    "<style:style style:name=\"near\" style:family=\"paragraph\"><style:paragraph-properties "
    "fo:margin-top=\"10pt\" fo:margin-bottom=\"6pt\" style:contextual-spacing=\"true\"/>"
    "</style:style>"
    "<style:style style:name=\"all\" style:family=\"paragraph\" style:parent-style-name=\"plain\">"
    "<style:paragraph-properties fo:margin=\"2pt\"/></style:style>";

QByteArray spacedParagraph(const QByteArray& style, const QByteArray& text)
{
    return "<text:p text:style-name=\"" + style + "\">" + text + "</text:p>";
}

QByteArray spaceSettings(const QByteArray& name, const QByteArray& value)
{
    return "<office:document-settings><office:settings><config:config-item-set><config:config-item "
           "config:name=\"" +
           name + "\" config:type=\"boolean\">" + value +
           "</config:config-item></config:config-item-set></office:settings>"
           "</office:document-settings>";
}

/// The tops of all lines, by their texts, in points on the page.
QMap<QString, double> lineTopsOf(const QByteArray& body, const QByteArray& settingsMember = {})
{
    const QTemporaryDir folder;
    const QByteArray content =
        "<office:document-content><office:automatic-styles><style:style style:name=\"copy\" "
        "style:family=\"paragraph\" style:parent-style-name=\"near\"/></office:automatic-styles>"
        "<office:body><office:text>" +
        body + "</office:text></office:body></office:document-content>";
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), content, drawingStyles(SpacedStyles),
                                            {{u"settings.xml"_s, settingsMember}}));
    QMap<QString, double> tops;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        auto* const text = dynamic_cast<RichTextItem*>(item->contractItem());
        if (text == nullptr) {
            continue;
        }
        const QTextDocument& document = *text->document();
        for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
            const double top = document.documentLayout()->blockBoundingRect(block).top();
            tops.insert(block.text(), text->pos().y() + top + block.layout()->lineAt(0).y());
        }
    }
    return tops;
}

/// Between the tops of two lines, without the height of one.
double spaceBetween(const QMap<QString, double>& lines, const QString& first, const QString& second)
{
    EXPECT_TRUE(lines.contains(first) && lines.contains(second))
        << lines.keys().join(u'|').toStdString();
    static const double height = [] {
        const QMap<QString, double> plain = lineTopsOf("<text:p>a</text:p><text:p>b</text:p>");
        return plain.value(u"b"_s) - plain.value(u"a"_s);
    }();
    return lines.value(second) - lines.value(first) - height;
}

const QByteArray TwoPlain = spacedParagraph("plain", "a") + spacedParagraph("plain", "b");

QByteArray spacedCell(const QByteArray& text)
{
    return "<table:table><table:table-column/><table:table-row><table:table-cell>" + text +
           "</table:table-cell></table:table-row></table:table>";
}

} // namespace

TEST(ParagraphSpaces, AddUp)
{
    EXPECT_NEAR(spaceBetween(lineTopsOf(TwoPlain), u"a"_s, u"b"_s), 16.0, 0.1);
    EXPECT_NEAR(spaceBetween(lineTopsOf(TwoPlain, spaceSettings("AddParaTableSpacing", "true")),
                             u"a"_s, u"b"_s),
                16.0, 0.1);
}

TEST(ParagraphSpaces, AreTheLargerOneIfTheSettingsSaySo)
{
    const QByteArray larger = spaceSettings("AddParaTableSpacing", "false");
    EXPECT_NEAR(spaceBetween(lineTopsOf(TwoPlain, larger), u"a"_s, u"b"_s), 10.0, 0.1);
    const QByteArray lowerSpace = spacedParagraph("plain", "a") + spacedParagraph("", "b");
    EXPECT_NEAR(spaceBetween(lineTopsOf(lowerSpace, larger), u"a"_s, u"b"_s), 6.0, 0.1);
    EXPECT_NEAR(spaceBetween(lineTopsOf(TwoPlain, "no XML"), u"a"_s, u"b"_s), 16.0, 0.1);
}

TEST(ParagraphSpaces, HaveNoGapsOfFontsInLinesIfTheSettingsDenyThem)
{
    const QByteArray body = "<text:p>a</text:p><text:p>b</text:p>";
    const auto height = [&body](const QByteArray& value) {
        const QMap<QString, double> lines =
            lineTopsOf(body, spaceSettings("AddExternalLeading", value));
        return lines.value(u"b"_s) - lines.value(u"a"_s);
    };
    EXPECT_LT(height("false"), 0.98 * height("true"));
    EXPECT_GT(height("false"), 0.94 * height("true"));
}

TEST(ParagraphSpaces, AreNotBetweenParagraphsOfAContextualStyle)
{
    const QMap<QString, double> lines =
        lineTopsOf(spacedParagraph("near", "a") + spacedParagraph("copy", "b") +
                   spacedParagraph("plain", "c"));
    EXPECT_NEAR(spaceBetween(lines, u"a"_s, u"b"_s), 0.0, 0.1) << "a copy has the same style";
    EXPECT_NEAR(spaceBetween(lines, u"b"_s, u"c"_s), 16.0, 0.1) << "another style";
}

TEST(ParagraphSpaces, ThatAreStatedForAllSidesReplaceThoseOfTheParent)
{
    const QMap<QString, double> lines =
        lineTopsOf(spacedParagraph("all", "a") + spacedParagraph("all", "b"));
    EXPECT_NEAR(spaceBetween(lines, u"a"_s, u"b"_s), 4.0, 0.1);
}

TEST(ParagraphSpaces, AreAboveTheFirstParagraphUnlessTheSettingsDenyThem)
{
    const QByteArray none = spaceSettings("AddParaTableSpacingAtStart", "false");
    const auto top = [](const QByteArray& body, const QByteArray& member = {}) {
        return lineTopsOf(body, member).value(u"a"_s);
    };
    EXPECT_NEAR(top(TwoPlain) - top(TwoPlain, none), 10.0, 0.1);
    const QByteArray inCell = spacedCell(spacedParagraph("plain", "a"));
    EXPECT_NEAR(top(inCell) - top(inCell, none), 10.0, 0.1);
    const QByteArray afterCell =
        spacedCell(spacedParagraph("", "x")) + spacedParagraph("plain", "a");
    EXPECT_NEAR(top(afterCell), top(afterCell, none), 0.1) << "not the first one of the page";
}

TEST(ParagraphSpaces, AreBelowTheLastParagraphOfACellUnlessTheSettingsDenyThem)
{
    const QByteArray body = spacedCell(spacedParagraph("plain", "a")) + spacedParagraph("", "b");
    EXPECT_NEAR(spaceBetween(lineTopsOf(body), u"a"_s, u"b"_s), 6.0, 0.1);
    EXPECT_NEAR(spaceBetween(lineTopsOf(body, spaceSettings("AddParaSpacingToTableCells", "false")),
                             u"a"_s, u"b"_s),
                0.0, 0.1);
}
