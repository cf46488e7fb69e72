// The texts of a document: running text, and the texts of shapes.

#include "migration/census/open_document_walker.h"

#include <algorithm>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Repair writes zero width spaces into texts that only hold the places of objects.
bool isBlank(QStringView text)
{
    return std::all_of(text.begin(), text.end(),
                       [](QChar each) { return each.isSpace() || each == QChar(0x200B); });
}

} // namespace

void OpenDocumentWalker::openParagraph(const QString& name, const Attributes& attributes)
{
    const QString style = attributes.value("text:style-name"_L1).toString();
    m_runs.clear();
    m_paragraphChanges = m_styles.textChanges(style);
    m_paragraphStyle = style;
    m_paragraphLook = {};
    m_paragraphLook.families = {m_styles.familyOf({}, style, {})};
    m_paragraphLook.colors = {m_styles.colorOf({}, style, {})};
    m_census.paragraphs.append(QString());
    m_isNumbered =
        name == "text:h"_L1 && attributes.value("text:is-list-header"_L1) != "true"_L1 &&
        m_styles.numbersHeading(style, attributes.value("text:outline-level"_L1).toInt());
    push(Spot::Paragraph);
}

void OpenDocumentWalker::openInParagraph(const QString& name, const Attributes& attributes)
{
    if (name == "draw:frame"_L1) {
        openFrame(attributes);
    } else if (name == "text:span"_L1 || isDateOrTime(name) || isParagraph(name)) {
        openRun(name, attributes);
    } else if (name == "draw:g"_L1 || drawingElement(name) != nullptr) {
        openLost(LossKind::ShapeInText, name, attributes);
    } else if (name == "text:line-break"_L1 ||
               (name == "text:s"_L1 && !attributes.hasAttribute("text:c"_L1))) {
        m_census.note(LossKind::TextSpacing);
        push(Spot::Ignored);
    } else if (name == "text:soft-page-break"_L1) {
        notePageBreak();
    } else if (isSpacing(name)) {
        push(Spot::Ignored);
    } else {
        openLostPart(name, LossKind::TextElement);
    }
}

void OpenDocumentWalker::notePageBreak()
{
    m_census.note(LossKind::PageBreak);
    push(Spot::Ignored);
}

void OpenDocumentWalker::openRun(const QString& name, const Attributes& attributes)
{
    const QString style = attributes.value("text:style-name"_L1).toString();
    m_runChanges = m_paragraphChanges;
    m_runChanges.add(m_styles.textChanges(style));
    m_runLook = {};
    m_runLook.families = {m_styles.familyOf(style, m_paragraphStyle, {})};
    m_runLook.colors = {m_styles.colorOf(style, m_paragraphStyle, {})};
    noteField(name, attributes, m_runChanges);
    push(Spot::Run);
}

// Everything inside a span becomes one text, fields included.
void OpenDocumentWalker::openInRun(const QString& name, const Attributes& attributes)
{
    if (drawingElement(name) != nullptr) {
        return openLost(LossKind::NestedObject, name, attributes);
    }
    noteField(name, attributes, m_runChanges);
    push(Spot::Run);
}

// What an element inside a span loses if only its text is taken.
void OpenDocumentWalker::noteField(const QString& name, const Attributes& attributes,
                                   LossSet& changes)
{
    const bool isField =
        name != "text:span"_L1 && !isParagraph(name) && lostTextPart(name) == LossKind::TextField;
    if (isSpacing(name)) {
        changes.add(LossKind::TextSpacing);
    } else if (isField && attributes.value("text:fixed"_L1) != "true"_L1) {
        changes.add(LossKind::FixedField);
        m_census.detail(LossKind::FixedField, name);
    }
}

void OpenDocumentWalker::openShapeParagraph(const Attributes& attributes)
{
    const QString style = attributes.value("text:style-name"_L1).toString();
    const LossSet changes = m_styles.textChanges(style);
    push(Spot::ShapeParagraph);
    m_paragraphStyle = style;
    m_runStyle.clear();
    m_places.back().style = style;
    m_places.back().textChanges = changes;
}

void OpenDocumentWalker::openInShapeParagraph(const QString& name, const Attributes& attributes)
{
    if (name == "text:span"_L1) {
        const QString style = attributes.value("text:style-name"_L1).toString();
        LossSet changes = m_places.back().textChanges;
        changes.add(m_styles.textChanges(style));
        m_runStyle = style;
        const QString sizing = m_styles.sizesText(style) ? style : m_places.back().style;
        push(Spot::ShapeRun);
        m_places.back().textChanges = changes;
        m_places.back().style = sizing;
    } else if (name == "text:tab"_L1) {
        push(Spot::Ignored);
    } else if (isSpacing(name)) {
        LossSet changes;
        changes.add(LossKind::TextSpacing);
        addShapeText(changes);
        push(Spot::Ignored);
    } else if (drawingElement(name) != nullptr) {
        openLost(LossKind::NestedObject, name, attributes);
    } else {
        openLostPart(name, LossKind::TextElement);
    }
}

