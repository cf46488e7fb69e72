#include "repair/flow_step.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/page_area.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <QStringList>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Sections, lists, and objects within one another.
constexpr int MaximumDepth = 100;
// A page with more is broken: documents of other programs have no breaks.
constexpr qsizetype MaximumCharacters = 20'000;

bool isParagraph(const Node& node)
{
    return node.is(u"text:p") || node.is(u"text:h");
}

bool isShape(const Node& node)
{
    return node.name.startsWith("draw:"_L1) && !node.is(u"draw:a");
}

/// Lays out the blocks of the body, page by page.
class FlowWriter
{
public:
    FlowWriter(Document& document, const PageArea& area)
        : m_document(document)
        , m_area(area)
    {}

    void readBlocks(Node& parent, int depth);
    void endText();
    /// The objects of each page.
    [[nodiscard]] std::vector<Node::Children> take() { return std::move(m_pages); }

private:
    void readParagraph(std::unique_ptr<Node> paragraph);
    void readTable(Node& table);
    void takeShapes(Node& parent, int depth);
    void placeShape(std::unique_ptr<Node> shape);
    void breakPage();
    [[nodiscard]] bool startsPage(const Node& paragraph) const;
    [[nodiscard]] Node::Children& objects() { return m_pages.back(); }

    Document& m_document;
    const PageArea m_area;
    int m_row = 0;         // of the present page
    bool m_isEmpty = true; // the present page
    bool m_breaksAfter = false;
    qsizetype m_characters = 0; // of the present page
    Node::Children m_text;
    std::vector<Node::Children> m_pages{1};
};

void FlowWriter::breakPage()
{
    if (!m_isEmpty) {
        endText();
        m_pages.emplace_back();
        m_row = 0;
        m_isEmpty = true;
        m_characters = 0;
    }
}

bool FlowWriter::startsPage(const Node& paragraph) const
{
    const QString style = paragraph.attribute(u"text:style-name");
    const StyleProperties properties = m_document.table().resolved(u"paragraph"_s, style, false);
    return properties.paragraph.value(u"fo:break-before"_s) == "page"_L1;
}

void FlowWriter::readBlocks(Node& parent, int depth)
{
    for (auto& child : parent.children) {
        if (depth > MaximumDepth || child == nullptr || child->isText()) {
            continue;
        }
        if (isParagraph(*child)) {
            readParagraph(std::move(child));
        } else if (child->is(u"text:list") || child->is(u"text:numbered-paragraph")) {
            takeShapes(*child, 0);
            m_isEmpty = false;
            m_text.push_back(std::move(child));
        } else if (child->is(u"table:table")) {
            readTable(*child);
        } else if (child->is(u"text:soft-page-break")) {
            breakPage();
        } else if (isShape(*child)) {
            placeShape(std::move(child));
        } else if (child->name.startsWith("text:"_L1) && !child->is(u"text:tracked-changes") &&
                   !child->is(u"text:sequence-decls") && !child->name.endsWith("-source"_L1)) {
            readBlocks(*child, depth + 1);
        }
    }
}

void FlowWriter::readParagraph(std::unique_ptr<Node> paragraph)
{
    if (startsPage(*paragraph)) {
        breakPage();
    }
    m_isEmpty = false;
    takeShapes(*paragraph, 0);
    m_characters += paragraph->allText().size();
    m_text.push_back(std::move(paragraph));
    if (m_breaksAfter || m_characters > MaximumCharacters) {
        m_breaksAfter = false;
        breakPage();
    }
}

// Objects in a text are placed above it, so that they do not cover it.
void FlowWriter::takeShapes(Node& parent, int depth)
{
    for (auto& child : parent.children) {
        if (child->is(u"text:soft-page-break")) {
            m_breaksAfter = true;
        }
        if (isShape(*child)) {
            placeShape(std::move(child));
        } else if (depth < MaximumDepth && !child->is(u"text:note") &&
                   !child->is(u"office:annotation")) {
            takeShapes(*child, depth + 1);
        }
    }
    std::erase(parent.children, nullptr);
}

// Frames have neither pen nor fill by default, but borders and a background.
void writeFrameStyle(Document& document, Node& frame)
{
    StyleProperties style =
        document.table().resolved(u"graphic"_s, frame.attribute(u"draw:style-name"), false);
    Properties& graphic = style.graphic;
    const QString fill = graphic.value(u"draw:fill"_s);
    if (fill.isEmpty()) {
        const QString color = graphic.value(u"fo:background-color"_s);
        graphic.insert(u"draw:fill"_s, color.startsWith(u'#') ? u"solid"_s : u"none"_s);
        graphic.insert(u"draw:fill-color"_s, color);
    }
    addBorder(graphic, graphic);
    graphic.insert(u"fo:wrap-option"_s, u"wrap"_s);
    if (!graphic.contains(u"draw:stroke"_s)) {
        graphic.insert(u"draw:stroke"_s, u"none"_s);
    }
    for (const QString& side : {u"left"_s, u"right"_s, u"top"_s, u"bottom"_s}) {
        const QString name = u"fo:padding-"_s + side;
        if (!graphic.contains(u"fo:padding"_s) && !graphic.contains(name)) {
            graphic.insert(name, u"0in"_s);
        }
    }
    style.text.clear();
    style.paragraph.clear();
    frame.setAttribute(u"draw:style-name"_s, document.styleFor(u"graphic"_s, style));
}

