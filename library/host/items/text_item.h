#pragma once

#include "host/facets/i_datasource_item.h"
#include "host/facets/i_font_item.h"
#include "host/facets/i_text_align_item.h"
#include "host/facets/i_text_generic_item.h"
#include "host/facets/text_color_item.h"
#include "host/items/fillable_item.h"

#include <QGraphicsTextItem>

/// Common base of both kinds of text.
class TextItem : public QGraphicsTextItem,
                 public FillableItem,
                 public TextColorItem,
                 public ITextGenericItem,
                 public IFontItem,
                 public ITextAlignItem,
                 public IDatasourceItem
{};
