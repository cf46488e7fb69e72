#include "repair/anchored_shapes.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/object_style.h"
#include "repair/page_end.h"
#include "repair/page_notes.h"
#include "repair/paragraph_edges.h"
#include "repair/shape_place.h"
#include "repair/table_rows.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Sections, lists, and objects within one another.
constexpr int MaximumAnchorDepth = 100;
// Points below its paragraph's top from where an object is placed below it.
constexpr double BelowParagraph = 8.0;

QString sideOf(Flow flow)
{
    if (flow == Flow::BesideLeft || flow == Flow::BesideRight) {
        return flow == Flow::BesideLeft ? u"left"_s : u"right"_s;
    }
    return u"none"_s;
}

// The object is on the page of its paragraph.
std::unique_ptr<Node> pageMark(const QString& key)
{
    auto node = Node::element(MarkElement);
    node->attributes = {
        {u"key"_s, key}, {u"width"_s, u"0"_s}, {u"height"_s, u"0"_s}, {u"side"_s, u"page"_s}};
    return node;
}

/// Takes the objects out of paragraphs.
class ShapeTaker
{
public:
    ShapeTaker(Document& document, const TextPlace& place, bool inRows, TakenShapes& taken)
        : m_document(document)
        , m_place(place)
        , m_inRows(inRows)
        , m_taken(taken)
    {}

    void takeFrom(Node& paragraph);

private:
    void takeInside(Node& parent, int depth);
    void takeEdges(const Node& paragraph);
    [[nodiscard]] std::unique_ptr<Node> place(std::unique_ptr<Node> shape);
    void placeInRow(std::unique_ptr<Node> shape, const QRectF& box);
    void takeNested(Node& box, const QRectF& column);
    [[nodiscard]] std::unique_ptr<Node> mark(Node& shape, const Anchor& anchor);

    Document& m_document;
    const TextPlace& m_place;
    const bool m_inRows;
    TakenShapes& m_taken;
    Node::Children m_marks;     // at the start of the paragraph
    double m_textHeight = 0.0;  // points, of the paragraph
    double m_aboveHeight = 0.0; // of the objects above its text
};

void ShapeTaker::takeFrom(Node& paragraph)
{
    m_textHeight = textHeight(m_document, paragraph, m_place.column.width());
    m_aboveHeight = 0.0;
    takeInside(paragraph, 0);
    takeEdges(paragraph);
    paragraph.children.insert(paragraph.children.begin(), std::make_move_iterator(m_marks.begin()),
                              std::make_move_iterator(m_marks.end()));
    m_marks.clear();
}

void ShapeTaker::takeInside(Node& parent, int depth)
{
    for (auto& child : parent.children) {
        if (child->is(u"text:soft-page-break")) {
            m_taken.hasPageBreak = true;
        } else if (isShape(*child)) {
            child = place(std::move(child));
        } else if (m_inRows && child->is(u"text:note")) {
            takeNote(m_document, child, m_place, m_taken.anchored);
        } else if (depth < MaximumAnchorDepth && !child->is(u"text:note") &&
                   !child->is(u"office:annotation")) {
            takeInside(*child, depth + 1);
        }
    }
    std::erase(parent.children, nullptr);
}

void ShapeTaker::takeEdges(const Node& paragraph)
{
    const QString key = QString::number(m_document.newMark());
    Node::Children edges = paragraphEdges(m_document, paragraph, key);
    if (!edges.empty()) {
        m_marks.push_back(pageMark(key));
        std::move(edges.begin(), edges.end(), std::back_inserter(m_taken.anchored));
    }
}

// The mark that the object leaves in its place; null if it leaves none.
std::unique_ptr<Node> ShapeTaker::place(std::unique_ptr<Node> shape)
{
    writeObjectStyle(m_document, *shape);
    Anchor anchor = anchorOf(m_document, *shape, m_place);
    if (Node* const box = shape->child(u"draw:text-box")) {
        takeNested(*box, anchor.box);
    }
    if (anchor.flow == Flow::Page) {
        moveShape(*shape, anchor.box.topLeft() - boundsOf(*shape).topLeft());
        if (m_inRows && shape->attribute(u"text:anchor-type") != "page"_L1) {
            const QString key = QString::number(m_document.newMark());
            shape->setAttribute(FromTextAttribute, key);
            m_marks.push_back(pageMark(key));
        }
        m_taken.anchored.push_back(std::move(shape));
        return nullptr;
    }
    if (anchor.flow == Flow::Rows) {
        if (m_inRows) {
            placeInRow(std::move(shape), anchor.box);
            return nullptr;
        }
        anchor.flow = Flow::InLine;
        anchor.room = anchor.box.size();
    }
    auto left = mark(*shape, anchor);
    m_taken.anchored.push_back(std::move(shape));
    if (anchor.flow == Flow::InLine) {
        return left;
    }
    m_marks.push_back(std::move(left));
    return nullptr;
}

