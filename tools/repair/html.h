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
/// @param automatic color of characters that have none of their own
[[nodiscard]] QString toHtml(Document& document, const Node& container, const QColor& automatic);

} // namespace repair
