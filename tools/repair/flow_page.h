#pragma once

#include "repair/page_area.h"
#include "repair/xml_tree.h"

#include <QString>

#include <memory>
#include <vector>

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

/// Puts objects on the pages of their AnchorPageAttribute, and adds pages that are not there: the
/// text of a full page continues on them.
void placeOnPages(Document& document, std::vector<FlowPage>& pages, Node::Children objects);

/// The page of the drawing, with header and footer, and its objects below the text.
///
/// @param isFull whether its last editor had room for its text
[[nodiscard]] std::unique_ptr<Node> pageOf(Document& document, FlowPage flow, bool isFull = false);

/// The page after that of the document, without content, with header and footer.
[[nodiscard]] std::unique_ptr<Node> emptyPage(Document& document);

/// The page of an object that is not in the text, from 1.
inline const QString AnchorPageAttribute = QLatin1String("text:anchor-page-number");
/// Where the first row of a page begins.
inline const QString TopAttribute = QLatin1String("labelport:top");
/// Where the lines of a page end; and the lowest place for the last few that do not fit.
inline const QString BottomAttribute = QLatin1String("labelport:bottom");
inline const QString LowestAttribute = QLatin1String("labelport:lowest");
/// Whether the page continues the text of the one before: the document demands no break there.
inline const QString ContinuesAttribute = QLatin1String("labelport:continues");

} // namespace repair
