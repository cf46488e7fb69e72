#pragma once

#include <QSizeF>

/// Properties that only a single-format text has.
class ITextLabelItem
{
public:
    virtual ~ITextLabelItem() = default;

    /// The text's box, in points. SimpleTextItem::setItemSizeLimiting() sets its fixed sides.
    virtual void setTextBoxSize(const QSizeF& size) = 0;
    /// First option of a legacy text, as stored. Its meaning is unknown.
    virtual void setOptionA(bool on) = 0;
    /// Second option of a legacy text, as stored. Its meaning is unknown.
    virtual void setOptionB(bool on) = 0;
    /// Called once after all text properties are set: lay out the text.
    virtual void applyTextOptions() = 0;
};
