#include "opendocument/text_flow.h"

#include "opendocument/graphic_style.h"

#include <algorithm>
#include <utility>

namespace opendocument {

namespace {

// The gap between a frame and the text next to it.
constexpr double FrameGap = 4.0;

} // namespace

ParagraphFlow::ParagraphFlow(double pageWidth)
    : m_pageWidth(pageWidth)
    , m_availableWidth(pageWidth)
{}

void ParagraphFlow::passFrame(const FramePlacement& frame)
{
    switch (frame.wrap) {
    case WrapLeft:
    case WrapParallel:
        m_availableWidth = m_pageWidth - frame.width - FrameGap;
        break;
    case WrapRight:
        m_cursor += frame.x + frame.width;
        m_availableWidth = m_pageWidth - m_cursor;
        break;
    case WrapRunThroughBackground:
    case WrapDynamicBackground:
        m_textZ = std::max(m_textZ, frame.z);
        break;
    case WrapRunThroughForeground:
    case WrapDynamicForeground:
        m_lineHeight = std::max(m_lineHeight, frame.height);
        break;
    default:
        m_blockOffset += frame.height;
        m_cursor = 0;
    }
}

double ParagraphFlow::takeRunZ()
{
    if (m_textZ > 0) {
        m_textZ += 1;
    }
    return m_textZ;
}

void ParagraphFlow::passRun(const QSizeF& size, double spaceBelow)
{
    m_cursor += size.width();
    m_lineHeight = std::max(m_lineHeight, size.height() + spaceBelow);
}

void ParagraphFlow::moveBy(double width)
{
    m_cursor += width;
}

double ParagraphFlow::takeFullLine()
{
    if (!(m_cursor > m_pageWidth)) {
        return 0;
    }
    m_cursor = 0;
    return std::exchange(m_lineHeight, 0);
}

double centeredX(const Margins& margins, double pageWidth, double width)
{
    return (pageWidth + margins.left - margins.right - width) * 0.5;
}

double runX(const OOTextStyle& style, double pageWidth, double runWidth)
{
    if (style.alignment == Qt::AlignRight) {
        return pageWidth - runWidth - style.margins.right;
    }
    if (style.alignment == Qt::AlignHCenter) {
        return centeredX(style.margins, pageWidth, runWidth);
    }
    return style.margins.left;
}

} // namespace opendocument
