// What the objects of a document look like.

#include "migration/census/open_document_geometry.h"
#include "migration/census/open_document_walker.h"

#include <algorithm>

namespace migration {

using namespace Qt::StringLiterals;

namespace {

// Objects with text beside them that are compared: more than a label has.
constexpr qsizetype MaximumSizesBetweenText = 1'000;

// In points; 0 where it follows from the content.
QSizeF statedSize(const QXmlStreamAttributes& attributes)
{
    return {lengthInPoints(attributes.value("svg:width"_L1)).value_or(0.0),
            lengthInPoints(attributes.value("svg:height"_L1)).value_or(0.0)};
}

} // namespace

// Objects like letters have no text beside them. Without a statement, the text runs on both sides.
void OpenDocumentWalker::noteAnchor(const Attributes& attributes)
{
    const QStringView anchor = attributes.value("text:anchor-type"_L1);
    const QString wrap = m_styles.wrapOf(attributes.value("draw:style-name"_L1).toString());
    const bool isBetween = wrap.isEmpty() || wrap == "parallel"_L1 || wrap == "dynamic"_L1;
    const bool isKept = m_census.sizesBetweenText.size() < MaximumSizesBetweenText;
    if (isKept && isBetween &&
        (anchor == "paragraph"_L1 || anchor == "char"_L1 || anchor == "page"_L1)) {
        m_census.sizesBetweenText.append(statedSize(attributes));
    }
}

qsizetype OpenDocumentWalker::addAppearance(const QString& name, const Attributes& attributes)
{
    noteAnchor(attributes);
    Appearance appearance;
    m_styles.describeShape(attributes.value("draw:style-name"_L1).toString(), m_pages == 0,
                           name == "draw:frame"_L1, appearance);
    if (name == "draw:control"_L1) {
        // That of its kind, whatever its style states.
        appearance.fill = {};
        appearance.isFilled.reset();
    }
    const bool isPlaced = m_pages > 0 || attributes.value("text:anchor-type"_L1) == "page"_L1;
    // A dimension line is drawn beside its ends.
    if (isPlaced && name != "draw:measure"_L1) {
        appearance.outline = outlineOf(attributes);
    }
    appearance.size = statedSize(attributes);
    bool isNumber = false;
    const int order = attributes.value("draw:z-index"_L1).toInt(&isNumber);
    appearance.order = isNumber ? order : m_census.appearances.size();
    appearance.page = m_pages;
    m_census.appearances.append(appearance);
    return m_census.appearances.size() - 1;
}

// A text has the place and the ground of its shape.
qsizetype OpenDocumentWalker::addTextAppearance(const Place& look, QString text)
{
    Appearance appearance;
    if (look.appearance >= 0) {
        appearance = m_census.appearances.at(look.appearance);
        appearance.isInShape = true;
    } else if (const Place* const object = innermostLostObject()) {
        const Appearance& shape = m_census.appearances.at(object->appearance);
        appearance.outline = shape.outline;
        appearance.mayOverlap = shape.mayOverlap;
        appearance.isInShape = true;
    }
    // The paragraph's text already has that of this run.
    const bool isRun = look.appearance < 0 && !m_census.paragraphs.isEmpty();
    const QStringView before =
        isRun ? QStringView(m_census.paragraphs.constLast())
                    .chopped(std::min(text.size(), m_census.paragraphs.constLast().size()))
              : QStringView();
    appearance.followsBlank = (!before.isEmpty() && before.back().isSpace()) ||
                              (!text.isEmpty() && text.front().isSpace());
    appearance.text = std::move(text);
    appearance.families = look.families;
    appearance.families.removeAll(QString());
    appearance.textColor = look.colors.size() == 1 ? look.colors.constFirst() : QColor();
    appearance.isColorKnown = !look.colors.isEmpty();
    appearance.hasLostParts = look.hasLostParts;
    appearance.page = m_pages;
    const bool isRunning = std::any_of(m_places.begin(), m_places.end(), [](const Place& place) {
        return place.spot == Spot::Paragraph;
    });
    appearance.paragraph = isRunning && look.appearance < 0 ? int(m_census.paragraphs.size()) : 0;
    m_census.appearances.append(appearance);
    return m_census.appearances.size() - 1;
}

const OpenDocumentWalker::Place* OpenDocumentWalker::innermostLostObject() const
{
    const auto found = std::find_if(m_places.rbegin(), m_places.rend(),
                                    [](const Place& place) { return place.isObject; });
    return found != m_places.rend() ? &*found : nullptr;
}

void OpenDocumentWalker::openInTable(const QString& name, const Attributes& attributes)
{
    if (name == "table:table"_L1) {
        m_tables.push_back(m_places.size());
    } else if (m_tables.empty() || !name.startsWith("table:"_L1)) {
        return;
    }
    const QString style = attributes.value("table:style-name"_L1).toString();
    for (const QString& effect : m_styles.effectsOfCell(style)) {
        m_census.note(LossKind::TextEffect, 1, effect);
    }
    if (name == "table:table-cell"_L1) {
        const CellBorders borders = m_styles.bordersOfCell(style);
        const bool isNested = m_tables.size() > 1;
        m_census.otherBorderedCells += borders.areOther || (isNested && borders.areDrawn) ? 1 : 0;
    }
}

void OpenDocumentWalker::closeTable()
{
    if (m_tables.empty() || m_tables.back() < m_places.size()) {
        return;
    }
    m_tables.pop_back();
}

// The innermost paragraph that readers leave out, the shape, or the paragraph of the running text.
void OpenDocumentWalker::takeText(QStringView characters)
{
    bool isTaken = false;
    for (auto place = m_places.rbegin(); place != m_places.rend(); ++place) {
        const Spot spot = place->spot;
        if (spot == Spot::Ignored) {
            return;
        }
        if (!isTaken && (spot == Spot::LostParagraph || spot == Spot::Run)) {
            place->text += characters;
            isTaken = true;
        }
        const bool isNote = spot == Spot::LostParagraph && place->lost == LossKind::Footnote;
        if (isNote || place->isObject || spot == Spot::Line) {
            return;
        }
        if (spot == Spot::Shape || spot == Spot::TextBox) {
            place->text += characters;
            return;
        }
        if (spot == Spot::Paragraph) {
            m_census.paragraphs.last() += characters;
            m_chunk += isTaken ? QStringView() : characters;
            return;
        }
    }
}

void OpenDocumentWalker::startLine()
{
    const bool isNested = std::any_of(m_places.begin(), m_places.end(), [](const Place& place) {
        return place.isObject || (place.spot == Spot::Lost && place.lost == LossKind::Footnote);
    });
    Place* const shape = isNested ? nullptr : nearestShape();
    if (shape == nullptr) {
        return;
    }
    if (shape->hasLine) {
        shape->text += u'\n';
    }
    shape->hasLine = true;
}

} // namespace migration
