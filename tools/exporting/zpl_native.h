#pragma once

#include "exporting/export_file.h"

#include <QByteArray>
#include <QImage>

namespace exporting {

/// A label of which the printer draws some items itself.
struct NativeLabel
{
    QByteArray fields; ///< the printer's own lines, barcodes and counters
    QImage rest;       ///< the dots of all other items
    /// The fields count by themselves: this label, printed for each record of the job, shows them
    /// all.
    bool isSerial = false;
};

/// Finds items that the printer can draw: upright lines, which look the same; the commonest
/// barcodes with modules of whole dots; and counters of a fixed number of digits. An item that
/// another one overlaps is left to the picture.
/// @param record the record that the canvas shows
/// @param dots   the complete label
/// @param scale  dots for each point
[[nodiscard]] NativeLabel nativeLabel(const ExportJob& job, qint64 record, const QImage& dots,
                                      double scale);

} // namespace exporting
