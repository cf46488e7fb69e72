#pragma once

#include <QRectF>
#include <QSizeF>
#include <QString>

namespace repair {

class Document;
class Node;

/// The child with this tag and style:name; null if there is none.
[[nodiscard]] Node* childNamed(const Node* parent, QStringView tag, const QString& name);

/// The master page of a drawing's page, or of a text that states none; null if there is none.
[[nodiscard]] Node* masterPage(const Document& document);
/// The master page with this name; null if there is none.
[[nodiscard]] Node* masterPage(const Document& document, const QString& name);

/// Where the text of a text document is, in points.
struct PageArea
{
    QRectF box;
    QSizeF size;   ///< of the page
    QRectF frame;  ///< within the margins: around header, text and footer, and their padding
    QRectF header; ///< empty without a header
    QRectF footer; ///< empty without a footer
};

/// The page layout of a master page; without a master page, the first layout of the document. Null
/// if the document has no layouts.
[[nodiscard]] const Node* pageLayout(const Document& document, const Node* master);

/// States the size of page layouts that state none, and in texts their margins, as office suites
/// assume them.
/// @return how many layouts lacked one of them
int completePageLayouts(Document& document);

/// Of a page layout: its document does not state its size.
inline const QString AssumedSizeAttribute = QLatin1String("labelport:assumed");

/// The area that the margins, header and footer of a master page leave. The first page layout if
/// there is no master page.
[[nodiscard]] PageArea pageArea(Document& document, const Node* master);

/// Where lines may be that do not fit: in this share of the bottom margin, but not on the footer.
[[nodiscard]] double lowestLine(const PageArea& area, double share);

/// The least height of paragraphs, one line each, in points.
[[nodiscard]] double linesHeight(Document& document, const Node& container);
/// About the height of a paragraph in a column of this width, in points, before it is laid out.
[[nodiscard]] double textHeight(Document& document, const Node& block, double width);

} // namespace repair
