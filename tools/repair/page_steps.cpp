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

bool isObject(const Node& node)
{
    return node.name.startsWith("draw:"_L1) && !node.is(u"draw:layer-set");
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