void OpenDocumentWalker::openInShapeRun(const QString& name, const Attributes& attributes)
{
    if (drawingElement(name) != nullptr) {
        return openLost(LossKind::NestedObject, name, attributes);
    }
    const LossSet changes = m_places.back().textChanges;
    const QString style = m_places.back().style;
    LossSet added;
    noteField(name, attributes, added);
    addShapeText(added);
    push(Spot::ShapeRun);
    m_places.back().textChanges = changes;
    m_places.back().style = style;
}

void OpenDocumentWalker::text(QStringView characters)
{
    // Office programs show a variable as it was set, whatever the file contains.
    if (m_places.back().isVariable) {
        takeText(QString(VariableText));
        return;
    }
    // Of a page's number, office programs write a sign instead of the number that they show.
    if (m_pages > 0 && characters == u"<number>") {
        takeText(QString::number(m_pages));
    } else if (m_places.back().isPageNumber) {
        takeText(QString(VariableText));
    } else {
        // A line break in the file is a space in the text.
        takeText(characters.toString().replace(u'\n', u' '));
    }
    if (isBlank(characters)) {
        return;
    }
    switch (m_places.back().spot) {
    case Spot::Paragraph:
        m_chunkHasText = true;
        return;
    case Spot::ShapeParagraph:
    case Spot::ShapeRun:
        return markText();
    case Spot::LostParagraph:
        if (!m_places.back().hasText) {
            noteLostLook();
        }
        [[fallthrough]];
    case Spot::Run:
        m_places.back().hasText = true;
        return;
    default:
        return;
    }
}

// The innermost shape or text box, which the text belongs to.
OpenDocumentWalker::Place* OpenDocumentWalker::nearestShape()
{
    const auto found = std::find_if(m_places.rbegin(), m_places.rend(), [](const Place& place) {
        return place.spot == Spot::Shape || place.spot == Spot::TextBox;
    });
    return found != m_places.rend() ? &*found : nullptr;
}

void OpenDocumentWalker::addShapeText(LossSet changes)
{
    if (Place* shape = nearestShape()) {
        shape->textChanges.add(changes);
    }
}

void OpenDocumentWalker::markText()
{
    const Place& place = m_places.back();
    Place* shape = nearestShape();
    if (shape == nullptr) {
        return;
    }
    shape->hasText = true;
    const QString family = m_styles.familyOf(m_runStyle, m_paragraphStyle, shape->style);
    if (!shape->families.contains(family)) {
        shape->families.append(family);
    }
    const QColor color = m_styles.colorOf(m_runStyle, m_paragraphStyle, shape->style);
    if (!shape->colors.contains(color)) {
        shape->colors.append(color);
    }
    LossSet changes = place.textChanges;
    changes.add(m_styles.shapeTextChanges(shape->style));
    if (m_styles.sizesShapeText(shape->style) && !m_styles.sizesText(place.style)) {
        changes.add(LossKind::TextFormat);
    }
    shape->textChanges.add(changes);
}

void OpenDocumentWalker::divide()
{
    takeChunk();
}

// Text directly in a paragraph ends where an element begins or ends.
void OpenDocumentWalker::takeChunk()
{
    if (m_chunkHasText) {
        m_runs.append({.objectClass = ObjectClass::Text,
                       .changes = m_paragraphChanges,
                       .appearance = addTextAppearance(m_paragraphLook, m_chunk)});
    }
    m_chunkHasText = false;
    m_chunk.clear();
}

void OpenDocumentWalker::closeParagraph()
{
    if (m_isNumbered && !m_runs.isEmpty()) {
        m_census.numberedHeadings.append(m_census.paragraphs.constLast().simplified());
    }
    m_census.objects.append(m_runs);
    m_runs.clear();
}

void OpenDocumentWalker::closeShapeText(const Place& place)
{
    if (!place.hasText) {
        return;
    }
    CountedObject text{.objectClass = ObjectClass::Text};
    text.appearance = addTextAppearance(place, place.text);
    if (place.hasParagraph) {
        text.changes = place.textChanges;
    } else {
        text.lost = LossKind::ShapeText;
        text.place = place.box;
    }
    m_census.objects.append(text);
}

} // namespace migration
