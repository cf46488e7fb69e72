#pragma once

/// Marks a text with formats of its own inside. The importer sets its content by
/// QGraphicsTextItem::setHtml() or by the text and font facets.
class IRichTextItem
{
public:
    virtual ~IRichTextItem() = default;
};
