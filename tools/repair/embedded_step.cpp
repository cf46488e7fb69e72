#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/shape_place.h"
#include "repair/shape_steps.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// Embedded documents of one page, and the memory of one's trees.
constexpr int MaximumEmbedded = 50;
constexpr qint64 EmbeddedTreeBytes = 32LL << 20;
// Tables within groups of rows.
constexpr int MaximumRowGroupDepth = 20;
constexpr double PointsPerHundredth = 72.0 / 2540.0; // of a millimeter
const QString AutomaticStylesTag = u"office:automatic-styles"_s;

/// A document inside the document.
struct Embedded
{
    std::unique_ptr<Node> styles;
    std::unique_ptr<Node> content;
    /// What its frame shows, in points; empty if it does not state it.
    QRectF visible;
};

std::unique_ptr<Node> readTree(const Document& document, const QString& name)
{
    auto tree = parseTree(document.readMember(name), EmbeddedTreeBytes);
    if (tree) {
        convertLengths(*tree);
    }
    return tree;
}

QRectF visibleArea(const Document& document, const QString& folder)
{
    const auto settings =
        parseTree(document.readMember(folder + "/settings.xml"_L1), EmbeddedTreeBytes);
    QHash<QString, double> values;
    if (settings) {
        forEachElement(*settings, [&values](const Node& node) {
            values.insert(node.attribute(u"config:name"),
                          node.allText().toDouble() * PointsPerHundredth);
        });
    }
    return {values.value(u"VisibleAreaLeft"_s), values.value(u"VisibleAreaTop"_s),
            values.value(u"VisibleAreaWidth"_s), values.value(u"VisibleAreaHeight"_s)};
}

// Its styles get names of their own.
void renameStyles(Node& root, const QString& prefix)
{
    forEachElement(root, [&prefix](Node& node) {
        for (Attribute& attribute : node.attributes) {
            const bool isDefinition = attribute.name == "style:name"_L1 &&
                                      (node.is(u"style:style") || node.is(u"text:list-style"));
            const bool isUse = attribute.name == "style:parent-style-name"_L1 ||
                               attribute.name == "style:list-style-name"_L1 ||
                               attribute.name == "draw:style-name"_L1 ||
                               attribute.name == "draw:text-style-name"_L1 ||
                               attribute.name == "text:style-name"_L1 ||
                               attribute.name == "table:style-name"_L1;
            if ((isDefinition || isUse) && !attribute.value.isEmpty()) {
                attribute.value.prepend(prefix);
            }
        }
    });
}

void moveChildren(Node* source, Node& target)
{
    if (source == nullptr) {
        return;
    }
    for (auto& child : source->children) {
        if (!child->isText() && !child->is(u"style:default-style")) {
            target.children.push_back(std::move(child));
        }
    }
    source->children.clear();
}

void importStyles(Document& document, Embedded& embedded, const QString& prefix)
{
    for (Node* const root : {embedded.styles.get(), embedded.content.get()}) {
        if (root == nullptr) {
            continue;
        }
        renameStyles(*root, prefix);
        Node& automatic = document.content->childOrNew(AutomaticStylesTag);
        moveChildren(root->child(u"office:styles"), automatic);
        moveChildren(root->child(u"office:font-face-decls"),
                     document.content->childOrNew(u"office:font-face-decls"_s));
    }
    moveChildren(embedded.content->child(AutomaticStylesTag),
                 document.content->childOrNew(AutomaticStylesTag));
    document.forgetTable();
}

std::unique_ptr<Node> groupOf(Node& page, const QRectF& visible, const Node& frame)
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
    for (auto& child : page.children) {
        if (child->name.startsWith("draw:"_L1)) {
            group->children.push_back(std::move(child));
        }
    }
    keepPlace(frame, *group);
    return group;
}

// The rows of a spreadsheet as paragraphs, with tabs between their cells.
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

/// Unpacks the embedded documents of a page.
class Unpacker
{
public:
    explicit Unpacker(Document& document)
        : m_document(document)
    {}

    int unpackIn(Node& parent);

private:
    [[nodiscard]] std::unique_ptr<Node> unpacked(Node& frame);

    Document& m_document;
    int m_read = 0;
};

// Null if the frame stays as it is, perhaps with the text of the document.
std::unique_ptr<Node> Unpacker::unpacked(Node& frame)
{
    const Node* const object = frame.child(u"draw:object");
    QString folder = object != nullptr ? object->attribute(u"xlink:href") : QString();
    folder = folder.startsWith("./"_L1) ? folder.sliced(2) : folder;
    if (folder.isEmpty() || hasReadablePicture(m_document, frame) || ++m_read > MaximumEmbedded) {
        return nullptr;
    }
    Embedded embedded;
    embedded.content = readTree(m_document, folder + "/content.xml"_L1);
    const Node* const body = embedded.content ? embedded.content->child(u"office:body") : nullptr;
    Node* const inside = body != nullptr ? body->firstElement() : nullptr;
    Node* const page = inside != nullptr ? inside->child(u"draw:page") : nullptr;
    const bool isSheet = inside != nullptr && inside->is(u"office:spreadsheet");
    const bool isText = inside != nullptr && inside->is(u"office:text");
    if (page == nullptr && !isText && !isSheet) {
        return nullptr;
    }
    embedded.styles = readTree(m_document, folder + "/styles.xml"_L1);
    importStyles(m_document, embedded, u"object%1-"_s.arg(m_read));
    if (page != nullptr) {
        return groupOf(*page, visibleArea(m_document, folder), frame);
    }
    auto shown = frame.clone();
    shown->children.clear();
    StyleProperties style =
        m_document.table().resolved(u"graphic"_s, frame.attribute(u"draw:style-name"), false);
    style.graphic.insert(u"draw:stroke"_s, u"none"_s);
    style.graphic.insert(u"draw:fill"_s, u"none"_s);
    shown->setAttribute(u"draw:style-name"_s, m_document.styleFor(u"graphic"_s, style));
    Node& box = shown->append(Node::element(u"draw:text-box"_s));
    if (isSheet) {
        takeRows(*inside, box, 0);
    } else {
        takeParagraphs(*inside, box, 0);
    }
    return shown;
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

} // namespace

int unpackDocuments(Document& document)
{
    Node* const page = document.page();
    return page != nullptr ? Unpacker(document).unpackIn(*page) : 0;
}

} // namespace repair
