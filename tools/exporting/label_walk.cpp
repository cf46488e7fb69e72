#include "exporting/label_walk.h"

#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/rendering/page_painter.h"

#include <QGraphicsItem>

#include <optional>

namespace exporting {
namespace {

using workbench::ItemValues;

QTransform flips(const ItemValues& values, const QPointF& center)
{
    QTransform transform;
    transform.translate(center.x(), center.y());
    transform.scale(values.box.flipHorizontal ? -1.0 : 1.0, values.box.flipVertical ? -1.0 : 1.0);
    transform.translate(-center.x(), -center.y());
    return transform;
}

/// Puts the record's text in place of the item's own content.
void showContent(ItemValues& values, const QString& content)
{
    if (values.text) {
        values.text = workbench::TextValues{content, {}};
    }
    if (values.barcode) {
        values.barcode->content = content;
    }
}

} // namespace

QList<WalkedItem> walkLabel(const workbench::Canvas& canvas,
                            const workbench::datasources::DatasourceController& sources,
                            qint64 record)
{
    QList<WalkedItem> walk;
    int position = 0;
    for (const workbench::CanvasItem* item : canvas.itemsFromBottom()) {
        ++position;
        if (!workbench::isOnPage(*item, canvas)) {
            continue;
        }
        WalkedItem walked{position, item->values(), false, {}, item};
        const QGraphicsItem& graphicsItem = *item->graphicsItem();
        // Items rotate and flip about the same point.
        walked.toPage = flips(walked.values, graphicsItem.transformOriginPoint()) *
                        graphicsItem.sceneTransform();
        const auto binding = walked.values.datasource.value_or(workbench::DatasourceValues());
        const std::optional<QString> content =
            binding.id < 0 ? std::nullopt : sources.recordText(binding.id, record, binding.fields);
        if (content) {
            walked.isBound = true;
            showContent(walked.values, *content);
        }
        walk.append(walked);
    }
    return walk;
}

} // namespace exporting
