#pragma once

#include "host/facets/fill_color_item.h"
#include "host/facets/i_datasource_item.h"
#include "host/facets/resize_rotated_helper.h"
#include "host/items/colored_item.h"

#include <QByteArray>
#include <QColor>
#include <QGraphicsSvgItem>

/// A vector symbol.
class SymbolItem : public QGraphicsSvgItem,
                   public ColoredItem,
                   public ResizeRotatedHelper,
                   public FillColorItem,
                   public IDatasourceItem
{
public:
    /// Color that the symbol is drawn with.
    virtual void setForegroundColor(const QColor& color) = 0;
    /// Color behind the symbol.
    virtual void setBackgroundColor(const QColor& color) = 0;
    /// Loads symbol data of SymbolCreator or SymbolDatabaseModel and gives the item the
    /// symbol's own size, which is 0 by 0 for data that draws nothing.
    virtual void loadItemFromData(const QByteArray& data) = 0;
};
