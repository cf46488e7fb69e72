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
    /// Sets the picture and gives the item the picture's own size, one point per pixel; a null
    /// pixmap gives 0 by 0.
    virtual void pixmapImportActions(const QPixmap& pixmap) = 0;
};
