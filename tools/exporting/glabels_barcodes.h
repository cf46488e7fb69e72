#pragma once

#include "workbench/barcodes/barcode_painter.h"
#include "workbench/items/item_values.h"

#include <QRectF>
#include <QString>

#include <optional>

/// Which barcodes gLabels encodes itself, and how large it draws them.
namespace exporting {

/// A barcode in the terms of gLabels.
struct GlabelsSymbol
{
    QString backend;
    QString style;
    /// For the object: with the margins that gLabels adds, so that the bars have our place.
    QRectF box;
    bool checksum = false;
};

/// The barcode, if gLabels draws one of the same content and size.
/// @param content of the symbol
[[nodiscard]] std::optional<GlabelsSymbol>
glabelsSymbol(const workbench::BarcodeValues& values, const QString& content,
              const workbench::barcodes::BarcodeSymbol& symbol,
              const workbench::barcodes::BarcodeLayout& layout);

/// Whether gLabels accepts this content for a symbology that it knows.
[[nodiscard]] bool isGlabelsContent(const workbench::BarcodeValues& values, const QString& content);

} // namespace exporting
