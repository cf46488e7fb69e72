// Extreme texts are painted too, within limits.

#include "painted_texts.h"

#include "host/items/rich_text_item.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Megabyte = u"word "_s.repeated(200'000);

} // namespace

// A megabyte in one run: the test's timeout limits its time.
TEST(TextBounds, ALongRichTextIsPainted)
{
    Painted page;
    auto& item = dynamic_cast<RichTextItem&>(putRich(page, Megabyte));
    item.adjustBoxSizeToContent(100.0);
    EXPECT_GT(item.getItemHeight(), 1'000.0);
    EXPECT_FALSE(page.ink().isEmpty());
}

TEST(TextBounds, ALongSimpleTextIsPainted)
{
    Painted page;
    EXPECT_GT(putLabel(page, Megabyte, 12).getItemWidth(), 1'000.0);
    EXPECT_FALSE(page.ink().isEmpty());
}

TEST(TextBounds, LettersAndLinesBeyondTheBoundTakeNoRoom)
{
    const auto sizeOf = [](const QString& text) {
        Painted page;
        const SimpleTextItem& item = putLabel(page, text, 12);
        return QSizeF(item.getItemWidth(), item.getItemHeight());
    };
    const QSizeF most = sizeOf(QString(10'000, u'x'));
    EXPECT_LT(sizeOf(QString(9'999, u'x')).width(), most.width());
    EXPECT_EQ(sizeOf(QString(10'001, u'x')), most);
    const QSizeF tallest = sizeOf(QString(4'999, u'\n'));
    EXPECT_LT(sizeOf(QString(4'998, u'\n')).height(), tallest.height());
    EXPECT_EQ(sizeOf(QString(5'000, u'\n')), tallest);
}

TEST(TextBounds, ALongScaledTextIsPainted)
{
    Painted page;
    auto& item = page.make<TextItem>(KestTypes::SimpleText);
    item.setItemSize(QSizeF(100.0, 60.0));
    item.setText(Megabyte);
    EXPECT_FALSE(page.image().isNull());
}

TEST(TextBounds, ALongDocumentIsPainted)
{
    Painted page;
    auto& item = page.make<RichTextItem>(KestTypes::RichText);
    item.setHtml(u"<p>%1</p>"_s.arg(Megabyte));
    item.adjustBoxSizeToContent(100.0);
    EXPECT_GT(item.getItemHeight(), 1'000.0);
    EXPECT_FALSE(page.ink().isEmpty());
}

TEST(TextBounds, LargestFontAndLongestTextTogetherArePainted)
{
    Painted page;
    auto& item = putLabel(page, u"W"_s.repeated(20'000), 2'000'000'000);
    EXPECT_GT(item.getItemWidth(), 1'000.0);
    EXPECT_FALSE(page.image().isNull());
}
