#pragma once

#include "repair/transform.h"
#include "repair/xml_tree.h"

#include <QPointF>
#include <QRectF>
#include <QString>

namespace repair {

class Document;

/// The objects of a chart: places are points in the chart's area.
class ChartPage
{
public:
    /// Of the size of a text.
    static constexpr double LineHeight = 1.2;

    explicit ChartPage(Document& document)
        : m_document(document)
    {}

    void addRectangle(const QRectF& box, const QString& color);
    void addLine(const QPointF& from, const QPointF& to, const QString& color, double pen);
    /// @param styled part of the chart that gives the text its style; may be null
    void addText(const Placement& place, const QString& text, const Node* styled,
                 const QString& alignment);
    void addText(const QRectF& box, const QString& text, const Node* styled,
                 const QString& alignment);
    [[nodiscard]] double textSize(const Node* styled) const;
    /// The texts come last.
    [[nodiscard]] Node::Children take();

private:
    Document& m_document;
    Node::Children m_shapes;
    Node::Children m_texts;
};

} // namespace repair
