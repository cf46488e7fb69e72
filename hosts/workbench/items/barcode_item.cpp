#include "workbench/items/barcode_item.h"

#include "workbench/items/text_layout.h"

#include <QPainter>

namespace workbench {

namespace {

// Caption size of labels that specify none, in points.
constexpr int CaptionSize = 8;

int captionSize(const FontValues& font)
{
    return font.sized ? font.pointSize : CaptionSize;
}

// The background color: the barcode's own, or else that of the label's material,
// usually white.
QColor groundOf(const BarcodeValues& values)
{
    return values.background.alpha() > 0 ? values.background : QColor(Qt::white);
}

} // namespace

barcodes::BarcodeRequest barcodeRequest(const BarcodeValues& values, const QString& content)
{
    return {values.symbology, content,       values.flag3,  values.flag1,
            values.flag2,     values.option, values.number, values.value};
}

barcodes::BarcodeStyle barcodeStyle(const ItemValues& values)
{
    const BarcodeValues barcode = values.barcode.value_or(BarcodeValues());
    const FontValues font = values.font.value_or(FontValues());
    barcodes::BarcodeStyle style;
    style.foreground = barcode.foreground;
    style.background = groundOf(barcode);
    style.textColor = values.textStyle.value_or(TextStyleValues()).color;
    style.font = toFont(font, captionSize(font));
    style.captionAlignment = Qt::Alignment(barcode.textAlignment);
    style.moduleWidth = barcode.moduleWidth;
    return style;
}

void BarcodeItem::setTextAlignment(Qt::Alignment alignment)
{
    m_barcode.textAlignment = static_cast<int>(alignment.toInt());
    DatasourceLayer::setTextAlignment(alignment);
}

void BarcodeItem::setBarcodeType(int code)
{
    m_barcode.symbology = code;
    appearanceChanged();
}

void BarcodeItem::setForegroundColor(const QColor& color)
{
    m_barcode.foreground = color;
    setTextColor(color);
}

void BarcodeItem::setBackgroundColor(const QColor& color)
{
    m_barcode.background = color;
    appearanceChanged();
}

void BarcodeItem::setFillColor(const QColor& color)
{
    if (color.isValid()) {
        setBackgroundColor(color);
    }
}

void BarcodeItem::importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                          int textAlignment, int moduleWidth, bool flag1,
                                          bool flag2, int option, int number, int value)
{
    m_barcode.symbology = symbology;
    m_barcode.content = content;
    m_barcode.flag3 = flag3;
    m_barcode.moduleWidth = moduleWidth;
    m_barcode.flag1 = flag1;
    m_barcode.flag2 = flag2;
    m_barcode.option = option;
    m_barcode.number = number;
    m_barcode.value = value;
    setTextAlignment(Qt::Alignment(textAlignment));
}

QString BarcodeItem::issue() const
{
    return symbol().error;
}

void BarcodeItem::appearanceChanged()
{
    m_symbol.reset();
    DatasourceLayer::appearanceChanged();
}

const barcodes::BarcodeSymbol& BarcodeItem::symbol() const
{
    if (!m_symbol) {
        m_symbol = barcodes::encode(barcodeRequest(m_barcode, shownContent(m_barcode.content)));
    }
    return *m_symbol;
}

void BarcodeItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    painter.fillRect(box, m_barcode.background);
    barcodes::paintBarcode(painter, box, symbol(), barcodeStyle(values()));
}

void BarcodeItem::collect(ItemValues& values) const
{
    DatasourceLayer::collect(values);
    values.barcode = m_barcode;
}

void BarcodeItem::restore(const ItemValues& values)
{
    m_barcode = values.barcode.value_or(BarcodeValues());
    DatasourceLayer::restore(values);
}

} // namespace workbench
