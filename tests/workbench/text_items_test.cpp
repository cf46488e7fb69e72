// Position and size of texts, and how their boxes follow.

#include "painted_texts.h"

#include "host/items/rich_text_item.h"
#include "host/items/simple_text_item.h"
#include "workbench/items/canvas_item.h"
#include "workbench/items/label_document.h"
#include "workbench/items/text_layout.h"

#include <QFile>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QTextDocument>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using namespace Qt::StringLiterals;

const QString BlockText = u"HHHH"_s;

// Height of a capital letter of the default font at 1 point.
double capHeight()
{
    return QFontMetricsF(workbench::toFont({}, 1000)).capHeight() / 1000.0;
}

struct AlignmentRow
{
    Qt::Alignment alignment;
    bool left;
    bool right;
    bool top;
    bool bottom;
};

const AlignmentRow AlignmentRows[] = {
    {{}, true, false, true, false},
    {Qt::AlignLeft | Qt::AlignTop, true, false, true, false},
    {Qt::AlignRight, false, true, true, false},
    {Qt::AlignHCenter, false, false, true, false},
    {Qt::AlignBottom, true, false, false, true},
    {Qt::AlignRight | Qt::AlignBottom, false, true, false, true},
    {Qt::AlignHCenter | Qt::AlignVCenter, false, false, false, false},
};

void expectAligned(const QRect& ink, const QRect& box, const AlignmentRow& row)
{
    const int left = ink.left() - box.left();
    const int right = box.right() - ink.right();
    const int top = ink.top() - box.top();
    const int bottom = box.bottom() - ink.bottom();
    EXPECT_EQ(left < 4, row.left) << left;
    EXPECT_EQ(right < 4, row.right) << right;
    EXPECT_EQ(top < 8, row.top) << top;
    EXPECT_EQ(bottom < 8, row.bottom) << bottom;
    if (!row.left && !row.right) {
        EXPECT_NEAR(left, right, 2);
    }
    if (!row.top && !row.bottom) {
        EXPECT_NEAR(top, bottom, 5);
    }
}

} // namespace

TEST(TextSize, IsInPointsAtEveryResolution)
{
    for (const int size : {10, 20, 40}) {
        Painted page;
        putRich(page, u"HH"_s).setFontPointSize(size);
        EXPECT_NEAR(inkOf(page.image(288.0)).height(), size * capHeight() * 4.0, 2.0) << size;
        EXPECT_NEAR(inkOf(page.image(720.0)).height(), size * capHeight() * 10.0, 2.5) << size;
    }
}

TEST(TextSize, IsTheSameForBothTextKinds)
{
    Painted rich;
    putRich(rich, BlockText);
    Painted simple;
    putLabel(simple, BlockText, 12);
    EXPECT_EQ(inkOf(rich.image(288.0)).size(), inkOf(simple.image(288.0)).size());
}

TEST(TextSize, OfADocumentInDesktopPointsIsTheSameInScreenPixels)
{
    // Documents use 72 points per inch of the screen, the scene its
    // own units: importers convert, so that 12 units is the size that they request.
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    const QFontInfo info{QFont(u"Liberation Sans"_s, 12)};
    const double pointsPerPixel = info.pointSizeF() / info.pixelSize();
    item.setHtml(u"<p><span style=\"font-size:%1pt\">HHHH</span></p>"_s.arg(24.0 * pointsPerPixel));
    item.adjustBoxSizeToContent(190.0);
    EXPECT_NEAR(inkOf(page.image(288.0)).height(), 24 * capHeight() * 4.0, 3.0);
}

TEST(RichText, IsAlignedInItsBox)
{
    for (const AlignmentRow& row : AlignmentRows) {
        SCOPED_TRACE(row.alignment.toInt());
        Painted page;
        putRich(page, BlockText).setTextAlignment(row.alignment);
        expectAligned(page.ink(), QRect(50, 20, 100, 60), row);
    }
}

TEST(RichText, WrapsAtTheWidthOfItsBox)
{
    Painted page;
    putRich(page, u"several words that do not fit on one line"_s);
    const QRect ink = page.ink();
    EXPECT_LE(ink.right(), 151);
    EXPECT_GT(ink.height(), 25);
}

TEST(RichText, ALineFeedBeginsANewLine)
{
    Painted one;
    putRich(one, u"HH"_s);
    Painted two;
    putRich(two, u"HH\nHH"_s);
    EXPECT_NEAR(two.ink().height() - one.ink().height(), 14, 2);
    EXPECT_EQ(two.ink().width(), one.ink().width());
}

