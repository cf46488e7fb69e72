#include "workbench/items/barcode_item.h"

#include "workbench/items/text_layout.h"

#include <QPainter>

namespace workbench {

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
    setBackgroundColor(color);
}

void BarcodeItem::importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                          int textAlignment, int moduleWidth, bool flag1,
                                          bool flag2, int option, int number, int value)
{
    m_barcode.symbology = symbology;
    m_barcode.content = content;
    m_barcode.flag3 = flag3;
    m_barcode.textAlignment = textAlignment;
    m_barcode.moduleWidth = moduleWidth;
    m_barcode.flag1 = flag1;
    m_barcode.flag2 = flag2;
    m_barcode.option = option;
    m_barcode.number = number;
    m_barcode.value = value;
    appearanceChanged();
}

QString BarcodeItem::issue() const
{
    return {};
}

void BarcodeItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    painter.fillRect(box, m_barcode.background);
    painter.setPen(QPen(m_barcode.foreground, 1.0, Qt::DashLine));
    painter.drawRect(box);
    const QString label = QStringLiteral("Barcode %1: %2")
                              .arg(m_barcode.symbology)
                              .arg(shownContent(m_barcode.content));
    paintTextFilling(
        painter, {label, toFont(fontValues()), Qt::AlignCenter, m_barcode.foreground, false}, box);
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
