#pragma once

#include "repair/anchored_shapes.h"
#include "repair/flow_page.h"
#include "repair/xml_tree.h"

#include <memory>
#include <vector>

namespace repair {

class Document;

/// Points between what comes next and what is above it.
struct SpaceAbove
{
    double inRow = 0.0; ///< below a text: part of its row
    double open = 0.0;  ///< below a table
};

/// The rows of the pages of a text document: texts, tables and objects, one below the other.
class FlowRows
{
public:
    explicit FlowRows(Document& document);

    void addPage(const Node* master);
    /// Ends a page that is not empty.
    void breakPage();
    /// Gives the page, which must be empty, another master page.
    void useMaster(const Node* master);
    /// Where the last editor had a break, because the page was full.
    void continueOnNextPage();

    /// A paragraph or list without its objects.
    void addText(std::unique_ptr<Node> block);
    void addTable(Node& table);
    /// Objects that are in the text, which will be the next row.
    void keepObjects(Node::Children anchored);
    /// Objects beside which no lines run.
    void placeRows(Node::Children shapes);
    /// Text fills the distance between a paragraph and an object below it.
    void lower(std::vector<LoweredShape> shapes);
    /// A paragraph of this height comes: it is above the lowered objects if a line, and half of it,
    /// fit there.
    void passLowered(double height);
    void endRows();
    /// The page has something on it.
    void use() { m_isEmpty = false; }

    [[nodiscard]] const PageArea& area() const { return m_pages.back().area; }
    [[nodiscard]] std::size_t pageCount() const { return m_pages.size(); }
    [[nodiscard]] std::vector<FlowPage> take() { return std::move(m_pages); }
    /// Whether the last editor left breaks between pages.
    [[nodiscard]] bool hasEditorBreaks() const { return m_hasEditorBreaks; }

private:
    void endText();
    void placeRow(std::unique_ptr<Node> shape);
    void placeFirstLowered();
    [[nodiscard]] double gapAbove(double own) const;
    [[nodiscard]] Node::Children& objects() { return m_pages.back().objects; }

    Document& m_document;
    int m_row = 0;         // of the present page
    bool m_isEmpty = true; // the present page
    bool m_hasEditorBreaks = false;
    Node::Children m_text;
    SpaceAbove m_above;
    std::vector<LoweredShape> m_lowered; // that text may still be above
    std::vector<FlowPage> m_pages;
};

} // namespace repair
