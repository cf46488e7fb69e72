// Paragraphs of a text document: runs, their positions, and how the flow advances.
// The page is 612 points wide.

#include "reader_fixture.h"

#include "opendocument/opendocument_limits.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray textStyle(const QByteArray& name, const QByteArray& text,
                     const QByteArray& paragraph = {})
{
    return "<style:style style:family=\"text\" style:name=\"" + name +
           "\"><style:text-properties " + text + "/><style:paragraph-properties " + paragraph +
           "/></style:style>";
}

QByteArray frameStyle(const QByteArray& name, const QByteArray& wrap)
{
    return "<style:style style:family=\"graphic\" style:name=\"" + name +
           "\"><style:graphic-properties " + wrap + "/></style:style>";
}

// A text box of 100 by 30 points.
QByteArray frame(const QByteArray& style, const QByteArray& attributes = {})
{
    return "<draw:frame draw:style-name=\"" + style +
           "\" svg:width=\"1.388888888888889in\" svg:height=\"0.4166666666666667in\" " +
           attributes + "><draw:text-box/></draw:frame>";
}

class Paragraph : public ReaderTest
{
protected:
    void import(const QByteArray& text)
    {
        const QByteArray styles =
            textStyle("right", "fo:font-size=\"20.9pt\" fo:font-weight=\"bold\"",
                      "fo:text-align=\"end\" fo:margin-left=\"0.5in\" fo:margin-right=\"0.25in\"") +
            textStyle("center", "style:font-name=\"Arial\"", "fo:text-align=\"center\"") +
            textStyle("left", "style:text-underline-style=\"solid\" fo:font-style=\"italic\"",
                      "fo:text-align=\"left\" fo:margin-left=\"0.5in\"") +
            textStyle("indented", "", "fo:margin-left=\"0.5in\"") + frameStyle("none", "") +
            frameStyle("left", "style:wrap=\"left\"") +
            frameStyle("wrapRight", "style:wrap=\"right\"") +
            frameStyle("parallel", "style:wrap=\"parallel\"") +
            frameStyle("front", "style:wrap=\"run-through\"") +
            frameStyle("back", "style:wrap=\"run-through\" style:run-through=\"background\"");
        ASSERT_TRUE(ReaderTest::import(stylesXml(), textXml(text, styles)));
    }

    [[nodiscard]] QPointF pos(int item) const
    {
        return host.item(item) != nullptr ? host.item(item)->pos() : QPointF(-7, -7);
    }
};

} // namespace

TEST_F(Paragraph, RunMakesItsCallsInOrder)
{
    import("<text:p text:style-name=\"right\">abc</text:p>");
    EXPECT_EQ(itemCalls(),
              lines({"lists isValidFamily 'Arial'", "factory create 10016",
                     "canvas importItem 'item:1'", "item:1 setText 'abc'",
                     "item:1 setFontFamily '_Nare Vol'", "item:1 setFontBold true",
                     "item:1 setFontItalic false", "item:1 setFontUnderline false",
                     "item:1 setFontPointSize 20", "item:1 adjustBoxSizeToContent 612",
                     "item:1 getItemWidth", "item:1 setTextAlignment 2", "item:1 getItemHeight"}));
    EXPECT_EQ(pos(1), QPointF(612 - 30 - 18, 0));
    EXPECT_EQ(host.item(1)->zValue(), 0);
}

TEST_F(Paragraph, RunsArePositionedByTheirAlignment)
{
    import("<text:p text:style-name=\"center\">0123456789</text:p>"
           "<text:p text:style-name=\"left\">x</text:p>"
           "<text:p text:style-name=\"indented\">x</text:p><text:p>x</text:p>");
    EXPECT_EQ(pos(1), QPointF(256, 0));
    EXPECT_EQ(pos(2), QPointF(36, 12));
    EXPECT_EQ(pos(3), QPointF(36, 24));
    EXPECT_EQ(pos(4), QPointF(0, 36));
    EXPECT_EQ(host.lastCall(1, u"setTextAlignment"_s), u"4"_s);
    EXPECT_EQ(host.lastCall(2, u"setTextAlignment"_s), u"1"_s);
    EXPECT_EQ(host.lastCall(3, u"setTextAlignment"_s), QString()) << "none given, none set";
    EXPECT_EQ(host.lastCall(2, u"setFontItalic"_s), u"true"_s);
    EXPECT_EQ(host.lastCall(2, u"setFontUnderline"_s), u"true"_s);
}

