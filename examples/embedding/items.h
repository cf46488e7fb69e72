#pragma once

#include "facets.h"

#include "host/items/barcode_item.h"
#include "host/items/ellipse_item.h"
#include "host/items/line_item.h"
#include "host/items/pie_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/rounded_rectangle_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"

#include <cmath>

// The eleven kinds of items. Each has a class of the contract, the layers of its facets, and its
// own operations.

template <typename Base>
using Shape = WithBrush<WithFillColor<WithPen<WithBox<Base>>>>;

using Rectangle = Shape<RectangleItem>;
using Ellipse = Shape<EllipseItem>;
using Pie = Shape<PieItem>;
using Polygon = Shape<PolygonItem>;

class RoundedRectangle : public Shape<RoundedRectangleItem>
{
public:
    using Shape<RoundedRectangleItem>::Shape;
    void setCornerRadius(double /*radius*/) override {}
};

/// Importers set either the length of a line or its two ends on the page.
class Line : public WithPen<WithBox<LineItem>>
{
public:
    using WithPen<WithBox<LineItem>>::WithPen;

    void setLineLength(double length) override { setItemSize({length, 0.0}); }
    void setLineStartPoint(const QPointF& point) override { setEnds(point, m_end); }
    void setLineEndPoint(const QPointF& point) override { setEnds(m_start, point); }
    void setLineStartMarker(int /*marker*/) override {}
    void setLineEndMarker(int /*marker*/) override {}

private:
    void setEnds(const QPointF& start, const QPointF& end)
    {
        m_start = start;
        m_end = end;
        setPos(start);
        setItemSize({std::abs(end.x() - start.x()), std::abs(end.y() - start.y())});
    }

    QPointF m_start;
    QPointF m_end;
};

template <typename Base>
using Text = WithDatasource<WithText<WithFont<Shape<Base>>>>;

class SimpleText : public Text<SimpleTextItem>
{
public:
    using Text<SimpleTextItem>::Text;

    void setTextBoxSize(const QSizeF& size) override { setItemSize(size); }
    void setOptionA(bool /*on*/) override {}
    void setOptionB(bool /*on*/) override {}
    void applyTextOptions() override {}
    void importTextProperties(const QString& text, int fontSize, bool bold, bool italic,
                              bool underlined, const QFlags<Qt::AlignmentFlag>& alignment) override
    {
        setText(text);
        setFontPointSize(fontSize);
        setFontBold(bold);
        setFontItalic(italic);
        setFontUnderline(underlined);
        setTextAlignment(alignment);
    }
    void setItemSizeLimiting(signed char /*mode*/) override {}
};

/// The importer fills the item's own QTextDocument; setText() is rarely called.
class RichText : public Text<RichTextItem>
{
public:
    using Text<RichTextItem>::Text;

    void adjustBoxSizeToContent(double width) override
    {
        setTextWidth(width > 0.0 ? width : -1.0);
        followText();
    }
};

class Barcode : public WithDatasource<WithTwoColors<WithFont<WithFillColor<WithBox<BarcodeItem>>>>>
{
public:
    using WithDatasource<
        WithTwoColors<WithFont<WithFillColor<WithBox<BarcodeItem>>>>>::WithDatasource;

    void setBarcodeType(int /*code*/) override {}
    void importBarcodeProperties(int /*symbology*/, const QString& /*content*/, bool /*flag3*/,
                                 int /*textAlignment*/, int /*moduleWidth*/, bool /*flag1*/,
                                 bool /*flag2*/, int /*option*/, int /*number*/,
                                 int /*value*/) override
    {}

    // Qt can draw all other items; a barcode needs an encoder.
    [[nodiscard]] QRectF boundingRect() const override { return {QPointF(), getItemSize()}; }
    void paint(QPainter* /*painter*/, const QStyleOptionGraphicsItem* /*option*/,
               QWidget* /*widget*/) override
    {}
};

/// A picture has a natural size: one point per pixel.
class Picture : public WithDatasource<WithBox<PixMapItem>>
{
public:
    using WithDatasource<WithBox<PixMapItem>>::WithDatasource;

    void pixmapImportActions(const QPixmap& pixmap) override
    {
        setPixmap(pixmap);
        setItemSize(pixmap.size());
    }
};

class Symbol : public WithDatasource<WithTwoColors<WithFillColor<WithBox<SymbolItem>>>>
{
public:
    using WithDatasource<WithTwoColors<WithFillColor<WithBox<SymbolItem>>>>::WithDatasource;

    /// A symbol has a natural size, too; importers treat data without a size as invalid. This
    /// host does not parse the drawing, so the initial size is one inch square.
    void loadItemFromData(const QByteArray& data) override
    {
        setItemSize(data.isEmpty() ? QSizeF(0.0, 0.0) : QSizeF(72.0, 72.0));
    }
};
