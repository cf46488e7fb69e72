#pragma once

#include <QLatin1String>
#include <QString>

/// The family that importers set if a label names no font, or one that
/// CommonLists::isValidFamily() rejects. No font has this name: show a default font instead.
inline constexpr QLatin1String FallbackFontFamily("_Nare Vol");

/// The font of an item that shows text, including a barcode with its caption.
class IFontItem
{
public:
    virtual ~IFontItem() = default;

    /// The family may not be installed, and may be FallbackFontFamily.
    virtual void setFontFamily(const QString& family) = 0;
    /// Size in whole points. 0 or less comes from a damaged label: keep the last size.
    virtual void setFontPointSize(int size) = 0;
    virtual void setFontBold(bool bold) = 0;           ///< True for bold letters.
    virtual void setFontItalic(bool italic) = 0;       ///< True for slanted letters.
    virtual void setFontUnderline(bool underline) = 0; ///< True for a line below the text.
};