void FlowWriter::placeShape(std::unique_ptr<Node> shape)
{
    m_isEmpty = false;
    if (shape->is(u"draw:frame")) {
        writeFrameStyle(m_document, *shape);
    }
    if (shape->attribute(u"text:anchor-type") == "page"_L1) {
        objects().push_back(std::move(shape));
        return;
    }
    endText();
    const Properties graphic = graphicOf(m_document, *shape);
    const QString position = graphic.value(u"style:horizontal-pos"_s);
    Placement placement = placementOf(*shape);
    double left = m_area.box.left() + pointsOf(*shape, u"svg:x");
    const double room = m_area.box.width() - placement.size.width();
    if (position == "center"_L1) {
        left = m_area.box.left() + room / 2.0;
    } else if (position == "right"_L1) {
        left = m_area.box.left() + room;
    }
    if (!shape->hasAttribute(u"draw:transform") && !shape->hasAttribute(u"svg:x1")) {
        shape->setAttribute(u"svg:x"_s, toInches(left));
        shape->setAttribute(u"svg:y"_s, u"0in"_s);
    }
    shape->setAttribute(RowAttribute, QString::number(++m_row));
    objects().push_back(std::move(shape));
}

void FlowWriter::readTable(Node& table)
{
    m_isEmpty = false;
    endText();
    Node::Children cells = tableCells(m_document, table, m_area.box, m_row);
    std::move(cells.begin(), cells.end(), std::back_inserter(objects()));
}

void FlowWriter::endText()
{
    Node::Children text = std::move(m_text);
    m_text.clear();
    if (text.empty()) {
        return;
    }
    auto frame = textFrame(m_document, {m_area.box.left(), 0.0, m_area.box.width(), 0.0}, {});
    frame->setAttribute(RowAttribute, QString::number(++m_row));
    frame->child(u"draw:text-box")->children = std::move(text);
    objects().push_back(std::move(frame));
}

// Header and footer: texts of the master page.
void addMargin(Document& document, const Node* margin, const PageArea& area, bool isHeader,
               Node::Children& objects)
{
    if (margin == nullptr || margin->allText().trimmed().isEmpty()) {
        return;
    }
    QRectF box = area.box;
    box.setTop(isHeader ? area.headerTop : area.footerTop);
    box.setHeight(linesHeight(document, *margin));
    auto frame = textFrame(document, box, {});
    for (const auto& child : margin->children) {
        if (isParagraph(*child) || child->is(u"text:list")) {
            frame->child(u"draw:text-box")->append(child->clone());
        }
    }
    objects.push_back(std::move(frame));
}

// Objects in their own order, then the text, which nothing may cover.
Node::Children textLast(Node::Children objects)
{
    std::stable_sort(objects.begin(), objects.end(), [](const auto& a, const auto& b) {
        return a->attribute(u"draw:z-index").toInt() < b->attribute(u"draw:z-index").toInt();
    });
    std::stable_partition(objects.begin(), objects.end(), [](const auto& object) {
        return object->child(u"draw:text-box") == nullptr;
    });
    for (const auto& object : objects) {
        object->removeAttribute(u"draw:z-index");
    }
    return objects;
}

std::unique_ptr<Node> pageOf(Document& document, const PageArea& area, Node::Children objects)
{
    auto page = Node::element(u"draw:page"_s);
    page->children = textLast(std::move(objects));
    page->setAttribute(TopAttribute, toInches(area.box.top()));
    if (const Node* const master = masterPage(document)) {
        addMargin(document, master->child(u"style:header"), area, true, page->children);
        addMargin(document, master->child(u"style:footer"), area, false, page->children);
        page->setAttribute(u"draw:master-page-name"_s, master->attribute(u"style:name"));
    }
    return page;
}

} // namespace

Node::Children layOutPages(Document& document)
{
    if (!document.isText()) {
        return {};
    }
    const PageArea area = pageArea(document);
    FlowWriter writer(document, area);
    writer.readBlocks(*document.body(), 0);
    writer.endText();
    Node::Children pages;
    for (Node::Children& objects : writer.take()) {
        pages.push_back(pageOf(document, area, std::move(objects)));
    }
    Node& body = *document.body();
    body.name = u"office:drawing"_s;
    body.children.clear();
    document.wasText = true;
    return pages;
}

} // namespace repair
