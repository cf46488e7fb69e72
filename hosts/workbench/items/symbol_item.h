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
/// The foreground color applies to what the drawing does not specify: parts without a
/// fill, and parts that use currentColor. Colors in the drawing are kept, so that
/// a colored logo does not change. The fill color and the background color are
/// the same.
///
/// Data is never trusted: unsafe parts are not drawn, and nothing outside the drawing
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
    /// The drawing in its color; parsed when it is first needed.
    [[nodiscard]] QSvgRenderer& drawing();
    void colorChanged();

    SymbolValues m_symbol;
    /// Empty if the data is not a drawing that may be shown.
    QByteArray m_safeData;
    std::unique_ptr<QSvgRenderer> m_drawing;
};

} // namespace workbench
