#include "repair/flow_rows.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/page_area.h"
#include "repair/page_end.h"
#include "repair/shape_place.h"
#include "repair/table_rows.h"

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr double LineRoom = 20.0; // points

double spaceAt(Document& document, const Node& paragraph, const QString& side)
{
    const QString style = paragraph.attribute(u"text:style-name");
    return toPoints(document.table().resolved(u"paragraph"_s, style, true).paragraph.value(side))
        .value_or(0.0);
}

// Of a table: "fo:margin" is all sides.
double tableMargin(const Properties& table, const QString& side)
{
    const QString own = table.value(u"fo:margin-"_s + side);
    return toPoints(own.isEmpty() ? table.value(u"fo:margin"_s) : own).value_or(0.0);
}

} // namespace

FlowRows::FlowRows(Document& document)
    : m_document(document)
{
    addPage(masterPage(document));
}

void FlowRows::addPage(const Node* master)
{
    m_pages.push_back({master, pageArea(m_document, master), {}});
    m_row = 0;
    m_isEmpty = true;
    m_above = {};
}

void FlowRows::breakPage()
{
    if (!m_isEmpty) {
        endRows();
        addPage(nextMaster(m_document, m_pages.back().master));
    }
}

void FlowRows::useMaster(const Node* master)
{
    m_pages.pop_back();
    addPage(master);
}

void FlowRows::continueOnNextPage()
{
    m_hasEditorBreaks = true;
    if (!m_isEmpty) {
        breakPage();
        m_pages.back().isContinued = true;
    }
}

void FlowRows::addText(std::unique_ptr<Node> block)
{
    m_text.push_back(std::move(block));
}

// How far a row is below the one before, if it states this space above it.
double FlowRows::gapAbove(double own) const
{
    if (m_row == 0) {
        return m_document.spaces.atStart ? own : 0.0;
    }
    const double before = m_above.inRow + m_above.open;
    return (m_document.spaces.addUp ? before + own : std::max(before, own)) - m_above.inRow;
}

void FlowRows::addTable(Node& table)
{
    endRows();
    const Properties own = statedBy(m_document, table, u"style:table-properties"_s);
    const double gap = gapAbove(tableMargin(own, u"top"_s));
    Node::Children cells = tableCells(m_document, table, {area(), area().box}, m_row, gap);
    std::move(cells.begin(), cells.end(), std::back_inserter(objects()));
    m_above = {0.0, tableMargin(own, u"bottom"_s)};
}

void FlowRows::keepObjects(Node::Children anchored)
{
    for (auto& object : anchored) {
        if (!object->hasAttribute(AnchorAttribute) && !object->hasAttribute(FromTextAttribute)) {
            object->setAttribute(FromRowAttribute, QString::number(m_row + 1));
        }
        objects().push_back(std::move(object));
    }
}

void FlowRows::placeRow(std::unique_ptr<Node> shape)
{
    objects().push_back(std::move(shape));
    objects().back()->setAttribute(RowAttribute, QString::number(++m_row));
    m_above = {};
}

void FlowRows::placeRows(Node::Children shapes)
{
    if (!shapes.empty()) {
        endText();
    }
    for (auto& shape : shapes) {
        placeRow(std::move(shape));
    }
}

void FlowRows::lower(std::vector<LoweredShape> shapes)
{
    std::move(shapes.begin(), shapes.end(), std::back_inserter(m_lowered));
    std::stable_sort(m_lowered.begin(), m_lowered.end(),
                     [](const auto& a, const auto& b) { return a.distance < b.distance; });
}

void FlowRows::passLowered(double height)
{
    const double least = std::max(height / 2.0, std::min(height, LineRoom));
    while (!m_lowered.empty() && m_lowered.front().distance < least) {
        placeFirstLowered();
    }
    for (LoweredShape& lowered : m_lowered) {
        lowered.distance -= height;
    }
}

void FlowRows::placeFirstLowered()
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

void FlowRows::endRows()
{
    while (!m_lowered.empty()) {
        placeFirstLowered();
    }
    endText();
}

void FlowRows::endText()
{
    Node::Children text = std::move(m_text);
    m_text.clear();
    if (text.empty()) {
        return;
    }
    // The text itself has the space above its first paragraph.
    const double own = spaceAt(m_document, firstParagraph(*text.front()), u"fo:margin-top"_s);
    const double gap = m_row > 0 ? std::max(0.0, gapAbove(own) - own) : 0.0;
    const double below = spaceAt(m_document, lastParagraph(*text.back()), u"fo:margin-bottom"_s);
    auto frame = textFrame(m_document, {area().box.left(), gap, area().box.width(), 0.0}, {});
    frame->setAttribute(FlowsAttribute, u"true"_s);
    frame->child(u"draw:text-box")->children = std::move(text);
    placeRow(std::move(frame));
    m_above = {below, 0.0};
}

} // namespace repair
