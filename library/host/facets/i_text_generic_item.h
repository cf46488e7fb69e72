#pragma once

#include <QString>

/// The plain text of a text item of either kind.
class ITextGenericItem
{
public:
    virtual ~ITextGenericItem() = default;

    /// Replaces the text. Line feeds begin a new line; the text is never markup.
    virtual void setText(const QString& text) = 0;
};
