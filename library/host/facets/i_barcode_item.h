#pragma once

/// What a barcode encodes with.
class IBarcodeItem
{
public:
    virtual ~IBarcodeItem() = default;

    /// Symbology code of the host's list, the numbers that CommonLists knows.
    virtual void setBarcodeType(int code) = 0;
};
