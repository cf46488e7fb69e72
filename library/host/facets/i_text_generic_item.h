#pragma once

#include <QString>

/// The plain text of a text item of either kind.
class ITextGenericItem
{
public:
    virtual ~ITextGenericItem() = default;

    /// Replaces the whole text. Line feeds begin a new line; nothing in the text
    /// is markup.
    virtual void setText(const QString& text) = 0;
};
