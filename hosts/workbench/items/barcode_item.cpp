#include "workbench/items/barcode_item.h"

#include "workbench/barcodes/barcode_painter.h"
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
        m_symbol = barcodes::encode({m_barcode.symbology, shownContent(m_barcode.content),
                                     m_barcode.flag3, m_barcode.flag1, m_barcode.flag2,
                                     m_barcode.option, m_barcode.number, m_barcode.value});
    }
    return *m_symbol;
}

void BarcodeItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    painter.fillRect(box, m_barcode.background);
    barcodes::BarcodeStyle style;
    style.foreground = m_barcode.foreground;
    style.background = groundOf(m_barcode);
    style.textColor = textStyleValues().color;
    style.font = toFont(fontValues(), captionSize(fontValues()));
    style.captionAlignment = Qt::Alignment(m_barcode.textAlignment);
    style.moduleWidth = m_barcode.moduleWidth;
    barcodes::paintBarcode(painter, box, symbol(), style);
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
