#pragma once

/// Marks an item that has a colour of its own. The importer calls nothing on it: the
/// colours that it sets belong to the pen, fill and text facets and to BarcodeItem
/// and SymbolItem.
class IColorItem
{
public:
    virtual ~IColorItem() = default;
};
