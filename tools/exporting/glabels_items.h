#pragma once

#include "exporting/export_findings.h"
#include "exporting/glabels_document.h"
#include "exporting/label_walk.h"
#include "exporting/records_table.h"
#include "workbench/barcodes/barcode_painter.h"
#include "workbench/rendering/page_export.h"

namespace exporting {

/// Writes the items of one label as objects of gLabels, and notes how well they match.
class GlabelsItems
{
public:
    /// @param document must outlive this object
    /// @param records  must outlive this object; columns for captions are added
    /// @param toLabel  from the page to the label, as in the transforms of the items
    GlabelsItems(GlabelsDocument& document, RecordsTable& records, const QTransform& toLabel)
        : m_document(document)
        , m_records(records)
        , m_toLabel(toLabel)
    {}

    void add(const WalkedItem& item);
    [[nodiscard]] ExportFindings& findings() { return m_findings; }

private:
    void note(Fidelity fidelity, const WalkedItem& item, const QString& text = {});
    void addShape(const WalkedItem& item);
    void addLine(const WalkedItem& item);
    void addText(const WalkedItem& item);
    void addGround(const WalkedItem& item);
    void addBarcode(const WalkedItem& item);
    [[nodiscard]] QString captionColumn(const workbench::BarcodeValues& values,
                                        const QString& column);
    /// @param reason why it is not an object of its own kind; empty for a picture, which is one
    void addDrawing(const WalkedItem& item, const QString& reason);
    /// Returns whether the drawing was too large and became a picture of fewer dots.
    bool addSvg(const QRectF& area, const QTransform& toPage, const workbench::Paint& paint);

    GlabelsDocument& m_document;
    RecordsTable& m_records;
    QTransform m_toLabel;
    ExportFindings m_findings;
};

} // namespace exporting
