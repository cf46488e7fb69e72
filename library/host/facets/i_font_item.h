#pragma once

#include <QString>

/// The font of an item that shows text, a barcode's caption included.
class IFontItem
{
public:
    virtual ~IFontItem() = default;

    virtual void setFontFamily(const QString& family) = 0; ///< Need not be installed here.
    /// Size in whole points. 0 or less comes from a damaged label: keep the last size.
    virtual void setFontPointSize(int size) = 0;
    virtual void setFontBold(bool bold) = 0;           ///< True for bold letters.
    virtual void setFontItalic(bool italic) = 0;       ///< True for slanted letters.
    virtual void setFontUnderline(bool underline) = 0; ///< True for a line below the text.
};
