#pragma once

#include "host/items/barcode_item.h"
#include "host/items/ellipse_item.h"
#include "host/items/pix_map_item.h"
#include "host/items/polygon_item.h"
#include "host/items/rectangle_item.h"
#include "host/items/rich_text_item.h"
#include "host/items/simple_text_item.h"
#include "host/items/symbol_item.h"
#include "tests/orvanta/journal.h"

#include <memory>

/// Items that write their calls into the journal, under the names "item:1", "item:2" …
namespace fake {

/// Number of items that live; tells whether one was leaked or deleted twice.
int& livingItems();

template <typename Base>
class FakeItem : public Base
{
public:
    explicit FakeItem(const QString& name)
        : m_name(name)
    {
        ++livingItems();
    }
    ~FakeItem() override { --livingItems(); }

    void setItemSize(const QSizeF& size) override
    {
        note("setItemSize", size);
        m_size = size;
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
    template <typename... Values>
    void note(const char* call, const Values&... values) const
    {
        journal::write(m_name, call, values...);
    }
    void setOwnSize(const QSizeF& size) { m_size = size; }

private:
    QString m_name;
    QSizeF m_size{0.0, 0.0};
};

template <typename Base>
class FakeFillable : public FakeItem<Base>
{
public:
    using FakeItem<Base>::FakeItem;

    void setPenColor(const QColor& color) override { this->note("setPenColor", color); }
    void setPenWidth(quint16 width) override { this->note("setPenWidth", width); }
    void setPenStyle(int style) override { this->note("setPenStyle", style); }
    void setCapStyle(int style) override { this->note("setCapStyle", style); }
    void setJoinStyle(int style) override { this->note("setJoinStyle", style); }
    void setFillColor(const QColor& color) override { this->note("setFillColor", color); }
    void setFilled(bool filled) override { this->note("setFilled", filled); }
    void setBrushStyle(int style) override { this->note("setBrushStyle", style); }
};

using FakeRectangle = FakeFillable<RectangleItem>;
using FakeEllipse = FakeFillable<EllipseItem>;
using FakePolygon = FakeFillable<PolygonItem>;

/// The font, alignment and data-source facets, over an item that has them.
template <typename Base>
class FakeLettering : public Base
{
public:
    using Base::Base;

    void setTextColor(const QColor& color) override { this->note("setTextColor", color); }
    void setFontFamily(const QString& family) override { this->note("setFontFamily", family); }
    void setFontPointSize(int size) override { this->note("setFontPointSize", size); }
    void setFontBold(bool bold) override { this->note("setFontBold", bold); }
    void setFontItalic(bool italic) override { this->note("setFontItalic", italic); }
    void setFontUnderline(bool on) override { this->note("setFontUnderline", on); }
    void setTextAlignment(Qt::Alignment alignment) override
    {
        this->note("setTextAlignment", int(alignment));
    }
};

template <typename Base>
class FakeBound : public Base
{
public:
    using Base::Base;

    void setDatasourceId(int id) override { this->note("setDatasourceId", id); }
    void setDatasourceFields(const QStringList& fields) override
    {
        this->note("setDatasourceFields", fields);
    }
};

template <typename Base>
class FakeText : public FakeBound<FakeLettering<FakeFillable<Base>>>
{
public:
    using FakeBound<FakeLettering<FakeFillable<Base>>>::FakeBound;

    void setText(const QString& text) override { this->note("setText", text); }
};

class FakeSimpleText : public FakeText<SimpleTextItem>
{
public:
    using FakeText::FakeText;

    void importTextProperties(const QString& text, int, bool, bool, bool,
                              const QFlags<Qt::AlignmentFlag>&) override
    {
        note("importTextProperties", text);
    }
    void setItemSizeLimiting(signed char mode) override { note("setItemSizeLimiting", int(mode)); }
    void setTextBoxSize(const QSizeF& size) override { note("setTextBoxSize", size); }
    void setOptionA(bool on) override { note("setOptionA", on); }
    void setOptionB(bool on) override { note("setOptionB", on); }
    void applyTextOptions() override { note("applyTextOptions"); }
};

class FakeRichText : public FakeText<RichTextItem>
{
public:
    using FakeText::FakeText;

    void adjustBoxSizeToContent(double width) override { note("adjustBoxSizeToContent", width); }
};

class FakeBarcode : public FakeBound<FakeLettering<FakeItem<BarcodeItem>>>
{
public:
    using FakeBound::FakeBound;

    [[nodiscard]] QRectF boundingRect() const override { return {}; }
    void paint(QPainter*, const QStyleOptionGraphicsItem*, QWidget*) override {}
    void setFillColor(const QColor& color) override { note("setFillColor", color); }
    void setForegroundColor(const QColor& color) override { note("setForegroundColor", color); }
    void setBackgroundColor(const QColor& color) override { note("setBackgroundColor", color); }
    void setBarcodeType(int code) override { note("setBarcodeType", code); }
    void importBarcodeProperties(int symbology, const QString& content, bool, int, int, bool, bool,
                                 int, int, int) override
    {
        note("importBarcodeProperties", symbology, content);
    }
};

class FakePixMap : public FakeBound<FakeItem<PixMapItem>>
{
public:
    using FakeBound::FakeBound;

    void pixmapImportActions(const QPixmap& pixmap) override
    {
        note("pixmapImportActions", pixmap.width(), pixmap.height());
    }
};

class FakeSymbol : public FakeBound<FakeItem<SymbolItem>>
{
public:
    /// @param ownSize the size that loadItemFromData() finds in its data
    FakeSymbol(const QString& name, const QSizeF& ownSize)
        : FakeBound(name)
        , m_ownSize(ownSize)
    {}

    void setFillColor(const QColor& color) override { note("setFillColor", color); }
    void setForegroundColor(const QColor& color) override { note("setForegroundColor", color); }
    void setBackgroundColor(const QColor& color) override { note("setBackgroundColor", color); }
    void loadItemFromData(const QByteArray& data) override
    {
        note("loadItemFromData", data);
        setOwnSize(m_ownSize);
    }

private:
    QSizeF m_ownSize;
};

} // namespace fake
