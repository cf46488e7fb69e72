#pragma once

/// Marks an item with a color of its own. Importers do not call it: they set colors through the
/// pen, fill and text facets, BarcodeItem and SymbolItem.
class IColorItem
{
public:
    virtual ~IColorItem() = default;
};
