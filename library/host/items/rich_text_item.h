#pragma once

#include "host/facets/i_rich_text_item.h"
#include "host/items/text_item.h"

/// A formatted text; its content is a QTextDocument.
class RichTextItem : public TextItem, public IRichTextItem
{
public:
    /// Wraps the text at this width, in points, and adjusts the height of the box to the text. A
    /// width of 0 or less does not wrap.
    virtual void adjustBoxSizeToContent(double width) = 0;
};
