#include "repair/page_area.h"

#include "repair/document.h"
#include "repair/lengths.h"

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Of a line: its height per font size, and the size where none is given.
constexpr double LineShare = 1.15;
constexpr double DefaultSize = 12.0;
// Of a letter, per font size.
constexpr double WidthShare = 0.45;

// Of a page, header or footer, on one side: padding and border, in points.
double insetOf(const Node& properties, const QString& side)
{
    const auto stated = [&](const QString& name) {
        const QString ofSide = properties.attribute(name + u'-' + side);
        return ofSide.isEmpty() ? properties.attribute(name) : ofSide;
    };
    const QString border = stated(u"fo:border"_s);
    const bool isDrawn = !border.isEmpty() && border != "none"_L1;
    return toPoints(stated(u"fo:padding"_s)).value_or(0.0) +
           (isDrawn ? toPoints(border.section(u' ', 0, 0)).value_or(0.0) : 0.0);
}

QRectF insideOf(const QRectF& frame, const Node& properties)
{
    return frame.adjusted(insetOf(properties, u"left"_s), insetOf(properties, u"top"_s),
                          -insetOf(properties, u"right"_s), -insetOf(properties, u"bottom"_s));
}

/// A header or footer, in points.
struct Margin
{
    double height = 0.0;
    double distance = 0.0; // from the text
};

// Points: A4, and 2 cm.
constexpr double AssumedWidth = 595.276;
constexpr double AssumedHeight = 841.89;
constexpr double AssumedMargin = 56.693;

bool stateMissing(Node& node, const QString& name, double points)
{
    if (toPoints(node.attribute(name))) {
        return false;
    }
    node.setAttribute(name, toInches(points));
    return true;
}

// A header grows with its text.
Margin marginOf(Document& document, const Node* master, const Node& layout, const QString& kind,
                const QString& side)
{
    const Node* const content = master != nullptr ? master->child(u"style:"_s + kind) : nullptr;
    if (content == nullptr) {
        return {};
    }
    Margin margin{linesHeight(document, *content), 0.0};
    const Node* const style = layout.child(u"style:%1-style"_s.arg(kind));
    const Node* const properties =
        style != nullptr ? style->child(u"style:header-footer-properties") : nullptr;
    if (properties != nullptr) {
        margin.distance = pointsOf(*properties, side);
        // The stated height includes the distance.
        const double stated =
            std::max(pointsOf(*properties, u"fo:min-height"), pointsOf(*properties, u"svg:height"));
        margin.height = std::max(margin.height, stated - margin.distance);
    }
    return margin;
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

Node* masterPage(const Document& document, const QString& name)
{
    return childNamed(document.styles->child(u"office:master-styles"), u"style:master-page", name);
}

Node* masterPage(const Document& document)
{
    const Node* const page = document.page();
    Node* const named = masterPage(
        document, page != nullptr ? page->attribute(u"draw:master-page-name") : u"Standard"_s);
    const Node* const masters = document.styles->child(u"office:master-styles");
    return named != nullptr || masters == nullptr ? named : masters->child(u"style:master-page");
}

int completePageLayouts(Document& document)
{
    Node& automatic = document.styles->childOrNew(u"office:automatic-styles"_s);
    if (automatic.child(u"style:page-layout") == nullptr) {
        automatic.append(Node::element(u"style:page-layout"_s));
    }
    int completed = 0;
    for (const auto& layout : automatic.children) {
        if (!layout->is(u"style:page-layout")) {
            continue;
        }
        Node& page = layout->childOrNew(u"style:page-layout-properties"_s);
        const bool lacksWidth = stateMissing(page, u"fo:page-width"_s, AssumedWidth);
        const bool lacksHeight = stateMissing(page, u"fo:page-height"_s, AssumedHeight);
        if (lacksWidth || lacksHeight) {
            page.setAttribute(AssumedSizeAttribute, u"true"_s);
        }
        bool lacksMargin = false;
        if (document.isText() && !toPoints(page.attribute(u"fo:margin"))) {
            for (const QString& side : {u"left"_s, u"right"_s, u"top"_s, u"bottom"_s}) {
                lacksMargin |= stateMissing(page, u"fo:margin-"_s + side, AssumedMargin);
            }
        }
        completed += lacksWidth || lacksHeight || lacksMargin ? 1 : 0;
    }
    return completed;
}

double linesHeight(Document& document, const Node& container)
{
    double height = 0.0;
    for (const auto& child : container.children) {
        if (!child->isText()) {
            const QString style = child->attribute(u"text:style-name");
            const Properties text = document.table().resolved(u"paragraph"_s, style, true).text;
            height += LineShare * toPoints(text.value(u"fo:font-size"_s)).value_or(DefaultSize);
        }
    }
    return height;
}

double textHeight(Document& document, const Node& block, double width)
{
    const StyleProperties style =
        document.table().resolved(u"paragraph"_s, block.attribute(u"text:style-name"), true);
    const double size = toPoints(style.text.value(u"fo:font-size"_s)).value_or(DefaultSize);
    const double length = WidthShare * size * static_cast<double>(block.allText().size());
    const double lines = width > 0.0 ? std::max(1.0, std::ceil(length / width)) : 1.0;
    return LineShare * size * lines +
           toPoints(style.paragraph.value(u"fo:margin-top"_s)).value_or(0.0) +
           toPoints(style.paragraph.value(u"fo:margin-bottom"_s)).value_or(0.0);
}

const Node* pageLayout(const Document& document, const Node* master)
{
    const Node* const automatic = document.styles->child(u"office:automatic-styles");
    const Node* const named = master != nullptr
                                  ? childNamed(automatic, u"style:page-layout",
                                               master->attribute(u"style:page-layout-name"))
                                  : nullptr;
    return named != nullptr || automatic == nullptr ? named
                                                    : automatic->child(u"style:page-layout");
}

PageArea pageArea(Document& document, const Node* master)
{
    // A page that is not described has the reader's default.
    PageArea area{QRectF(0.0, 0.0, 612.0, 792.0),
                  QSizeF(612.0, 792.0),
                  QRectF(0.0, 0.0, 612.0, 792.0),
                  {},
                  {}};
    const Node* const layout = pageLayout(document, master);
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
    area.size = {width, height};
    area.frame = QRectF(QPointF(margin(u"left"_s), margin(u"top"_s)),
                        QPointF(width - margin(u"right"_s), height - margin(u"bottom"_s)));
    area.box = insideOf(area.frame, *page);
    const Margin header = marginOf(document, master, *layout, u"header"_s, u"fo:margin-bottom"_s);
    const Margin footer = marginOf(document, master, *layout, u"footer"_s, u"fo:margin-top"_s);
    area.header = QRectF(area.box.left(), area.box.top(), area.box.width(), header.height);
    area.footer =
        QRectF(area.box.left(), area.box.bottom() - footer.height, area.box.width(), footer.height);
    area.box.adjust(0.0, header.height + header.distance, 0.0, -footer.height - footer.distance);
    return area;
}

double lowestLine(const PageArea& area, double share)
{
    const double bottom = area.frame.bottom();
    const double inMargin = bottom + share * (area.size.height() - bottom);
    return std::max(area.box.bottom(), area.footer.isEmpty() ? inMargin : area.footer.top());
}

} // namespace repair
