#pragma once

#include "host/items/pix_map_item.h"
#include "workbench/items/box_layer.h"
#include "workbench/items/facet_layers.h"

#include <QImage>

namespace workbench {

/// A raster picture, stretched to its box.
class PixMapItem final : public DatasourceLayer<BoxLayer<::PixMapItem>>
{
public:
    using DatasourceLayer::DatasourceLayer;

    void pixmapImportActions(const QPixmap& pixmap) override;

protected:
    void paintContent(QPainter& painter) override;
    void collect(ItemValues& values) const override;
    void restore(const ItemValues& values) override;

private:
    QImage m_image;
};

} // namespace workbench
