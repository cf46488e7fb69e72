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
    /// @param flag1     first style flag as stored: bold
    /// @param flag2     second style flag as stored: italic
    /// @param flag3     third style flag as stored: underlined
    /// @param alignment where the text stands in its box
    virtual void importTextProperties(const QString& text, int fontSize, bool flag1, bool flag2,
                                      bool flag3, const QFlags<Qt::AlignmentFlag>& alignment) = 0;
    /// Which sides of the text box are fixed: 0 none, 1 the width, 2 the height,
    /// 3 both. A side that is not fixed follows the text.
    virtual void setItemSizeLimiting(signed char mode) = 0;
};
