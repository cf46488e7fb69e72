#include "repair/styles.h"

#include "repair/lengths.h"
#include "repair/xml_tree.h"

#include "workbench/items/font_families.h"

#include <QFontDatabase>

#include <algorithm>
#include <vector>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Real documents stay below 10; parents may form a circle.
constexpr int MaximumParents = 64;
const QString FontSize = u"fo:font-size"_s;
const QString AutomaticColor = u"style:use-window-font-color"_s;

void overlayAll(Properties& target, const Properties& source)
{
    for (auto it = source.begin(); it != source.end(); ++it) {
        target.insert(it.key(), it.value());
    }
}

// The properties element in two formats: older documents have one element for all.
void readProperties(const Node* element, Properties& target)
{
    if (element == nullptr) {
        return;
    }
    for (const Attribute& attribute : element->attributes) {
        target.insert(attribute.name, attribute.value);
    }
}

// A style that states all sides at once replaces each side of its parent.
void stateSides(Properties& properties, const QString& name)
{
    const QString all = properties.value(name);
    for (const QLatin1StringView side : {"-left"_L1, "-right"_L1, "-top"_L1, "-bottom"_L1}) {
        if (toPoints(all) && !properties.contains(name + side)) {
            properties.insert(name + side, all);
        }
    }
}

QString keyOf(const QString& first, const QString& second)
{
    return first + u'\n' + second;
}

QString percentOf(const QString& percent, const QString& base)
{
    bool isNumber = false;
    const double share = percent.chopped(1).toDouble(&isNumber) / 100.0;
    const double size = toPoints(base).value_or(12.0);
    return isNumber ? QString::number(share * size, 'g', 6) + "pt"_L1 : base;
}

} // namespace

QString shownFamily(const QString& families)
{
    QString first;
    for (const QString& each : families.split(u',')) {
        QString family = each.trimmed();
        family.remove(u'\'').remove(u'"');
        const bool isThere =
            QFontDatabase::hasFamily(family) || !workbench::substituteFamily(family).isEmpty();
        if (isThere) {
            return family;
        }
        first = first.isEmpty() ? family : first;
    }
    return first;
}

void StyleProperties::overlay(const StyleProperties& other)
{
    const QString inherited = text.value(FontSize);
    overlayAll(graphic, other.graphic);
    overlayAll(paragraph, other.paragraph);
    overlayAll(text, other.text);
    if (const QString size = text.value(FontSize); size.endsWith(u'%')) {
        text.insert(FontSize, percentOf(size, inherited));
    }
    // The more specific declaration of a family wins over an inherited one of the other kind.
    if (other.text.contains(u"fo:font-family"_s) && !other.text.contains(u"style:font-name"_s)) {
        text.remove(u"style:font-name"_s);
    }
    // "Automatic", which depends on the ground, and a color replace each other.
    if (other.text.value(AutomaticColor) == "true"_L1) {
        text.remove(u"fo:color"_s);
    } else if (other.text.contains(u"fo:color"_s)) {
        text.remove(AutomaticColor);
    }
    if (other.list) {
        list = other.list;
    }
    if (other.masterPage) {
        masterPage = other.masterPage;
    }
}

StyleTable::StyleTable(const Node& styles, const Node& content)
{
    readFonts(styles);
    readFonts(content);
    readStyles(styles.child(u"office:styles"));
    readStyles(content.child(u"office:automatic-styles"));
}

void StyleTable::readFonts(const Node& root)
{
    const Node* const declarations = root.child(u"office:font-face-decls");
    if (declarations == nullptr) {
        return;
    }
    for (const auto& font : declarations->children) {
        const QString family = shownFamily(font->attribute(u"svg:font-family"));
        if (!family.isEmpty()) {
            m_fonts.insert(font->attribute(u"style:name"), family);
        }
    }
}

