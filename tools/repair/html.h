#pragma once

#include "repair/styles.h"

#include <QColor>
#include <QString>

namespace repair {

class Document;
class Node;

/// The rewritten paragraphs below a node as HTML, with everything that their styles state.
/// Lengths are in pixels, which are the points of a canvas.
///
/// @param ground color behind the text, on which the color of characters without one depends
[[nodiscard]] QString toHtml(Document& document, const Node& container, const QColor& ground);

} // namespace repair
