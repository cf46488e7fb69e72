#include "migration/census/open_document_walker.h"

#include <algorithm>
#include <array>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Whether a transformation does more than turn and move.
bool isUnreadTransform(QStringView transform)
{
    if (transform.isEmpty()) {
        return false;
    }
    for (const QStringView part : transform.split(u')', Qt::SkipEmptyParts)) {
        const QStringView name = part.left(part.indexOf(u'('));
        const bool isRead = name.trimmed() == "rotate"_L1 || name.trimmed() == "translate"_L1;
        if (!part.trimmed().isEmpty() && (!isRead || !name.endsWith(u' '))) {
            return true;
        }
    }
    return false;
}

bool isZero(QStringView length)
{
    return std::none_of(length.begin(), length.end(),
                        [](QChar c) { return c >= u'1' && c <= u'9'; });
}

constexpr std::array kLengths{"svg:x"_L1,  "svg:y"_L1,  "svg:width"_L1, "svg:height"_L1,
                              "svg:x1"_L1, "svg:y1"_L1, "svg:x2"_L1,    "svg:y2"_L1};

} // namespace

OpenDocumentWalker::OpenDocumentWalker(Census& census, const StyleBook& styles, const QString& unit)
    : m_census(census)
    , m_styles(styles)
    , m_unit(unit)
    , m_places{Place{}}
{}

void OpenDocumentWalker::startLost(LossKind kind)
{
    m_places = {Place{.spot = Spot::Lost, .lost = kind}};
}

void OpenDocumentWalker::push(Spot spot)
{
    m_places.push_back({.spot = spot});
}

void OpenDocumentWalker::open(const QString& name, const Attributes& attributes)
{
    takeChunk();
    switch (m_places.back().spot) {
    case Spot::Outside:
        return push(name == "office:body"_L1 ? Spot::Body : Spot::Outside);
    case Spot::Body:
        return openInBody(name);
    case Spot::RunningText:
        return openInRunningText(name, attributes);
    case Spot::Drawing:
        return openInDrawing(name, attributes);
    case Spot::Page:
        return openInPage(name, attributes);
    case Spot::Paragraph:
        return openInParagraph(name, attributes);
    case Spot::Run:
        return openInRun(name, attributes);
    case Spot::Shape:
    case Spot::TextBox:
        return openInShape(name, attributes);
    case Spot::ShapeParagraph:
        return openInShapeParagraph(name, attributes);
    case Spot::ShapeRun:
        return openInShapeRun(name, attributes);
    case Spot::Frame:
        return openInFrame(name, attributes);
    case Spot::Line:
        return openLostPart(name, LossKind::ShapeText);
    case Spot::Lost:
    case Spot::LostParagraph:
        return openInLost(name);
    case Spot::Ignored:
        return push(Spot::Ignored);
    }
}

void OpenDocumentWalker::openInBody(const QString& name)
{
    if (name == "office:text"_L1) {
        m_hasRunningText = true;
        push(Spot::RunningText);
    } else if (name == "office:drawing"_L1) {
        push(Spot::Drawing);
    } else {
        m_census.note(LossKind::DocumentTypeUnsupported, 1, name);
        openLost(LossKind::DocumentTypeUnsupported, {});
    }
}

void OpenDocumentWalker::openInRunningText(const QString& name, const Attributes& attributes)
{
    if (isParagraph(name)) {
        openParagraph(attributes);
    } else if (name == "draw:frame"_L1) {
        openFrame(attributes);
    } else if (name == "text:soft-page-break"_L1) {
        notePageBreak();
    } else if (name == "draw:g"_L1 || drawingElement(name) != nullptr) {
        openLost(LossKind::ShapeInText, name);
    } else {
        openLostPart(name, LossKind::TextElement);
    }
}

void OpenDocumentWalker::openInDrawing(const QString& name, const Attributes& attributes)
{
    if (name != "draw:page"_L1) {
        return openIgnored(name);
    }
    if (++m_pages > 1) {
        m_census.detail(LossKind::FurtherPage, attributes.value("draw:name"_L1).toString());
        return openLost(LossKind::FurtherPage, {});
    }
    m_masterPage = attributes.value("draw:master-page-name"_L1).toString();
    push(Spot::Page);
}

