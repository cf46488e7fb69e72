#include "repair/master_objects.h"

#include "repair/document.h"
#include "repair/page_area.h"
#include "repair/page_steps.h"

#include <iterator>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

const QString MasterStyles = u"office:automatic-styles"_s;

// Styles of the master page have names of their own: both documents may have a "gr1".
const QString MasterPrefix = u"master-"_s;

void importMasterStyles(Document& document, const QString& prefix)
{
    const Node* const source = document.styles->child(MasterStyles);
    if (source == nullptr || document.hasMasterStyles) {
        return;
    }
    document.hasMasterStyles = true;
    Node& target = document.content->childOrNew(MasterStyles);
    for (const auto& style : source->children) {
        if (style->is(u"style:style") || style->is(u"text:list-style")) {
            Node& copy = target.append(style->clone());
            copy.setAttribute(u"style:name"_s, prefix + copy.attribute(u"style:name"));
        }
    }
    document.forgetTable();
}

void renameStyles(const Document& document, Node& node, const QString& prefix)
{
    const Node* const source = document.styles->child(MasterStyles);
    for (const QString& name :
         {u"draw:style-name"_s, u"draw:text-style-name"_s, u"text:style-name"_s}) {
        const QString style = node.attribute(name);
        if (!style.isEmpty() && (childNamed(source, u"style:style", style) != nullptr ||
                                 childNamed(source, u"text:list-style", style) != nullptr)) {
            node.setAttribute(name, prefix + style);
        }
    }
}

Properties pageProperties(const Document& document, const Node* page, bool isMaster)
{
    if (page == nullptr) {
        return {};
    }
    const Node& root = isMaster ? *document.styles : *document.content;
    const Node* const style =
        childNamed(root.child(MasterStyles), u"style:style", page->attribute(u"draw:style-name"));
    const Node* const properties =
        style != nullptr ? style->child(u"style:drawing-page-properties") : nullptr;
    Properties result;
    if (properties != nullptr) {
        for (const Attribute& attribute : properties->attributes) {
            result.insert(attribute.name, attribute.value);
        }
    }
    return result;
}

std::unique_ptr<Node> backgroundOf(Document& document, const Node& master)
{
    Properties fill = pageProperties(document, document.page(), false);
    if (!fill.contains(u"draw:fill"_s)) {
        fill = pageProperties(document, &master, true);
    }
    const QString kind = fill.value(u"draw:fill"_s);
    const Node* const layout =
        childNamed(document.styles->child(MasterStyles), u"style:page-layout",
                   master.attribute(u"style:page-layout-name"));
    const Node* const size =
        layout != nullptr ? layout->child(u"style:page-layout-properties") : nullptr;
    if (kind.isEmpty() || kind == "none"_L1 || size == nullptr) {
        return nullptr;
    }
    StyleProperties style;
    for (auto it = fill.begin(); it != fill.end(); ++it) {
        if (it.key().startsWith("draw:"_L1) || it.key() == "style:repeat"_L1) {
            style.graphic.insert(it.key(), it.value());
        }
    }
    style.graphic.insert(u"draw:stroke"_s, u"none"_s);
    auto rectangle = Node::element(u"draw:rect"_s);
    rectangle->attributes = {{u"draw:style-name"_s, document.styleFor(u"graphic"_s, style)},
                             {u"svg:width"_s, size->attribute(u"fo:page-width")},
                             {u"svg:height"_s, size->attribute(u"fo:page-height")},
                             {u"svg:x"_s, u"0in"_s},
                             {u"svg:y"_s, u"0in"_s}};
    return rectangle;
}

} // namespace

std::unique_ptr<Node> copyFromMaster(Document& document, const Node& part)
{
    importMasterStyles(document, MasterPrefix);
    auto copy = part.clone();
    renameStyles(document, *copy, MasterPrefix);
    forEachElement(*copy, [&](Node& node) { renameStyles(document, node, MasterPrefix); });
    return copy;
}

int addMasterObjects(Document& document)
{
    Node* const page = document.page();
    const Node* const master = page != nullptr ? masterPage(document) : nullptr;
    if (master == nullptr) {
        return 0;
    }
    const Properties shown = pageProperties(document, page, false);
    Node::Children objects;
    if (auto background = backgroundOf(document, *master)) {
        objects.push_back(std::move(background));
    }
    for (const auto& child : master->children) {
        const bool isHidden =
            shown.value(u"presentation:background-objects-visible"_s) == "false"_L1;
        if (isObject(*child) && !isHidden) {
            objects.push_back(copyFromMaster(document, *child));
        }
    }
    const int count = static_cast<int>(objects.size());
    // The rewritten document has each object once.
    if (const Node* const masters = document.styles->child(u"office:master-styles")) {
        for (const auto& each : masters->children) {
            std::erase_if(each->children, [](const auto& child) { return isObject(*child); });
        }
    }
    page->children.insert(page->children.begin(), std::make_move_iterator(objects.begin()),
                          std::make_move_iterator(objects.end()));
    return count;
}

} // namespace repair
