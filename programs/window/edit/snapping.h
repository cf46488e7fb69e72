#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QSet>

#include <optional>

namespace workbench {
class Canvas;
class CanvasItem;
} // namespace workbench

namespace window {

/// The edges and centers of the page and of items, to which a drag snaps.
class SnapLines
{
public:
    SnapLines() = default;
    /// Without the items that are dragged.
    SnapLines(const workbench::Canvas& canvas, const QSet<const workbench::CanvasItem*>& dragged);

    /// A correction, and the lines that it reaches.
    struct Snap
    {
        QPointF way;
        std::optional<double> x;
        std::optional<double> y;
    };

    /// The smallest correction within the distance, on each axis, after which an edge or the center
    /// of the box is on a line.
    [[nodiscard]] Snap snapBox(const QRectF& box, double distance) const;

    /// The same for a point.
    [[nodiscard]] Snap snapPoint(const QPointF& point, double distance) const;

private:
    void add(const QRectF& box);

    QList<double> m_x; // sorted
    QList<double> m_y;
};

} // namespace window
