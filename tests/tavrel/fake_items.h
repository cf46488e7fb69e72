#pragma once

// Items that record their calls. Facets are layered on a contract class one
// by one, so that each operation is implemented once.

#include "host/items/barcode_item.h"
#include "host/items/ellipse_item.h"
#include "host/items/line_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "tests/tavrel/call_list.h"

namespace tavrel_test {

/// The part that every fake item has: its name in the call list, its size, its lifetime.
template <class Base>
class WithItem : public Base
{
public:
    WithItem(CallList& calls, int number)
        : m_calls(calls)
        , m_name(QStringLiteral("item%1").arg(number))
    {
        ++m_calls.itemsAlive;
        this->setFlag(QGraphicsItem::ItemSendsGeometryChanges);
        m_noting = true;
    }
    ~WithItem() override { --m_calls.itemsAlive; }

    void setItemSize(const QSizeF& size) override
    {
        m_size = size;
        note("setItemSize", size);
    }
    [[nodiscard]] QSizeF getItemSize() const override
    {
        note("getItemSize");
        return m_size;
    }
    [[nodiscard]] double getItemWidth() const override { return m_size.width(); }
    [[nodiscard]] double getItemHeight() const override { return m_size.height(); }
    void setItemRotation(double degrees) override { note("setItemRotation", degrees); }
    void setFlipHorizontal(bool flip) override { note("setFlipHorizontal", flip); }
    void setFlipVertical(bool flip) override { note("setFlipVertical", flip); }

protected:
    // Layer, lock and position are Qt's own operations; this notifies an item of them.
    QVariant itemChange(QGraphicsItem::GraphicsItemChange change, const QVariant& value) override
    {
        if (m_noting && change == QGraphicsItem::ItemZValueChange) {
            note("setZValue", value.toDouble());
        } else if (m_noting && change == QGraphicsItem::ItemFlagsChange) {
            note("setFlag movable", (value.toInt() & QGraphicsItem::ItemIsMovable) != 0);
        } else if (m_noting && change == QGraphicsItem::ItemPositionChange) {
            note("setPos", QSizeF(value.toPointF().x(), value.toPointF().y()));
        }
        return Base::itemChange(change, value);
    }

