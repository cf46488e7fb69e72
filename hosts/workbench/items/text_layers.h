#pragma once

#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"
#include "workbench/items/pen_and_fill.h"
#include "workbench/items/text_layout.h"

#include <QPainterPath>

namespace workbench {

/// The common layers of both text classes: every facet of TextItem but the content.
template <class Base>
using TextLayers = DatasourceLayer<TextStyleLayer<FontLayer<FillLayer<PenLayer<BoxLayer<Base>>>>>>;

/// Paints the background and the frame of a text.
inline void paintTextGround(QPainter& painter, const QRectF& box, const FillValues& fill,
                            const PenValues& pen)
{
    QPainterPath path;
    path.addRect(box);
    paintShape(painter, path, box, fill, pen);
}

/// The painted area of a text: its lines, and its ground and frame if they are visible. The box
/// if there is nothing of these, so that an empty text can still be selected.
[[nodiscard]] inline QPainterPath textArea(const QPainterPath& lines, const QRectF& box,
                                           const FillValues& fill, const PenValues& pen)
{
    QPainterPath ground;
    ground.addRect(box);
    QPainterPath area = paintedShape(ground, fill, pen);
    area.addPath(lines);
    area.setFillRule(Qt::WindingFill);
    return area.isEmpty() ? ground : area;
}

} // namespace workbench
