#pragma once

#include "opendocument/text_style.h"

#include <QSizeF>

namespace opendocument {

/// Where a frame was placed, for the text that flows around it.
struct FramePlacement
{
    double x = 0;      ///< points
    double height = 0; ///< points
    double width = 0;  ///< points
    double z = 0;
    int wrap = 0; ///< a WrapCode
};

/// The arithmetic of one paragraph of a text document: which place its frames leave, and
/// where its runs come to lie. All lengths are in points.
class ParagraphFlow
{
public:
    explicit ParagraphFlow(double pageWidth);

    /// Makes room for a frame of the paragraph. All frames come before the first run.
    void passFrame(const FramePlacement& frame);
    /// How far the frames that no text stands beside push the text down.
    [[nodiscard]] double blockOffset() const { return m_blockOffset; }

    /// The width that runs are wrapped at.
    [[nodiscard]] double availableWidth() const { return m_availableWidth; }
    /// What is added to a run's own x.
    [[nodiscard]] double cursor() const { return m_cursor; }
    /// The z value of the next run: 0, or above a frame in the background, each run above
    /// the one before.
    [[nodiscard]] double takeRunZ();

    /// Moves on behind a run.
    /// @param spaceBelow the second margin of the run's style
    void passRun(const QSizeF& size, double spaceBelow);
    /// Moves on by white space.
    void moveBy(double width);
    /// The height of the line that the cursor has left beyond the page's edge, after which
    /// it stands at the start of a new one; 0 while it is still on the same line.
    [[nodiscard]] double takeFullLine();
    /// The height of the line that the cursor is on.
    [[nodiscard]] double lineHeight() const { return m_lineHeight; }

private:
    double m_pageWidth;
    double m_availableWidth;
    double m_cursor = 0;
    double m_lineHeight = 0;
    double m_blockOffset = 0;
    double m_textZ = 0;
};

/// The x of a run before the cursor is added, by its style's alignment and margins.
[[nodiscard]] double runX(const OOTextStyle& style, double pageWidth, double runWidth);

/// The x at which something stands in the middle of the page, between two margins.
[[nodiscard]] double centredX(const Margins& margins, double pageWidth, double width);

} // namespace opendocument
