// Objects in a text document: pictures in a line, beside lines, in cells and on the page.

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

constexpr double Inch = 72.0;

/// A page of 10 by 5 cm without margins whose body is this XML.
class TextPage
{
public:
    explicit TextPage(const QByteArray& body, const QByteArray& styles = {},
                      const QByteArray& masters = {}, const QByteArray& masterStyles = {})
    {
        const QByteArray content = "<office:document-content><office:automatic-styles>" + styles +
                                   "</office:automatic-styles><office:body><office:text>" + body +
                                   "</office:text></office:body></office:document-content>";
        m_import = repair::importRepaired(
            writePackage(m_folder.path(), content, drawingStyles({}, masterStyles, masters)));
        EXPECT_TRUE(m_import.isRepaired());
    }

    /// The text that contains these words; null if there is none.
    [[nodiscard]] RichTextItem* text(const QString& words) const
    {
        for (workbench::CanvasItem* const item : m_import.result.canvas->items()) {
            auto* const text = dynamic_cast<RichTextItem*>(item->contractItem());
            if (text != nullptr && text->toPlainText().contains(words)) {
                return text;
            }
        }
        ADD_FAILURE() << "no text " << words.toStdString();
        return nullptr;
    }

    /// The boxes of all objects of a kind, in their order. Those of texts are as wide as their
    /// column.
    [[nodiscard]] QList<QRectF> boxes(KestTypes::ShapeType type) const
    {
        QList<QRectF> boxes;
        for (const workbench::CanvasItem* const item : m_import.result.canvas->items()) {
            const workbench::ItemValues values = item->values();
            if (item->shapeType() == type && values.box.size.width() < 1.5 * Inch) {
                boxes.append({values.placement.position, values.box.size});
            }
        }
        return boxes;
    }
    /// The colors of their pens.
    [[nodiscard]] QStringList pens() const
    {
        QStringList pens;
        for (const workbench::CanvasItem* const item : m_import.result.canvas->items()) {
            const workbench::ItemValues values = item->values();
            if (item->shapeType() == KestTypes::Rectangle && values.box.size.width() < 1.5 * Inch) {
                const bool isDrawn = values.pen && values.pen->style != Qt::NoPen;
                pens.append(isDrawn ? values.pen->color.name() : u"none"_s);
            }
        }
        return pens;
    }
    [[nodiscard]] QRectF rectangle() const { return boxes(KestTypes::Rectangle).value(0); }

private:
    const QTemporaryDir m_folder;
    repair::RepairedImport m_import;
};

/// The lines of a text, on the page.
QList<QRectF> linesOf(const RichTextItem& text)
{
    QList<QRectF> lines;
    const QTextDocument& document = *text.document();
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
        const QPointF corner = document.documentLayout()->blockBoundingRect(block).topLeft();
        for (int i = 0; i < block.layout()->lineCount(); ++i) {
            lines.append(
                block.layout()->lineAt(i).naturalTextRect().translated(corner + text.pos()));
        }
    }
    return lines;
}

QByteArray rectangle(const QByteArray& anchor, const QByteArray& style = {},
                     const QByteArray& place = "svg:x=\"0in\" svg:y=\"0in\"")
{
    return "<draw:rect text:anchor-type=\"" + anchor + "\" draw:style-name=\"" + style +
           "\" svg:width=\"1in\" svg:height=\"0.5in\" " + place + "/>";
}

QByteArray graphicStyle(const QByteArray& name, const QByteArray& properties)
{
    return "<style:style style:name=\"" + name +
           "\" style:family=\"graphic\"><style:graphic-properties " + properties +
           "/></style:style>";
}

} // namespace

TEST(TextObjects, InALineAreBetweenTheirWords)
{
    const TextPage page("<text:p>before " + rectangle("as-char") +
                        " after</text:p>"
                        "<text:p>below</text:p>");
    const RichTextItem* const text = page.text(u"before"_s);
    ASSERT_NE(text, nullptr);
    const QList<QRectF> lines = linesOf(*text);
    ASSERT_EQ(lines.size(), 2);
    const QRectF box = page.rectangle();
    EXPECT_GT(box.left(), lines[0].left() + 20.0);
    EXPECT_LT(box.right(), lines[0].right() - 15.0);
    EXPECT_NEAR(box.top(), lines[0].top(), 1.0);
    EXPECT_LT(box.bottom(), lines[1].top());
    EXPECT_GT(lines[0].height(), Inch / 2.0);
}