TEST(RichText, TextIsNotMarkup)
{
    Painted page;
    putRich(page, u"<b>H</b>"_s);
    Painted plain;
    putRich(plain, u"H"_s);
    EXPECT_GT(page.ink().width(), 2 * plain.ink().width());
}

TEST(RichText, OfPlainTextTakesTheWidthThatItNeeds)
{
    Painted page;
    auto& item = dynamic_cast<RichTextItem&>(putRich(page, BlockText));
    item.adjustBoxSizeToContent(190.0);
    const QSizeF natural = item.getItemSize();
    EXPECT_NEAR(natural.width(), page.ink().width(), 4.0);
    EXPECT_NEAR(natural.height(), 14.0, 1.5);

    item.adjustBoxSizeToContent(0.0);
    EXPECT_EQ(item.getItemSize(), natural);
    item.adjustBoxSizeToContent(natural.width() / 2.0);
    EXPECT_GT(item.getItemHeight(), 1.9 * natural.height());
    EXPECT_LE(item.getItemWidth(), natural.width() / 2.0 + 0.1);
}

TEST(RichText, ShrunkToItsTextIsPaintedOnAsManyLinesAsMeasured)
{
    Painted page;
    auto& item = dynamic_cast<RichTextItem&>(putRich(page, u"some few words"_s));
    item.adjustBoxSizeToContent(150.0);
    EXPECT_LT(page.ink().height(), 16);
    EXPECT_EQ(page.ink().left(), 50);
}

TEST(RichText, FontSizesThatNoLabelHasAreBounded)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<p><span style=\"font-size:1000000000pt\">Huge</span> and "
                 "<span style=\"font-size:12pt\">small</span></p>"_s);
    item.adjustBoxSizeToContent(150.0);
    EXPECT_FALSE(page.image().isNull());
    EXPECT_LT(item.getItemHeight(), 100'000.0);
}

TEST(SimpleText, WithoutASizeFillsItsBox)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::SimpleText);
    item.setItemSize(QSizeF(160.0, 80.0));
    item.setPos(20.0, 10.0);
    item.setText(u"HHHHHHHH"_s);
    const QRect wide = page.ink();
    EXPECT_GT(wide.width(), 145);
    EXPECT_LE(wide.width(), 160);

    item.setText(u"H"_s); // now the height limits it
    EXPECT_NEAR(page.ink().height(), 80.0 * capHeight() / 1.15, 5.0);
    item.setItemSize(QSizeF(160.0, 20.0));
    EXPECT_LT(page.ink().height(), 20);
}

TEST(SimpleText, ThatFillsItsBoxIsAlignedInWhatIsLeft)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::SimpleText);
    item.setItemSize(QSizeF(160.0, 40.0));
    item.setText(u"H"_s);
    EXPECT_LT(page.ink().left(), 10);
    item.setTextAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    EXPECT_NEAR(page.ink().center().x(), 80, 2);
    item.setTextAlignment(Qt::AlignRight);
    EXPECT_GT(page.ink().right(), 150);
}

TEST(SimpleText, OfNoTextFillsNothing)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::SimpleText);
    item.setItemSize(QSizeF(160.0, 40.0));
    EXPECT_TRUE(page.ink().isEmpty());
    item.setText(u"\n\n"_s);
    EXPECT_TRUE(page.ink().isEmpty());
}

TEST(SimpleText, WithASizeHasIt)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::SimpleText);
    item.setItemSize(QSizeF(160.0, 80.0));
    item.setText(BlockText);
    item.setFontPointSize(12);
    EXPECT_NEAR(inkOf(page.image(288.0)).height(), 12 * capHeight() * 4.0, 2.0);
}

TEST(SimpleText, AnEmptySizeDoesNotScale)
{
    Painted page;
    putLabel(page, BlockText, 0, 3, QSizeF(160.0, 80.0));
    EXPECT_NEAR(inkOf(page.image(288.0)).height(), 12 * capHeight() * 4.0, 2.0);
}

TEST(SimpleText, AFreeBoxFollowsTheText)
{
    Painted page;
    auto& item = putLabel(page, BlockText, 20);
    const QSizeF size = item.getItemSize();
    EXPECT_NEAR(size.width(), page.ink().width(), 4.0);
    EXPECT_NEAR(size.height(), 23.0, 2.0);
    item.setText(BlockText + BlockText);
    EXPECT_NEAR(item.getItemWidth(), 2.0 * size.width(), 0.5);
    item.setFontPointSize(40);
    EXPECT_NEAR(item.getItemHeight(), 2.0 * size.height(), 1.0);
}

