#pragma once

#include "host/items/item.h"
#include "workbench/items/canvas_item.h"
#include "workbench/items/frame_painting.h"
#include "workbench/items/item_limits.h"

#include <QGraphicsItem>
#include <QPainter>
#include <QPainterPath>
#include <QStyleOptionGraphicsItem>

#include <cmath>

namespace workbench {

/// The base layer of every item: box, rotation, flips, placement, states, and the
/// setup of painting.
///
/// An item class is a stack of layers on a class of the contract. Each layer holds the
/// values of one facet, overrides its setters, and adds its group to collect() and
/// restore(). The topmost class paints.
template <class Base>
class BoxLayer : public Base, public CanvasItem
{
public:
    explicit BoxLayer(KestTypes::ShapeType type)
        : m_type(type)
    {
        this->setFlags(QGraphicsItem::ItemIsMovable | QGraphicsItem::ItemIsSelectable |
                       QGraphicsItem::ItemSendsGeometryChanges);
    }

    void setItemSize(const QSizeF& size) override { setBoxSize(boundedSize(size)); }
    [[nodiscard]] QSizeF getItemSize() const override { return m_box.size; }
    [[nodiscard]] double getItemWidth() const override { return m_box.size.width(); }
    [[nodiscard]] double getItemHeight() const override { return m_box.size.height(); }

    void setItemRotation(double degrees) override
    {
        m_box.rotation = boundedAngle(degrees);
        this->setRotation(std::fmod(m_box.rotation, 360.0));
    }

    void setFlipHorizontal(bool flip) override
    {
        m_box.flipHorizontal = flip;
        appearanceChanged();
    }

    void setFlipVertical(bool flip) override
    {
        m_box.flipVertical = flip;
        appearanceChanged();
    }

    [[nodiscard]] KestTypes::ShapeType shapeType() const override { return m_type; }
    [[nodiscard]] QGraphicsItem* graphicsItem() override { return this; }
    [[nodiscard]] const QGraphicsItem* graphicsItem() const override { return this; }
    [[nodiscard]] Item* contractItem() override { return this; }

    [[nodiscard]] ItemValues values() const final
    {
        ItemValues values;
        values.type = m_type;
        collect(values);
        return values;
    }

    void setValues(const ItemValues& values) final { restore(values); }

    void setReadOnly(bool readOnly) override
    {
        m_readOnly = readOnly;
        acceptMouseWhereEditable();
    }

    void setUserBackground(bool background) override
    {
        m_userBackground = background;
        acceptMouseWhereEditable();
    }

    [[nodiscard]] QRectF boundingRect() const override
    {
        const double margin = overhang();
        return contentRect().normalized().adjusted(-margin, -margin, margin, margin);
    }

    /// The painted area: clicks outside it go to the items below.
    [[nodiscard]] QPainterPath shape() const override
    {
        return isDrawable() ? flipTransform(contentRect(), m_box).map(paintedArea())
                            : QPainterPath();
    }

    [[nodiscard]] bool contains(const QPointF& point) const override
    {
        return shape().contains(point);
    }

    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) final
    {
        Q_UNUSED(widget)
        if (isDrawable()) {
            painter->save();
            prepareContentPainter(*painter, contentRect(), m_box);
            paintContent(*painter);
            painter->restore();
        }
        if (option != nullptr && option->state.testFlag(QStyle::State_Selected)) {
            paintSelectionFrame(*painter, contentRect().normalized());
        }
    }

protected:
    /// Paints into contentRect(); the painter is antialiased and flipped.
    virtual void paintContent(QPainter& painter) = 0;

    /// The area that paintContent() covers, before flips.
    [[nodiscard]] virtual QPainterPath paintedArea() const
    {
        QPainterPath path;
        path.addRect(contentRect().normalized());
        return path;
    }

    /// The box in item coordinates.
    [[nodiscard]] virtual QRectF contentRect() const { return {QPointF(0.0, 0.0), m_box.size}; }

    /// How far painting may extend beyond the box.
    [[nodiscard]] virtual double overhang() const { return 1.0; }

    /// An item without a valid box is kept, but draws nothing.
    [[nodiscard]] virtual bool isDrawable() const
    {
        return m_box.size.width() > 0.0 && m_box.size.height() > 0.0;
    }

    /// Called when anything but the box has changed.
    virtual void appearanceChanged() { this->update(); }

    /// Adds this layer's values.
    virtual void collect(ItemValues& values) const
    {
        values.box = m_box;
        values.placement = {this->pos(), this->zValue(),
                            this->flags().testFlag(QGraphicsItem::ItemIsMovable), m_readOnly,
                            m_userBackground};
    }

    /// Restores this layer's values.
    virtual void restore(const ItemValues& values)
    {
        this->setPos(values.placement.position);
        this->setZValue(values.placement.z);
        this->setFlag(QGraphicsItem::ItemIsMovable, values.placement.movable);
        setReadOnly(values.placement.readOnly);
        setUserBackground(values.placement.userBackground);
        m_box = values.box;
        setBoxSize(boundedSize(values.box.size));
        setItemRotation(values.box.rotation);
    }

    QVariant itemChange(QGraphicsItem::GraphicsItemChange change, const QVariant& value) override
    {
        if (change == QGraphicsItem::ItemPositionChange) {
            return boundedPosition(value.toPointF());
        }
        if (change == QGraphicsItem::ItemZValueChange) {
            return boundedZ(value.toDouble());
        }
        return Base::itemChange(change, value);
    }

    void setBoxSize(const QSizeF& size)
    {
        this->prepareGeometryChange();
        m_box.size = size;
        centerRotation();
        this->update();
    }

    /// Items rotate about the current center of their box.
    void centerRotation() { this->setTransformOriginPoint(contentRect().center()); }

    [[nodiscard]] const BoxValues& boxValues() const { return m_box; }

private:
    void acceptMouseWhereEditable()
    {
        this->setAcceptedMouseButtons(m_readOnly || m_userBackground ? Qt::NoButton
                                                                     : Qt::AllButtons);
    }

    KestTypes::ShapeType m_type;
    BoxValues m_box;
    bool m_readOnly = false;
    bool m_userBackground = false;
};

} // namespace workbench
