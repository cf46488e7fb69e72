#pragma once

#include <QString>

namespace repair {

class Document;
class Node;

/// Moves the styles of an embedded document into the document, under names of their own. The
/// defaults become parents of all other styles.
///
/// @param styles  the tree of its styles.xml; may be null
/// @param content the tree of its content.xml
void importStyles(Document& document, Node* styles, Node& content, const QString& prefix);

/// Scales the fonts, distances and pens of an embedded document's styles.
///
/// @param root the tree of its styles.xml or content.xml; may be null
void scaleFormats(Node* root, double scale);

/// Gives the paragraphs of an object of an embedded drawing the formats that only drawings give
/// them: sizes and fonts of the graphic style.
void writeDrawingFormats(Document& document, Node& shape);

} // namespace repair
