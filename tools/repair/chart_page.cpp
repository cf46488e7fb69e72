#include "repair/chart_page.h"

#include "repair/document.h"
#include "repair/lengths.h"
#include "repair/table_rows.h"
#include "repair/transform.h"

#include <algorithm>
#include <iterator>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

constexpr double DefaultChartSize = 10.0; // points
const QString DefaultChartFont = u"Liberation Sans"_s;

} // namespace

double ChartPage::textSize(const Node* styled) const
{
    const QString style = styled != nullptr ? styled->attribute(u"chart:style-name") : QString();
    const Properties text = m_document.table().resolved(u"chart"_s, style, false).text;
    return toPoints(text.value(u"fo:font-size"_s)).value_or(DefaultChartSize);
}

void ChartPage::addRectangle(const QRectF& box, const QString& color)
{
    StyleProperties style;
    style.graphic = {
        {u"draw:stroke"_s, u"none"_s}, {u"draw:fill"_s, u"solid"_s}, {u"draw:fill-color"_s, color}};
    auto shape = Node::element(u"draw:rect"_s);
    shape->setAttribute(u"draw:style-name"_s, m_document.styleFor(u"graphic"_s, style));
    writePlacement(*shape, {box.size(), QTransform::fromTranslate(box.left(), box.top())});
    m_shapes.push_back(std::move(shape));
}

void ChartPage::addLine(const QPointF& from, const QPointF& to, const QString& color, double pen)
{
    StyleProperties style;
    style.graphic = {{u"draw:stroke"_s, u"solid"_s},
                     {u"svg:stroke-color"_s, color},
                     {u"svg:stroke-width"_s, toInches(pen)}};
    auto line = Node::element(u"draw:line"_s);
    line->attributes = {{u"draw:style-name"_s, m_document.styleFor(u"graphic"_s, style)},
                        {u"svg:x1"_s, toInches(from.x())},
                        {u"svg:y1"_s, toInches(from.y())},
                        {u"svg:x2"_s, toInches(to.x())},
                        {u"svg:y2"_s, toInches(to.y())}};
    m_shapes.push_back(std::move(line));
}

void ChartPage::addText(const QRectF& box, const QString& text, const Node* styled,
                        const QString& alignment)
{
    addText({box.size(), QTransform::fromTranslate(box.left(), box.top())}, text, styled,
            alignment);
}

void ChartPage::addText(const Placement& place, const QString& text, const Node* styled,
                        const QString& alignment)
{
    if (text.isEmpty()) {
        return;
    }
    const QString name = styled != nullptr ? styled->attribute(u"chart:style-name") : QString();
    StyleProperties style;
    style.text = m_document.table().resolved(u"chart"_s, name, false).text;
    style.text.insert(u"fo:font-size"_s, toInches(textSize(styled)));
    if (!style.text.contains(u"style:font-name"_s)) {
        style.text.insert(u"style:font-name"_s,
                          style.text.value(u"fo:font-family"_s, DefaultChartFont));
    }
    style.paragraph.insert(u"fo:text-align"_s, alignment);
    auto paragraph = Node::element(u"text:p"_s);
    paragraph->setAttribute(u"text:style-name"_s, m_document.styleFor(u"paragraph"_s, style));
    paragraph->append(Node::characters(text));
    auto frame = textFrame(m_document, QRectF(QPointF(), place.size), {});
    writePlacement(*frame, place);
    frame->child(u"draw:text-box")->append(std::move(paragraph));
    m_texts.push_back(std::move(frame));
}

Node::Children ChartPage::take()
{
    std::move(m_texts.begin(), m_texts.end(), std::back_inserter(m_shapes));
    m_texts.clear();
    return std::move(m_shapes);
}

} // namespace repair
