#pragma once

#include "exporting/export_file.h"

#include <QImage>

namespace exporting {

/// Dots per inch of a printer of this nominal resolution: 203 is 8 dots per millimeter.
[[nodiscard]] double printerResolution(int dpi);

/// The page as the printer's dots.
struct LabelDots
{
    QImage dots; ///< QImage::Format_Mono, 1 is a printed dot
    QString error;
};

/// @param dpi nominal resolution of the printer
[[nodiscard]] LabelDots labelDots(const ExportJob& job, qint64 record, int dpi);

/// Writes the records as labels in ZPL II, the language of label printers. See exportFile().
[[nodiscard]] QString writeZpl(const ExportJob& job, const QString& fileName);

} // namespace exporting
