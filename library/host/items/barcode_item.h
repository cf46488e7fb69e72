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
    /// Color of the bars and of the caption.
    virtual void setForegroundColor(const QColor& color) = 0;
    /// Color behind the bars.
    virtual void setBackgroundColor(const QColor& color) = 0;
    /// The properties of a binary label's barcode in one call, as they are stored.
    ///
    /// The format stores four flags: quiet zones, bearer bars, text, and the check digit, which is
    /// the option of all symbologies but PDF417.
    ///
    /// @param symbology       symbology code of the host's list
    /// @param content         the text to encode
    /// @param hasText         whether a linear symbology shows its text (third stored flag)
    /// @param textAlignment   position of the text, a Qt::Alignment
    /// @param moduleWidth     width of the narrowest bar in whole points, 0 for the host's choice
    /// @param hasQuietZones   whether the blank margins belong to the symbol (first stored flag)
    /// @param hasBearerBars   whether a linear symbology has bars along its upper and lower edge
    ///                        (second stored flag)
    /// @param option          1 for a check digit, where it is optional, else 0 (fourth stored
    ///                        flag); for PDF417 (55) the number of columns
    /// @param size            size, version or number of columns by the symbology; 0 if the label
    ///                        has none
    /// @param errorCorrection level of error correction, or the mode of MaxiCode
    virtual void importBarcodeProperties(int symbology, const QString& content, bool hasText,
                                         int textAlignment, int moduleWidth, bool hasQuietZones,
                                         bool hasBearerBars, int option, int size,
                                         int errorCorrection) = 0;
};
