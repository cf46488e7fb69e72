#include "workbench/items/pix_map_item.h"

#include <QLineF>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>
#include <QtMath>

namespace workbench {

namespace {

// The size of the box in output pixels.
QSize outputSize(const QPainter& painter, const QRectF& box)
{
    const QTransform transform = painter.combinedTransform();
    const double width =
        QLineF(transform.map(box.topLeft()), transform.map(box.topRight())).length();
    const double height =
        QLineF(transform.map(box.topLeft()), transform.map(box.bottomLeft())).length();
    return {qCeil(width), qCeil(height)};
}

bool paintsPixels(const QPainter& painter)
{
    const QPaintEngine* engine = painter.paintEngine();
    return engine != nullptr && engine->type() == QPaintEngine::Raster;
}

// Scaling down without smoothing would skip pixels: thin lines would break. Only screens
// and images get a reduced picture; other outputs get all pixels.
QImage fitted(const QImage& image, const QPainter& painter, const QRectF& box)
{
    const QSize target = outputSize(painter, box);
    const bool isMuchSmaller =
        target.width() * 2 < image.width() || target.height() * 2 < image.height();
    if (!isMuchSmaller || !paintsPixels(painter) || target.isEmpty()) {
        return image;
    }
    return image.scaled(target.boundedTo(image.size()), Qt::IgnoreAspectRatio,
                        Qt::SmoothTransformation);
}

} // namespace

void PixMapItem::pixmapImportActions(const QPixmap& pixmap)
{
    m_image = pixmap.toImage();
    setBoxSize(m_image.size());
}

void PixMapItem::paintContent(QPainter& painter)
{
    if (!m_image.isNull()) {
        const QRectF box = contentRect();
        painter.drawImage(box, fitted(m_image, painter, box));
    }
}

void PixMapItem::collect(ItemValues& values) const
{
    DatasourceLayer::collect(values);
    values.picture = PictureValues{m_image};
}

void PixMapItem::restore(const ItemValues& values)
{
    m_image = values.picture.value_or(PictureValues()).image;
    DatasourceLayer::restore(values);
}

} // namespace workbench
