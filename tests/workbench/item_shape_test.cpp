// The area of an item that a click hits: what is painted, not the box around it.
#include "painted.h"

#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/simple_text_item.h"

#include <QGraphicsItem>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

template <class Class>
Class& makeBox(Painted& page, KestTypes::ShapeType type)
{
    auto& item = page.make<Class>(type);
    item.setItemSize({100.0, 60.0});
    return item;
}

} // namespace

TEST(ItemShape, OfAFrameIsItsLineAndOfAFilledShapeItsInside)
{
    Painted page;
    auto& item = makeBox<RectangleItem>(page, KestTypes::Rectangle);
    item.setPenWidth(2);
    item.setFilled(false);
    EXPECT_TRUE(item.shape().contains({50.0, 0.5}));
    EXPECT_FALSE(item.shape().contains({50.0, 30.0}));
    EXPECT_FALSE(item.shape().contains({50.0, -3.0}));

    item.setFilled(true);
    item.setFillColor(Qt::yellow);
    EXPECT_TRUE(item.shape().contains({50.0, 30.0}));
    EXPECT_TRUE(item.shape().contains({50.0, -0.5}));
    EXPECT_FALSE(item.shape().contains({50.0, -3.0}));

    item.setFillColor(Qt::transparent);
    EXPECT_FALSE(item.shape().contains({50.0, 30.0}));
    item.setPenStyle(Qt::NoPen);
    EXPECT_TRUE(item.shape().isEmpty());
}

TEST(ItemShape, OfADashedLineHasNoGaps)
{
    Painted page;
    auto& item = page.make<LineItem>(KestTypes::Line);
    item.setLineLength(100.0);
    item.setPenWidth(2);
    item.setPenStyle(Qt::DotLine);
    for (int x = 1; x < 99; ++x) {
        EXPECT_TRUE(item.shape().contains(QPointF(x, 0.0))) << x;
    }
    EXPECT_FALSE(item.shape().contains({50.0, 3.0}));
}

TEST(ItemShape, IsMirroredWithItsItem)
{
    Painted page;
    auto& item = makeBox<PieItem>(page, KestTypes::Pie);
    item.setFillColor(Qt::yellow);
    // The upper right quarter is missing.
    EXPECT_FALSE(item.shape().contains({70.0, 15.0}));
    EXPECT_TRUE(item.shape().contains({30.0, 15.0}));
    item.setFlipHorizontal(true);
    EXPECT_TRUE(item.shape().contains({70.0, 15.0}));
    EXPECT_FALSE(item.shape().contains({30.0, 15.0}));
}

TEST(ItemShape, OfATextIsItsLinesWhereTheyAreAligned)
{
    Painted page;
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    item.setFillColor(Qt::transparent);
    item.setItemSize({200.0, 60.0});
    item.setText(u"ab"_s);
    item.setFontPointSize(12);
    item.setTextAlignment(Qt::AlignLeft | Qt::AlignTop);
    EXPECT_TRUE(item.shape().contains({4.0, 8.0}));
    EXPECT_FALSE(item.shape().contains({100.0, 8.0}));
    EXPECT_FALSE(item.shape().contains({4.0, 40.0}));
    item.setTextAlignment(Qt::AlignRight | Qt::AlignBottom);
    EXPECT_TRUE(item.shape().contains({196.0, 52.0}));
    EXPECT_FALSE(item.shape().contains({4.0, 8.0}));
    item.setTextAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    EXPECT_TRUE(item.shape().contains({100.0, 30.0}));
    EXPECT_FALSE(item.shape().contains({4.0, 8.0}));
}

TEST(ItemShape, OfATextThatFillsItsBoxIsTheScaledLine)
{
    Painted page;
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    item.setFillColor(Qt::transparent);
    item.setItemSize({400.0, 40.0});
    item.setText(u"ab"_s);
    EXPECT_TRUE(item.shape().contains({10.0, 20.0}));
    EXPECT_FALSE(item.shape().contains({390.0, 20.0}));
}

TEST(ItemShape, OfADocumentIsItsParagraphs)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setFillColor(Qt::transparent);
    item.setItemSize({200.0, 100.0});
    item.setHtml(u"<p align=\"right\">ab</p>"_s);
    EXPECT_TRUE(item.shape().contains({195.0, 8.0}));
    EXPECT_FALSE(item.shape().contains({10.0, 8.0}));
    EXPECT_FALSE(item.shape().contains({195.0, 80.0}));
}

TEST(ItemShape, OfATextWithAGroundIsTheGround)
{
    Painted page;
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    item.setItemSize({200.0, 60.0});
    item.setText(u"ab"_s);
    item.setFontPointSize(12);
    item.setFillColor(Qt::yellow);
    EXPECT_TRUE(item.shape().contains({150.0, 50.0}));
}

TEST(ItemShape, OfAnEmptyTextIsItsBox)
{
    Painted page;
    auto& item = page.make<SimpleTextItem>(KestTypes::SimpleText);
    item.setFillColor(Qt::transparent);
    item.setItemSize({200.0, 60.0});
    EXPECT_TRUE(item.shape().contains({100.0, 30.0}));
}