TEST(SimpleText, AFixedWidthBreaksLinesAndTheHeightFollows)
{
    Painted page;
    auto& item = putLabel(page, u"HHHH HHHH HHHH"_s, 12, 1, QSizeF(50.0, 5.0));
    EXPECT_EQ(item.getItemWidth(), 50.0);
    EXPECT_NEAR(item.getItemHeight(), 3 * 13.8, 2.0);
    EXPECT_LE(page.ink().width(), 50);
}

TEST(SimpleText, AFixedHeightLeavesTheWidthToTheText)
{
    Painted page;
    auto& item = putLabel(page, u"HHHH HHHH HHHH"_s, 12, 2, QSizeF(5.0, 70.0));
    EXPECT_EQ(item.getItemHeight(), 70.0);
    EXPECT_GT(item.getItemWidth(), 100.0);
    EXPECT_LT(page.ink().height(), 14);
}

TEST(SimpleText, ABoxFixedOnBothSidesStaysAndAlignsItsText)
{
    for (const AlignmentRow& row : AlignmentRows) {
        SCOPED_TRACE(row.alignment.toInt());
        Painted page;
        auto& item = putLabel(page, BlockText, 12, 3, QSizeF(100.0, 60.0));
        item.setTextAlignment(row.alignment);
        item.setPos(50.0, 20.0);
        EXPECT_EQ(item.getItemSize(), QSizeF(100.0, 60.0));
        expectAligned(page.ink(), QRect(50, 20, 100, 60), row);
    }
}

TEST(SimpleText, StyleFlagsAreBoldItalicUnderlined)
{
    Painted page;
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    const auto fontAfter = [&item](bool bold, bool italic, bool underline) {
        item.importTextProperties(BlockText, 12, bold, italic, underline, Qt::AlignLeft);
        return *dynamic_cast<workbench::CanvasItem&>(item).values().font;
    };
    EXPECT_TRUE(fontAfter(true, false, false).bold);
    EXPECT_TRUE(fontAfter(false, true, false).italic);
    EXPECT_TRUE(fontAfter(false, false, true).underline);
    EXPECT_FALSE(fontAfter(false, true, true).bold);
}

TEST(SimpleText, IsRotatedAboutTheCenterOfItsTextsBox)
{
    Painted page;
    auto& item = putLabel(page, BlockText, 20);
    item.setPos(60.0, 40.0);
    const QPointF center = item.sceneBoundingRect().center();
    item.setItemRotation(90.0);
    item.setText(BlockText + BlockText);
    item.setItemRotation(0.0);
    item.setItemRotation(180.0);
    EXPECT_NEAR(item.sceneBoundingRect().center().y(), center.y(), 1.0);
    EXPECT_NEAR(page.ink().center().x(), 60.0 + item.getItemWidth() / 2.0, 2.0);
}

TEST(TextGround, AFillAndAFrameAreBehindTheText)
{
    for (const auto type : {KestTypes::SimpleText, KestTypes::RichText}) {
        Painted page;
        auto& item = page.make<TextItem>(type);
        item.setItemSize(QSizeF(100.0, 60.0));
        item.setPos(50.0, 20.0);
        item.setText(BlockText);
        item.setFillColor(Qt::yellow);
        EXPECT_EQ(page.at(148, 78), QColor(Qt::yellow));
        EXPECT_EQ(page.ink(), QRect(50, 20, 100, 60));
        item.setPenWidth(2);
        EXPECT_EQ(page.ink(), QRect(50, 20, 100, 60)); // no frame unless one is set
        item.setPenStyle(Qt::SolidLine);
        item.setPenColor(Qt::red);
        EXPECT_EQ(page.at(49, 50), QColor(Qt::red));
        EXPECT_EQ(page.ink(), QRect(49, 19, 102, 62));
    }
}

TEST(TextGround, CharactersHaveTheTextColor)
{
    for (const auto type : {KestTypes::SimpleText, KestTypes::RichText}) {
        Painted page;
        auto& item = page.make<TextItem>(type);
        item.setItemSize(QSizeF(150.0, 90.0));
        item.setText(BlockText);
        item.setFontPointSize(40);
        item.setTextColor(Qt::red);
        item.setPenColor(Qt::blue);
        const QImage image = page.image();
        EXPECT_GT(countOf(image, image.rect(), Qt::red), 50);
        EXPECT_EQ(countOf(image, image.rect(), Qt::blue), 0);
    }
}

