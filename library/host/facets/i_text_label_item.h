#pragma once

#include <QSizeF>

/// What only a single-format text has.
class ITextLabelItem
{
public:
    virtual ~ITextLabelItem() = default;

    /// The box that the text stands in, in points. Which of its sides are fixed
    /// is told by SimpleTextItem::setItemSizeLimiting().
    virtual void setTextBoxSize(const QSizeF& size) = 0;
    /// First option of the legacy text, passed on as it was stored.
    virtual void setOptionA(bool on) = 0;
    /// Second option of the legacy text, passed on as it was stored.
    virtual void setOptionB(bool on) = 0;
    /// Called once after all text properties are set: lay the text out now.
    virtual void applyTextOptions() = 0;
};
