#pragma once

#include "host/facets/i_text_label_item.h"
#include "host/facets/resize_rotated_helper.h"
#include "host/items/text_item.h"

#include <QString>

/// A text in a single format.
class SimpleTextItem : public TextItem, public ResizeRotatedHelper, public ITextLabelItem
{
public:
    /// Text and format of a binary label's text in one call.
    ///
    /// @param text      the text; line feeds begin a new line
    /// @param fontSize  font size in whole points
    /// @param bold      first stored style flag
    /// @param italic    second stored style flag
    /// @param underline third stored style flag
    /// @param alignment position of the text in its box
    virtual void importTextProperties(const QString& text, int fontSize, bool bold, bool italic,
                                      bool underline,
                                      const QFlags<Qt::AlignmentFlag>& alignment) = 0;
    /// Which sides of the text box are fixed: 0 none, 1 the width, 2 the height,
    /// 3 both. A side that is not fixed follows the text.
    virtual void setItemSizeLimiting(signed char mode) = 0;
};
