// Borders of paragraphs.

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

constexpr double PageWidth = 10.0 * 72.0 / 2.54;
constexpr double Thinnest = 0.01;

/// What a page shows, in points: the boxes without text, by their color, and the lines of its
/// texts, by their words.
struct ShownBorders
{
    QMultiMap<QString, QRectF> boxes;
    QMap<QString, QRectF> lines;
};

ShownBorders bordersShownOn(const repair::RepairedImport& import)
{
    ShownBorders shown;
    for (workbench::CanvasItem* const item : import.result.canvas->items()) {
        const workbench::ItemValues values = item->values();
        auto* const text = dynamic_cast<RichTextItem*>(item->contractItem());
        if (text == nullptr && values.box.size.width() > Thinnest && values.fill) {
            shown.boxes.insert(values.fill->color.name(),
                               {values.placement.position, values.box.size});
        }
        for (QTextBlock block = text != nullptr ? text->document()->begin() : QTextBlock();
             block.isValid(); block = block.next()) {
            const QTextLine line = block.layout()->lineAt(0);
            const QRectF around = text->document()->documentLayout()->blockBoundingRect(block);
            shown.lines.insert(block.text(),
                               {text->pos() + QPointF(line.x(), around.top() + line.y()),
                                QSizeF(line.naturalTextWidth(), line.height())});
        }
    }
    return shown;
}

QByteArray borderedContent(const QByteArray& body)
{
    const auto style = [](const QByteArray& name, const QByteArray& properties) {
        return "<style:style style:name=\"" + name +
               "\" style:family=\"paragraph\"><style:paragraph-properties " + properties +
               "/></style:style>";
    };
    return "<office:document-content><office:automatic-styles>" +
           style("box", "fo:border=\"2pt solid #ff0000\" fo:padding=\"3pt\" "
                        "fo:margin-left=\"10pt\" fo:margin-right=\"20pt\"") +
           style("filled", "fo:border-left=\"1pt solid #ff0000\" fo:padding=\"4pt\" "
                           "fo:background-color=\"#0000ff\"") +
           style("rule", "fo:border-bottom=\"1pt solid #ff0000\" fo:padding-bottom=\"2pt\"") +
           style("next", "fo:break-before=\"page\"") +
           "</office:automatic-styles><office:body><office:text>" + body +
           "</office:text></office:body></office:document-content>";
}

ShownBorders bordersShownBy(const QByteArray& body)
{
    const QTemporaryDir folder;
    const repair::RepairedImport import =
        repair::importRepaired(writePackage(folder.path(), borderedContent(body), drawingStyles()));
    EXPECT_TRUE(import.isRepaired());
    return bordersShownOn(import);
}

QByteArray borderedParagraph(const QByteArray& style, const QByteArray& text)
{
    return "<text:p text:style-name=\"" + style + "\">" + text + "</text:p>";
}

void expectBorder(const QRectF& box, const QRectF& expected)
{
    constexpr double Nearly = 0.4; // texts are a little wider than their column
    EXPECT_NEAR(box.left(), expected.left(), Nearly);
    EXPECT_NEAR(box.top(), expected.top(), Nearly);
    EXPECT_NEAR(box.width(), expected.width(), Nearly);
    EXPECT_NEAR(box.height(), expected.height(), Nearly);
}

/// The boxes of this color: those that are higher than wide first, from left to right, then the
/// others from top to bottom.
QList<QRectF> sortedBorders(const ShownBorders& shown, const QString& color)
{
    QList<QRectF> boxes = shown.boxes.values(color);
    const auto key = [](const QRectF& box) {
        const bool isUpright = box.height() > box.width();
        return std::pair(isUpright ? 0 : 1, isUpright ? box.left() : box.top());
    };
    std::sort(boxes.begin(), boxes.end(),
              [&key](const QRectF& a, const QRectF& b) { return key(a) < key(b); });
    return boxes;
}

} // namespace

TEST(ParagraphEdges, AreAroundTheLines)
{
    const ShownBorders shown = bordersShownBy(
        "<text:p>above</text:p>" + borderedParagraph("box", "boxed") + "<text:p>below</text:p>");
    const QList<QRectF> sides = sortedBorders(shown, u"#ff0000"_s);
    ASSERT_EQ(sides.size(), 4);
    const QRectF line = shown.lines.value(u"boxed"_s);
    const double top = shown.lines.value(u"above"_s).bottom();
    const double bottom = shown.lines.value(u"below"_s).top();
    EXPECT_NEAR(line.left(), 10.0 + 2.0 + 3.0, 0.1) << "the text is within the border";
    EXPECT_NEAR(line.top(), top + 2.0 + 3.0, 0.3);
    EXPECT_NEAR(line.bottom(), bottom - 2.0 - 3.0, 0.3);
    const QRectF border(QPointF(10.0, line.top() - 5.0),
                        QPointF(PageWidth - 20.0, line.bottom() + 5.0));
    expectBorder(sides[0], {border.left(), border.top(), 2.0, border.height()});
    expectBorder(sides[1], {border.right() - 2.0, border.top(), 2.0, border.height()});
    expectBorder(sides[2], {border.left(), border.top(), border.width(), 2.0});
    expectBorder(sides[3], {border.left(), border.bottom() - 2.0, border.width(), 2.0});
}