TEST(TextObjects, AreNotConfusedWithCharactersOfTheDocument)
{
    // The characters that marks consist of, once in their own span.
    const QString own = u"a\uFFFCb\u200B\uFFFC"_s;
    const TextPage page("<text:p>a\uFFFC"
                        "b<text:span text:style-name=\"bold\">\u200B</text:span>"
                        "\uFFFC</text:p><text:p><text:span text:style-name=\"bold\">\u200B"
                        "</text:span></text:p><text:p>" +
                            rectangle("as-char") + "</text:p>",
                        "<style:style style:name=\"bold\" style:family=\"text\">"
                        "<style:text-properties fo:font-weight=\"bold\"/></style:style>");
    const RichTextItem* const text = page.text(u"b"_s);
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->document()->firstBlock().text(), own);
    EXPECT_EQ(text->document()->findBlockByNumber(1).text(), u"\u200B"_s);
    const QList<QRectF> lines = linesOf(*text);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_NEAR(page.rectangle().top(), lines[1].bottom(), 1.5);
    EXPECT_NEAR(page.rectangle().left(), 0.0, 0.1);
}

TEST(TextObjects, AloneInALineTakeNoOtherLine)
{
    const TextPage page("<text:p>" + rectangle("as-char") + "</text:p><text:p>below</text:p>");
    const RichTextItem* const text = page.text(u"below"_s);
    ASSERT_NE(text, nullptr);
    const QList<QRectF> lines = linesOf(*text);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_NEAR(page.rectangle().top(), 0.0, 1.0);
    EXPECT_LT(lines[1].top(), Inch / 2.0 + 8.0);
}

TEST(TextObjects, HaveLinesBesideThem)
{
    const QByteArray words = QByteArray("word ").repeated(60);
    for (const bool isLeft : {true, false}) {
        const TextPage page("<text:p>" +
                                rectangle("paragraph", "wrap", isLeft ? "" : "svg:x=\"2in\"") +
                                words + "</text:p>",
                            graphicStyle("wrap", "style:wrap=\"parallel\" fo:margin-left=\"0.1in\" "
                                                 "fo:margin-right=\"0.1in\""));
        const RichTextItem* const text = page.text(u"word word"_s);
        ASSERT_NE(text, nullptr);
        const QRectF box = page.rectangle();
        EXPECT_NEAR(box.left(), isLeft ? 0.0 : 2.0 * Inch, 0.1);
        int beside = 0;
        for (const QRectF& line : linesOf(*text)) {
            EXPECT_FALSE(line.intersects(box)) << line.top() << ' ' << line.left();
            beside += line.top() < box.bottom() ? 1 : 0;
        }
        EXPECT_GE(beside, 2);
    }
}

TEST(TextObjects, HaveWholeLinesAboveThem)
{
    const TextPage page("<text:p>" +
                            rectangle("paragraph", "wrap", "svg:x=\"0in\" svg:y=\"0.5in\"") +
                            QByteArray("word ").repeated(100) + "</text:p>",
                        graphicStyle("wrap", "style:wrap=\"parallel\""));
    const RichTextItem* const text = page.text(u"word word"_s);
    ASSERT_NE(text, nullptr);
    const QRectF box = page.rectangle();
    EXPECT_NEAR(box.top(), Inch / 2.0, 0.5);
    int above = 0;
    int beside = 0;
    for (const QRectF& line : linesOf(*text)) {
        EXPECT_FALSE(line.intersects(box.adjusted(0.0, 1.0, 0.0, -1.0))) << line.top();
        above += line.bottom() <= box.top() + 1.0 && line.left() < 1.0 ? 1 : 0;
        beside += line.top() < box.bottom() && line.left() > box.right() - 1.0 ? 1 : 0;
    }
    EXPECT_EQ(above, 2);
    EXPECT_GE(beside, 3);
}

TEST(TextObjects, WithoutLinesBesideThemAreAboveOrBelowTheirText)
{
    const QByteArray style = graphicStyle("none", "style:wrap=\"none\"");
    const TextPage above("<text:p>" + rectangle("paragraph", "none") + "words</text:p>", style);
    const TextPage below("<text:p>" +
                             rectangle("paragraph", "none", "svg:x=\"0in\" svg:y=\"0.3in\"") +
                             "words</text:p><text:p>next</text:p>",
                         style);
    ASSERT_NE(above.text(u"words"_s), nullptr);
    EXPECT_GE(above.text(u"words"_s)->pos().y(), above.rectangle().bottom() - 0.1);
    ASSERT_NE(below.text(u"next"_s), nullptr);
    EXPECT_GE(below.rectangle().top(), linesOf(*below.text(u"words"_s))[0].bottom() - 1.0);
    EXPECT_GE(below.text(u"next"_s)->pos().y(), below.rectangle().bottom() - 0.1);
}

