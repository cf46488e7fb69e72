#pragma once

// Items of a host that does nothing: every setter is taken and forgotten, sizes are kept
// because importers read them back. Facets are laid over a contract class one by one, so
// that each operation is written once.

#include "host/items/barcode_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"

namespace silent {

template <class Base>
class WithItem : public Base
{
public:
    void setItemSize(const QSizeF& size) override { m_size = size; }
    [[nodiscard]] QSizeF getItemSize() const override { return m_size; }
    [[nodiscard]] double getItemWidth() const override { return m_size.width(); }
    [[nodiscard]] double getItemHeight() const override { return m_size.height(); }
    void setItemRotation(double /*degrees*/) override {}
    void setFlipHorizontal(bool /*flip*/) override {}
    void setFlipVertical(bool /*flip*/) override {}

private:
    QSizeF m_size{0.0, 0.0};
};

template <class Base>
class WithPen : public Base
{
public:
    void setPenColor(const QColor& /*color*/) override {}
    void setPenWidth(quint16 /*width*/) override {}
    void setPenStyle(int /*style*/) override {}
    void setCapStyle(int /*style*/) override {}
    void setJoinStyle(int /*style*/) override {}
};

template <class Base>
class WithFill : public Base
{
public:
    void setFillColor(const QColor& /*color*/) override {}
};

template <class Base>
class WithBrush : public Base
{
public:
    void setFilled(bool /*filled*/) override {}
    void setBrushStyle(int /*style*/) override {}
};

template <class Base>
class WithText : public Base
{
public:
    void setTextColor(const QColor& /*color*/) override {}
    void setFontFamily(const QString& /*family*/) override {}
    void setFontPointSize(int /*size*/) override {}
    void setFontBold(bool /*bold*/) override {}
    void setFontItalic(bool /*italic*/) override {}
    void setFontUnderline(bool /*underline*/) override {}
    void setTextAlignment(Qt::Alignment /*alignment*/) override {}
};

template <class Base>
class WithDatasource : public Base
{
public:
    void setDatasourceId(int /*id*/) override {}
    void setDatasourceFields(const QStringList& /*fields*/) override {}
};

template <class Base>
using Shape = WithBrush<WithFill<WithPen<WithItem<Base>>>>;

using Rectangle = Shape<RectangleItem>;
using Ellipse = Shape<EllipseItem>;
using Pie = Shape<PieItem>;
using Polygon = Shape<PolygonItem>;

class RoundedRectangle : public Shape<RoundedRectangleItem>
{
public:
    void setCornerRadius(double /*radius*/) override {}
};

class Line : public WithPen<WithItem<LineItem>>
{
public:
    void setLineLength(double /*length*/) override {}
    void setLineStartPoint(const QPointF& /*point*/) override {}
    void setLineEndPoint(const QPointF& /*point*/) override {}
    void setLineStartMarker(int /*marker*/) override {}
    void setLineEndMarker(int /*marker*/) override {}
};

class SimpleText : public WithDatasource<WithText<Shape<SimpleTextItem>>>
{
public:
    void setText(const QString& /*text*/) override {}
    void setTextBoxSize(const QSizeF& size) override { setItemSize(size); }
    void setOptionA(bool /*on*/) override {}
    void setOptionB(bool /*on*/) override {}
    void applyTextOptions() override {}
    void importTextProperties(const QString& /*text*/, int /*fontSize*/, bool /*flag1*/,
                              bool /*flag2*/, bool /*flag3*/,
                              const QFlags<Qt::AlignmentFlag>& /*alignment*/) override
    {}
    void setItemSizeLimiting(signed char /*mode*/) override {}
};

class RichText : public WithDatasource<WithText<Shape<RichTextItem>>>
{
public:
    void setText(const QString& /*text*/) override {}
    void adjustBoxSizeToContent(double width) override { setItemSize({width, 12.0}); }
};

class Barcode : public WithDatasource<WithText<WithFill<WithItem<BarcodeItem>>>>
{
public:
    void setBarcodeType(int /*code*/) override {}
    void setForegroundColor(const QColor& /*color*/) override {}
    void setBackgroundColor(const QColor& /*color*/) override {}
    void importBarcodeProperties(int /*symbology*/, const QString& /*content*/, bool /*flag3*/,
                                 int /*textAlignment*/, int /*moduleWidth*/, bool /*flag1*/,
                                 bool /*flag2*/, int /*option*/, int /*number*/,
                                 int /*value*/) override
    {}
    [[nodiscard]] QRectF boundingRect() const override { return {QPointF(), getItemSize()}; }
    void paint(QPainter* /*painter*/, const QStyleOptionGraphicsItem* /*option*/,
               QWidget* /*widget*/) override
    {}
};

class Picture : public WithDatasource<WithItem<PixMapItem>>
{
public:
    void pixmapImportActions(const QPixmap& pixmap) override { setItemSize(pixmap.size()); }
};

class Symbol : public WithDatasource<WithFill<WithItem<SymbolItem>>>
{
public:
    void setForegroundColor(const QColor& /*color*/) override {}
    void setBackgroundColor(const QColor& /*color*/) override {}
    void loadItemFromData(const QByteArray& data) override
    {
        setItemSize(data.isEmpty() ? QSizeF(0, 0) : QSizeF(100, 100));
    }
};

} // namespace silent
