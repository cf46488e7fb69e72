#pragma once

#include "host/facets/i_datasource_item.h"
#include "host/facets/i_graphic_item.h"
#include "host/facets/imageable_item.h"
#include "host/facets/resize_rotated_helper.h"
#include "host/items/item.h"

#include <QGraphicsPixmapItem>
#include <QObject>
#include <QPixmap>

/// A raster picture.
class PixMapItem : public QObject,
                   public QGraphicsPixmapItem,
                   public Item,
                   public ImageableItem,
                   public ResizeRotatedHelper,
                   public IGraphicItem,
                   public IDatasourceItem
{
public:
    /// Takes the picture over and gives the item the picture's own size, one
    /// point for a pixel. A null pixmap leaves an item of size 0 by 0.
    virtual void pixmapImportActions(const QPixmap& pixmap) = 0;
};