TEST(TextObjects, KeepTheirDistanceBelowTheirText)
{
    const QByteArray style = graphicStyle("none", "style:wrap=\"none\"");
    const QByteArray object = rectangle("paragraph", "none", "svg:x=\"0in\" svg:y=\"0.8in\"");
    const TextPage alone("<text:p>" + object + "words</text:p>", style);
    ASSERT_NE(alone.text(u"words"_s), nullptr);
    const double top = alone.text(u"words"_s)->pos().y();
    EXPECT_NEAR(alone.rectangle().top() - top, 0.8 * Inch, 3.0);
    const TextPage page("<text:p>" + object +
                            "words</text:p><text:p>near</text:p><text:p>far"
                            "</text:p><text:p/><text:p/><text:p>last</text:p>",
                        style);
    ASSERT_NE(page.text(u"near"_s), nullptr);
    EXPECT_EQ(page.text(u"near"_s), page.text(u"words"_s)) << "above the object";
    EXPECT_NEAR(page.rectangle().top() - top, 0.8 * Inch, 3.0);
    ASSERT_NE(page.text(u"last"_s), nullptr);
    EXPECT_GE(page.text(u"last"_s)->pos().y(), page.rectangle().bottom() - 0.1);
}

TEST(TextObjects, ThatLinesRunThroughTakeNoRoom)
{
    const TextPage page("<text:p>first</text:p><text:p>" +
                            rectangle("paragraph", "through", "svg:x=\"1in\" svg:y=\"0.2in\"") +
                            "second</text:p><text:p>third</text:p>",
                        graphicStyle("through", "style:wrap=\"run-through\""));
    const RichTextItem* const text = page.text(u"second"_s);
    ASSERT_NE(text, nullptr);
    const QList<QRectF> lines = linesOf(*text);
    ASSERT_EQ(lines.size(), 3);
    EXPECT_LT(lines[2].top(), 2.5 * lines[1].height());
    EXPECT_NEAR(page.rectangle().left(), Inch, 0.1);
    EXPECT_NEAR(page.rectangle().top(), lines[1].top() + 0.2 * Inch, 1.0);
}

TEST(TextObjects, OnThePageHaveTheirSideOfIt)
{
    const TextPage page("<text:p>" + rectangle("page", "corner", "text:anchor-page-number=\"1\"") +
                            "words</text:p>",
                        graphicStyle("corner", "style:horizontal-pos=\"center\" "
                                               "style:horizontal-rel=\"page\" "
                                               "style:vertical-pos=\"bottom\" "
                                               "style:vertical-rel=\"page\""));
    const QRectF box = page.rectangle();
    EXPECT_NEAR(box.center().x(), 5.0 / 2.54 * Inch, 0.1);
    EXPECT_NEAR(box.bottom(), 5.0 / 2.54 * Inch, 0.1);
}

TEST(TextObjects, InCellsAreInTheirCell)
{
    const TextPage page("<text:p>above</text:p><table:table><table:table-column/>"
                        "<table:table-column/><table:table-row><table:table-cell><text:p>left"
                        "</text:p></table:table-cell><table:table-cell><text:p>" +
                        rectangle("as-char") +
                        "</text:p></table:table-cell></table:table-row></table:table>"
                        "<text:p>below</text:p>");
    const QRectF box = page.rectangle();
    EXPECT_NEAR(box.left(), 5.0 / 2.54 * Inch, 1.0);
    ASSERT_NE(page.text(u"above"_s), nullptr);
    EXPECT_GE(box.top(), linesOf(*page.text(u"above"_s))[0].bottom() - 1.0);
    ASSERT_NE(page.text(u"below"_s), nullptr);
    EXPECT_GE(page.text(u"below"_s)->pos().y(), box.bottom() - 1.0);
}