void OpenDocumentWalker::openInPage(const QString& name, const Attributes& attributes)
{
    if (const DrawingElement* element = drawingElement(name)) {
        openDrawing(*element, name, attributes);
    } else if (name == "draw:g"_L1) {
        openLost(LossKind::GroupedObject, {});
    } else if (isAnimation(name)) {
        m_census.note(LossKind::Animation);
        push(Spot::Ignored);
    } else if (name.startsWith("draw:"_L1) && !isInvisible(name)) {
        m_census.detail(LossKind::UnknownObject, name);
        m_census.objects.append({.lost = LossKind::UnknownObject});
        openLost(LossKind::UnknownObject, {});
    } else {
        openLostPart(name, LossKind::UnknownObject);
    }
}

void OpenDocumentWalker::openDrawing(const DrawingElement& element, const QString& name,
                                     const Attributes& attributes)
{
    if (element.lost) {
        return openLost(*element.lost, name);
    }
    if (name == "draw:frame"_L1) {
        return openFrame(attributes);
    }
    CountedObject object{.objectClass = element.objectClass};
    object.changes = changesOfShape(name, attributes);
    m_census.objects.append(object);
    push(element.objectClass == ObjectClass::Line ? Spot::Line : Spot::Shape);
    m_places.back().object = m_census.objects.size() - 1;
    m_places.back().style = attributes.value("draw:style-name"_L1).toString();
}

LossSet OpenDocumentWalker::changesOfShape(const QString& name, const Attributes& attributes)
{
    LossSet changes = m_styles.shapeChanges(attributes.value("draw:style-name"_L1).toString());
    noteGeometry(attributes, changes);
    const bool isLine = name == "draw:line"_L1 || name == "draw:measure"_L1;
    const bool hasPlace = isLine || attributes.hasAttribute("svg:x"_L1) ||
                          attributes.value("draw:transform"_L1).contains("translate"_L1);
    if (!hasPlace && m_pages > 0) {
        changes.add(LossKind::PositionAssumed);
    }
    if (isLine && attributes.hasAttribute("draw:transform"_L1)) {
        changes.add(LossKind::TransformDropped);
    }
    const QString kind = attributes.value("draw:kind"_L1).toString();
    if (!kind.isEmpty() && kind != "full"_L1) {
        changes.add(LossKind::UnknownShape);
        m_census.detail(LossKind::UnknownShape, name + u' ' + kind);
    }
    return changes;
}

void OpenDocumentWalker::noteGeometry(const Attributes& attributes, LossSet& changes)
{
    if (isUnreadTransform(attributes.value("draw:transform"_L1))) {
        changes.add(LossKind::TransformDropped);
    }
    const bool isMixed = std::any_of(kLengths.begin(), kLengths.end(), [&](QLatin1String name) {
        const QStringView length = attributes.value(name);
        return !length.isEmpty() && !isZero(length) && !length.endsWith(m_unit);
    });
    if (isMixed && !m_unit.isEmpty()) {
        changes.add(LossKind::MixedUnits);
    }
}

void OpenDocumentWalker::openFrame(const Attributes& attributes)
{
    push(Spot::Frame);
    Place& frame = m_places.back();
    frame.style = attributes.value("draw:style-name"_L1).toString();
    frame.textChanges = changesOfShape(u"draw:frame"_s, attributes);
    frame.isOnPage = m_pages > 0 || attributes.value("text:anchor-type"_L1) == "page"_L1;
    frame.hasPosition = attributes.hasAttribute("svg:x"_L1) || attributes.hasAttribute("svg:y"_L1);
}

// The first child that is not a title decides what a frame is; later ones are its stand-ins.

void OpenDocumentWalker::openInFrame(const QString& name, const Attributes& attributes)
{
    Place& frame = m_places.back();
    if (frame.isDecided || isInvisible(name)) {
        return openIgnored(name);
    }
    frame.isDecided = true;
    CountedObject object{.changes = frame.textChanges};
    // A box without a position runs along with the text; all else counts from the page.
    if (!frame.isOnPage && (frame.hasPosition || name != "draw:text-box"_L1)) {
        object.changes.add(LossKind::PositionAssumed);
    }
    if (name == "draw:image"_L1) {
        object.objectClass = ObjectClass::Picture;
        m_census.objects.append(object);
        m_census.drawings +=
            attributes.value("xlink:href"_L1).endsWith(".svg"_L1, Qt::CaseInsensitive) ? 1 : 0;
        return openLost(LossKind::NestedObject, {});
    }
    const QString style = frame.style;
    m_census.objects.append(object);
    if (name == "draw:text-box"_L1) {
        push(Spot::TextBox);
        m_places.back().style = style;
        m_places.back().object = m_census.objects.size() - 1;
    } else if (isEmbedded(name)) {
        m_census.objects.append(
            {.objectClass = ObjectClass::Picture, .lost = LossKind::EmbeddedObject});
        push(Spot::Ignored);
    } else {
        openLostPart(name, LossKind::UnknownObject);
    }
}

