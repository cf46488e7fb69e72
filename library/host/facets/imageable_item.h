#pragma once

/// Marks an item with a picture. Importers set it by PixMapItem::pixmapImportActions().
class ImageableItem
{
public:
    virtual ~ImageableItem() = default;
};
