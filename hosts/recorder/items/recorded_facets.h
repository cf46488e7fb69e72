#pragma once

#include "recorder/items/recorded_item.h"

#include <QColor>
#include <QGraphicsItem>
#include <QPointF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <Qt>

#include <memory>
#include <utility>

// One layer for each facet of the contract. An item of the recording host is its contract
// class with one layer for each facet of that class: Pen<Fill<Basics<...>>>.
// The innermost layer is Basics, the others inherit its constructor.

namespace recorder {

/// The layer of Item: size, rotation, flips. The size is at first that of the behavior.
template <typename Base>
class Basics : public Base, public RecordedItem
{
public:
    Basics(std::shared_ptr<Recording> recording, int number)
        : RecordedItem(std::move(recording), number)
        , m_size(behavior().itemSize)
    {
        if (behavior().recordsPlacement) {
            this->setFlag(QGraphicsItem::ItemSendsGeometryChanges);
            m_recordsPlacement = true;
        }
    }

    void setItemSize(const QSizeF& size) override
    {
        this->record("setItemSize", size.width(), size.height());
        m_size = size;
    }
    [[nodiscard]] QSizeF getItemSize() const override
    {
        this->answer(m_size, "getItemSize");
        return m_size;
    }
    [[nodiscard]] double getItemWidth() const override
    {
        this->answer(m_size.width(), "getItemWidth");
        return m_size.width();
    }
    [[nodiscard]] double getItemHeight() const override
    {
        this->answer(m_size.height(), "getItemHeight");
        return m_size.height();
    }
    void setItemRotation(double degrees) override { this->record("setItemRotation", degrees); }
    void setFlipHorizontal(bool flip) override { this->record("setFlipHorizontal", flip); }
    void setFlipVertical(bool flip) override { this->record("setFlipVertical", flip); }

protected:
    /// Sets the size that the content implies.
    void adoptSize(const QSizeF& size) { m_size = size; }

    QVariant itemChange(QGraphicsItem::GraphicsItemChange change, const QVariant& value) override
    {
        if (m_recordsPlacement && change == QGraphicsItem::ItemZValueChange) {
            this->record("setZValue", value.toDouble());
        } else if (m_recordsPlacement && change == QGraphicsItem::ItemFlagsChange) {
            this->record("setMovable", (value.toInt() & QGraphicsItem::ItemIsMovable) != 0);
        } else if (m_recordsPlacement && change == QGraphicsItem::ItemPositionChange) {
            this->record("setPos", value.toPointF().x(), value.toPointF().y());
        }
        return Base::itemChange(change, value);
    }

private:
    QSizeF m_size;
    bool m_recordsPlacement = false;
};

template <typename Base>
class Pen : public Base
{
public:
    using Base::Base;
    void setPenColor(const QColor& color) override { this->record("setPenColor", color); }
    void setPenWidth(quint16 width) override { this->record("setPenWidth", width); }
    void setPenStyle(int style) override { this->record("setPenStyle", style); }
    void setCapStyle(int style) override { this->record("setCapStyle", style); }
    void setJoinStyle(int style) override { this->record("setJoinStyle", style); }
};

template <typename Base>
class FillColor : public Base
{
public:
    using Base::Base;
    void setFillColor(const QColor& color) override { this->record("setFillColor", color); }
};

template <typename Base>
class Brush : public Base
{
public:
    using Base::Base;
    void setFilled(bool filled) override { this->record("setFilled", filled); }
    void setBrushStyle(int style) override { this->record("setBrushStyle", style); }
};

template <typename Base>
class TextColor : public Base
{
public:
    using Base::Base;
    void setTextColor(const QColor& color) override { this->record("setTextColor", color); }
};

template <typename Base>
class Font : public Base
{
public:
    using Base::Base;
    void setFontFamily(const QString& family) override { this->record("setFontFamily", family); }
    void setFontPointSize(int size) override { this->record("setFontPointSize", size); }
    void setFontBold(bool bold) override { this->record("setFontBold", bold); }
    void setFontItalic(bool italic) override { this->record("setFontItalic", italic); }
    void setFontUnderline(bool underline) override { this->record("setFontUnderline", underline); }
};

template <typename Base>
class TextAlignment : public Base
{
public:
    using Base::Base;
    void setTextAlignment(Qt::Alignment alignment) override
    {
        this->record("setTextAlignment", alignment);
    }
};

template <typename Base>
class DatasourceBinding : public Base
{
public:
    using Base::Base;
    void setDatasourceId(int id) override { this->record("setDatasourceId", id); }
    void setDatasourceFields(const QStringList& fields) override
    {
        this->record("setDatasourceFields", fields);
    }
};

/// The two colors that barcodes and symbols have on the item itself.
template <typename Base>
class TwoColors : public Base
{
public:
    using Base::Base;
    void setForegroundColor(const QColor& color) override
    {
        this->record("setForegroundColor", color);
    }
    void setBackgroundColor(const QColor& color) override
    {
        this->record("setBackgroundColor", color);
    }
};

/// The layers of ContouredItem and FillableItem.
template <typename Base>
using Contoured = Pen<Basics<Base>>;
template <typename Base>
using Fillable = Brush<FillColor<Contoured<Base>>>;

} // namespace recorder
