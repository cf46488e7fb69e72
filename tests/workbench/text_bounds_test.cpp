// Texts that no label has are painted all the same, within bounds.

#include "painted_texts.h"

#include "host/items/rich_text_item.h"

#include <gtest/gtest.h>

namespace {

const QString kMegabyte = QStringLiteral("word ").repeated(200'000);

} // namespace

// A megabyte in one run: the time that it takes is bounded by the test's time limit.
TEST(TextBounds, ALongRichTextIsPainted)
{
    Painted page;
    auto& item = dynamic_cast<RichTextItem&>(putRich(page, kMegabyte));
    item.adjustBoxSizeToContent(100.0);
    EXPECT_GT(item.getItemHeight(), 1'000.0);
    EXPECT_FALSE(page.ink().isEmpty());
}

TEST(TextBounds, ALongSimpleTextIsPainted)
{
    Painted page;
    EXPECT_GT(putLabel(page, kMegabyte, 12).getItemWidth(), 1'000.0);
    EXPECT_FALSE(page.ink().isEmpty());
}

TEST(TextBounds, ALongScaledTextIsPainted)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::SimpleText);
    item.setItemSize(QSizeF(100.0, 60.0));
    item.setText(kMegabyte);
    EXPECT_FALSE(page.image().isNull());
}

TEST(TextBounds, ALongDocumentIsPainted)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(QStringLiteral("<p>%1</p>").arg(kMegabyte));
    item.adjustBoxSizeToContent(100.0);
    EXPECT_GT(item.getItemHeight(), 1'000.0);
    EXPECT_FALSE(page.ink().isEmpty());
}

TEST(TextBounds, LargestFontAndLongestTextTogetherArePainted)
{
    Painted page;
    auto& item = putLabel(page, QStringLiteral("W").repeated(20'000), 2'000'000'000);
    EXPECT_GT(item.getItemWidth(), 1'000.0);
    EXPECT_FALSE(page.image().isNull());
}
