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
    bool orientation = false; ///< as the label's format has it
    QColor background = Qt::white;
    QColor defaultPen = Qt::black;
    bool operator==(const PageValues&) const = default;
};

/// The canvas of one label: a page and its items, in a scene whose unit is the point.
///
/// The page lies in the scene from (0, 0) to its size. The items belong to the scene.
class Canvas final : public QObject, public TalCanvasModel
{
    Q_OBJECT

public:
    Canvas();
    ~Canvas() override;

    [[nodiscard]] ClassFactory* getClassFactory() override;
    /// An item that is null or not of the workbench's making is not taken in; the latter
    /// is deleted, because it was handed over.
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
    void setPage(const PageValues& page);
    [[nodiscard]] QRectF pageRect() const { return {QPointF(0.0, 0.0), m_page.size}; }

    /// The items in the order in which they came in.
    [[nodiscard]] const QList<CanvasItem*>& items() const { return m_items; }
    /// The items as they lie on one another, the lowest first.
    [[nodiscard]] QList<CanvasItem*> itemsFromBottom() const;
    /// Whether completeCanvasLoading() was called since the last clear().
    [[nodiscard]] bool isComplete() const { return m_isComplete; }

    /// Makes an item of these values and takes it in; null for a type that names no item.
    CanvasItem* addItem(const ItemValues& values);
    /// Deletes all items and makes the page a new one.
    void clear();

    /// What a data source has in the fields of a record; nothing for a source or a record
    /// that does not exist.
    using RecordText = std::function<std::optional<QString>(int datasourceId, qint64 record,
                                                            const QStringList& fields)>;
    /// Shows one record, counted from 0, on all items that are bound to a data source. An
    /// item whose source has nothing to show shows its own content.
    void showRecord(qint64 record, const RecordText& recordText);

    [[nodiscard]] QGraphicsScene* scene() { return &m_scene; }

Q_SIGNALS:
    /// The page's size or colours have changed.
    void pageChanged();
    /// Items were taken in or deleted.
    void itemsChanged();
    /// A label is there whole.
    void loadingCompleted();

private:
    ItemFactory m_factory;
    PageValues m_page;
    QList<CanvasItem*> m_items;
    bool m_isComplete = false;
    QGraphicsScene m_scene;
};

} // namespace workbench
