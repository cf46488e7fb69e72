#pragma once

#include "repair/page_area.h"
#include "repair/xml_tree.h"

#include <QString>

#include <memory>

namespace repair {

class Document;

/// A page of a text document.
struct FlowPage
{
    const Node* master = nullptr;
    PageArea area;
    Node::Children objects;
    bool isContinued = false; ///< the last editor's break is before it
};

/// The master page of the page after one with this master page; null if there is none.
[[nodiscard]] const Node* nextMaster(const Document& document, const Node* master);

/// The page of the drawing, with header and footer, and its objects below the text.
[[nodiscard]] std::unique_ptr<Node> pageOf(Document& document, FlowPage flow);

/// The page after that of the document, without content, with header and footer.
[[nodiscard]] std::unique_ptr<Node> emptyPage(Document& document);

/// Where the first row of a page begins.
inline const QString TopAttribute = QLatin1String("labelport:top");
/// Where the lines of a page end; and the lowest place for the last few that do not fit.
inline const QString BottomAttribute = QLatin1String("labelport:bottom");
inline const QString LowestAttribute = QLatin1String("labelport:lowest");
/// Whether the page continues the text of the one before: the document demands no break there.
inline const QString ContinuesAttribute = QLatin1String("labelport:continues");

} // namespace repair
