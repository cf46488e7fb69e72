// The shapes, lines and frames of a document.

#include "migration/census/open_document_walker.h"

#include <algorithm>
#include <array>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

// Whether a transformation does more than rotate and move.
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

constexpr std::array LengthAttributes{"svg:x"_L1,  "svg:y"_L1,  "svg:width"_L1, "svg:height"_L1,
                                      "svg:x1"_L1, "svg:y1"_L1, "svg:x2"_L1,    "svg:y2"_L1};

} // namespace

void OpenDocumentWalker::openDrawing(const DrawingElement& element, const QString& name,
                                     const Attributes& attributes)
{
    if (element.lost) {
        return openLost(*element.lost, name, attributes);
    }
    if (name == "draw:frame"_L1) {
        return openFrame(attributes);
    }
    CountedObject object{.objectClass = element.objectClass};
    object.changes = changesOfShape(name, attributes);
    object.appearance = addAppearance(name, attributes);
    m_census.objects.append(object);
    push(element.objectClass == ObjectClass::Line ? Spot::Line : Spot::Shape);
    m_places.back().object = m_census.objects.size() - 1;
    m_places.back().appearance = object.appearance;
    m_places.back().style = u""_s + attributes.value("draw:style-name"_L1).toString();
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
    const bool isMixed =
        std::any_of(LengthAttributes.begin(), LengthAttributes.end(), [&](QLatin1String name) {
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
    frame.style = u""_s + attributes.value("draw:style-name"_L1).toString();
    frame.appearance = addAppearance(u"draw:frame"_s, attributes);
    frame.textChanges = changesOfShape(u"draw:frame"_s, attributes);
    frame.isOnPage = m_pages > 0 || attributes.value("text:anchor-type"_L1) == "page"_L1;
    frame.hasPosition = attributes.hasAttribute("svg:x"_L1) || attributes.hasAttribute("svg:y"_L1);
}

// The first child other than a title decides what a frame is; later ones are replacements of it.
void OpenDocumentWalker::openInFrame(const QString& name, const Attributes& attributes)
{
    Place& frame = m_places.back();
    if (frame.isDecided || isInvisible(name)) {
        return openIgnored(name);
    }
    frame.isDecided = true;
    CountedObject object{.changes = frame.textChanges, .appearance = frame.appearance};
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
        m_places.back().appearance = object.appearance;
        if (attributes.hasAttribute("fo:min-height"_L1)) {
            m_census.appearances[object.appearance].grows = true;
        }
    } else if (isEmbedded(name)) {
        addLost({.objectClass = ObjectClass::Picture, .lost = LossKind::EmbeddedObject}, m_box);
        push(Spot::Ignored);
    } else {
        openLostPart(name, LossKind::UnknownObject);
    }
}

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
            changes.add(LossKind::Mirrored);
        }
        return push(Spot::Ignored);
    }
    if (name == "draw:g"_L1 || drawingElement(name) != nullptr) {
        return openLost(LossKind::NestedObject, name, attributes);
    }
    openLostPart(name, LossKind::TextElement);
}

} // namespace migration
