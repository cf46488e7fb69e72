#include "repair/chart.h"
#include "repair/document.h"
#include "repair/embedded_sheet.h"
#include "repair/embedded_size.h"
#include "repair/embedded_styles.h"
#include "repair/lengths.h"
#include "repair/numbering.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <algorithm>
#include <cmath>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Embedded documents of one page, and the memory of one's trees.
constexpr int MaximumEmbedded = 50;
constexpr qint64 EmbeddedTreeBytes = 32LL << 20;

std::unique_ptr<Node> readTree(const Document& document, const QString& name)
{
    auto tree = parseTree(document.readMember(name), EmbeddedTreeBytes);
    if (tree) {
        convertLengths(*tree);
    }
    return tree;
}

// In a row of a text, the object is as high as its frame, not as what is drawn in it.
std::unique_ptr<Node> emptyFrame(Document& document, const Placement& place)
{
    auto empty = textFrame(document, QRectF(QPointF(), place.size), {});
    writePlacement(*empty, place);
    return empty;
}

// The frame decides how much room its row has, and shows nothing of what is outside.
void takeVisible(Node& page, const QRectF& visible, Node& group)
{
    for (auto& child : page.children) {
        const bool isShown =
            child->name.startsWith("draw:"_L1) &&
            (visible.isEmpty() || visible.intersects(boundsOf(*child).adjusted(0, 0, 0.01, 0.01)));
        if (isShown) {
            child->setAttribute(InsideFrameAttribute, u"true"_s);
            forEachElement(*child, [](Node& node) {
                if (node.name.startsWith("draw:"_L1)) {
                    node.setAttribute(InsideFrameAttribute, u"true"_s);
                }
            });
            group.children.push_back(std::move(child));
        }
    }
}

// From the shown part of an embedded document to its frame, as a share.
double scaleOf(const QSizeF& shown, const QSizeF& frame)
{
    return shown.isEmpty() || frame.isEmpty()
               ? 1.0
               : std::sqrt(frame.width() / shown.width() * frame.height() / shown.height());
}

std::unique_ptr<Node> groupOf(Document& document, Node& page, const QRectF& visible,
                              const Node& frame)
{
    auto group = Node::element(u"draw:g"_s);
    const Placement place = placementOf(frame);
    const QSizeF shown = visible.isEmpty() ? place.size : visible.size();
    const bool isScaled = !shown.isEmpty() && !place.size.isEmpty();
    const QTransform map =
        QTransform::fromTranslate(-visible.left(), -visible.top()) *
        QTransform::fromScale(isScaled ? place.size.width() / shown.width() : 1.0,
                              isScaled ? place.size.height() / shown.height() : 1.0) *
        place.toPage;
    writePlacement(*group, {place.size, map});
    if (frame.hasAttribute(RowAttribute) && map.isInvertible()) {
        group->append(emptyFrame(document, {place.size, place.toPage * map.inverted()}));
    }
    takeVisible(page, visible, *group);
    keepPlace(frame, *group);
    return group;
}

// The rows of a table as paragraphs, with tabs between their cells.
void takeRows(const Node& parent, Node& target, int depth)
{
    for (const auto& child : parent.children) {
        if (child->is(u"table:table-row")) {
            QStringList cells;
            for (const auto& cell : child->children) {
                cells.append(cell->allText().trimmed());
            }
            while (!cells.isEmpty() && cells.constLast().isEmpty()) {
                cells.removeLast();
            }
            Node& row = target.append(Node::element(u"text:p"_s));
            for (qsizetype i = 0; i < cells.size(); ++i) {
                if (i > 0) {
                    row.append(Node::element(u"text:tab"_s));
                }
                row.append(Node::characters(cells[i]));
            }
        } else if (depth < MaximumRowGroupDepth && child->name.startsWith("table:table"_L1)) {
            takeRows(*child, target, depth + 1);
        }
    }
}

// The titles and values of a chart that cannot be drawn.
void takeChartText(const Node& chart, Node& target)
{
    for (const QString& tag : {u"chart:title"_s, u"chart:subtitle"_s, u"chart:footer"_s}) {
        if (const Node* const title = chart.child(tag)) {
            target.append(Node::element(u"text:p"_s)).append(Node::characters(title->allText()));
        }
    }
    if (const Node* const table = chart.child(u"table:table")) {
        takeRows(*table, target, 0);
    }
}

enum class EmbeddedKind { Chart, Other };

/// Unpacks the embedded documents of a page.
class Unpacker
{
public:
    Unpacker(Document& document, EmbeddedKind kind)
        : m_document(document)
        , m_kind(kind)
    {}

    int unpackIn(Node& parent);

private:
    [[nodiscard]] std::unique_ptr<Node> unpacked(Node& frame);
    /// What the frame shows of the document.
    struct Shown
    {
        QRectF visible;
        QMarginsF margins; // in the frame
        double scale = 1.0;
    };

    [[nodiscard]] Shown shownOf(const Node& frame, const Node& inside, const Node* styles,
                                const QString& folder) const;
    [[nodiscard]] std::unique_ptr<Node> placed(const Node& frame, Node& inside, const Shown& shown);
    [[nodiscard]] std::unique_ptr<Node> textBoxFor(const Node& frame, const QMarginsF& margins);

