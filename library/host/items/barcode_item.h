#pragma once

#include "host/facets/fill_color_item.h"
#include "host/facets/i_barcode_item.h"
#include "host/facets/i_datasource_item.h"
#include "host/facets/i_font_item.h"
#include "host/facets/i_text_align_item.h"
#include "host/facets/text_color_item.h"
#include "host/items/item.h"

#include <QColor>
#include <QGraphicsItem>
#include <QObject>
#include <QString>

/// A barcode, linear or two-dimensional.
class BarcodeItem : public QObject,
                    public QGraphicsItem,
                    public Item,
                    public FillColorItem,
                    public TextColorItem,
                    public IFontItem,
                    public ITextAlignItem,
                    public IBarcodeItem,
                    public IDatasourceItem
{
public:
    /// Colour of the bars and of the caption.
    virtual void setForegroundColor(const QColor& color) = 0;
    /// Colour behind the bars.
    virtual void setBackgroundColor(const QColor& color) = 0;
    /// The properties of a binary label's barcode in one call, as they are stored.
    ///
    /// @param symbology     symbology code of the host's list
    /// @param content       the text to encode
    /// @param flag3         third stored flag
    /// @param textAlignment where the caption stands, a Qt::Alignment
    /// @param moduleWidth   width of the narrowest bar in whole points, 0 for the host's choice
    /// @param flag1         first stored flag
    /// @param flag2         second stored flag
    /// @param option        symbology option: 0 or 1, or a number for symbology 55
    /// @param number        numeric setting, 0 when the label had none
    /// @param value         last stored value
    virtual void importBarcodeProperties(int symbology, const QString& content, bool flag3,
                                         int textAlignment, int moduleWidth, bool flag1, bool flag2,
                                         int option, int number, int value) = 0;
};
