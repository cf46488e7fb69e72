#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"
#include "host/tal_canvas_model.h"

#include <QSizeF>

#include <memory>
#include <vector>

class QTextStream;

/// Creates this host's item for each code of the contract.
class Factory : public ClassFactory
{
public:
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;
};

/// The open label: a page, and its items in stacking order.
class Label : public TalCanvasModel
{
public:
    [[nodiscard]] ClassFactory* getClassFactory() override { return &m_factory; }

    void importCanvasParameters(double width, double height, bool canvasFlag,
                                bool orientation) override;
    /// Takes ownership of the item. The importer may set its properties afterwards, so do not
    /// use the label before completeCanvasLoading().
    void importItem(Item* item) override;
    void completeCanvasLoading() override {}

    // Importers use these colors for items later: return the values that were set.
    void setCanvasBackgroundColor(const QColor& color) override { m_background = color; }
    void setCanvasDefaultPenColor(const QColor& color) override { m_pen = color; }
    [[nodiscard]] QColor canvasBackgroundColor() const override { return m_background; }
    [[nodiscard]] QColor canvasDefaultPenColor() const override { return m_pen; }

    void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) override;
    void setUserBackgroundStateOnItemsInList(bool background, QList<QGraphicsItem*> items) override;

    /// Prints the page, and one line for each item.
    void list(QTextStream& out) const;

private:
    Factory m_factory;
    QSizeF m_page;
    QColor m_background = Qt::white;
    QColor m_pen = Qt::black;
    std::vector<std::unique_ptr<Item>> m_items;
};
