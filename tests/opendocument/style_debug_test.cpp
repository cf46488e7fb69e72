// The styles as records of the debug log.

#include "tests/support/captured_log.h"

#include "opendocument/open_office_reader.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(StyleDebug, TextStyleIsOneRecord)
{
    OpenOfficeReader::OOTextStyle style;
    style.italic = true;
    style.alignment = Qt::AlignRight;
    style.margins = {1, 2, 3, 4};
    style.textColor = u"#123456"_s;
    const CapturedLog log;
    style.debugContent();
    ASSERT_EQ(log.records().size(), 1);
    const auto& record = log.records().first();
    EXPECT_EQ(record.level, Logger::Debug);
    EXPECT_EQ(record.source, u"open_office_reader"_s);
    EXPECT_EQ(record.function, u"void OpenOfficeReader::OOTextStyle::debugContent()"_s);
    EXPECT_EQ(record.message.trimmed(),
              u"font \"_Nare Vol\" 12 false true false paragraph "
              "QFlags<Qt::AlignmentFlag>(AlignRight|AlignTrailing) 1 \nmargins 1 2 3 4 "
              "textColor: \"#123456\""_s);
}

TEST(StyleDebug, GraphicStyleIsOneRecord)
{
    OpenOfficeReader::OOGraphicStyle style;
    style.horizontalPos = Qt::AlignHCenter;
    style.verticalPos = Qt::AlignTop;
    style.margins = {1, 2, 3, 4};
    style.mirrorVertical = true;
    style.wrap = 3;
    style.penStyle = Qt::DashLine;
    style.penWidth = 2;
    style.penColor = u"#123456"_s;
    const CapturedLog log;
    style.debugContent();
    ASSERT_EQ(log.records().size(), 1);
    const auto& record = log.records().first();
    EXPECT_EQ(record.level, Logger::Debug);
    EXPECT_EQ(record.function, u"void OpenOfficeReader::OOGraphicStyle::debugContent() const"_s);
    EXPECT_EQ(record.message.trimmed(),
              u"alignment QFlags<Qt::AlignmentFlag>(AlignHCenter) "
              "QFlags<Qt::AlignmentFlag>(AlignTop) \nanchorParagraph true margins 1 2 3 4 "
              "props false true 500 \nwrap 3 0 = none; 1 = left; 2 = right; 3 = parallel; "
              "4 = run-through foreground; 5 = run-through background; 6 = dynamic foreground; "
              "7 = dynamic background\n pen Qt::DashLine 2 \"#123456\""_s);
}
