#include "repair/embedded_styles.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/text_step.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

const QString AutomaticStylesTag = u"office:automatic-styles"_s;
// The name of a default style, which has none.
const QString DefaultName = u"default-"_s;

bool isStyleName(const QString& attribute)
{
    static constexpr QLatin1StringView names[] = {
        "style:parent-style-name"_L1, "style:list-style-name"_L1,
        "draw:style-name"_L1,         "draw:text-style-name"_L1,
        "text:style-name"_L1,         "table:style-name"_L1,
        "chart:style-name"_L1,        "table:default-cell-style-name"_L1};
    return std::find(std::begin(names), std::end(names), attribute) != std::end(names);
}

// Its styles get names of their own.
void renameStyles(Node& root, const QString& prefix)
{
    forEachElement(root, [&prefix](Node& node) {
        // The objects of slides have styles of their own kind.
        if (node.attribute(u"style:family") == "presentation"_L1) {
            node.setAttribute(u"style:family"_s, u"graphic"_s);
        }
        const QString slideStyle = node.attribute(u"presentation:style-name");
        if (!slideStyle.isEmpty()) {
            node.setAttribute(u"draw:style-name"_s, slideStyle);
        }
        const bool isStyle = node.is(u"style:style") || node.is(u"text:list-style");
        for (Attribute& attribute : node.attributes) {
            const bool isDefinition = isStyle && attribute.name == "style:name"_L1;
            if ((isDefinition || isStyleName(attribute.name)) && !attribute.value.isEmpty()) {
                attribute.value.prepend(prefix);
            }
        }
    });
}

bool hasDefault(const QString& family)
{
    return family == "paragraph"_L1 || family == "graphic"_L1 || family == "table-cell"_L1;
}

// What has no style of its own gets the default one of its own document.
void useDefaults(Node& root, const QString& prefix)
{
    forEachElement(root, [&prefix](Node& node) {
        const QString family = node.attribute(u"style:family");
        const QString name = prefix + DefaultName + family;
        if (node.is(u"style:default-style") && hasDefault(family)) {
            node.name = u"style:style"_s;
            node.setAttribute(u"style:name"_s, name);
        } else if (node.is(u"style:style") && hasDefault(family) &&
                   !node.hasAttribute(u"style:parent-style-name")) {
            node.setAttribute(u"style:parent-style-name"_s, name);
        } else if (isParagraph(node) && !node.hasAttribute(u"text:style-name")) {
            node.setAttribute(u"text:style-name"_s, prefix + DefaultName + u"paragraph"_s);
        } else if (isShape(node) && !node.hasAttribute(u"draw:style-name")) {
            node.setAttribute(u"draw:style-name"_s, prefix + DefaultName + u"graphic"_s);
        }
    });
}

void moveStyles(Node* source, Node& target)
{
    if (source == nullptr) {
        return;
    }
    for (auto& child : std::exchange(source->children, {})) {
        if (!child->isText() && !child->is(u"style:default-style")) {
            target.children.push_back(std::move(child));
        }
    }
}

constexpr QLatin1StringView ScaledPrefixes[] = {
    "fo:font-size"_L1, "fo:margin"_L1,         "fo:padding"_L1,       "fo:text-indent"_L1,
    "fo:line-"_L1,     "style:line-height"_L1, "svg:stroke-width"_L1, "style:position"_L1,
    "text:space-"_L1,  "text:min-label-"_L1,   "text:list-tab-"_L1};

// Percentages stay.
void scaleIn(Node& properties, double scale)
{
    for (Attribute& attribute : properties.attributes) {
        const auto isPrefix = [&attribute](QLatin1StringView prefix) {
            return attribute.name.startsWith(prefix);
        };
        const auto points = toPoints(attribute.value);
        if (points && std::any_of(std::begin(ScaledPrefixes), std::end(ScaledPrefixes), isPrefix)) {
            attribute.value = attribute.name == "fo:font-size"_L1
                                  ? QString::number(*points * scale, 'f', 2) + "pt"_L1
                                  : toInches(*points * scale);
        }
    }
}

} // namespace

void scaleFormats(Node* root, double scale)
{
    if (root == nullptr || scale == 1.0) {
        return;
    }
    for (const QString& tag : {u"office:styles"_s, AutomaticStylesTag}) {
        if (Node* const styles = root->child(tag)) {
            forEachElement(*styles, [scale](Node& node) { scaleIn(node, scale); });
        }
    }
}

void importStyles(Document& document, Node* styles, Node& content, const QString& prefix)
{
    for (Node* const root : {styles, &content}) {
        if (root == nullptr) {
            continue;
        }
        renameStyles(*root, prefix);
        useDefaults(*root, prefix);
        moveStyles(root->child(u"office:styles"), document.content->childOrNew(AutomaticStylesTag));
        moveStyles(root->child(u"office:font-face-decls"),
                   document.content->childOrNew(u"office:font-face-decls"_s));
    }
    moveStyles(content.child(AutomaticStylesTag), document.content->childOrNew(AutomaticStylesTag));
    document.forgetTable();
}

void writeDrawingFormats(Document& document, Node& shape)
{
    if (shape.is(u"draw:g") || shape.is(u"draw:a")) {
        for (const auto& child : shape.children) {
            writeDrawingFormats(document, *child);
        }
        return;
    }
    StyleProperties base = drawingBase(document.table(), shape);
    base.graphic.clear();
    forEachElement(shape, [&document, &base](Node& node) {
        if (isParagraph(node)) {
            StyleProperties style = base;
            style.overlay(document.table().resolved(u"paragraph"_s,
                                                    node.attribute(u"text:style-name"), false));
            node.setAttribute(u"text:style-name"_s, document.styleFor(u"paragraph"_s, style));
        }
    });
}

} // namespace repair