    template <typename... Values>
    void note(const char* call, const Values&... values) const
    {
        m_calls.add(m_name, call, values...);
    }
    void setOwnSize(const QSizeF& size) { m_size = size; }

private:
    CallList& m_calls;
    QString m_name;
    QSizeF m_size{0.0, 0.0};
    bool m_noting = false;
};

template <class Base>
class WithPen : public Base
{
public:
    using Base::Base;
    void setPenColor(const QColor& color) override { this->note("setPenColor", color); }
    void setPenWidth(quint16 width) override { this->note("setPenWidth", int(width)); }
    void setPenStyle(int style) override { this->note("setPenStyle", style); }
    void setCapStyle(int style) override { this->note("setCapStyle", style); }
    void setJoinStyle(int style) override { this->note("setJoinStyle", style); }
};

template <class Base>
class WithFill : public Base
{
public:
    using Base::Base;
    void setFillColor(const QColor& color) override { this->note("setFillColor", color); }
};

template <class Base>
class WithBrush : public Base
{
public:
    using Base::Base;
    void setFilled(bool filled) override { this->note("setFilled", filled); }
    void setBrushStyle(int style) override { this->note("setBrushStyle", style); }
};

template <class Base>
class WithFont : public Base
{
public:
    using Base::Base;
    void setTextColor(const QColor& color) override { this->note("setTextColor", color); }
    void setFontFamily(const QString& family) override { this->note("setFontFamily", family); }
    void setFontPointSize(int size) override { this->note("setFontPointSize", size); }
    void setFontBold(bool bold) override { this->note("setFontBold", bold); }
    void setFontItalic(bool italic) override { this->note("setFontItalic", italic); }
    void setFontUnderline(bool underline) override { this->note("setFontUnderline", underline); }
    void setTextAlignment(Qt::Alignment alignment) override
    {
        this->note("setTextAlignment", int(alignment.toInt()));
    }
};

template <class Base>
class WithDatasource : public Base
{
public:
    using Base::Base;
    void setDatasourceId(int id) override { this->note("setDatasourceId", id); }
    void setDatasourceFields(const QStringList& fields) override
    {
        this->note("setDatasourceFields", fields.join(QLatin1Char('|')));
    }
};

template <class Base>
class WithGround : public Base
{
public:
    using Base::Base;
    void setForegroundColor(const QColor& color) override
    {
        this->note("setForegroundColor", color);
    }
    void setBackgroundColor(const QColor& color) override
    {
        this->note("setBackgroundColor", color);
    }
};

template <class Base>
using Fillable = WithBrush<WithFill<WithPen<WithItem<Base>>>>;

using FakeRectangle = Fillable<RectangleItem>;
using FakeEllipse = Fillable<EllipseItem>;
using FakePolygon = Fillable<PolygonItem>;

class FakeRoundedRectangle : public Fillable<RoundedRectangleItem>
{
public:
    using Fillable<RoundedRectangleItem>::Fillable;
    void setCornerRadius(double radius) override { note("setCornerRadius", radius); }
};

class FakeLine : public WithPen<WithItem<LineItem>>
{
public:
    using WithPen<WithItem<LineItem>>::WithPen;
    void setLineLength(double length) override { note("setLineLength", length); }
    void setLineStartPoint(const QPointF& /*point*/) override { note("setLineStartPoint"); }
    void setLineEndPoint(const QPointF& /*point*/) override { note("setLineEndPoint"); }
    void setLineStartMarker(int marker) override { note("setLineStartMarker", marker); }
    void setLineEndMarker(int marker) override { note("setLineEndMarker", marker); }
};

class FakeText : public WithDatasource<WithFont<Fillable<SimpleTextItem>>>
{
public:
    FakeText(CallList& calls, int number)
        : WithDatasource(calls, number)
    {
        setOwnSize({33.0, 11.0});
    }
    void setText(const QString& text) override { note("setText", text); }
    void setTextBoxSize(const QSizeF& size) override { note("setTextBoxSize", size); }
    void setOptionA(bool on) override { note("setOptionA", on); }
    void setOptionB(bool on) override { note("setOptionB", on); }
    void applyTextOptions() override { note("applyTextOptions"); }
    void importTextProperties(const QString& text, int fontSize, bool flag1, bool flag2, bool flag3,
                              const QFlags<Qt::AlignmentFlag>& alignment) override
    {
        note("importTextProperties", text, fontSize, flag1, flag2, flag3, int(alignment.toInt()));
    }
    void setItemSizeLimiting(signed char mode) override { note("setItemSizeLimiting", int(mode)); }
};

class FakeBarcode : public WithDatasource<WithGround<WithFont<WithFill<WithItem<BarcodeItem>>>>>
{
public:
    using WithDatasource<WithGround<WithFont<WithFill<WithItem<BarcodeItem>>>>>::WithDatasource;
    void setBarcodeType(int code) override { note("setBarcodeType", code); }
    void importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                 int textAlignment, int moduleWidth, bool flag1, bool flag2,
                                 int option, int number, int value) override
    {
        note("importBarcodeProperties", symbology, content, flag3, textAlignment, moduleWidth,
             flag1, flag2, option, number, value);
    }
    [[nodiscard]] QRectF boundingRect() const override { return {}; }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override {}
};

class FakePicture : public WithDatasource<WithItem<PixMapItem>>
{
public:
    using WithDatasource<WithItem<PixMapItem>>::WithDatasource;
    void pixmapImportActions(const QPixmap& pixmap) override
    {
        note("pixmapImportActions", QSizeF(pixmap.size()));
        setOwnSize(pixmap.size());
    }
};

/// Symbol data of this host is a size, "30x20" for instance.
class FakeSymbol : public WithDatasource<WithGround<WithFill<WithItem<SymbolItem>>>>
{
public:
    using WithDatasource<WithGround<WithFill<WithItem<SymbolItem>>>>::WithDatasource;
    void loadItemFromData(const QByteArray& data) override
    {
        note("loadItemFromData", QString::fromLatin1(data));
        const QList<QByteArray> sides = data.split('x');
        setOwnSize(sides.size() == 2 ? QSizeF(sides[0].toDouble(), sides[1].toDouble())
                                     : QSizeF(0.0, 0.0));
    }
};

} // namespace tavrel_test