    Document& m_document;
    const EmbeddedKind m_kind;
    int m_read = 0;
};

// Null if the frame stays as it is.
std::unique_ptr<Node> Unpacker::unpacked(Node& frame)
{
    const Node* const object = frame.child(u"draw:object");
    QString folder = object != nullptr ? object->attribute(u"xlink:href") : QString();
    folder = folder.startsWith("./"_L1) ? folder.sliced(2) : folder;
    if (folder.isEmpty() || hasReadablePicture(m_document, frame) || ++m_read > MaximumEmbedded) {
        return nullptr;
    }
    const auto content = readTree(m_document, folder + "/content.xml"_L1);
    const Node* const body = content ? content->child(u"office:body") : nullptr;
    Node* const inside = body != nullptr ? body->firstElement() : nullptr;
    if (inside == nullptr || inside->is(u"office:chart") != (m_kind == EmbeddedKind::Chart)) {
        return nullptr;
    }
    const auto styles = readTree(m_document, folder + "/styles.xml"_L1);
    const Shown shown = shownOf(frame, *inside, styles.get(), folder);
    scaleFormats(styles.get(), shown.scale);
    scaleFormats(content.get(), shown.scale);
    const QString prefix = m_kind == EmbeddedKind::Chart ? u"chart%1-"_s : u"object%1-"_s;
    importStyles(m_document, styles.get(), *content, prefix.arg(m_read));
    writeLabels(m_document.table(), nullptr, *inside);
    return placed(frame, *inside, shown);
}

Unpacker::Shown Unpacker::shownOf(const Node& frame, const Node& inside, const Node* styles,
                                  const QString& folder) const
{
    Shown shown{visibleArea(m_document, folder), {}};
    if (m_kind == EmbeddedKind::Chart) {
        return shown;
    }
    // The picture of a drawing begins at its first object, not at its page.
    if (shown.visible.isEmpty() && inside.child(u"draw:page") == nullptr) {
        shown.visible = QRectF(QPointF(), replacementSize(m_document, frame));
    }
    shown.scale = scaleOf(shown.visible.size(), placementOf(frame).size);
    shown.margins = textMargins(styles, shown.visible) * shown.scale;
    return shown;
}

std::unique_ptr<Node> Unpacker::textBoxFor(const Node& frame, const QMarginsF& margins)
{
    auto shown = frame.clone();
    shown->children.clear();
    StyleProperties style =
        m_document.table().resolved(u"graphic"_s, frame.attribute(u"draw:style-name"), false);
    style.graphic.insert(u"draw:stroke"_s, u"none"_s);
    style.graphic.insert(u"draw:fill"_s, u"none"_s);
    style.graphic.insert(u"fo:padding-left"_s, toInches(margins.left()));
    style.graphic.insert(u"fo:padding-top"_s, toInches(margins.top()));
    style.graphic.insert(u"fo:padding-right"_s, toInches(margins.right()));
    shown->setAttribute(u"draw:style-name"_s, m_document.styleFor(u"graphic"_s, style));
    shown->append(Node::element(u"draw:text-box"_s));
    return shown;
}

std::unique_ptr<Node> Unpacker::placed(const Node& frame, Node& inside, const Shown& shown)
{
    if (Node* const page = inside.child(u"draw:page")) {
        for (const auto& shape : page->children) {
            writeDrawingFormats(m_document, *shape);
        }
        return groupOf(m_document, *page, shown.visible, frame);
    }
    const Node* const chart = inside.child(u"chart:chart");
    if (chart != nullptr) {
        Node page;
        page.children = drawChart(m_document, *chart);
        if (!page.children.empty()) {
            return groupOf(
                m_document, page,
                {0.0, 0.0, pointsOf(*chart, u"svg:width"), pointsOf(*chart, u"svg:height")}, frame);
        }
    }
    if (inside.is(u"office:spreadsheet")) {
        Node page;
        page.children = sheetCells(m_document, inside);
        if (!page.children.empty()) {
            return groupOf(m_document, page, shown.visible, frame);
        }
    }
    auto text = textBoxFor(frame, shown.margins);
    Node& box = *text->firstElement();
    if (chart != nullptr) {
        takeChartText(*chart, box);
    } else if (inside.is(u"office:text")) {
        takeParagraphs(inside, box, 0);
    }
    return box.children.empty() ? nullptr : std::move(text);
}

int Unpacker::unpackIn(Node& parent)
{
    int count = 0;
    for (auto& child : parent.children) {
        if (child->is(u"draw:g") || child->is(u"draw:a")) {
            count += unpackIn(*child);
        } else if (child->is(u"draw:frame")) {
            if (auto shown = unpacked(*child)) {
                child = std::move(shown);
                ++count;
            }
        }
    }
    return count;
}

int unpackKind(Document& document, EmbeddedKind kind)
{
    Node* const page = document.page();
    return page != nullptr ? Unpacker(document, kind).unpackIn(*page) : 0;
}

} // namespace

int unpackDocuments(Document& document)
{
    return unpackKind(document, EmbeddedKind::Other);
}

int drawCharts(Document& document)
{
    return unpackKind(document, EmbeddedKind::Chart);
}

} // namespace repair
