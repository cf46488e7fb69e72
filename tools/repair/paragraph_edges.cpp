#include "repair/paragraph_edges.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/page_area.h"
#include "repair/page_end.h"
#include "repair/shape_place.h"
#include "repair/table_rows.h"

#include "host/items/rich_text_item.h"
#include "workbench/items/canvas_item.h"

#include <QAbstractTextDocumentLayout>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Points: the border is made around a box of this size in the corner of the page.
constexpr double MadeSize = 100.0;
// "left right top bottom", in points.
const QString InsetsAttribute = u"labelport:insets"_s;

Properties styleOf(Document& document, const Node& paragraph)
{
    return document.table()
        .resolved(u"paragraph"_s, paragraph.attribute(u"text:style-name"), true)
        .paragraph;
}

bool areJoined(const Properties& first, const Properties& second)
{
    const Edges edges = edgesOf(first);
    return edges.isDrawn() && edges == edgesOf(second) &&
           first.value(u"style:join-border"_s) != "false"_L1 &&
           first.value(u"fo:margin-left"_s) == second.value(u"fo:margin-left"_s) &&
           first.value(u"fo:margin-right"_s) == second.value(u"fo:margin-right"_s);
}

// Edges between joined paragraphs are not drawn.
Edges ownEdges(const Properties& style, const Node& paragraph)
{
    Edges edges = edgesOf(style);
    if (paragraph.hasAttribute(JoinsBeforeAttribute)) {
        edges.top = {};
    }
    if (paragraph.hasAttribute(JoinsAfterAttribute)) {
        edges.bottom = {};
    }
    return edges;
}

double lengthOf(const Properties& style, const QString& name)
{
    return toPoints(style.value(name)).value_or(0.0);
}

std::unique_ptr<Node> groundBox(Document& document, const QString& color)
{
    auto ground = textFrame(document, {0.0, 0.0, MadeSize, MadeSize},
                            {{u"draw:fill"_s, u"solid"_s}, {u"draw:fill-color"_s, color}});
    ground->setAttribute(EdgeAttribute, GroundEdge);
    return ground;
}

// Where the lines of a paragraph are, on the page.
QRectF linesOf(const ObjectItems& host, const ParagraphEdge& edge)
{
    const auto* const text = dynamic_cast<const ::RichTextItem*>(host.text->contractItem());
    const QPointF corner = host.text->graphicsItem()->pos();
    if (text == nullptr) {
        return {};
    }
    const QTextDocument& document = *text->document();
    const auto lineTop = [&](const QTextBlock& block, const QTextLine& line) {
        return corner.y() + document.documentLayout()->blockBoundingRect(block).top() + line.y();
    };
    const QTextBlock block = document.findBlockByNumber(edge.paragraph);
    if (!block.isValid() || block.layout()->lineCount() == 0) {
        return {};
    }
    const QTextLine last = block.layout()->lineAt(block.layout()->lineCount() - 1);
    double bottom = lineTop(block, last) + last.height();
    const QTextBlock next = block.next();
    if (edge.joinsAfter && next.isValid() && next.layout()->lineCount() > 0) {
        bottom = lineTop(next, next.layout()->lineAt(0));
    }
    const double top = lineTop(block, block.layout()->lineAt(0));
    const double width = host.text->contractItem()->getItemWidth();
    return {QPointF(corner.x() + edge.margins.left(), top),
            QPointF(corner.x() + width - edge.margins.right(), bottom)};
}

void placeEdge(const ObjectItems& items, const QRectF& box)
{
    const QPointF made = items.shape->graphicsItem()->pos();
    Item* const item = items.shape->contractItem();
    QRectF placed = box;
    if (const QString& side = items.plan->edge->side; side != GroundEdge) {
        const bool isUpright = side == "left"_L1 || side == "right"_L1;
        const bool isFar = side == "right"_L1 || side == "bottom"_L1;
        if (isUpright) {
            const double from = isFar ? box.right() - MadeSize : box.left();
            placed = {from + made.x(), box.top(), item->getItemWidth(), box.height()};
        } else {
            const double from = isFar ? box.bottom() - MadeSize : box.top();
            placed = {box.left(), from + made.y(), box.width(), item->getItemHeight()};
        }
    }
    items.shape->graphicsItem()->setPos(placed.topLeft());
    item->setItemSize(placed.size());
}

} // namespace

void joinEdges(Document& document, const Node& parent)
{
    Node* before = nullptr;
    for (const auto& child : parent.children) {
        if (child == nullptr || child->isText()) {
            continue;
        }
        if (before != nullptr && isParagraph(*child) &&
            areJoined(styleOf(document, *before), styleOf(document, *child))) {
            before->setAttribute(JoinsAfterAttribute, u"true"_s);
            child->setAttribute(JoinsBeforeAttribute, u"true"_s);
        }
        before = isParagraph(*child) ? child.get() : nullptr;
    }
}

