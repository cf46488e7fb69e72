#pragma once

/// Marks an item that holds a picture. The importer loads it by
/// PixMapItem::pixmapImportActions().
class ImageableItem
{
public:
    virtual ~ImageableItem() = default;
};
