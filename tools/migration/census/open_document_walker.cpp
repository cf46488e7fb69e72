#include "migration/census/open_document_walker.h"

#include "migration/census/open_document_geometry.h"

#include <algorithm>

namespace migration {

using namespace Qt::StringLiterals;

namespace {

// Most spaces of one element; a document may ask for more than memory holds.
constexpr int MaximumSpaces = 1'000;

QString spacingOf(const QString& name, const QXmlStreamAttributes& attributes)
{
    if (name == "text:tab"_L1) {
        return u"\t"_s;
    }
    if (name == "text:line-break"_L1) {
        return u"\n"_s;
    }
    const int count = attributes.value("text:c"_L1).toInt();
    return QString(std::clamp(count, 1, MaximumSpaces), u' ');
}

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
    const std::optional<QRectF> box = boxOf(attributes);
    m_box = box ? box : m_places.back().box;
    noteFirstPage(name, attributes);
    noteLayout(name, attributes);
    openInTable(name, attributes);
    openChild(name, attributes);
    m_places.back().box = m_box;
}

void OpenDocumentWalker::openChild(const QString& name, const Attributes& attributes)
{
    const bool isText = isParagraph(name) || name == "text:span"_L1;
    if (isHidden(name, attributes) || m_styles.hidesLayer(attributes.value("draw:layer"_L1)) ||
        isUnprinted(attributes.value("draw:display"_L1)) ||
        (isText && m_styles.hidesText(attributes.value("text:style-name"_L1).toString()))) {
        return push(Spot::Ignored);
    }
    if (isSpacing(name)) {
        takeText(spacingOf(name, attributes));
        noteTab(name);
    } else if (isParagraph(name)) {
        startLine();
        m_lineStyle = attributes.value("text:style-name"_L1).toString();
    }
    if (attributes.value("draw:text-path"_L1) == "true"_L1) {
        m_census.note(LossKind::TextPath, 1, attributes.value("draw:type"_L1).toString());
    } else if (attributes.value("draw:extrusion"_L1) == "true"_L1) {
        m_census.note(LossKind::EffectDropped, 1, u"draw:extrusion"_s);
    }
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
        return openLostPart(name, LossKind::LineText);
    case Spot::Lost:
    case Spot::LostParagraph:
        return openInLost(name, attributes);
    case Spot::Ignored:
        return push(Spot::Ignored);
    }
}

// The first paragraph or table of a text decides the master page of its first page. Objects that
// belong to a page may come before it.
void OpenDocumentWalker::noteFirstPage(const QString& name, const Attributes& attributes)
{
    const bool isTable = name == "table:table"_L1;
    if (!m_hasRunningText || m_isTextBegun || !(isTable || isParagraph(name))) {
        return;
    }
    const bool isInObject = std::any_of(m_places.begin(), m_places.end(), [](const Place& place) {
        return place.isObject || place.spot == Spot::Frame || place.spot == Spot::Ignored;
    });
    if (!isInObject) {
        m_isTextBegun = true;
        const QLatin1String style = isTable ? "table:style-name"_L1 : "text:style-name"_L1;
        m_masterPage = m_styles.masterPageOf(isTable ? u"table"_s : u"paragraph"_s,
                                             attributes.value(style).toString());
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
        openParagraph(name, attributes);
    } else if (name == "draw:frame"_L1) {
        openFrame(attributes);
    } else if (name == "text:soft-page-break"_L1) {
        notePageBreak();
    } else if (name == "draw:g"_L1 || drawingElement(name) != nullptr) {
        openLost(LossKind::ShapeInText, name, attributes);
    } else {
        noteSection(name, attributes);
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
        addLost({.lost = LossKind::UnknownObject}, m_box);
        openLost(LossKind::UnknownObject, {});
    } else {
        openLostPart(name, LossKind::UnknownObject);
    }
}

void OpenDocumentWalker::close()
{
    takeChunk();
    const Place place = m_places.back();
    m_places.pop_back();
    if (m_places.empty()) {
        m_places.push_back({});
    }
    closeTable();
    Place& parent = m_places.back();
    switch (place.spot) {
    case Spot::Paragraph:
        return closeParagraph();
    case Spot::Run:
        if (parent.spot == Spot::Run) {
            parent.hasText = parent.hasText || place.hasText;
            parent.text += place.text;
        } else if (place.hasText) {
            m_runs.append({.objectClass = ObjectClass::Text,
                           .changes = m_runChanges,
                           .appearance = addTextAppearance(m_runLook, place.text)});
        }
        return;
    case Spot::LostParagraph:
        if (parent.spot == Spot::LostParagraph) {
            parent.hasText = parent.hasText || place.hasText;
            parent.text += place.text;
            parent.colors += place.colors;
        } else if (place.hasText) {
            addLost({.objectClass = ObjectClass::Text,
                     .lost = place.lost,
                     .appearance = addTextAppearance({}, place.text)},
                    place.box);
            // The ground of a shape is known, that of a cell is not.
            Appearance& appearance = m_census.appearances.last();
            if (place.colors.size() == 1 && appearance.isInShape) {
                appearance.textColor = place.colors.constFirst();
            }
            if (Place* const shape = nearestShape()) {
                shape->hasLostParts = true;
            }
        }
        return;
    case Spot::ShapeRun:
        m_runStyle.clear();
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
