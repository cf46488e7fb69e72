#include "repair/flow_step.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/page_area.h"
#include "repair/page_end.h"
#include "repair/page_steps.h"
#include "repair/shape_place.h"
#include "repair/table_rows.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Sections, lists, and objects within one another.
constexpr int MaximumSectionDepth = 100;
constexpr double LineRoom = 20.0; // points

/// Lays out the blocks of the body, page by page.
class FlowWriter
{
public:
    explicit FlowWriter(Document& document)
        : m_document(document)
    {
        addPage(masterPage(document));
    }

    void readBlocks(Node& parent, int depth);
    void endRows();
    [[nodiscard]] std::vector<FlowPage> take();
    /// Whether the last editor left breaks between pages.
    [[nodiscard]] bool hasEditorBreaks() const { return m_hasEditorBreaks; }

private:
    void readText(std::unique_ptr<Node> block);
    void readTable(Node& table);
    void placeShape(std::unique_ptr<Node> shape);
    void endText();
    void placeRow(std::unique_ptr<Node> shape);
    void placeRows(Node::Children shapes);
    void lower(std::vector<LoweredShape> shapes);
    void passLowered(double height);
    void placeFirstLowered();
    void addPage(const Node* master);
    void beginBlock(const StyleProperties& properties, const QString& breakBefore);
    void breakPage();
    void continueOnNextPage();
    void keepObjects(Node::Children anchored);
    [[nodiscard]] Node::Children& objects() { return m_pages.back().objects; }
    [[nodiscard]] const PageArea& area() const { return m_pages.back().area; }

    Document& m_document;
    int m_row = 0;         // of the present page
    bool m_isEmpty = true; // the present page
    bool m_hasEditorBreaks = false;
    Node::Children m_text;
    std::vector<LoweredShape> m_lowered; // that text may still be above
    std::vector<FlowPage> m_pages;
    Node::Children m_onPages; // objects with a page of their own, wherever the text begins
};

bool isTextBlock(const Node& node)
{
    return isParagraph(node) || node.is(u"text:list") || node.is(u"text:numbered-paragraph");
}

void FlowWriter::addPage(const Node* master)
{
    m_pages.push_back({master, pageArea(m_document, master), {}});
    m_row = 0;
    m_isEmpty = true;
}

void FlowWriter::breakPage()
{
    if (!m_isEmpty) {
        endRows();
        addPage(nextMaster(m_document, m_pages.back().master));
    }
}

// A block that states a master page begins a page with it.
void FlowWriter::beginBlock(const StyleProperties& properties, const QString& breakBefore)
{
    const Node* const master = masterPage(m_document, properties.masterPage.value_or(QString()));
    if (master != nullptr || breakBefore == "page"_L1) {
        breakPage();
    }
    if (master != nullptr) {
        m_pages.pop_back();
        addPage(master);
    }
}

// Where the last editor had a break, because the page was full.
void FlowWriter::continueOnNextPage()
{
    m_hasEditorBreaks = true;
    if (!m_isEmpty) {
        breakPage();
        m_pages.back().isContinued = true;
    }
}

void FlowWriter::readBlocks(Node& parent, int depth)
{
    for (auto& child : parent.children) {
        if (depth > MaximumSectionDepth || child == nullptr || child->isText() ||
            isHidden(*child)) {
            continue;
        }
        if (isTextBlock(*child)) {
            readText(std::move(child));
        } else if (child->is(u"table:table")) {
            readTable(*child);
        } else if (child->is(u"text:soft-page-break")) {
            continueOnNextPage();
        } else if (isShape(*child)) {
            placeShape(std::move(child));
        } else if (child->is(u"draw:a") ||
                   (child->name.startsWith("text:"_L1) && !child->is(u"text:tracked-changes") &&
                    !child->is(u"text:sequence-decls") && !child->name.endsWith("-source"_L1))) {
            readBlocks(*child, depth + 1);
        }
    }
}

void FlowWriter::readText(std::unique_ptr<Node> block)
{
    const StyleProperties properties = m_document.table().resolved(
        u"paragraph"_s, firstParagraph(*block).attribute(u"text:style-name"), false);
    beginBlock(properties, properties.paragraph.value(u"fo:break-before"_s));
    const bool endsPage = properties.paragraph.value(u"fo:break-after"_s) == "page"_L1;
    m_isEmpty = false;
    passLowered(textHeight(m_document, *block, area().box.width()));
    TakenShapes taken = takeShapes(m_document, *block, {area(), area().box}, true);
    placeRows(std::move(taken.above));
    keepObjects(std::move(taken.anchored));
    m_text.push_back(std::move(block));
    lower(std::move(taken.below));
    if (taken.hasPageBreak) {
        continueOnNextPage();
    } else if (endsPage) {
        breakPage();
    }
}

