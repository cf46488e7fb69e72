#include "window/edit/snapping.h"

#include "window/edit/geometry.h"
#include "workbench/canvas/canvas.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace window {

namespace {

struct Nearest
{
    double way = 0.0;
    std::optional<double> line;
};

Nearest nearest(const QList<double>& lines, std::initializer_list<double> values, double distance)
{
    Nearest best;
    for (const double value : values) {
        const auto above = std::lower_bound(lines.cbegin(), lines.cend(), value);
        for (auto line = above != lines.cbegin() ? above - 1 : above;
             line != lines.cend() && line <= above; ++line) {
            const double way = *line - value;
            if (std::abs(way) <= distance && (!best.line || std::abs(way) < std::abs(best.way))) {
                best = {way, *line};
            }
        }
    }
    return best;
}

} // namespace

SnapLines::SnapLines(const workbench::Canvas& canvas,
                     const QSet<const workbench::CanvasItem*>& dragged)
{
    add(canvas.pageRect());
    for (const workbench::CanvasItem* item : canvas.items()) {
        if (!dragged.contains(item)) {
            add(boundsOf(item->values()));
        }
    }
    std::sort(m_x.begin(), m_x.end());
    std::sort(m_y.begin(), m_y.end());
}

void SnapLines::add(const QRectF& box)
{
    m_x.append({box.left(), box.center().x(), box.right()});
    m_y.append({box.top(), box.center().y(), box.bottom()});
}

SnapLines::Snap SnapLines::snapBox(const QRectF& box, double distance) const
{
    const Nearest x = nearest(m_x, {box.left(), box.center().x(), box.right()}, distance);
    const Nearest y = nearest(m_y, {box.top(), box.center().y(), box.bottom()}, distance);
    return {{x.way, y.way}, x.line, y.line};
}

SnapLines::Snap SnapLines::snapPoint(const QPointF& point, double distance) const
{
    return snapBox(QRectF(point, QSizeF()), distance);
}

} // namespace window
