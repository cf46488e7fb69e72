#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"
#include "host/tal_canvas_model.h"

#include <QSizeF>

#include <memory>
#include <vector>

class QTextStream;

/// Makes an item of ours for each code of the contract.
class Factory : public ClassFactory
{
public:
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;
};

/// The open label: a page, and the items on it in the order in which they stack.
class Label : public TalCanvasModel
{
public:
    [[nodiscard]] ClassFactory* getClassFactory() override { return &m_factory; }

    void importCanvasParameters(double width, double height, bool canvasFlag,
                                bool orientation) override;
    /// The item is ours from here on. The importer may go on setting its properties, so a label
    /// is not to be looked at before completeCanvasLoading().
    void importItem(Item* item) override;
    void completeCanvasLoading() override {}

    // Importers give items these colours later: answer what was set.
    void setCanvasBackgroundColor(const QColor& color) override { m_background = color; }
    void setCanvasDefaultPenColor(const QColor& color) override { m_pen = color; }
    [[nodiscard]] QColor canvasBackgroundColor() const override { return m_background; }
    [[nodiscard]] QColor canvasDefaultPenColor() const override { return m_pen; }

    void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) override;
    void setUserBackgroundStateOnItemsInList(bool background, QList<QGraphicsItem*> items) override;

    /// Writes the page and, a line for each, the items.
    void list(QTextStream& out) const;

private:
    Factory m_factory;
    QSizeF m_page;
    QColor m_background = Qt::white;
    QColor m_pen = Qt::black;
    std::vector<std::unique_ptr<Item>> m_items;
};