TEST(TextObjects, InGroupsKeepTheirPlaceInTheText)
{
    const TextPage page("<text:p>first</text:p><text:p><draw:g text:anchor-type=\"as-char\">" +
                        rectangle("as-char", {}, "svg:x=\"3in\" svg:y=\"2in\"") +
                        rectangle("as-char", {}, "svg:x=\"3in\" svg:y=\"2.5in\"") +
                        "</draw:g>second</text:p>");
    const QList<QRectF> boxes = page.boxes(KestTypes::Rectangle);
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_NEAR(boxes[0].left(), 0.0, 1.0);
    EXPECT_NEAR(boxes[1].top(), boxes[0].top() + Inch / 2.0, 0.1);
    ASSERT_NE(page.text(u"first"_s), nullptr);
    EXPECT_NEAR(boxes[0].top(), linesOf(*page.text(u"first"_s))[0].bottom(), 2.0);
}

TEST(TextObjects, InGroupsKeepTheirHeights)
{
    const auto box = [](const QByteArray& place) {
        return "<draw:rect draw:style-name=\"W\" svg:width=\"1in\" svg:height=\"0.4in\" " + place +
               "><text:p>words</text:p></draw:rect>";
    };
    const TextPage page("<text:p><draw:g text:anchor-type=\"paragraph\" draw:style-name=\"W\">" +
                            box("svg:x=\"0.2in\" svg:y=\"0in\"") +
                            box("svg:x=\"1.5in\" svg:y=\"1in\"") + "</draw:g>text</text:p>",
                        graphicStyle("W", "style:wrap=\"none\" draw:fill=\"solid\""));
    const QList<QRectF> boxes = page.boxes(KestTypes::Rectangle);
    ASSERT_EQ(boxes.size(), 2);
    EXPECT_NEAR(boxes[0].height(), 0.4 * Inch, 0.1);
    EXPECT_NEAR(boxes[1].height(), 0.4 * Inch, 0.1);
    EXPECT_NEAR(boxes[1].top(), boxes[0].top() + Inch, 0.1);
}

TEST(TextObjects, DrawnKeepTheirPlaceInTheText)
{
    const TextPage page("<text:p>first</text:p><text:p><draw:polygon text:anchor-type=\"as-char\" "
                        "svg:width=\"1in\" svg:height=\"0.5in\" svg:viewBox=\"0 0 10 10\" "
                        "draw:points=\"0,0 10,0 5,10\"/>second</text:p>");
    const QList<QRectF> boxes = page.boxes(KestTypes::Symbol);
    ASSERT_EQ(boxes.size(), 1);
    ASSERT_NE(page.text(u"first"_s), nullptr);
    EXPECT_NEAR(boxes[0].top(), linesOf(*page.text(u"first"_s))[0].bottom(), 3.0);
}

TEST(TextObjects, OfTheHeaderAreInIt)
{
    const TextPage page("<text:p>article</text:p>", {},
                        "<style:header><text:p text:style-name=\"red\">" + rectangle("as-char") +
                            "logo</text:p></style:header>",
                        "<style:style style:name=\"red\" style:family=\"paragraph\">"
                        "<style:text-properties fo:color=\"#ff0000\"/></style:style>");
    const RichTextItem* const header = page.text(u"logo"_s);
    ASSERT_NE(header, nullptr);
    EXPECT_TRUE(header->toHtml().contains("#ff0000"_L1)) << "the style of the master page";
    EXPECT_NEAR(page.rectangle().top(), header->pos().y(), 1.0);
    EXPECT_GT(linesOf(*header)[0].right(), page.rectangle().right());
}

// Watermarks are in headers.
TEST(TextObjects, OfTheHeaderAreBelowTheBody)
{
    const TextPage page("<text:p>" + rectangle("page", "body") + "</text:p>",
                        graphicStyle("body", "draw:stroke=\"solid\" svg:stroke-color=\"#00ff00\""),
                        "<style:header><text:p>" + rectangle("paragraph", "head") +
                            "</text:p></style:header>",
                        graphicStyle("head", "draw:stroke=\"solid\" svg:stroke-color=\"#ff0000\""));
    QStringList pens = page.pens();
    pens.removeAll(u"none"_s);
    EXPECT_EQ(pens, QStringList({u"#ff0000"_s, u"#00ff00"_s}));
}

TEST(TextObjects, HaveAnOutlineUnlessTheyStateNone)
{
    const TextPage page("<text:p>" + rectangle("as-char", "blue") + rectangle("as-char", "none") +
                            "words</text:p>",
                        graphicStyle("blue", "svg:stroke-color=\"#0000ff\"") +
                            graphicStyle("none", "draw:stroke=\"none\""));
    EXPECT_EQ(page.pens(), (QStringList{u"#0000ff"_s, u"none"_s}));
}
