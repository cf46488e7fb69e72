#pragma once

#include <QByteArray>
#include <QSizeF>

#include <optional>

/// Symbol data: the form in which the workbench keeps vector symbols.
///
/// It is an SVG document of its own that draws itself alone: nothing in it names a file or a
/// network address, its lengths are in user units, its size is on the outermost element
/// in points ("pt"), and its view box is exactly what that size shows, so that a renderer may
/// stretch the view box to any box. Reading symbol data as an SVG document again gives the
/// same symbol.
namespace workbench::symbols {

/// Largest width or height of a symbol, in points.
inline constexpr double MaximumSymbolSide = 100'000.0;

/// Makes symbol data of an SVG document.
///
/// @param target size in points; one without width or height keeps the document's own size
/// @return nothing if the text is not an SVG document, draws nothing or exceeds the limits
[[nodiscard]] std::optional<QByteArray> makeSymbolData(const QByteArray& svg,
                                                       const QSizeF& target = {});

/// The size of symbol data in points; 0 by 0 for anything else. (QSvgRenderer::defaultSize()
/// is in whole units of 1/90 inch and does not serve.)
[[nodiscard]] QSizeF naturalSize(const QByteArray& symbolData);

} // namespace workbench::symbols