// Everything inside a piece of text becomes one text, fields and all.

// What an element inside a piece of text loses when only its text is taken.

void OpenDocumentWalker::openInShape(const QString& name, const Attributes& attributes)
{
    if (isParagraph(name) || name == "text:span"_L1 || isDateOrTime(name)) {
        m_places.back().hasParagraph = m_places.back().hasParagraph || name == "text:p"_L1;
        return openShapeParagraph(attributes);
    }
    if (name == "draw:enhanced-geometry"_L1) {
        const QString type = attributes.value("draw:type"_L1).toString();
        LossSet& changes = m_census.objects[m_places.back().object].changes;
        if (!isKnownShape(type)) {
            changes.add(LossKind::UnknownShape);
            m_census.detail(LossKind::UnknownShape, type);
        }
        if (attributes.value("draw:mirror-horizontal"_L1) == "true"_L1 ||
            attributes.value("draw:mirror-vertical"_L1) == "true"_L1) {
            changes.add(LossKind::TransformDropped);
        }
        return push(Spot::Ignored);
    }
    if (name == "draw:g"_L1 || drawingElement(name) != nullptr) {
        return openLost(LossKind::NestedObject, name);
    }
    openLostPart(name, LossKind::TextElement);
}

// An object that is lost, or a place whose objects are: the first reason holds for all inside.

void OpenDocumentWalker::openLost(LossKind kind, const QString& name)
{
    const DrawingElement* element = drawingElement(name);
    if (element != nullptr) {
        m_census.objects.append({.objectClass = element->objectClass, .lost = kind});
        m_census.detail(kind, kind == LossKind::GroupedObject ? QString() : name);
    }
    if (name == "dr3d:scene"_L1) {
        return push(Spot::Ignored);
    }
    push(Spot::Lost);
    m_places.back().lost = kind;
}

void OpenDocumentWalker::openInLost(const QString& name)
{
    const LossKind kind = m_places.back().lost;
    if (name == "office:annotation"_L1 || isInvisible(name) || isAnimation(name)) {
        return openIgnored(name);
    }
    if (drawingElement(name) != nullptr) {
        return openLost(kind, name);
    }
    const bool isText = isParagraph(name) || m_places.back().spot == Spot::LostParagraph;
    push(isText ? Spot::LostParagraph : Spot::Lost);
    m_places.back().lost = kind;
}

// A part of a text that stays behind.

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

// The text stands in the innermost shape or text box.

// A piece of text directly in a paragraph ends where an element begins or ends.

void OpenDocumentWalker::close()
{
    takeChunk();
    const Place place = m_places.back();
    m_places.pop_back();
    if (m_places.empty()) {
        m_places.push_back({});
    }
    Place& parent = m_places.back();
    switch (place.spot) {
    case Spot::Paragraph:
        return closeParagraph();
    case Spot::Run:
        if (parent.spot == Spot::Run) {
            parent.hasText = parent.hasText || place.hasText;
        } else if (place.hasText) {
            m_runs.append({.objectClass = ObjectClass::Text, .changes = m_runChanges});
        }
        return;
    case Spot::LostParagraph:
        if (parent.spot == Spot::LostParagraph) {
            parent.hasText = parent.hasText || place.hasText;
        } else if (place.hasText) {
            m_census.objects.append({.objectClass = ObjectClass::Text, .lost = place.lost});
        }
        return;
    case Spot::Shape:
    case Spot::TextBox:
        return closeShapeText(place);
    case Spot::Frame:
        // A frame of nothing becomes an empty box.
        if (!place.isDecided) {
            m_census.objects.append({.changes = place.textChanges});
        }
        return;
    default:
        return;
    }
}

} // namespace migration
