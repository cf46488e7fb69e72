#include "workbench/items/symbol_item.h"

#include "workbench/items/symbol_colors.h"

#include <QPainter>
#include <QSvgRenderer>

namespace workbench {

SymbolItem::SymbolItem(KestTypes::ShapeType type)
    : DatasourceLayer(type)
    , m_drawing(std::make_unique<QSvgRenderer>())
{}

SymbolItem::~SymbolItem() = default;

void SymbolItem::loadItemFromData(const QByteArray& data)
{
    m_symbol.data = data;
    loadDrawing();
    setBoxSize(m_drawing->isValid() ? QSizeF(m_drawing->defaultSize()) : QSizeF(0.0, 0.0));
}

void SymbolItem::setForegroundColor(const QColor& color)
{
    m_symbol.foreground = color;
    loadDrawing();
}

void SymbolItem::setBackgroundColor(const QColor& color)
{
    m_symbol.background = color;
    appearanceChanged();
}

void SymbolItem::setFillColor(const QColor& color)
{
    setBackgroundColor(color);
}

void SymbolItem::loadDrawing()
{
    m_drawing->load(withForeground(m_symbol.data, m_symbol.foreground));
    appearanceChanged();
}

void SymbolItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    painter.fillRect(box, m_symbol.background);
    if (m_drawing->isValid()) {
        m_drawing->render(&painter, box);
    }
}

void SymbolItem::collect(ItemValues& values) const
{
    DatasourceLayer::collect(values);
    values.symbol = m_symbol;
}

void SymbolItem::restore(const ItemValues& values)
{
    m_symbol = values.symbol.value_or(SymbolValues());
    loadDrawing();
    DatasourceLayer::restore(values);
}

} // namespace workbench
