#pragma once

#include "tavrel/barcode_record.h"
#include "tavrel/item_building.h"

namespace tavrel {

class DatasourceBinder;

/// Whether the host draws the symbology; the host's lists know 16-bit codes, so the stored
/// number is cut for the question, and for it alone.
[[nodiscard]] bool isValidSymbology(qint32 symbology, bool linear);

/// Builds a barcode of a valid symbology.
BuildResult buildBarcode(const HostCanvas& host, const BarcodeRecord& record,
                         const DatasourceBinder& binder);

} // namespace tavrel
