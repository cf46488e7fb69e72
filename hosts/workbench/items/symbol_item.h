#pragma once

#include "host/items/symbol_item.h"
#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"

#include <QByteArray>

#include <memory>

class QSvgRenderer;

namespace workbench {

/// A vector symbol, stretched to its box.
///
/// The foreground colour is what the drawing leaves open: parts without a fill of their
/// own and those that ask for the current colour. Colours that the drawing states stay,
/// so that a coloured logo keeps them. The fill colour is the background: a symbol has
/// one ground.
///
/// Whatever data it is given, only what is safe of it is drawn: nothing outside the drawing
/// is ever opened.
class SymbolItem final : public DatasourceLayer<BoxLayer<::SymbolItem>>
{
public:
    explicit SymbolItem(KestTypes::ShapeType type);
    ~SymbolItem() override;

    void loadItemFromData(const QByteArray& data) override;
    void setForegroundColor(const QColor& color) override;
    void setBackgroundColor(const QColor& color) override;
    void setFillColor(const QColor& color) override;

protected:
    void paintContent(QPainter& painter) override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    void takeData(const QByteArray& data);
    void loadDrawing();

    SymbolValues m_symbol;
    QByteArray m_safeData;
    std::unique_ptr<QSvgRenderer> m_drawing;
};

} // namespace workbench
