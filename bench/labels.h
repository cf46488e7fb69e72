#pragma once

#include "host/kest_types.h"

#include <QByteArray>

/// Labels of any size to measure with. The kinds of objects are mixed as on real labels and
/// come round every ten objects, so that labels of all sizes are alike. Pictures and symbols
/// are left out: what they cost is what their decoders cost.
namespace bench {

/// A binary canvas file of the newest version: shapes, texts and barcodes.
[[nodiscard]] QByteArray canvasFile(int items);

/// An XML label: texts, shapes, barcodes, lists, counters and clocks.
[[nodiscard]] QByteArray xmlLabel(int items);

enum class Texts { None, Some };

/// A drawing, packed as office programs pack it: rectangles, lines, ellipses, custom shapes,
/// text boxes. With texts, three of ten shapes have some; without, none has.
[[nodiscard]] QByteArray drawing(int shapes, Texts texts);

} // namespace bench
