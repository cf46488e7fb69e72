#pragma once

#include "repair/xml_tree.h"

namespace repair {

class Document;

/// States for an object in a text what follows from its style: where it is anchored, the outline of
/// a shape; border, fill, padding and height of a frame.
void writeObjectStyle(Document& document, Node& object);

} // namespace repair
