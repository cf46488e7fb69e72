#include "repair/flow_step.h"

#include "repair/document.h"
#include "repair/flow_page.h"
#include "repair/flow_rows.h"
#include "repair/page_area.h"
#include "repair/paragraph_edges.h"
#include "repair/table_rows.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Sections, lists, and objects within one another.
constexpr int MaximumSectionDepth = 100;

/// Reads the blocks of the body.
class FlowReader
{
public:
    explicit FlowReader(Document& document)
        : m_document(document)
        , m_rows(document)
    {}

    void readBlocks(Node& parent, int depth);
    [[nodiscard]] std::vector<FlowPage> take();
    [[nodiscard]] bool hasEditorBreaks() const { return m_rows.hasEditorBreaks(); }

private:
    void readText(std::unique_ptr<Node> block);
    void readTable(Node& table);
    void placeShape(std::unique_ptr<Node> shape);
    void beginBlock(const StyleProperties& properties, const QString& breakBefore);

    Document& m_document;
    FlowRows m_rows;
    Node::Children m_onPages; // objects with a page of their own, wherever the text begins
};

bool isTextBlock(const Node& node)
{
    return isParagraph(node) || node.is(u"text:list") || node.is(u"text:numbered-paragraph");
}

// A block that states a master page begins a page with it.
void FlowReader::beginBlock(const StyleProperties& properties, const QString& breakBefore)
{
    const Node* const master = masterPage(m_document, properties.masterPage.value_or(QString()));
    if (master != nullptr || breakBefore == "page"_L1) {
        m_rows.breakPage();
    }
    if (master != nullptr) {
        m_rows.useMaster(master);
    }
}

void FlowReader::readBlocks(Node& parent, int depth)
{
    joinEdges(m_document, parent);
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
            m_rows.continueOnNextPage();
        } else if (isShape(*child)) {
            placeShape(std::move(child));
        } else if (child->is(u"draw:a") ||
                   (child->name.startsWith("text:"_L1) && !child->is(u"text:tracked-changes") &&
                    !child->is(u"text:sequence-decls") && !child->name.endsWith("-source"_L1))) {
            readBlocks(*child, depth + 1);
        }
    }
}

void FlowReader::readText(std::unique_ptr<Node> block)
{
    const StyleProperties properties = m_document.table().resolved(
        u"paragraph"_s, firstParagraph(*block).attribute(u"text:style-name"), false);
    beginBlock(properties, properties.paragraph.value(u"fo:break-before"_s));
    const bool endsPage = properties.paragraph.value(u"fo:break-after"_s) == "page"_L1;
    m_rows.use();
    const PageArea& area = m_rows.area();
    m_rows.passLowered(textHeight(m_document, *block, area.box.width()));
    TakenShapes taken = takeShapes(m_document, *block, {area, area.box}, true);
    m_rows.placeRows(std::move(taken.above));
    m_rows.keepObjects(std::move(taken.anchored));
    m_rows.addText(std::move(block));
    m_rows.lower(std::move(taken.below));
    if (taken.hasPageBreak) {
        m_rows.continueOnNextPage();
    } else if (endsPage) {
        m_rows.breakPage();
    }
}

// An object between paragraphs.
void FlowReader::placeShape(std::unique_ptr<Node> shape)
{
    if (shape->attribute(u"text:anchor-type") == "page"_L1) {
        if (shape->attribute(AnchorPageAttribute).toInt() < 1) {
            shape->setAttribute(AnchorPageAttribute, QString::number(m_rows.pageCount()));
        }
        m_onPages.push_back(std::move(shape));
        return;
    }
    auto paragraph = Node::element(u"text:p"_s);
    paragraph->append(std::move(shape));
    m_rows.use();
    const PageArea& area = m_rows.area();
    TakenShapes taken = takeShapes(m_document, *paragraph, {area, area.box}, true);
    m_rows.placeRows(std::move(taken.above));
    m_rows.lower(std::move(taken.below));
    const bool isInText =
        std::any_of(paragraph->children.begin(), paragraph->children.end(),
                    [](const auto& mark) { return mark->attribute(u"side") != "page"_L1; });
    m_rows.keepObjects(std::move(taken.anchored));
    if (isInText) {
        m_rows.addText(std::move(paragraph));
    }
}

void FlowReader::readTable(Node& table)
{
    const QString style = table.attribute(u"table:style-name");
    beginBlock(
        m_document.table().resolved(u"table"_s, style, false),
        statedBy(m_document, table, u"style:table-properties"_s).value(u"fo:break-before"_s));
    m_rows.use();
    m_rows.addTable(table);
}

std::vector<FlowPage> FlowReader::take()
{
    m_rows.endRows();
    std::vector<FlowPage> pages = m_rows.take();
    placeOnPages(m_document, pages, std::move(m_onPages));
    return pages;
}

} // namespace

Node::Children layOutPages(Document& document)
{
    if (!document.isText()) {
        return {};
    }
    FlowReader reader(document);
    reader.readBlocks(*document.body(), 0);
    Node::Children pages;
    for (FlowPage& flow : reader.take()) {
        pages.push_back(pageOf(document, std::move(flow), reader.hasEditorBreaks()));
    }
    Node& body = *document.body();
    body.name = u"office:drawing"_s;
    body.children.clear();
    document.wasText = true;
    return pages;
}

} // namespace repair
