#include "repair/page_grounds.h"

#include "repair/box_edges.h"
#include "repair/document.h"
#include "repair/page_area.h"
#include "repair/shape_place.h"
#include "repair/transform.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// The color of a page or header, if it has no fill in the newer form.
Properties plainFill(const Node& properties)
{
    const QString color = properties.attribute(u"fo:background-color");
    return color.isEmpty() || color == "transparent"_L1
               ? Properties()
               : Properties{{u"draw:fill"_s, u"solid"_s}, {u"draw:fill-color"_s, color}};
}

// Newer programs write the same properties as for shapes.
Properties shapeFill(const Node& properties)
{
    Properties fill;
    for (const Attribute& attribute : properties.attributes) {
        if (attribute.name.startsWith("draw:"_L1) || attribute.name == "style:repeat"_L1) {
            fill.insert(attribute.name, attribute.value);
        }
    }
    return fill;
}

// A picture of the older form gets a name, as those of shapes have.
Properties pictureFillOf(Document& document, const Node& image)
{
    const QString reference = image.attribute(u"xlink:href");
    const QString name = u"labelport-"_s + reference;
    if (document.table().named(u"draw:fill-image"_s, name) == nullptr) {
        Node& made = document.styles->childOrNew(u"office:styles"_s)
                         .append(Node::element(u"draw:fill-image"_s));
        made.attributes = {{u"draw:name"_s, name}, {u"xlink:href"_s, reference}};
        document.forgetTable();
    }
    const QString repeat = image.attribute(u"style:repeat");
    const bool isRepeated = repeat.isEmpty() || repeat == "repeat"_L1;
    return {{u"draw:fill"_s, u"bitmap"_s},
            {u"draw:fill-image-name"_s, name},
            {u"draw:opacity"_s,
             image.hasAttribute(u"draw:opacity") ? image.attribute(u"draw:opacity") : u"100%"_s},
            {u"draw:fill-image-ref-point"_s,
             // no translation: a value of the format
             isRepeated ? u"top left"_s : image.attribute(u"style:position")},
            {u"style:repeat"_s, repeat}};
}

void addRectangle(Document& document, const QRectF& box, Properties fill, Node::Children& objects)
{
    fill.insert(u"draw:stroke"_s, u"none"_s);
    auto rectangle = Node::element(u"draw:rect"_s);
    writeBox(*rectangle, {box, 0.0});
    StyleProperties style;
    style.graphic = std::move(fill);
    rectangle->setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
    objects.push_back(std::move(rectangle));
}

void addGround(Document& document, const Node& properties, const QRectF& box,
               Node::Children& objects)
{
    if (box.isEmpty()) {
        return;
    }
    const Node* const image = properties.child(u"style:background-image");
    const QString kind = properties.attribute(u"draw:fill");
    if (!kind.isEmpty() && kind != "none"_L1) {
        addRectangle(document, box, shapeFill(properties), objects);
    } else {
        if (const Properties fill = plainFill(properties); !fill.isEmpty()) {
            addRectangle(document, box, fill, objects);
        }
        if (image != nullptr && !image->attribute(u"xlink:href").isEmpty()) {
            addRectangle(document, box, pictureFillOf(document, *image), objects);
        }
    }
    Properties stated;
    for (const Attribute& attribute : properties.attributes) {
        stated.insert(attribute.name, attribute.value);
    }
    std::ranges::move(fixedEdges(document, box, edgesOf(stated)), std::back_inserter(objects));
}

void addMarginGround(Document& document, const Node& layout, const QString& kind, const QRectF& box,
                     Node::Children& objects)
{
    const Node* const style = layout.child(u"style:%1-style"_s.arg(kind));
    const Node* const properties =
        style != nullptr ? style->child(u"style:header-footer-properties") : nullptr;
    if (properties != nullptr) {
        addGround(document, *properties, box, objects);
    }
}

} // namespace

Node::Children pageGrounds(Document& document, const Node* master, const PageArea& area)
{
    Node::Children objects;
    const Node* const layout = pageLayout(document, master);
    const Node* const page =
        layout != nullptr ? layout->child(u"style:page-layout-properties") : nullptr;
    if (page != nullptr) {
        addGround(document, *page, area.frame, objects);
        addMarginGround(document, *layout, u"header"_s, area.header, objects);
        addMarginGround(document, *layout, u"footer"_s, area.footer, objects);
    }
    return objects;
}

} // namespace repair
