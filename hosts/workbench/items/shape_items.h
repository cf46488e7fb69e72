#pragma once

#include "host/items/ellipse_item.h"
#include "host/items/pie_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"
#include "workbench/items/pen_and_fill.h"

namespace workbench {

/// The layer of the five closed shapes: a path in the box, filled and outlined.
template <class Base>
class ShapeLayer : public FillLayer<PenLayer<BoxLayer<Base>>>
{
public:
    using FillLayer<PenLayer<BoxLayer<Base>>>::FillLayer;

protected:
    [[nodiscard]] virtual QPainterPath outline(const QRectF& box) const = 0;

    [[nodiscard]] QPainterPath paintedArea() const final
    {
        return paintedShape(outline(this->contentRect()), this->fillValues(), this->penValues());
    }

    void paintContent(QPainter& painter) final
    {
        const QRectF box = this->contentRect();
        paintShape(painter, outline(box), box, this->fillValues(), this->penValues());
    }
};

class RectangleItem final : public ShapeLayer<::RectangleItem>
{
public:
    using ShapeLayer::ShapeLayer;

protected:
    [[nodiscard]] QPainterPath outline(const QRectF& box) const override;
};

class RoundedRectangleItem final : public ShapeLayer<::RoundedRectangleItem>
{
public:
    using ShapeLayer::ShapeLayer;

    /// A radius above half the shorter side is painted as that half.
    void setCornerRadius(double radius) override;

protected:
    [[nodiscard]] QPainterPath outline(const QRectF& box) const override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    CornerValues m_corner;
};

class EllipseItem final : public ShapeLayer<::EllipseItem>
{
public:
    using ShapeLayer::ShapeLayer;

protected:
    [[nodiscard]] QPainterPath outline(const QRectF& box) const override;
};

/// Three quarters of an ellipse; the upper right quarter is missing.
class PieItem final : public ShapeLayer<::PieItem>
{
public:
    using ShapeLayer::ShapeLayer;

protected:
    [[nodiscard]] QPainterPath outline(const QRectF& box) const override;
};

/// The polygon of the item's type.
class PolygonItem final : public ShapeLayer<::PolygonItem>
{
public:
    using ShapeLayer::ShapeLayer;

protected:
    [[nodiscard]] QPainterPath outline(const QRectF& box) const override;
};

} // namespace workbench
