#pragma once

#include <QMarginsF>
#include <QRectF>
#include <QString>

namespace repair {

class Document;
class Node;

/// How much of an embedded document its frame shows, in points; empty if it is not known.
[[nodiscard]] QRectF visibleArea(const Document& document, const QString& folder);

/// The same for a document without settings: the size of the picture that replaces it.
///
/// @param frame the frame of the document in the outer one
[[nodiscard]] QSizeF replacementSize(const Document& document, const Node& frame);

/// From the visible area to its text, in points.
///
/// @param styles the tree of its styles.xml; may be null
[[nodiscard]] QMarginsF textMargins(const Node* styles, const QRectF& visible);

} // namespace repair
