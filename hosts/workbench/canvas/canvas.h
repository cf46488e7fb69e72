#pragma once

#include "host/tal_canvas_model.h"
#include "workbench/canvas/item_factory.h"
#include "workbench/items/canvas_item.h"

#include <QGraphicsScene>
#include <QList>
#include <QObject>
#include <QSizeF>

#include <functional>
#include <optional>

namespace workbench {

/// The page of a label.
struct PageValues
{
    QSizeF size{288.0, 144.0}; ///< points
    bool canvasFlag = false;
    bool orientation = false; ///< as in the label's format
    QColor background = Qt::white;
    QColor defaultPen = Qt::black;
    bool operator==(const PageValues&) const = default;
};

/// An item that was taken off the canvas, and its index in insertion order.
struct DetachedItem
{
    CanvasItem* item = nullptr;
    qsizetype index = 0;
};

/// The canvas of one label: a page and its items, in a scene measured in points.
///
/// In the scene, the page extends from (0, 0) to its size. The scene owns the items.
class Canvas final : public QObject, public TalCanvasModel
{
    Q_OBJECT

public:
    Canvas();
    ~Canvas() override;

    [[nodiscard]] ClassFactory* getClassFactory() override;
    /// Ignores null. Rejects and deletes an item of another host's classes: the canvas
    /// was given its ownership.
    void importItem(Item* item) override;
    void importCanvasParameters(double width, double height, bool canvasFlag,
                                bool orientation) override;
    void setCanvasBackgroundColor(const QColor& color) override;
    void setCanvasDefaultPenColor(const QColor& color) override;
    [[nodiscard]] QColor canvasBackgroundColor() const override;
    [[nodiscard]] QColor canvasDefaultPenColor() const override;
    void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) override;
    void setUserBackgroundStateOnItemsInList(bool background, QList<QGraphicsItem*> items) override;
    void completeCanvasLoading() override;

    [[nodiscard]] const PageValues& page() const { return m_page; }
    /// Sets size, colors and flags of the page. Items keep their places.
    void setPage(const PageValues& page);
    [[nodiscard]] QRectF pageRect() const { return {QPointF(0.0, 0.0), m_page.size}; }

    /// The items in insertion order.
    [[nodiscard]] const QList<CanvasItem*>& items() const { return m_items; }
    /// The items in stacking order, the lowest first.
    [[nodiscard]] QList<CanvasItem*> itemsFromBottom() const;
    /// Whether completeCanvasLoading() was called since the last clear().
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

    /// Creates an item with these values and adds it; null for an unknown item type.
    CanvasItem* addItem(const ItemValues& values);
    /// Takes items off the canvas. They stay in the scene, hidden, so that attachItems() restores
    /// their stacking; the scene still owns them. Ignores items that are not on the canvas.
    /// Returns them in ascending order of their indexes.
    [[nodiscard]] QList<DetachedItem> detachItems(const QList<CanvasItem*>& items);

    /// Puts the items of detachItems() back at their indexes.
    void attachItems(const QList<DetachedItem>& items);

    /// Deletes all items and resets the page.
    void clear();

    /// The fields of one record of a data source; nothing if the source or the record
    /// does not exist.
    using RecordText = std::function<std::optional<QString>(int datasourceId, qint64 record,
                                                            const QStringList& fields)>;
    /// Shows one record, counted from 0, on all items bound to a data source. An item
    /// whose source has no content shows its own.
    void showRecord(qint64 record, const RecordText& recordText);

    [[nodiscard]] QGraphicsScene* scene() { return &m_scene; }

Q_SIGNALS:
    /// The page's size or colors have changed.
    void pageChanged();
    /// Items were added or deleted.
    void itemsChanged();
    /// A label is complete.
    void loadingCompleted();

private:
    ItemFactory m_factory;
    PageValues m_page;
    QList<CanvasItem*> m_items;
    bool m_isComplete = false;
    QGraphicsScene m_scene;
};

} // namespace workbench
