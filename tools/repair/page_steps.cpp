#include "repair/page_steps.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/page_area.h"
#include "repair/shape_place.h"
#include "repair/transform.h"

#include <QSet>
#include <QTransform>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

const QString AutomaticStyles = u"office:automatic-styles"_s;

// Styles of the master page have names of their own: both documents may have a "gr1".
const QString MasterPrefix = u"master-"_s;

void importMasterStyles(Document& document, const QString& prefix)
{
    const Node* const source = document.styles->child(AutomaticStyles);
    if (source == nullptr || document.hasMasterStyles) {
        return;
    }
    document.hasMasterStyles = true;
    Node& target = document.content->childOrNew(AutomaticStyles);
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
    const Node* const source = document.styles->child(AutomaticStyles);
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
    const Node* const style = childNamed(root.child(AutomaticStyles), u"style:style",
                                         page->attribute(u"draw:style-name"));
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
        childNamed(document.styles->child(AutomaticStyles), u"style:page-layout",
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

bool isObject(const Node& node)
{
    return node.name.startsWith("draw:"_L1) && !node.is(u"draw:layer-set");
}

void moveEnd(Node& line, const QTransform& map, const QString& x, const QString& y)
{
    const QPointF point = map.map(QPointF(pointsOf(line, x), pointsOf(line, y)));
    line.setAttribute(x, toInches(point.x()));
    line.setAttribute(y, toInches(point.y()));
}

// Applies the transformation of a group to one of its objects.
void applyGroup(Node& shape, const QTransform& group)
{
    if (group.isIdentity()) {
        return;
    }
    if (shape.hasAttribute(u"svg:x1")) {
        moveEnd(shape, group, u"svg:x1"_s, u"svg:y1"_s);
        moveEnd(shape, group, u"svg:x2"_s, u"svg:y2"_s);
        return;
    }
    const Placement own = placementOf(shape);
    writePlacement(shape, {own.size, own.toPage * group});
}

// Takes the objects of a group out, in their order.
void takeOut(Node& group, const QTransform& outer, const Node& place, Node::Children& objects)
{
    const QTransform map = parseTransform(group.attribute(u"draw:transform")) * outer;
    for (auto& child : group.children) {
        if (child->is(u"draw:g") || child->is(u"draw:a")) {
            takeOut(*child, map, place, objects);
        } else if (isObject(*child)) {
            applyGroup(*child, map);
            keepPlace(place, *child);
            objects.push_back(std::move(child));
        }
    }
}

bool isUnprinted(const QString& display)
{
    return display == "none"_L1 || display == "screen"_L1;
}

void addHiddenLayers(const Node* layers, QSet<QString>& hidden)
{
    if (layers != nullptr) {
        for (const auto& layer : layers->children) {
            if (isUnprinted(layer->attribute(u"draw:display"))) {
                hidden.insert(layer->attribute(u"draw:name"));
            }
        }
    }
}

int removeUnprintedIn(Node& parent, const QSet<QString>& hidden)
{
    int count = 0;
    for (const auto& child : parent.children) {
        if (child->is(u"draw:g") || child->is(u"draw:a")) {
            count += removeUnprintedIn(*child, hidden);
        }
    }
    count += static_cast<int>(std::erase_if(parent.children, [&hidden](const auto& child) {
        return isObject(*child) && (isUnprinted(child->attribute(u"draw:display")) ||
                                    hidden.contains(child->attribute(u"draw:layer")));
    }));
    return count;
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

Node::Children takePages(Document& document)
{
    Node* const body = document.body();
    if (body == nullptr || !body->is(u"office:drawing")) {
        return {};
    }
    Node::Children pages = std::move(body->children);
    body->children.clear();
    std::erase_if(pages, [](const auto& child) { return !child->is(u"draw:page"); });
    return pages;
}

int usePageLayout(Document& document)
{
    const Node* const master = masterPage(document);
    Node* const automatic = document.styles->child(AutomaticStyles);
    if (master == nullptr || automatic == nullptr) {
        return 0;
    }
    const QString name = master->attribute(u"style:page-layout-name");
    auto& children = automatic->children;
    const auto isLayout = [](const auto& child) { return child->is(u"style:page-layout"); };
    const auto first = std::find_if(children.begin(), children.end(), isLayout);
    const auto wanted = std::find_if(first, children.end(), [&](const auto& child) {
        return isLayout(child) && child->attribute(u"style:name") == name;
    });
    if (wanted == children.end() || wanted == first) {
        return 0;
    }
    std::rotate(first, wanted, wanted + 1);
    return 1;
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

int dissolveGroups(Document& document)
{
    Node* const page = document.page();
    if (page == nullptr) {
        return 0;
    }
    int count = 0;
    Node::Children objects;
    for (auto& child : page->children) {
        if (child->is(u"draw:g") || child->is(u"draw:a")) {
            ++count;
            takeOut(*child, QTransform(), *child, objects);
        } else if (isObject(*child)) {
            objects.push_back(std::move(child));
        }
    }
    page->children = std::move(objects);
    return count;
}

int removeUnprinted(Document& document)
{
    Node* const page = document.page();
    if (page == nullptr) {
        return 0;
    }
    QSet<QString> hidden;
    const Node* const masters = document.styles->child(u"office:master-styles");
    addHiddenLayers(masters != nullptr ? masters->child(u"draw:layer-set") : nullptr, hidden);
    addHiddenLayers(page->child(u"draw:layer-set"), hidden);
    return removeUnprintedIn(*page, hidden);
}

int writeOrder(Document& document)
{
    Node* const page = document.page();
    if (page == nullptr) {
        return 0;
    }
    // Objects without an order of their own stay behind the one before them.
    std::vector<std::pair<int, std::unique_ptr<Node>>> ordered;
    int last = 0;
    int missing = 0;
    for (auto& child : page->children) {
        bool isNumber = false;
        const int index = child->attribute(u"draw:z-index").toInt(&isNumber);
        last = isNumber ? index : last;
        missing += isNumber ? 0 : 1;
        ordered.emplace_back(last, std::move(child));
    }
    std::stable_sort(ordered.begin(), ordered.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    page->children.clear();
    for (auto& [index, child] : ordered) {
        child->setAttribute(u"draw:z-index"_s, QString::number(page->children.size() + 1));
        page->children.push_back(std::move(child));
    }
    return missing;
}

} // namespace repair