TEST_F(Paragraph, EmptyOnesMoveTheFlowByTheirFontSize)
{
    import("<text:p/><text:p text:style-name=\"right\"/><text:h/><text:p>   </text:p>"
           "<text:p>x</text:p>");
    EXPECT_EQ(host.createdCount(), 1);
    EXPECT_DOUBLE_EQ(pos(1).y(), 12 + 20.9 + 12 + 12);
}

TEST_F(Paragraph, RunsOfMixedContentAreSideBySide)
{
    import("<text:p>ab<text:span text:style-name=\"right\">cd</text:span>e</text:p>"
           "<text:p>next</text:p>");
    EXPECT_EQ(pos(1), QPointF(0, 0));
    EXPECT_EQ(pos(2), QPointF(612 - 20 - 18 + 20, 0)) << "its own place, plus the cursor";
    EXPECT_EQ(pos(3), QPointF(40, 0));
    EXPECT_EQ(pos(4), QPointF(0, 12));
    EXPECT_EQ(host.lastCall(3, u"setFontPointSize"_s), u"12"_s);
}

TEST_F(Paragraph, EachTextElementIsARun)
{
    import(
        "<text:p><text:span>a</text:span><text:h>b</text:h><text:p>c</text:p>"
        "<text:date>d</text:date><text:time>e</text:time><text:a>no</text:a><!-- no --></text:p>");
    EXPECT_EQ(host.createdCount(), 5);
    EXPECT_EQ(pos(5), QPointF(40, 0));
}

TEST_F(Paragraph, SpansFallBackToTheParagraphsStyle)
{
    import("<text:p text:style-name=\"center\"><text:span>a</text:span>"
           "<text:span text:style-name=\"unknown\">b</text:span></text:p>");
    EXPECT_EQ(host.lastCall(1, u"setFontFamily"_s), u"'Arial'"_s);
    EXPECT_EQ(host.lastCall(2, u"setFontFamily"_s), u"'Arial'"_s);
}

TEST_F(Paragraph, SpacesAndTabsMoveTheCursor)
{
    import("<text:p><text:s text:c=\"4\"/>a<text:s/>b<text:s text:c=\"x\"/>c<text:tab/>d</text:p>");
    EXPECT_EQ(pos(1).x(), 12);
    EXPECT_EQ(pos(2).x(), 22);
    EXPECT_EQ(pos(3).x(), 32);
    EXPECT_EQ(pos(4).x(), 54);
}

TEST_F(Paragraph, LineThatExceedsThePageContinuesBelow)
{
    const QByteArray wide(62, 'x'); // as wide as the page, which does not exceed it
    import("<text:p>" + wide +
           "<text:span>a</text:span><text:span>b</text:span></text:p>"
           "<text:p>next</text:p>");
    EXPECT_EQ(pos(1), QPointF(0, 0));
    EXPECT_EQ(pos(2), QPointF(612, 0));
    EXPECT_EQ(pos(3), QPointF(0, 12)) << "behind the page's edge a new line begins";
    EXPECT_EQ(pos(4), QPointF(0, 24));
}

TEST_F(Paragraph, FrameWithoutWrapPushesTheTextDown)
{
    import("<text:p>a" + frame("none") + frame("none") + "</text:p><text:p>b</text:p>");
    EXPECT_EQ(host.requestedTypes().first(), KestTypes::Rectangle) << "frames first";
    EXPECT_EQ(pos(1), QPointF(0, 0));
    EXPECT_NEAR(pos(3).y(), 60, 1e-6);
    EXPECT_NEAR(pos(4).y(), 72, 1e-6);
}

