#include "repair/flow_step.h"

#include "repair/anchored_shapes.h"
#include "repair/document.h"
#include "repair/lengths.h"
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
// Of the bottom margin: the last editor had room for the lines in it.
constexpr double EditorsMarginShare = 0.75;

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
    void endText();
    [[nodiscard]] std::vector<FlowPage> take() { return std::move(m_pages); }
    /// Whether the last editor left breaks between pages.
    [[nodiscard]] bool hasEditorBreaks() const { return m_hasEditorBreaks; }

private:
    void readText(std::unique_ptr<Node> block);
    void readTable(Node& table);
    void placeShape(std::unique_ptr<Node> shape);
    void placeRow(std::unique_ptr<Node> shape);
    void placeRows(Node::Children shapes);
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
    std::vector<FlowPage> m_pages;
};

// The paragraph that gives a block its breaks: the first one of a list.
const Node& firstParagraph(const Node& block)
{
    const Node* node = &block;
    while (!isParagraph(*node) && !node->children.empty() && node->children.front() != nullptr) {
        node = node->children.front().get();
    }
    return *node;
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
        endText();
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
        if (isParagraph(*child) || child->is(u"text:list") ||
            child->is(u"text:numbered-paragraph")) {
            readText(std::move(child));
        } else if (child->is(u"table:table")) {
            readTable(*child);
        } else if (child->is(u"text:soft-page-break")) {
            continueOnNextPage();
        } else if (isShape(*child)) {
            placeShape(std::move(child));
        } else if (child->name.startsWith("text:"_L1) && !child->is(u"text:tracked-changes") &&
                   !child->is(u"text:sequence-decls") && !child->name.endsWith("-source"_L1)) {
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
    TakenShapes taken = takeShapes(m_document, *block, {area(), area().box}, true);
    placeRows(std::move(taken.above));
    keepObjects(std::move(taken.anchored));
    m_text.push_back(std::move(block));
    placeRows(std::move(taken.below));
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
    shape->setAttribute(RowAttribute, QString::number(++m_row));
    objects().push_back(std::move(shape));
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

// An object between paragraphs: it belongs to the page, or has none beside it.
void FlowWriter::placeShape(std::unique_ptr<Node> shape)
{
    auto paragraph = Node::element(u"text:p"_s);
    paragraph->append(std::move(shape));
    m_isEmpty = false;
    TakenShapes taken = takeShapes(m_document, *paragraph, {area(), area().box}, true);
    placeRows(std::move(taken.above));
    placeRows(std::move(taken.below));
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
    endText();
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
    frame->setAttribute(RowAttribute, QString::number(++m_row));
    frame->setAttribute(FlowsAttribute, u"true"_s);
    frame->child(u"draw:text-box")->children = std::move(text);
    objects().push_back(std::move(frame));
}

} // namespace

Node::Children layOutPages(Document& document)
{
    if (!document.isText()) {
        return {};
    }
    FlowWriter writer(document);
    writer.readBlocks(*document.body(), 0);
    writer.endText();
    Node::Children pages;
    for (FlowPage& flow : writer.take()) {
        const PageArea area = flow.area;
        Node& page = *pages.emplace_back(pageOf(document, std::move(flow)));
        // The editor had room for the lines of each page.
        if (writer.hasEditorBreaks() && page.hasAttribute(LowestAttribute)) {
            const QString lowest = toInches(lowestLine(area, EditorsMarginShare));
            page.setAttribute(BottomAttribute, lowest);
            page.setAttribute(LowestAttribute, lowest);
        }
    }
    Node& body = *document.body();
    body.name = u"office:drawing"_s;
    body.children.clear();
    document.wasText = true;
    return pages;
}

} // namespace repair
