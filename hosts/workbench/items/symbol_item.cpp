#include "workbench/items/symbol_item.h"

#include "workbench/items/symbol_colors.h"
#include "workbench/symbols/symbol_data.h"

#include <QPaintEngine>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>

namespace workbench {

namespace {

constexpr double DotsPerPoint = 300.0 / 72.0;
constexpr double LongestSide = 4'000.0;

/// Qt's SVG generator ignores the place and the size of radial gradients.
bool losesGradients(const QPainter& painter, const QByteArray& svg)
{
    const QPaintEngine* engine = painter.paintEngine();
    return engine != nullptr && engine->type() == QPaintEngine::SVG &&
           svg.contains("radialGradient");
}

void paintDots(QPainter& painter, QSvgRenderer& drawing, const QRectF& box)
{
    const double scale =
        std::min(DotsPerPoint, LongestSide / std::max({1.0, box.width(), box.height()}));
    QImage image((box.size() * scale).toSize().expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter dots(&image);
    drawing.render(&dots);
    dots.end();
    painter.drawImage(box, image);
}

} // namespace

SymbolItem::SymbolItem(KestTypes::ShapeType type)
    : DatasourceLayer(type)
{}

SymbolItem::~SymbolItem() = default;

void SymbolItem::loadItemFromData(const QByteArray& data)
{
    takeData(data);
    setBoxSize(m_safeData.isEmpty() ? QSizeF(0.0, 0.0)
                                    : boundedSize(symbols::naturalSize(m_safeData)));
}

void SymbolItem::setForegroundColor(const QColor& color)
{
    m_symbol.foreground = color;
    colorChanged();
}

void SymbolItem::setBackgroundColor(const QColor& color)
{
    m_symbol.background = color;
    appearanceChanged();
}

void SymbolItem::setFillColor(const QColor& color)
{
    if (color.isValid()) {
        setBackgroundColor(color);
    }
}

void SymbolItem::takeData(const QByteArray& data)
{
    m_symbol.data = data;
    m_safeData = symbols::makeSymbolData(data).value_or(QByteArray());
    colorChanged();
}

QSvgRenderer& SymbolItem::drawing()
{
    if (!m_drawing) {
        m_drawing = std::make_unique<QSvgRenderer>(withForeground(m_safeData, m_symbol.foreground));
    }
    return *m_drawing;
}

void SymbolItem::colorChanged()
{
    m_drawing.reset();
    appearanceChanged();
}

void SymbolItem::paintContent(QPainter& painter)
{
    const QRectF box = contentRect();
    painter.fillRect(box, m_symbol.background);
    if (m_safeData.isEmpty() || !drawing().isValid()) {
        return;
    }
    if (losesGradients(painter, m_safeData)) {
        paintDots(painter, drawing(), box);
    } else {
        drawing().render(&painter, box);
    }
}

void SymbolItem::collect(ItemValues& values) const
{
    DatasourceLayer::collect(values);
    values.symbol = m_symbol;
}

void SymbolItem::restore(const ItemValues& values)
{
    const SymbolValues symbol = values.symbol.value_or(SymbolValues());
    // Checking and parsing are slow; a change of another value keeps the drawing.
    if (symbol != m_symbol) {
        m_symbol = symbol;
        takeData(symbol.data);
    }
    DatasourceLayer::restore(values);
}

} // namespace workbench