StyleProperties StyleTable::ownProperties(const Node& style)
{
    StyleProperties own;
    readProperties(style.child(u"style:graphic-properties"), own.graphic);
    // The grounds of cells of drawings. Those of paragraphs repeat what their shape states.
    if (style.attribute(u"style:family") == "table-cell"_L1) {
        readProperties(style.child(u"loext:graphic-properties"), own.graphic);
    }
    readProperties(style.child(u"style:paragraph-properties"), own.paragraph);
    stateSides(own.paragraph, u"fo:margin"_s);
    readProperties(style.child(u"style:text-properties"), own.text);
    if (style.hasAttribute(u"style:list-style-name"_s)) {
        own.list = style.attribute(u"style:list-style-name");
    }
    if (style.hasAttribute(u"style:master-page-name"_s)) {
        own.masterPage = style.attribute(u"style:master-page-name");
    }
    return own;
}

void StyleTable::readStyles(const Node* container)
{
    if (container == nullptr) {
        return;
    }
    const bool isAutomatic = container->is(u"office:automatic-styles");
    for (const auto& node : container->children) {
        const QString family = node->attribute(u"style:family");
        if (node->is(u"style:default-style")) {
            m_defaults.insert(family, ownProperties(*node));
        } else if (node->is(u"style:style")) {
            m_styles.insert(
                keyOf(family, node->attribute(u"style:name")),
                {node->attribute(u"style:parent-style-name"), ownProperties(*node), isAutomatic});
        } else if (!node->isText()) {
            const QString name = node->attribute(u"draw:name");
            m_named.insert(
                keyOf(node->name, name.isEmpty() ? node->attribute(u"style:name") : name),
                node.get());
        }
    }
}

StyleProperties StyleTable::resolved(const QString& family, const QString& name,
                                     bool withDefault) const
{
    const QString key = keyOf(withDefault ? family + u'+' : family, name);
    const auto known = m_resolved.constFind(key);
    return known != m_resolved.constEnd()
               ? *known
               : *m_resolved.insert(key, resolve(family, name, withDefault));
}

StyleProperties StyleTable::resolve(const QString& family, const QString& name,
                                    bool withDefault) const
{
    std::vector<const Style*> chain;
    auto found = m_styles.constFind(keyOf(family, name));
    while (found != m_styles.constEnd() && chain.size() < MaximumParents) {
        chain.push_back(&*found);
        found = m_styles.constFind(keyOf(family, found->parent));
    }
    StyleProperties result = withDefault ? m_defaults.value(family) : StyleProperties();
    std::for_each(chain.rbegin(), chain.rend(),
                  [&result](const Style* style) { result.overlay(style->own); });
    return result;
}

Properties StyleTable::indentOverList(const QString& paragraphStyle) const
{
    Properties indent;
    Properties ofParagraph; // stated by the paragraph itself
    auto found = m_styles.constFind(keyOf(u"paragraph"_s, paragraphStyle));
    for (int i = 0; found != m_styles.constEnd() && i < MaximumParents; ++i) {
        for (const QString& name : {u"fo:margin-left"_s, u"fo:text-indent"_s}) {
            if (found->own.paragraph.contains(name) && !indent.contains(name)) {
                indent.insert(name, found->own.paragraph.value(name));
            }
        }
        if (found->own.list && !found->own.list->isEmpty()) {
            return indent;
        }
        ofParagraph = found->isAutomatic ? indent : ofParagraph;
        found = m_styles.constFind(keyOf(u"paragraph"_s, found->parent));
    }
    return ofParagraph;
}

QString StyleTable::namedStyle(const QString& paragraphStyle) const
{
    const auto found = m_styles.constFind(keyOf(u"paragraph"_s, paragraphStyle));
    return found != m_styles.constEnd() && found->isAutomatic ? found->parent : paragraphStyle;
}

void StyleTable::add(const QString& family, const QString& name, const StyleProperties& properties)
{
    m_styles.insert(keyOf(family, name), {QString(), properties, true});
    m_resolved.remove(keyOf(family, name));
    m_resolved.remove(keyOf(family + u'+', name));
}

QString StyleTable::fontFamily(const QString& declaration) const
{
    return m_fonts.value(declaration, declaration);
}

const Node* StyleTable::named(const QString& tag, const QString& name) const
{
    return m_named.value(keyOf(tag, name), nullptr);
}

} // namespace repair
