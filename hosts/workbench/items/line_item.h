#pragma once

#include "host/items/line_item.h"
#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"

namespace workbench {

/// A straight line from the item's position. Its box is the rectangle between its ends,
/// so it rotates about its middle.
class LineItem final : public PenLayer<BoxLayer<::LineItem>>
{
public:
    using PenLayer::PenLayer;

    /// Keeps the direction of the line; its ends span a box of this size.
    void setItemSize(const QSizeF& size) override;
    void setLineLength(double length) override;
    /// Moves the start of the line; the other end keeps its place on the page.
    void setLineStartPoint(const QPointF& point) override;
    void setLineEndPoint(const QPointF& point) override;
    void setLineStartMarker(int marker) override;
    void setLineEndMarker(int marker) override;

protected:
    void paintContent(QPainter& painter) override;
    [[nodiscard]] QPainterPath paintedArea() const override;
    [[nodiscard]] QRectF contentRect() const override;
    [[nodiscard]] double overhang() const override;
    [[nodiscard]] bool isDrawable() const override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    void setEnd(const QPointF& end);

    LineValues m_line;
};

} // namespace workbench
