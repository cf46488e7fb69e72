#include "repair/page_area.h"

#include "repair/document.h"
#include "repair/lengths.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// A header or footer takes its own height and its distance from the text.
double marginHeight(const Node& layout, const QString& tag, const QString& side)
{
    const Node* const style = layout.child(tag);
    const Node* const properties =
        style != nullptr ? style->child(u"style:header-footer-properties") : nullptr;
    if (properties == nullptr) {
        return 0.0;
    }
    return std::max(pointsOf(*properties, u"fo:min-height"), pointsOf(*properties, u"svg:height")) +
           pointsOf(*properties, side);
}

} // namespace

Node* childNamed(const Node* parent, QStringView tag, const QString& name)
{
    if (parent == nullptr) {
        return nullptr;
    }
    const auto found =
        std::find_if(parent->children.begin(), parent->children.end(), [&](const auto& child) {
            return child->is(tag) && child->attribute(u"style:name") == name;
        });
    return found != parent->children.end() ? found->get() : nullptr;
}

Node* masterPage(const Document& document)
{
    const Node* const masters = document.styles->child(u"office:master-styles");
    if (masters == nullptr) {
        return nullptr;
    }
    const Node* const page = document.page();
    const QString name =
        page != nullptr ? page->attribute(u"draw:master-page-name") : u"Standard"_s;
    Node* const named = childNamed(masters, u"style:master-page", name);
    return named != nullptr ? named : masters->child(u"style:master-page");
}

PageArea pageArea(const Document& document)
{
    // A page that is not described has the reader's default.
    PageArea area{QRectF(0.0, 0.0, 612.0, 792.0), 0.0, 792.0};
    const Node* const automatic = document.styles->child(u"office:automatic-styles");
    const Node* const layout =
        automatic != nullptr ? automatic->child(u"style:page-layout") : nullptr;
    const Node* const page =
        layout != nullptr ? layout->child(u"style:page-layout-properties") : nullptr;
    if (page == nullptr) {
        return area;
    }
    const auto margin = [page](const QString& side) {
        const QString name = u"fo:margin-"_s + side;
        return page->hasAttribute(name) ? pointsOf(*page, name) : pointsOf(*page, u"fo:margin");
    };
    const double width = toPoints(page->attribute(u"fo:page-width")).value_or(612.0);
    const double height = toPoints(page->attribute(u"fo:page-height")).value_or(792.0);
    area.headerTop = margin(u"top"_s);
    area.footerBottom = height - margin(u"bottom"_s);
    const Node* const master = masterPage(document);
    const bool hasHeader = master != nullptr && master->child(u"style:header") != nullptr;
    const bool hasFooter = master != nullptr && master->child(u"style:footer") != nullptr;
    const double header =
        hasHeader ? marginHeight(*layout, u"style:header-style"_s, u"fo:margin-bottom"_s) : 0.0;
    const double footer =
        hasFooter ? marginHeight(*layout, u"style:footer-style"_s, u"fo:margin-top"_s) : 0.0;
    area.box = QRectF(QPointF(margin(u"left"_s), area.headerTop + header),
                      QPointF(width - margin(u"right"_s), area.footerBottom - footer));
    return area;
}

} // namespace repair
