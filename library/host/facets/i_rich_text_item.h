#pragma once

/// Marks a formatted text. Importers set its content by QGraphicsTextItem::setHtml() or by the
/// text and font facets.
class IRichTextItem
{
public:
    virtual ~IRichTextItem() = default;
};