void ShapeTaker::takeNested(Node& box, const QRectF& column)
{
    if (m_place.depth < MaximumAnchorDepth) {
        Node::Children nested =
            takeAllShapes(m_document, box, {m_place.page, column, m_place.depth + 1});
        std::move(nested.begin(), nested.end(), std::back_inserter(m_taken.anchored));
    }
}

std::unique_ptr<Node> ShapeTaker::mark(Node& shape, const Anchor& anchor)
{
    const QString key = QString::number(m_document.newMark());
    shape.setAttribute(AnchorAttribute, key);
    const QRectF own = boundsOf(shape);
    if (anchor.flow == Flow::InLine) {
        shape.setAttribute(InLineAttribute, u"true"_s);
        moveShape(shape, -own.topLeft());
    } else {
        moveShape(shape, anchor.box.topLeft() - own.topLeft());
    }
    auto node = Node::element(MarkElement);
    node->attributes = {{u"key"_s, key},
                        {u"width"_s, QString::number(anchor.room.width(), 'f', 2)},
                        {u"height"_s, QString::number(anchor.room.height(), 'f', 2)},
                        {u"side"_s, sideOf(anchor.flow)}};
    return node;
}

// Objects keep their distance from the one above, or from the text.
void ShapeTaker::placeInRow(std::unique_ptr<Node> shape, const QRectF& box)
{
    const QRectF own = boundsOf(*shape);
    const bool isBelow = box.top() > BelowParagraph;
    const double most = std::max(0.0, m_place.page.box.height() - own.height());
    const double top = std::clamp(box.top(), 0.0, most);
    const double gap = isBelow ? 0.0 : std::max(0.0, top - m_aboveHeight);
    moveShape(*shape, {box.left() - own.left(), gap - own.top()});
    if (isBelow) {
        const double distance = std::max(0.0, top - m_textHeight - m_aboveHeight);
        m_taken.below.push_back({std::move(shape), distance});
    } else {
        m_aboveHeight = std::max(m_aboveHeight, top) + own.height();
        m_taken.above.push_back(std::move(shape));
    }
}

void takeFromBlock(ShapeTaker& taker, Node& block, int depth)
{
    if (isParagraph(block)) {
        taker.takeFrom(block);
        return;
    }
    for (const auto& child : block.children) {
        const bool isText =
            child->name.startsWith("text:"_L1) || child->name.startsWith("table:"_L1);
        if (depth < MaximumAnchorDepth && isText) {
            takeFromBlock(taker, *child, depth + 1);
        }
    }
}

} // namespace

bool takesRoom(const QString& mark)
{
    return !mark.endsWith(" page"_L1);
}

bool isParagraph(const Node& node)
{
    return node.is(u"text:p") || node.is(u"text:h");
}

const Node& firstParagraph(const Node& block)
{
    const Node* node = &block;
    while (!isParagraph(*node) && !node->children.empty() && node->children.front() != nullptr) {
        node = node->children.front().get();
    }
    return *node;
}

const Node& lastParagraph(const Node& block)
{
    const Node* node = &block;
    while (!isParagraph(*node) && !node->children.empty() && node->children.back() != nullptr) {
        node = node->children.back().get();
    }
    return *node;
}

bool isShape(const Node& node)
{
    return node.name.startsWith("draw:"_L1) && !node.is(u"draw:a");
}

TakenShapes takeShapes(Document& document, Node& block, const TextPlace& place, bool inRows)
{
    TakenShapes taken;
    ShapeTaker taker(document, place, inRows, taken);
    takeFromBlock(taker, block, 0);
    return taken;
}

Node::Children takeAllShapes(Document& document, Node& container, const TextPlace& place)
{
    TakenShapes taken;
    joinEdges(document, container);
    ShapeTaker taker(document, place, false, taken);
    for (const auto& child : container.children) {
        takeFromBlock(taker, *child, 0);
    }
    return std::move(taken.anchored);
}

} // namespace repair
