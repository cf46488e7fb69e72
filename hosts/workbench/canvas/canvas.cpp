#include "workbench/canvas/canvas.h"

#include "host/items/item.h"
#include "workbench/items/item_limits.h"

#include <QGraphicsItem>
#include <QSet>

#include <algorithm>

namespace workbench {

namespace {

// A page without a size would be neither visible nor printable.
constexpr double SmallestPageSide = 1.0;

QSizeF boundedPage(const QSizeF& size)
{
    return boundedSize(size).expandedTo({SmallestPageSide, SmallestPageSide});
}

} // namespace

Canvas::Canvas()
    : m_factory(*this)
{
    // Few items, some without bounds: an index would take more time than it saves.
    m_scene.setItemIndexMethod(QGraphicsScene::NoIndex);
    m_scene.setSceneRect(pageRect());
}

Canvas::~Canvas() = default;

ClassFactory* Canvas::getClassFactory()
{
    return &m_factory;
}

void Canvas::importItem(Item* item)
{
    auto* canvasItem = dynamic_cast<CanvasItem*>(item);
    if (canvasItem == nullptr) {
        delete item;
        return;
    }
    QGraphicsItem* graphicsItem = canvasItem->graphicsItem();
    if (graphicsItem->scene() == &m_scene) {
        return; // already on this canvas
    }
    m_scene.addItem(graphicsItem);
    m_items.append(canvasItem);
    Q_EMIT itemsChanged();
}

void Canvas::importCanvasParameters(double width, double height, bool canvasFlag, bool orientation)
{
    PageValues page = m_page;
    page.size = QSizeF(width, height);
    page.canvasFlag = canvasFlag;
    page.orientation = orientation;
    setPage(page);
}

void Canvas::setCanvasBackgroundColor(const QColor& color)
{
    m_page.background = color;
    Q_EMIT pageChanged();
}

void Canvas::setCanvasDefaultPenColor(const QColor& color)
{
    m_page.defaultPen = color;
    Q_EMIT pageChanged();
}

QColor Canvas::canvasBackgroundColor() const
{
    return m_page.background;
}

QColor Canvas::canvasDefaultPenColor() const
{
    return m_page.defaultPen;
}

void Canvas::setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items)
{
    for (QGraphicsItem* item : std::as_const(items)) {
        if (auto* canvasItem = dynamic_cast<CanvasItem*>(item)) {
            canvasItem->setReadOnly(readOnly);
        }
    }
}

void Canvas::setUserBackgroundStateOnItemsInList(bool background, QList<QGraphicsItem*> items)
{
    for (QGraphicsItem* item : std::as_const(items)) {
        if (auto* canvasItem = dynamic_cast<CanvasItem*>(item)) {
            canvasItem->setUserBackground(background);
        }
    }
}

void Canvas::completeCanvasLoading()
{
    m_isComplete = true;
    Q_EMIT loadingCompleted();
}

void Canvas::setPage(const PageValues& page)
{
    m_page = page;
    m_page.size = boundedPage(page.size);
    m_scene.setSceneRect(pageRect());
    Q_EMIT pageChanged();
}

QList<CanvasItem*> Canvas::itemsFromBottom() const
{
    QList<CanvasItem*> items = m_items;
    std::stable_sort(items.begin(), items.end(), [](const CanvasItem* a, const CanvasItem* b) {
        return a->graphicsItem()->zValue() < b->graphicsItem()->zValue();
    });
    return items;
}

CanvasItem* Canvas::addItem(const ItemValues& values)
{
    auto* item = dynamic_cast<CanvasItem*>(m_factory.create(values.type));
    if (item != nullptr) {
        item->setValues(values);
        importItem(item->contractItem());
    }
    return item;
}

QList<DetachedItem> Canvas::detachItems(const QList<CanvasItem*>& items)
{
    const QSet<CanvasItem*> wanted(items.begin(), items.end());
    QList<DetachedItem> detached;
    QList<CanvasItem*> kept;
    {
        // One change of the selection, not one for each item.
        const QSignalBlocker silence(&m_scene);
        for (qsizetype index = 0; index < m_items.size(); ++index) {
            CanvasItem* item = m_items.at(index);
            if (wanted.contains(item)) {
                item->graphicsItem()->setVisible(false);
                detached.append({item, index});
            } else {
                kept.append(item);
            }
        }
    }
    m_items = kept;
    Q_EMIT itemsChanged();
    Q_EMIT m_scene.selectionChanged();
    return detached;
}

void Canvas::attachItems(const QList<DetachedItem>& items)
{
    for (const DetachedItem& each : items) {
        m_items.insert(std::clamp<qsizetype>(each.index, 0, m_items.size()), each.item);
        each.item->graphicsItem()->setVisible(true);
    }
    Q_EMIT itemsChanged();
}

void Canvas::clear()
{
    m_items.clear();
    m_scene.clear();
    m_isComplete = false;
    setPage(PageValues());
    Q_EMIT itemsChanged();
}

void Canvas::showRecord(qint64 record, const RecordText& recordText)
{
    for (CanvasItem* item : std::as_const(m_items)) {
        const DatasourceValues source = item->datasource();
        if (source.id >= 0) {
            item->showContent(recordText(source.id, record, source.fields));
        }
    }
}

} // namespace workbench