QMarginsF edgeInsets(const Properties& style, const Node& paragraph)
{
    const Edges edges = ownEdges(style, paragraph);
    const auto inset = [&style](const Edge& edge, const QString& name) {
        const double padding =
            toPoints(style.value(name, style.value(u"fo:padding"_s))).value_or(0.0);
        return edge.isDrawn() ? padding + edge.width : 0.0;
    };
    return {inset(edges.left, u"fo:padding-left"_s), inset(edges.top, u"fo:padding-top"_s),
            inset(edges.right, u"fo:padding-right"_s), inset(edges.bottom, u"fo:padding-bottom"_s)};
}

Node::Children paragraphEdges(Document& document, const Node& paragraph, const QString& key)
{
    const Properties style = styleOf(document, paragraph);
    if (!edgesOf(style).isDrawn()) {
        return {};
    }
    const Edges edges = ownEdges(style, paragraph);
    // Lines are within the border's own room.
    const QRectF box(QPointF(edges.left.width, edges.top.width) / 2.0,
                     QPointF(MadeSize, MadeSize) -
                         QPointF(edges.right.width, edges.bottom.width) / 2.0);
    Node::Children made = edgeBoxes(document, box, edges);
    const QString color = style.value(u"fo:background-color"_s);
    if (color.startsWith(u'#')) {
        made.insert(made.begin(), groundBox(document, color));
    }
    const QMarginsF insets = edgeInsets(style, paragraph);
    for (const auto& edge : made) {
        edge->setAttribute(FromTextAttribute, key);
        edge->setAttribute(InsetsAttribute, u"%1 %2 %3 %4"_s.arg(insets.left())
                                                .arg(insets.right())
                                                .arg(insets.top())
                                                .arg(insets.bottom()));
        if (paragraph.hasAttribute(JoinsAfterAttribute)) {
            edge->setAttribute(JoinsAfterAttribute, u"true"_s);
        }
    }
    return made;
}

MarkedParagraphs::MarkedParagraphs(Document& document, const Node& page)
{
    const bool hasEdges =
        std::any_of(page.children.begin(), page.children.end(),
                    [](const auto& object) { return object->hasAttribute(InsetsAttribute); });
    for (const auto& object : page.children) {
        const Node* const text = object->child(u"draw:text-box");
        if (!hasEdges || text == nullptr) {
            continue;
        }
        ParagraphEdge place{.text = object->attribute(u"draw:z-index").toInt()};
        const QPointF corner = boundsOf(*object).topLeft();
        double y = corner.y();
        for (const auto& paragraph : text->children) {
            const Properties style = styleOf(document, *paragraph);
            place.margins = {lengthOf(style, u"fo:margin-left"_s), 0.0,
                             lengthOf(style, u"fo:margin-right"_s), 0.0};
            Node alone;
            alone.append(paragraph->clone());
            y += lengthOf(style, u"fo:margin-top"_s);
            const double height = linesHeight(document, alone);
            place.estimate = QRectF(corner.x(), y, boundsOf(*object).width(), height)
                                 .marginsRemoved(place.margins);
            y += height + lengthOf(style, u"fo:margin-bottom"_s);
            const auto collect = [&](const Node& node) {
                for (const QString& mark :
                     node.attribute(MarksAttribute).split(u';', Qt::SkipEmptyParts)) {
                    m_places.insert(mark.section(u' ', 0, 0), place);
                }
            };
            collect(*paragraph);
            std::for_each(paragraph->children.begin(), paragraph->children.end(),
                          [&collect](const auto& span) { collect(*span); });
            ++place.paragraph;
        }
    }
}

std::optional<ParagraphEdge> MarkedParagraphs::edgeOf(const Node& object) const
{
    const QStringList insets = object.attribute(InsetsAttribute).split(u' ');
    if (insets.size() != 4) {
        return std::nullopt;
    }
    ParagraphEdge edge = m_places.value(object.attribute(FromTextAttribute));
    edge.side = object.attribute(EdgeAttribute);
    edge.insets = {insets[0].toDouble(), insets[2].toDouble(), insets[1].toDouble(),
                   insets[3].toDouble()};
    edge.joinsAfter = object.hasAttribute(JoinsAfterAttribute);
    return edge;
}

void placeParagraphEdges(const QMap<int, ObjectItems>& objects, const QMap<int, double>& rowTops)
{
    for (const ObjectItems& items : objects) {
        if (!items.plan->edge || items.shape == nullptr) {
            continue;
        }
        const ParagraphEdge& edge = *items.plan->edge;
        const ObjectItems host = objects.value(edge.text);
        QRectF lines; // empty if the paragraph is not on the page
        if (host.plan != nullptr && host.text != nullptr) {
            lines = linesOf(host, edge);
        } else if (host.plan != nullptr) {
            lines = edge.estimate.translated(0.0, rowTops.value(host.plan->row));
        }
        placeEdge(items, lines.isNull() ? lines : lines.marginsAdded(edge.insets));
    }
}

} // namespace repair
