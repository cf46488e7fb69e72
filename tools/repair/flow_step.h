#pragma once

#include "repair/document.h"
#include "repair/flow_page.h"

#include <QString>

namespace repair {

/// Turns a text document into a drawing, and returns its pages. Text becomes text boxes without a
/// position, one below the other, and pictures, shapes and tables are placed between them.
///
/// Each object gets the row of the page that it is in, and the place and size in it; the rows
/// are placed when the heights of the texts are known.
///
/// @return none if it is not a text document; else the body is then an empty drawing
[[nodiscard]] Node::Children layOutPages(Document& document);

/// The number of rows that the object is as high as: the cells of a table.
inline const QString FillsRowAttribute = QLatin1String("labelport:fills-row");

} // namespace repair
