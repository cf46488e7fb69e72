#pragma once

#include "opendocument/text_style.h"

#include <QSizeF>

namespace opendocument {

/// The placement of a frame, for the text that flows around it.
struct FramePlacement
{
    double x = 0;      ///< points
    double height = 0; ///< points
    double width = 0;  ///< points
    double z = 0;
    int wrap = 0; ///< a WrapCode
};

/// The arithmetic of one paragraph of a text document: the space that its frames leave, and
/// the positions of its runs. All lengths are in points.
class ParagraphFlow
{
public:
    explicit ParagraphFlow(double pageWidth);

    /// Reserves space for a frame of the paragraph. All frames precede the first run.
    void passFrame(const FramePlacement& frame);
    /// How far frames without text next to them push the text down.
    [[nodiscard]] double blockOffset() const { return m_blockOffset; }

    /// The wrap width of runs.
    [[nodiscard]] double availableWidth() const { return m_availableWidth; }
    /// The offset to add to a run's own x.
    [[nodiscard]] double cursor() const { return m_cursor; }
    /// The z value of the next run: 0, or above a frame in the background, each run above
    /// the one before.
    [[nodiscard]] double takeRunZ();

    /// Advances by a run.
    /// @param spaceBelow the lower margin of the run's style
    void passRun(const QSizeF& size, double spaceBelow);
    /// Advances by white space.
    void moveBy(double width);
    /// If the cursor is beyond the page's edge, starts a new line and returns the height of the
    /// line before; else returns 0.
    [[nodiscard]] double takeFullLine();
    /// The height of the current line.
    [[nodiscard]] double lineHeight() const { return m_lineHeight; }

private:
    double m_pageWidth;
    double m_availableWidth;
    double m_cursor = 0;
    double m_lineHeight = 0;
    double m_blockOffset = 0;
    double m_textZ = 0;
};

/// The x of a run without the cursor, by its style's alignment and margins.
[[nodiscard]] double runX(const OOTextStyle& style, double pageWidth, double runWidth);

/// The x that centers an object on the page, between two margins.
[[nodiscard]] double centeredX(const Margins& margins, double pageWidth, double width);

} // namespace opendocument
