#pragma once

#include "host/items/barcode_item.h"
#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"

namespace workbench {

/// A barcode. The fill colour is the background: a barcode has one ground.
class BarcodeItem final : public DatasourceLayer<TextStyleLayer<FontLayer<BoxLayer<::BarcodeItem>>>>
{
public:
    using DatasourceLayer::DatasourceLayer;

    void setBarcodeType(int code) override;
    /// The caption takes the colour of the bars; a text colour set later holds for it alone.
    void setForegroundColor(const QColor& color) override;
    void setBackgroundColor(const QColor& color) override;
    void setFillColor(const QColor& color) override;
    void importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                 int textAlignment, int moduleWidth, bool flag1, bool flag2,
                                 int option, int number, int value) override;

    [[nodiscard]] QString issue() const override;

protected:
    void paintContent(QPainter& painter) override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    BarcodeValues m_barcode;
};

} // namespace workbench
