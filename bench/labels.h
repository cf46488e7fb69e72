#pragma once

#include "host/kest_types.h"

#include <QByteArray>

/// Labels of any size for measurements. The kinds of objects are mixed as on real labels and
/// repeat every ten objects, so that labels of all sizes are comparable. Without pictures and
/// symbols, whose time is that of their decoders.
namespace bench {

/// A binary canvas file of the newest version: shapes, texts and barcodes.
[[nodiscard]] QByteArray canvasFile(int items);

/// An XML label: texts, shapes, barcodes, lists, counters and clocks.
[[nodiscard]] QByteArray xmlLabel(int items);

enum class Texts { None, Some };

/// A drawing, compressed as by office programs: rectangles, lines, ellipses, custom shapes,
/// text boxes. With texts, three of ten shapes have one; without, none.
[[nodiscard]] QByteArray drawing(int shapes, Texts texts);

/// A text document: paragraphs of six runs, every second of them bold.
[[nodiscard]] QByteArray textDocument(int runs);

} // namespace bench
