#pragma once

/// The symbology of a barcode.
class IBarcodeItem
{
public:
    virtual ~IBarcodeItem() = default;

    /// A symbology code of CommonLists.
    virtual void setBarcodeType(int code) = 0;
};
