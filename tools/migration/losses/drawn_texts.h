#pragma once

#include <QList>
#include <QPolygonF>

namespace workbench {
class Canvas;
}

namespace migration {

struct LabelFacts;

/// A piece of a line of text.
struct DrawnText
{
    /// The corners of its ink on the page, in points. The first two are at the top, in the
    /// direction of reading.
    QPolygonF ink;
    qsizetype item = -1;
};

/// The letters that the text items of a label draw, in the order of the items.
[[nodiscard]] QList<DrawnText> drawnTexts(const workbench::Canvas& canvas, const LabelFacts& label);

} // namespace migration
