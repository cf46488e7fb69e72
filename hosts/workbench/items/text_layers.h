#pragma once

#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"
#include "workbench/items/pen_and_fill.h"
#include "workbench/items/text_layout.h"

#include <QPainterPath>

namespace workbench {

/// What both text kinds stand on: every facet of TextItem but the content.
template <class Base>
using TextLayers = DatasourceLayer<TextStyleLayer<FontLayer<FillLayer<PenLayer<BoxLayer<Base>>>>>>;

/// Paints what lies behind a text: its ground and its frame.
inline void paintTextGround(QPainter& painter, const QRectF& box, const FillValues& fill,
                            const PenValues& pen)
{
    QPainterPath path;
    path.addRect(box);
    paintShape(painter, path, box, fill, pen);
}

} // namespace workbench
