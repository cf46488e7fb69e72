#pragma once

#include "host/items/barcode_item.h"
#include "workbench/barcodes/barcode_encoder.h"
#include "workbench/barcodes/barcode_painter.h"
#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"

#include <optional>

namespace workbench {

/// What a barcode item encodes.
[[nodiscard]] barcodes::BarcodeRequest barcodeRequest(const BarcodeValues& values,
                                                      const QString& content);
/// How a barcode item draws its barcode; the values must have a barcode.
[[nodiscard]] barcodes::BarcodeStyle barcodeStyle(const ItemValues& values);

/// A barcode, fitted into its box. The fill color and the background color are the same.
class BarcodeItem final : public DatasourceLayer<TextStyleLayer<FontLayer<BoxLayer<::BarcodeItem>>>>
{
public:
    using DatasourceLayer::DatasourceLayer;

    /// Alignment of the caption; importBarcodeProperties() sets it too.
    void setTextAlignment(Qt::Alignment alignment) override;
    void setBarcodeType(int code) override;
    /// Also sets the caption's color; a text color set later applies to the caption alone.
    void setForegroundColor(const QColor& color) override;
    void setBackgroundColor(const QColor& color) override;
    void setFillColor(const QColor& color) override;
    void importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                 int textAlignment, int moduleWidth, bool flag1, bool flag2,
                                 int option, int number, int value) override;

    /// Why the content cannot be encoded; the box then shows this text instead of the bars.
    [[nodiscard]] QString issue() const override;

protected:
    void paintContent(QPainter& painter) override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;
    void appearanceChanged() override;

private:
    [[nodiscard]] const barcodes::BarcodeSymbol& symbol() const;

    BarcodeValues m_barcode;
    /// Encoded on first use, and again after a change.
    mutable std::optional<barcodes::BarcodeSymbol> m_symbol;
};

} // namespace workbench