// Objects in the text, which will be the next row.
void FlowWriter::keepObjects(Node::Children anchored)
{
    for (auto& object : anchored) {
        if (!object->hasAttribute(AnchorAttribute) && !object->hasAttribute(FromTextAttribute)) {
            object->setAttribute(FromRowAttribute, QString::number(m_row + 1));
        }
        objects().push_back(std::move(object));
    }
}

void FlowWriter::placeRow(std::unique_ptr<Node> shape)
{
    objects().push_back(std::move(shape));
    objects().back()->setAttribute(RowAttribute, QString::number(++m_row));
}

// Objects beside which no lines run.
void FlowWriter::placeRows(Node::Children shapes)
{
    if (!shapes.empty()) {
        endText();
    }
    for (auto& shape : shapes) {
        placeRow(std::move(shape));
    }
}

// Text fills the distance between a paragraph and an object below it.
void FlowWriter::lower(std::vector<LoweredShape> shapes)
{
    std::move(shapes.begin(), shapes.end(), std::back_inserter(m_lowered));
    std::stable_sort(m_lowered.begin(), m_lowered.end(),
                     [](const auto& a, const auto& b) { return a.distance < b.distance; });
}

// A paragraph of this height comes: it is above the objects if a line, and half of it, fit there.
void FlowWriter::passLowered(double height)
{
    const double least = std::max(height / 2.0, std::min(height, LineRoom));
    while (!m_lowered.empty() && m_lowered.front().distance < least) {
        placeFirstLowered();
    }
    for (LoweredShape& lowered : m_lowered) {
        lowered.distance -= height;
    }
}

void FlowWriter::placeFirstLowered()
{
    LoweredShape first = std::move(m_lowered.front());
    m_lowered.erase(m_lowered.begin());
    endText();
    const double gap = std::max(0.0, first.distance);
    moveShape(*first.shape, {0.0, gap - boundsOf(*first.shape).top()});
    for (LoweredShape& lowered : m_lowered) {
        lowered.distance -= boundsOf(*first.shape).bottom();
    }
    placeRow(std::move(first.shape));
}

void FlowWriter::endRows()
{
    while (!m_lowered.empty()) {
        placeFirstLowered();
    }
    endText();
}

// An object between paragraphs.
void FlowWriter::placeShape(std::unique_ptr<Node> shape)
{
    if (shape->attribute(u"text:anchor-type") == "page"_L1) {
        if (shape->attribute(AnchorPageAttribute).toInt() < 1) {
            shape->setAttribute(AnchorPageAttribute, QString::number(m_pages.size()));
        }
        m_onPages.push_back(std::move(shape));
        return;
    }
    auto paragraph = Node::element(u"text:p"_s);
    paragraph->append(std::move(shape));
    m_isEmpty = false;
    TakenShapes taken = takeShapes(m_document, *paragraph, {area(), area().box}, true);
    placeRows(std::move(taken.above));
    lower(std::move(taken.below));
    const bool isInText =
        std::any_of(paragraph->children.begin(), paragraph->children.end(),
                    [](const auto& mark) { return mark->attribute(u"side") != "page"_L1; });
    keepObjects(std::move(taken.anchored));
    if (isInText) {
        m_text.push_back(std::move(paragraph));
    }
}

void FlowWriter::readTable(Node& table)
{
    const QString style = table.attribute(u"table:style-name");
    beginBlock(
        m_document.table().resolved(u"table"_s, style, false),
        statedBy(m_document, table, u"style:table-properties"_s).value(u"fo:break-before"_s));
    m_isEmpty = false;
    endRows();
    Node::Children cells = tableCells(m_document, table, {area(), area().box}, m_row);
    std::move(cells.begin(), cells.end(), std::back_inserter(objects()));
}

void FlowWriter::endText()
{
    Node::Children text = std::move(m_text);
    m_text.clear();
    if (text.empty()) {
        return;
    }
    auto frame = textFrame(m_document, {area().box.left(), 0.0, area().box.width(), 0.0}, {});
    frame->setAttribute(FlowsAttribute, u"true"_s);
    frame->child(u"draw:text-box")->children = std::move(text);
    placeRow(std::move(frame));
}

std::vector<FlowPage> FlowWriter::take()
{
    placeOnPages(m_document, m_pages, std::move(m_onPages));
    return std::move(m_pages);
}

} // namespace

Node::Children layOutPages(Document& document)
{
    if (!document.isText()) {
        return {};
    }
    FlowWriter writer(document);
    writer.readBlocks(*document.body(), 0);
    writer.endRows();
    Node::Children pages;
    for (FlowPage& flow : writer.take()) {
        pages.push_back(pageOf(document, std::move(flow), writer.hasEditorBreaks()));
    }
    Node& body = *document.body();
    body.name = u"office:drawing"_s;
    body.children.clear();
    document.wasText = true;
    return pages;
}

} // namespace repair
