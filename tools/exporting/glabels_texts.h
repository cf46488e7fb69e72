#pragma once

#include "exporting/export_findings.h"
#include "exporting/glabels_document.h"
#include "exporting/label_walk.h"
#include "workbench/barcodes/barcode_painter.h"

namespace exporting {

/// A column of the records; no name for an item that is not bound to one.
struct GlabelsField
{
    QString name;
    QString longest; ///< text
};

/// Adds the characters of a text item, without its background and frame. In several formats, they
/// become a text for each line and format.
///
/// @return false, and nothing is added, if gLabels cannot express the text
[[nodiscard]] bool addTextItem(GlabelsDocument& document, ExportFindings& findings,
                               const WalkedItem& item, const GlabelsField& field);

/// Adds the text below the bars of a barcode.
void addCaption(GlabelsDocument& document, const QTransform& toPage, const QString& text,
                const QString& field, const workbench::barcodes::BarcodeLayout& layout,
                const workbench::barcodes::BarcodeStyle& style);

} // namespace exporting
