#pragma once

#include "repair/document.h"

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

/// The page after that of the document, without content, with header and footer.
[[nodiscard]] std::unique_ptr<Node> emptyPage(Document& document);

/// Where the first row of a page begins.
inline const QString TopAttribute = QLatin1String("labelport:top");
/// Where the lines of a page end; and the lowest place for the last few that do not fit.
inline const QString BottomAttribute = QLatin1String("labelport:bottom");
inline const QString LowestAttribute = QLatin1String("labelport:lowest");
/// Whether the page continues the text of the one before: the document demands no break there.
inline const QString ContinuesAttribute = QLatin1String("labelport:continues");
/// Whether the object is as high as its row: the cells of a table.
inline const QString FillsRowAttribute = QLatin1String("labelport:fills-row");

} // namespace repair