TEST(TextGround, FlipsMirrorTheCharacters)
{
    Painted page;
    auto& item = putRich(page, u"L"_s);
    item.setFontPointSize(40);
    const QImage plain = page.image().copy(50, 20, 100, 60);
    item.setFlipHorizontal(true);
    const QImage mirrored = page.image().copy(50, 20, 100, 60);
    EXPECT_EQ(inkOf(mirrored), inkOf(plain.mirrored(true, false)));
}

TEST(TextFont, FamilyAndStyleAreSeen)
{
    const auto painted = [](const QString& family, bool bold, bool italic, bool underline) {
        Painted page;
        auto& item = putRich(page, u"Handling"_s);
        item.setFontFamily(family);
        item.setFontBold(bold);
        item.setFontItalic(italic);
        item.setFontUnderline(underline);
        return page.image();
    };
    const QString sans = u"Liberation Sans"_s;
    const QImage plain = painted(sans, false, false, false);
    EXPECT_NE(painted(u"Liberation Serif"_s, false, false, false), plain);
    EXPECT_NE(painted(sans, true, false, false), plain);
    EXPECT_NE(painted(sans, false, true, false), plain);
    EXPECT_NE(painted(sans, false, false, true), plain);
}

TEST(TextFont, FamiliesOfOtherSystemsAreReplacedByThoseOfTheSameWidths)
{
    const auto painted = [](const char* family) {
        Painted page;
        putRich(page, u"Handling"_s).setFontFamily(QString::fromLatin1(family));
        return page.image();
    };
    EXPECT_EQ(painted("Times New Roman"), painted("Liberation Serif"));
    EXPECT_EQ(painted("Courier New"), painted("Liberation Mono"));
    EXPECT_EQ(painted("_Nare Vol"), painted("Liberation Sans"));
    EXPECT_EQ(painted(""), painted("Liberation Sans"));
}

TEST(TextFont, ANumberedNameFindsItsFamily)
{
    const auto painted = [](const char* family) {
        Painted page;
        putRich(page, u"Handling"_s).setFontFamily(QString::fromLatin1(family));
        return page.image();
    };
    EXPECT_EQ(painted("Times New Roman1"), painted("Liberation Serif"));
    EXPECT_EQ(painted("Liberation Mono 12"), painted("Liberation Mono"));
    EXPECT_EQ(painted("1"), painted("Liberation Sans"));
}

TEST(TextFont, ANumberedNameInADocumentFindsItsFamily)
{
    const auto painted = [](const char* family) {
        Painted page;
        auto& item = putRich(page, QString());
        item.setHtml(u"<p><span style=\"font-family:'%1'\">Handling</span></p>"_s.arg(
            QString::fromLatin1(family)));
        return page.image();
    };
    EXPECT_EQ(painted("Courier New1"), painted("Liberation Mono"));
    EXPECT_EQ(painted("Liberation Serif7"), painted("Liberation Serif"));
}

TEST(TextSize, LinesAreAsHighAsTheFontSays)
{
    // 0.905 and 0.212 of the size, above and below the base line.
    constexpr double share = 1.117;
    for (const int size : {5, 7, 9, 40}) {
        workbench::FontValues font;
        font.family = u"Liberation Sans"_s;
        const workbench::PlainText text{u"one\ntwo\nthree"_s, workbench::toFont(font, size),
                                        Qt::AlignLeft};
        EXPECT_NEAR(workbench::measureText(text, 0.0).height(), 3 * share * size, 0.05) << size;
    }
}

TEST(RichText, InANarrowBoxBreaksBetweenWordsFirst)
{
    workbench::FontValues font;
    font.family = u"Liberation Sans"_s;
    workbench::PlainText text{u"weight"_s, workbench::toFont(font, 10), Qt::AlignLeft};
    const double word = workbench::measureText(text, 0.0).width();
    const double line = workbench::measureText(text, 0.0).height();
    text.text = u"net weight"_s;
    text.wraps = true;
    EXPECT_NEAR(workbench::measureText(text, word + 1.0).height(), 2 * line, 0.01);
    EXPECT_LE(workbench::measureText(text, word + 1.0).width(), word + 0.5);
    // A word that is wider than the box is broken, but not before the word before it.
    EXPECT_NEAR(workbench::measureText(text, word * 0.7).height(), 3 * line, 0.01);
}
