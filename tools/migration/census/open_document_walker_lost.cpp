// The parts of a document that no reader imports.

#include "migration/census/open_document_walker.h"

namespace migration {

using namespace Qt::StringLiterals;

void OpenDocumentWalker::addLost(CountedObject object, const std::optional<QRectF>& box)
{
    // A place on a further page is not one on the label.
    if (m_pages > 1) {
        object.page = m_pages;
    } else {
        object.place = box;
    }
    m_census.objects.append(object);
}

// A lost object, or an element whose objects are all lost: the first reason holds for all of them.
void OpenDocumentWalker::openLost(LossKind kind, const QString& name, const Attributes& attributes)
{
    const bool isScene = name == "dr3d:scene"_L1;
    // Wherever it is: nothing imports it.
    kind = isScene ? LossKind::ThreeDScene : kind;
    const DrawingElement* element = drawingElement(name);
    const qsizetype appearance = element != nullptr ? addAppearance(name, attributes) : -1;
    if (element != nullptr) {
        addLost({.objectClass = element->objectClass, .lost = kind, .appearance = appearance},
                m_box);
        m_census.detail(kind, kind == LossKind::GroupedObject ? QString() : name);
    }
    if (isScene) {
        return push(Spot::Ignored);
    }
    push(Spot::Lost);
    m_places.back().lost = kind;
    m_places.back().isObject = element != nullptr;
    m_places.back().appearance = appearance;
}

void OpenDocumentWalker::openInLost(const QString& name, const Attributes& attributes)
{
    // A note is an object of its own, also in a section that is left out.
    const bool isNote = name == "text:note"_L1;
    const LossKind kind = isNote ? LossKind::Footnote : m_places.back().lost;
    if (name == "office:annotation"_L1 || isInvisible(name) || isAnimation(name)) {
        return openIgnored(name);
    }
    if (drawingElement(name) != nullptr) {
        return openLost(kind, name, attributes);
    }
    // What a frame contains decides what is lost.
    if (name == "draw:image"_L1 && m_places.back().isObject) {
        m_census.objects.last().objectClass = ObjectClass::Picture;
    } else if (isEmbedded(name) && m_places.back().isObject) {
        m_census.objects.last().lost = LossKind::EmbeddedObject;
    }
    noteSection(name, attributes);
    const bool isInParagraph = m_places.back().spot == Spot::LostParagraph;
    const bool isText = !isNote && (isParagraph(name) || isInParagraph);
    push(isText ? Spot::LostParagraph : Spot::Lost);
    m_places.back().lost = kind;
    m_places.back().style = attributes.value("text:style-name"_L1).toString();
    m_places.back().isVariable = name == "text:variable-get"_L1;
    if (name == "text:note-body"_L1) {
        takeText(u" "); // after its number
    }
}

// The color that the style of a paragraph or span states, and what labels do not show of it.
void OpenDocumentWalker::noteLostLook()
{
    Place& place = m_places.back();
    const Place& outer = m_places.at(m_places.size() - 2);
    const QColor color = m_styles.colorOf(place.style, outer.style, {});
    if (!place.colors.contains(color)) {
        place.colors.append(color);
    }
    const LossSet changes = m_styles.textChanges(place.style);
    for (const LossKind kind : {LossKind::TextEffect, LossKind::EffectDropped}) {
        if (changes.has(kind)) {
            m_census.note(kind);
        }
    }
}

// A part of a text that is left out.
void OpenDocumentWalker::openLostPart(const QString& name, LossKind otherwise)
{
    if (name == "office:annotation"_L1 || isInvisible(name) || isAnimation(name)) {
        return openIgnored(name);
    }
    const bool isParagraphOfIt = isParagraph(name);
    const LossKind kind = isParagraphOfIt ? otherwise : lostTextPart(name).value_or(otherwise);
    const bool isPiece = isParagraphOfIt || kind == LossKind::LinkText ||
                         kind == LossKind::TextField || kind == LossKind::TextElement ||
                         kind == LossKind::Footnote;
    if (kind == LossKind::TextField) {
        m_census.detail(kind, name);
    }
    push(isPiece ? Spot::LostParagraph : Spot::Lost);
    m_places.back().lost = kind;
    m_places.back().isPageNumber = name == "text:page-number"_L1 || name == "text:page-count"_L1;
}

// Its texts are imported by repair, what surrounds them is not.
void OpenDocumentWalker::noteSection(const QString& name, const Attributes& attributes)
{
    if (lostTextPart(name) != LossKind::TextSection) {
        return;
    }
    const LossSet changes =
        m_styles.sectionChanges(attributes.value("text:style-name"_L1).toString());
    for (const LossKind kind : {LossKind::TextEffect, LossKind::LayoutSimplified}) {
        if (changes.has(kind)) {
            m_census.note(kind, 1, attributes.value("text:name"_L1).toString());
        }
    }
}

// What follows in one column on a label.
void OpenDocumentWalker::noteLayout(const QString& name, const Attributes& attributes)
{
    if (attributes.hasAttribute("draw:chain-next-name"_L1) ||
        (name == "text:note"_L1 && attributes.value("text:note-class"_L1) == "endnote"_L1) ||
        (name == "table:table"_L1 &&
         (!m_tables.empty() || m_places.front().lost == LossKind::HeaderOrFooter))) {
        m_census.note(LossKind::LayoutSimplified, 1, name);
    } else if (name == "text:note"_L1 || name == "text:changed-region"_L1) {
        // The line above footnotes, and the colors of changes.
        m_census.note(LossKind::TextEffect, 1, name);
    } else if (name == "text:placeholder"_L1) {
        m_census.note(LossKind::FixedField, 1, name); // which is not printed
    } else if (name == "text:list"_L1 &&
               m_styles.hasPictureBullets(attributes.value("text:style-name"_L1).toString())) {
        m_census.note(LossKind::TextEffect, 1, u"text:list-level-style-image"_s);
    }
}

// Labels have tab stops at equal distances. Counts a paragraph once.
void OpenDocumentWalker::noteTab(const QString& name)
{
    if (name == "text:tab"_L1 && m_styles.hasTabStops(m_lineStyle)) {
        m_census.note(LossKind::TextEffect, 1, name);
        m_lineStyle.clear();
    }
}

void OpenDocumentWalker::openIgnored(const QString& name)
{
    if (name == "office:annotation"_L1) {
        m_census.note(LossKind::Comment);
    } else if (isAnimation(name)) {
        m_census.note(LossKind::Animation);
    }
    push(Spot::Ignored);
}

} // namespace migration