TEST(ParagraphEdges, OfAnEmptyParagraphAreARule)
{
    const ShownBorders shown = bordersShownBy(
        "<text:p>above</text:p>" + borderedParagraph("rule", "") + "<text:p>below</text:p>");
    ASSERT_EQ(shown.boxes.count(u"#ff0000"_s), 1);
    const double bottom = shown.lines.value(u"below"_s).top();
    expectBorder(shown.boxes.value(u"#ff0000"_s), {0.0, bottom - 1.0, PageWidth, 1.0});
    EXPECT_GT(bottom - shown.lines.value(u"above"_s).bottom(), 12.0) << "an empty line above it";
}

TEST(ParagraphEdges, AreThereWithoutWords)
{
    const ShownBorders shown = bordersShownBy(borderedParagraph("rule", ""));
    ASSERT_EQ(shown.boxes.count(u"#ff0000"_s), 1);
    expectBorder(shown.boxes.value(u"#ff0000"_s), {0.0, 1.15 * 12.0 + 2.0, PageWidth, 1.0});
}

TEST(ParagraphEdges, AreAroundParagraphsWithTheSameBorder)
{
    const ShownBorders shown =
        bordersShownBy(borderedParagraph("box", "one") + borderedParagraph("box", "two") +
                       borderedParagraph("rule", "three"));
    QList<QRectF> sides = shown.boxes.values(u"#ff0000"_s);
    sides.removeIf([](const QRectF& side) { return side.height() > 3.0; });
    ASSERT_EQ(sides.size(), 3) << "above the first, below the second and third one";
    const double first = shown.lines.value(u"one"_s).top();
    const double second = shown.lines.value(u"two"_s).top();
    for (const QRectF& side : sides) {
        EXPECT_FALSE(side.top() > first && side.top() < second);
    }
    double left = 0.0;
    for (const QRectF& side : shown.boxes.values(u"#ff0000"_s)) {
        left += side.height() > 3.0 && side.left() < 12.0 ? side.height() : 0.0;
    }
    EXPECT_NEAR(left, shown.lines.value(u"two"_s).bottom() + 5.0 - (first - 5.0), 0.2)
        << "without a gap";
}

TEST(ParagraphEdges, HaveTheGroundOfTheParagraphWithinThem)
{
    const ShownBorders shown = bordersShownBy(borderedParagraph("filled", "words"));
    ASSERT_EQ(shown.boxes.values(u"#0000ff"_s).size(), 1);
    const QRectF line = shown.lines.value(u"words"_s);
    expectBorder(shown.boxes.value(u"#0000ff"_s), {0.0, line.top(), PageWidth, line.height()});
}

TEST(ParagraphEdges, AreOnThePageOfTheParagraph)
{
    const QTemporaryDir folder;
    QByteArray body;
    for (int i = 0; i < 12; ++i) {
        body += "<text:p>full</text:p>";
    }
    const repair::RepairedImport first = repair::importRepaired(writePackage(
        folder.path(), borderedContent(body + borderedParagraph("rule", "last")), drawingStyles()));
    ASSERT_TRUE(first.document);
    ASSERT_EQ(first.document->pageCount(), 2);
    EXPECT_EQ(bordersShownOn(first).boxes.count(u"#ff0000"_s), 0);
    const ShownBorders second = bordersShownOn(repair::importFurtherPage(*first.document, 2));
    ASSERT_EQ(second.boxes.count(u"#ff0000"_s), 1);
    const QRectF line = second.lines.value(u"last"_s);
    expectBorder(second.boxes.value(u"#ff0000"_s), {0.0, line.bottom() + 2.0, PageWidth, 1.0});
}

TEST(ParagraphEdges, AreInTheCellOfTheirParagraph)
{
    const ShownBorders shown = bordersShownBy(
        "<text:p>above</text:p><table:table><table:table-column "
        "table:number-columns-repeated=\"2\"/><table:table-row><table:table-cell/>"
        "<table:table-cell>" +
        borderedParagraph("rule", "words") + "</table:table-cell></table:table-row></table:table>");
    ASSERT_EQ(shown.boxes.count(u"#ff0000"_s), 1);
    const QRectF line = shown.lines.value(u"words"_s);
    expectBorder(shown.boxes.value(u"#ff0000"_s),
                 {PageWidth / 2.0, line.bottom() + 2.0, PageWidth / 2.0, 1.0});
}
