#pragma once

#include <QString>
#include <QtGlobal>

#include <functional>

class QPagedPaintDevice;

namespace workbench {

class Canvas;

/// Longest side of a page that a PDF document can have, in points.
inline constexpr double kMaximumPdfSide = 14'400.0;

/// Brings the canvas to what the page of this number, counted from 0, is to show. False
/// stops the writing; nothing is left of it then.
using PreparePage = std::function<bool(qint64 page)>;

/// Writes the page as SVG in its true size: lines as lines, text as text. The file appears
/// whole or, when something fails, stays what it was. Returns in plain words what failed,
/// else nothing.
[[nodiscard]] QString writeSvg(const Canvas& canvas, const QString& fileName);

/// Writes a PDF document of so many pages in their true size, text as text. The file
/// appears whole or, when something fails or is stopped, stays what it was. Returns in plain
/// words what failed, else nothing; a document that was stopped is no failure.
[[nodiscard]] QString writePdf(const Canvas& canvas, const QString& fileName, qint64 pages,
                               const PreparePage& prepare);

/// Paints pages in their true size on a printer or the like, each at the upper left corner
/// of the paper. False when it was stopped or the device failed.
[[nodiscard]] bool paintPages(QPagedPaintDevice& device, const Canvas& canvas, qint64 pages,
                              const PreparePage& prepare);

} // namespace workbench
