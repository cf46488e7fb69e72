#include "migration/census/open_document_styles.h"

#include "migration/census/open_document_names.h"
#include "migration/census/open_document_properties.h"

#include <array>
#include <utility>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Of a list in CSS.
QString firstFamily(const QString& families)
{
    return families.section(u',', 0, 0).remove(u'\'').remove(u'"').trimmed();
}

QString valueOf(const QXmlStreamAttributes& attributes, QLatin1String name)
{
    return attributes.value(name).toString();
}

bool isTextFamily(const QString& family)
{
    return family == "paragraph"_L1 || family == "text"_L1;
}

} // namespace

void StyleBook::take(const QString& name, const QXmlStreamAttributes& attributes)
{
    if (name == "draw:layer"_L1) {
        takeLayer(attributes);
    } else if (name == "style:page-layout"_L1) {
        m_sectionName.clear();
        m_cellName.clear();
        m_current = &m_ignored;
    } else if (name == "style:font-face"_L1) {
        m_faces.insert(valueOf(attributes, "style:name"_L1),
                       firstFamily(valueOf(attributes, "svg:font-family"_L1)));
    } else if (name == "style:style"_L1 || name == "style:default-style"_L1) {
        startStyle(attributes, name == "style:default-style"_L1);
    } else if (name == "text:list-style"_L1) {
        m_listName = valueOf(attributes, "style:name"_L1);
        m_cellName.clear();
    } else if (name.startsWith("text:list-level-style"_L1)) {
        if (name == "text:list-level-style-image"_L1) {
            m_pictureLists.insert(m_listName);
        }
        m_isInList = true;
    } else if (name == "text:outline-level-style"_L1) {
        m_isInList = true;
        if (!attributes.value("style:num-format"_L1).isEmpty()) {
            m_numberedLevels.insert(attributes.value("text:level"_L1).toInt());
        }
    } else if (name == "text:linenumbering-configuration"_L1) {
        m_numbersLines = attributes.value("text:number-lines"_L1) != "false"_L1;
    } else if (name == "style:text-properties"_L1) {
        // Those of a bullet are not those of the text.
        if (!std::exchange(m_isInList, false)) {
            takeProperties(u"text"_s, attributes);
        }
    } else if (name == "style:paragraph-properties"_L1) {
        m_isInList = false;
        takeProperties(u"paragraph"_s, attributes);
    } else if (name == "style:graphic-properties"_L1) {
        takeProperties(u"graphic"_s, attributes);
    } else if (name == "style:tab-stops"_L1) {
        current().hasTabStops = false; // instead of those of the parent
    } else if (name == "style:tab-stop"_L1) {
        current().hasTabStops = true;
    } else if (name == "style:table-cell-properties"_L1 && !m_cellName.isEmpty()) {
        takeCell(attributes);
    } else if (name == "style:table-properties"_L1 && !m_cellName.isEmpty()) {
        const QStringView shadow = attributes.value("style:shadow"_L1);
        noteCellEffect(u"style:shadow"_s, !shadow.isEmpty() && shadow != "none"_L1);
    } else if (name == "style:background-image"_L1 && !m_cellName.isEmpty()) {
        noteCellEffect(name, attributes.hasAttribute("xlink:href"_L1));
    } else if (!m_sectionName.isEmpty()) {
        takeSection(name, attributes);
    } else {
        takeProperties(name, attributes);
    }
}

void StyleBook::takeLayer(const QXmlStreamAttributes& attributes)
{
    if (isUnprinted(attributes.value("draw:display"_L1))) {
        m_hiddenLayers.insert(valueOf(attributes, "draw:name"_L1));
    }
}

void StyleBook::takeSection(const QString& name, const QXmlStreamAttributes& attributes)
{
    if (name == "style:section-properties"_L1) {
        const QString background = valueOf(attributes, "fo:background-color"_L1);
        if ((!background.isEmpty() && background != "transparent"_L1) ||
            isNonZero(valueOf(attributes, "fo:margin-left"_L1)) ||
            isNonZero(valueOf(attributes, "fo:margin-right"_L1))) {
            m_sections[m_sectionName].add(LossKind::TextEffect);
        }
    } else if (name == "style:columns"_L1 && attributes.value("fo:column-count"_L1).toInt() > 1) {
        m_sections[m_sectionName].add(LossKind::LayoutSimplified);
    }
}

