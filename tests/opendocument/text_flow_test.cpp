// The arithmetic of a paragraph in a text document.

#include "opendocument/text_flow.h"

#include "opendocument/graphic_style.h"

#include <gtest/gtest.h>

using namespace opendocument;

namespace {

constexpr double PageWidth = 600;

FramePlacement frame(int wrap)
{
    return {.x = 50, .height = 30, .width = 100, .z = 7000, .wrap = wrap};
}

ParagraphFlow behind(int wrap)
{
    ParagraphFlow flow(PageWidth);
    flow.passFrame(frame(wrap));
    return flow;
}

OOTextStyle aligned(Qt::Alignment alignment)
{
    OOTextStyle style;
    style.alignment = alignment;
    style.margins = {0, 0, 10, 30};
    return style;
}

} // namespace

TEST(ParagraphFlow, BeginsAtTheStartOfAnEmptyLine)
{
    ParagraphFlow flow(PageWidth);
    EXPECT_EQ(flow.availableWidth(), PageWidth);
    EXPECT_EQ(flow.cursor(), 0);
    EXPECT_EQ(flow.lineHeight(), 0);
    EXPECT_EQ(flow.blockOffset(), 0);
    EXPECT_EQ(flow.takeRunZ(), 0);
    EXPECT_EQ(flow.takeRunZ(), 0);
    EXPECT_EQ(flow.takeFullLine(), 0);
}

TEST(ParagraphFlow, AFrameWithoutWrapPushesTheTextDown)
{
    ParagraphFlow flow = behind(WrapRight);
    flow.passFrame(frame(WrapNone));
    flow.passFrame(frame(WrapNone));
    EXPECT_EQ(flow.blockOffset(), 60);
    EXPECT_EQ(flow.cursor(), 0);
}

TEST(ParagraphFlow, AFrameAtTheRightNarrowsTheText)
{
    for (const int wrap : {WrapLeft, WrapParallel}) {
        EXPECT_EQ(behind(wrap).availableWidth(), 600 - 100 - 4);
        EXPECT_EQ(behind(wrap).cursor(), 0);
        EXPECT_EQ(behind(wrap).blockOffset(), 0);
    }
}

TEST(ParagraphFlow, AFrameAtTheLeftMovesTheText)
{
    EXPECT_EQ(behind(WrapRight).cursor(), 150);
    EXPECT_EQ(behind(WrapRight).availableWidth(), 450);
}

TEST(ParagraphFlow, AFrameInTheBackgroundLiftsTheText)
{
    for (const int wrap : {WrapRunThroughBackground, WrapDynamicBackground}) {
        ParagraphFlow flow = behind(wrap);
        FramePlacement lower = frame(wrap);
        lower.z = 5;
        flow.passFrame(lower);
        EXPECT_EQ(flow.takeRunZ(), 7001);
        EXPECT_EQ(flow.takeRunZ(), 7002);
        EXPECT_EQ(flow.availableWidth(), PageWidth);
        EXPECT_EQ(flow.lineHeight(), 0);
    }
}

TEST(ParagraphFlow, AFrameInTheForegroundRaisesTheLine)
{
    for (const int wrap : {WrapRunThroughForeground, WrapDynamicForeground}) {
        ParagraphFlow flow = behind(wrap);
        FramePlacement lower = frame(wrap);
        lower.height = 5;
        flow.passFrame(lower);
        EXPECT_EQ(flow.lineHeight(), 30);
        EXPECT_EQ(flow.takeRunZ(), 0);
    }
}

TEST(ParagraphFlow, RunsMoveTheCursorAndRaiseTheLine)
{
    ParagraphFlow flow(PageWidth);
    flow.passRun({100, 12}, 5);
    flow.passRun({50, 14}, 0);
    EXPECT_EQ(flow.cursor(), 150);
    EXPECT_EQ(flow.lineHeight(), 17);
    flow.moveBy(12);
    EXPECT_EQ(flow.cursor(), 162);
}

TEST(ParagraphFlow, ALineIsFullWhenTheCursorHasPassedThePage)
{
    ParagraphFlow flow(PageWidth);
    flow.passRun({600, 12}, 0);
    EXPECT_EQ(flow.takeFullLine(), 0) << "not yet";
    EXPECT_EQ(flow.cursor(), 600);
    flow.moveBy(3);
    EXPECT_EQ(flow.takeFullLine(), 12);
    EXPECT_EQ(flow.cursor(), 0);
    EXPECT_EQ(flow.lineHeight(), 0) << "the next line starts again";
}

TEST(RunX, FollowsAlignmentAndMargins)
{
    EXPECT_EQ(runX(aligned(Qt::AlignRight), PageWidth, 100), 600 - 100 - 30);
    EXPECT_EQ(runX(aligned(Qt::AlignHCenter), PageWidth, 100), (600 + 10 - 30 - 100) * 0.5);
    EXPECT_EQ(runX(aligned(Qt::AlignLeft), PageWidth, 100), 10);
    EXPECT_EQ(runX(aligned(Qt::AlignHorizontal_Mask), PageWidth, 100), 10);
}

TEST(RunX, CentersOnALetterPage)
{
    OOTextStyle style;
    style.alignment = Qt::AlignHCenter;
    EXPECT_EQ(runX(style, 612, 100), 256);
}
