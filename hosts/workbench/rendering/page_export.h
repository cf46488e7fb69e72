#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QtGlobal>

#include <functional>

class QPainter;

namespace workbench {

class Canvas;

/// Longest side of a PDF page, in points.
inline constexpr double MaximumPdfSide = 14'400.0;

/// Prepares the canvas for the page of this number, counted from 0. Return false to stop; then
/// no file is written.
using PreparePage = std::function<bool(qint64 page)>;

/// Paints the page of this number, counted from 0, in points. Return false to stop.
using PaintPdfPage = std::function<bool(QPainter& painter, qint64 page)>;

/// Paints a drawing. The painter's unit is the point.
using Paint = std::function<void(QPainter& painter)>;

/// What is painted in an area, as an SVG document to be embedded: it has no proportions of its own,
/// so that it fills any box exactly.
[[nodiscard]] QByteArray drawingSvg(const QRectF& area, const Paint& paint);

/// Writes the page as SVG in its true size: lines as lines, text as text, and each item as a group
/// "item-N", counted from the bottom. The file is replaced completely or, on failure, not at all.
/// Returns the error for the user; empty on success.
[[nodiscard]] QString writeSvg(const Canvas& canvas, const QString& fileName, const QString& title);

/// Writes a PDF document with this number of pages in their true size, text as text. The file is
/// replaced completely or, on failure or if stopped, not at all. Returns the error for the user;
/// empty on success, and if stopped.
[[nodiscard]] QString writePdf(const Canvas& canvas, const QString& fileName, const QString& title,
                               qint64 pages, const PreparePage& prepare);

/// As above, for pages of any content.
///
/// @param page size of all pages in points
[[nodiscard]] QString writePdf(const QString& fileName, const QString& title, const QSizeF& page,
                               qint64 pages, const PaintPdfPage& paint);

} // namespace workbench