void StyleBook::startStyle(const QXmlStreamAttributes& attributes, bool isDefault)
{
    m_isInList = false;
    const QString family = valueOf(attributes, "style:family"_L1);
    const QString name = valueOf(attributes, "style:name"_L1);
    // Of a table, row or cell: editors give them different names.
    m_cellName = family.startsWith("table"_L1) ? name : QString();
    m_sectionName = family == "section"_L1 ? name : QString();
    const QString parent = valueOf(attributes, "style:parent-style-name"_L1);
    takeMasterPage(family, name, parent, attributes);
    if (isTextFamily(family)) {
        // A parent must precede its styles.
        Style style = textStyle(parent);
        if (!m_texts.contains(parent)) {
            style.font.clear();
            style.color.clear();
        }
        style.hasNoNumbers = attributes.hasAttribute("style:list-style-name"_L1)
                                 ? attributes.value("style:list-style-name"_L1).isEmpty()
                                 : style.hasNoNumbers;
        m_current = isDefault ? (family == "paragraph"_L1 ? &m_defaultText : &m_ignored)
                              : &*m_texts.insert(name, style);
    } else if (family == "graphic"_L1) {
        m_current = isDefault ? &m_defaultShape : &*m_shapes.insert(name, shapeStyle(parent));
    } else {
        m_current = &m_ignored;
    }
}

const std::array<StyleBook::Value, 9> StyleBook::Values{{
    {"text"_L1, "fo:color"_L1, &Style::color},
    {"graphic"_L1, "draw:fill"_L1, &Style::fill},
    {"graphic"_L1, "draw:fill-color"_L1, &Style::fillColor},
    {"graphic"_L1, "draw:opacity"_L1, &Style::opacity},
    {"graphic"_L1, "fo:background-color"_L1, &Style::background},
    {"graphic"_L1, "draw:stroke"_L1, &Style::stroke},
    {"graphic"_L1, "svg:stroke-width"_L1, &Style::strokeWidth},
    {"graphic"_L1, "style:wrap"_L1, &Style::wrap},
    {"graphic"_L1, "draw:auto-grow-height"_L1, &Style::growsHeight},
}};

StyleBook::Style& StyleBook::current()
{
    return m_current != nullptr ? *m_current : m_ignored;
}

void StyleBook::takeProperties(const QString& group, const QXmlStreamAttributes& attributes)
{
    Style& style = current();
    if (group == "style:background-image"_L1 && style.fill == "bitmap"_L1) {
        return; // the same picture, for older programs
    }
    takeDropped(group, attributes, style.dropped);
    for (const auto& [valueGroup, attribute, value] : Values) {
        if (valueGroup == group && attributes.hasAttribute(attribute)) {
            style.*value = valueOf(attributes, attribute);
        }
    }
    if (group != "text"_L1) {
        return;
    }
    if (attributes.hasAttribute("text:display"_L1)) {
        style.isHidden = attributes.value("text:display"_L1) == "none"_L1;
    }
    style.isSized = style.isSized || attributes.hasAttribute("fo:font-size"_L1);
    if (attributes.hasAttribute("fo:font-family"_L1)) {
        style.font = firstFamily(valueOf(attributes, "fo:font-family"_L1));
    }
    if (attributes.hasAttribute("style:font-name"_L1)) {
        const QString face = valueOf(attributes, "style:font-name"_L1);
        style.font = m_faces.value(face, face);
    }
    if (valueOf(attributes, "style:use-window-font-color"_L1) == "true"_L1) {
        style.color = AutomaticColor;
    }
}

const StyleBook::Style& StyleBook::textStyle(const QString& name) const
{
    const auto found = m_texts.constFind(name);
    return found != m_texts.constEnd() ? *found : m_defaultText;
}

const StyleBook::Style& StyleBook::shapeStyle(const QString& name) const
{
    const auto found = m_shapes.constFind(name);
    return found != m_shapes.constEnd() ? *found : m_defaultShape;
}

LossSet StyleBook::textChanges(const QString& style) const
{
    return changesOf(textStyle(style).dropped, PropertyTarget::Text);
}

LossSet StyleBook::shapeChanges(const QString& style) const
{
    return changesOf(shapeStyle(style).dropped, PropertyTarget::Shape);
}

LossSet StyleBook::shapeTextChanges(const QString& style) const
{
    LossSet changes = changesOf(shapeStyle(style).dropped, PropertyTarget::ShapeText);
    changes.add(changesOf(shapeStyle(style).dropped, PropertyTarget::Text));
    return changes;
}

} // namespace migration
