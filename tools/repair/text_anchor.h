#pragma once

#include "repair/page_area.h"

#include <QRectF>
#include <QSizeF>

namespace repair {

class Document;
class Node;

/// Where the lines of a text are, in points.
struct TextPlace
{
    const PageArea& page;
    QRectF column;
    /// How many frames it is in.
    int depth = 0;
};

/// How an object and the lines of its text share the page.
enum class Flow {
    InLine,     ///< the object is a character
    BesideLeft, ///< the object is at the left side, the lines at its right
    BesideRight,
    Over, ///< the lines run through
    Rows, ///< lines only above and below
    Page, ///< the object has a place on the page
};

struct Anchor
{
    Flow flow = Flow::Rows;
    /// The object: across the page, and down from its paragraph's top; or on the page.
    QRectF box;
    /// The room that the lines leave to it.
    QSizeF room;
};

[[nodiscard]] Anchor anchorOf(Document& document, const Node& shape, const TextPlace& place);

} // namespace repair
