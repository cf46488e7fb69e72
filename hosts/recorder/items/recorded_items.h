#pragma once

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
#include "recorder/items/recorded_facets.h"

// The items of the recording host. They paint nothing: each call to
// them becomes a line of the trace.

namespace recorder {

using RecordedRectangle = Fillable<RectangleItem>;
using RecordedEllipse = Fillable<EllipseItem>;
using RecordedPie = Fillable<PieItem>;
using RecordedPolygon = Fillable<PolygonItem>;

class RecordedRoundedRectangle : public Fillable<RoundedRectangleItem>
{
public:
    using Fillable<RoundedRectangleItem>::Fillable;
    void setCornerRadius(double radius) override;
};

class RecordedLine : public Contoured<LineItem>
{
public:
    using Contoured<LineItem>::Contoured;
    void setLineLength(double length) override;
    void setLineStartPoint(const QPointF& point) override;
    void setLineEndPoint(const QPointF& point) override;
    void setLineStartMarker(int marker) override;
    void setLineEndMarker(int marker) override;
};

/// The layers of TextItem. The recorded setText() does not change the document, so that the
/// document contains only what setHtml() has set.
template <typename Base>
class RecordedText : public DatasourceBinding<TextAlignment<Font<TextColor<Fillable<Base>>>>>
{
public:
    using DatasourceBinding<TextAlignment<Font<TextColor<Fillable<Base>>>>>::DatasourceBinding;
    void setText(const QString& text) override { this->record("setText", text); }
};

class RecordedSimpleText : public RecordedText<SimpleTextItem>
{
public:
    using RecordedText<SimpleTextItem>::RecordedText;
    void setTextBoxSize(const QSizeF& size) override;
    void setOptionA(bool on) override;
    void setOptionB(bool on) override;
    void applyTextOptions() override;
    void importTextProperties(const QString& text, int fontSize, bool flag1, bool flag2, bool flag3,
                              const QFlags<Qt::AlignmentFlag>& alignment) override;
    void setItemSizeLimiting(signed char mode) override;
};

class RecordedRichText : public RecordedText<RichTextItem>
{
public:
    using RecordedText<RichTextItem>::RecordedText;
    void setText(const QString& text) override;
    void adjustBoxSizeToContent(double width) override;

private:
    qsizetype m_characters = 0; ///< of setText()
};

class RecordedBarcode
    : public DatasourceBinding<
          TwoColors<TextAlignment<Font<TextColor<FillColor<Basics<BarcodeItem>>>>>>>
{
public:
    using DatasourceBinding<TwoColors<
        TextAlignment<Font<TextColor<FillColor<Basics<BarcodeItem>>>>>>>::DatasourceBinding;
    void setBarcodeType(int code) override;
    void importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                 int textAlignment, int moduleWidth, bool flag1, bool flag2,
                                 int option, int number, int value) override;

    [[nodiscard]] QRectF boundingRect() const override { return {}; }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override {}
};

class RecordedPixMap : public DatasourceBinding<Basics<PixMapItem>>
{
public:
    using DatasourceBinding<Basics<PixMapItem>>::DatasourceBinding;
    void pixmapImportActions(const QPixmap& pixmap) override;
};

class RecordedSymbol : public DatasourceBinding<TwoColors<FillColor<Basics<SymbolItem>>>>
{
public:
    using DatasourceBinding<TwoColors<FillColor<Basics<SymbolItem>>>>::DatasourceBinding;
    void loadItemFromData(const QByteArray& data) override;
};

} // namespace recorder
