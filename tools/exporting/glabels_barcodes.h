#pragma once

#include "exporting/glabels_document.h"
#include "workbench/barcodes/barcode_painter.h"

#include <optional>

/// Which barcodes gLabels encodes itself, and how large it draws them.
namespace exporting {

/// A barcode of gLabels, and the box of its object: with the margins that gLabels adds, so that the
/// bars have our place.
struct GlabelsSymbol
{
    GlabelsBarcode barcode;
    QRectF box;
};

/// The barcode, if gLabels draws one of the same content and size.
[[nodiscard]] std::optional<GlabelsSymbol>
glabelsSymbol(const workbench::BarcodeValues& values,
              const workbench::barcodes::BarcodeSymbol& symbol,
              const workbench::barcodes::BarcodeLayout& layout);

/// Whether gLabels accepts this content for a symbology that it knows.
[[nodiscard]] bool isGlabelsContent(const workbench::BarcodeValues& values, const QString& content);

} // namespace exporting
