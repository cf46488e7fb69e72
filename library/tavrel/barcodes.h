#pragma once

#include "tavrel/item_building.h"

#include <QString>

/// Barcode items.
namespace tavrel {

class DatasourceBinder;

/// The settings are named as in BarcodeItem::importBarcodeProperties(). The file stores them in
/// this order: module width, text alignment, four flags (quiet zones, bearer bars, text, check
/// digit), size (as text), three integers (error correction, columns, one that is unused).
struct BarcodeRecord
{
    ItemHeader header;
    QString content;
    QString datasourceText;
    QString datasourceKey;
    qint32 symbology = 0;
    qint32 moduleWidth = 0; ///< whole points
    int textAlignment = 0;  ///< a Qt::Alignment
    bool hasQuietZones = false;
    bool hasBearerBars = false;
    bool hasText = false;
    bool hasCheckDigit = false;
    int size = 0; ///< 0 if the stored text is not a number
    qint32 errorCorrection = 0;
    qint32 columns = 0;

    /// The symbology's option: the number of columns for PDF417, the check digit (0 or 1) for the
    /// others.
    [[nodiscard]] int option() const;
};

/// Reads a record after its type code. Values beyond the end of the stream are zero or empty.
[[nodiscard]] BarcodeRecord readBarcodeRecord(QDataStream& stream, const FileContext& file,
                                              qint64 itemNumber);

/// Whether the host can draw the symbology. The host's lists contain 16-bit codes, so the check,
/// and only the check, uses the low 16 bits.
[[nodiscard]] bool isValidSymbology(qint32 symbology, bool linear);

/// Builds a barcode of a valid symbology.
BuildResult buildBarcode(const HostCanvas& host, const BarcodeRecord& record,
                         const DatasourceBinder& binder);

} // namespace tavrel
