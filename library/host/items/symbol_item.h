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
    /// Colour that the symbol is drawn with.
    virtual void setForegroundColor(const QColor& color) = 0;
    /// Colour behind the symbol.
    virtual void setBackgroundColor(const QColor& color) = 0;
    /// Takes over symbol data of SymbolCreator or SymbolDatabaseModel and gives the
    /// item the symbol's own size; data that draws nothing leaves it 0 by 0.
    virtual void loadItemFromData(const QByteArray& data) = 0;
};