TEST_F(Paragraph, FrameBesideTheTextNarrowsIt)
{
    import("<text:p>" + frame("left") + "a</text:p><text:p>" + frame("parallel") + "b</text:p>");
    EXPECT_EQ(host.lastCall(2, u"adjustBoxSizeToContent"_s), u"508"_s);
    EXPECT_EQ(pos(2), QPointF(0, 0));
    EXPECT_EQ(host.lastCall(4, u"adjustBoxSizeToContent"_s), u"508"_s);
}

TEST_F(Paragraph, FrameBeforeTheTextMovesIt)
{
    import("<text:p>" + frame("wrapRight", "svg:x=\"1in\"") + "a</text:p>");
    EXPECT_NEAR(pos(2).x(), 172, 1e-6);
    EXPECT_EQ(host.lastCall(2, u"adjustBoxSizeToContent"_s), u"440"_s);
}

TEST_F(Paragraph, FrameBehindTheTextLiftsIt)
{
    import("<text:p>" + frame("back", "draw:z-index=\"3\"") +
           "a<text:span>b</text:span></text:p><text:p>c</text:p>");
    EXPECT_EQ(host.item(2)->zValue(), 3001);
    EXPECT_EQ(host.item(3)->zValue(), 3002);
    EXPECT_EQ(host.item(4)->zValue(), 0) << "the next paragraph starts again";
    EXPECT_EQ(pos(4), QPointF(0, 12));
}

TEST_F(Paragraph, FrameBeforeTheTextRaisesTheLine)
{
    import("<text:p>" + frame("front") + "a</text:p><text:p>b</text:p>");
    EXPECT_EQ(pos(2), QPointF(0, 0));
    EXPECT_NEAR(pos(3).y(), 30, 1e-6);
}

TEST_F(Paragraph, AFrameThatFillsTheLineCountsTheSameBeforeAndAfterTheText)
{
    const QByteArray wide = frame("wrapRight", "svg:x=\"8in\"");
    import("<text:p>" + wide + "a</text:p><text:p>a" + wide + "</text:p>");
    EXPECT_EQ(pos(2), QPointF(0, 0));
    EXPECT_EQ(pos(4), QPointF(0, 12));
}

TEST_F(Paragraph, ALineEndsBeforeTheNextRunAndNotAfterASpace)
{
    import("<text:p>" + QByteArray(62, 'x') +
           "<text:s text:c=\"1\"/><text:s text:c=\"4\"/>b</text:p><text:p>next</text:p>");
    EXPECT_EQ(pos(2), QPointF(0, 12)) << "spaces at the end of a line do not indent the next";
    EXPECT_EQ(pos(3), QPointF(0, 24));
}

TEST_F(Paragraph, FramesInsideSpansAreNotRead)
{
    import("<text:p><text:span>" + frame("none") + "a</text:span></text:p>");
    EXPECT_EQ(host.requestedTypes(), Types{KestTypes::RichText});
}

TEST_F(Paragraph, RunsThatTheHostDoesNotMakeTakeNoPlace)
{
    host.behavior().refusedTypes = {KestTypes::RichText};
    import("<text:p>a</text:p><draw:frame><draw:text-box/></draw:frame>");
    EXPECT_EQ(pos(1), QPointF(0, 0));
}

TEST_F(Paragraph, AMegabyteOfTextIsOneRun)
{
    import("<text:p>" + QByteArray(1 << 20, 'x') + "</text:p>");
    EXPECT_EQ(host.lastCall(1, u"setText"_s).size(), 2 + (1 << 20)) << "in quotation marks";
}

TEST_F(Paragraph, EndlessTextIsLeftOut)
{
    const QByteArray endless(opendocument::limits::TextCharacters + 1, 'x');
    import("<text:p>" + endless + "</text:p><text:p>a</text:p>");
    EXPECT_EQ(host.createdCount(), 1);
    EXPECT_EQ(pos(1), QPointF(0, 0));
}
