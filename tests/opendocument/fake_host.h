#pragma once

#include "host/class_factory.h"
#include "host/items/item.h"
#include "host/tal_canvas_model.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QSet>
#include <QStringList>

#include <memory>
#include <vector>

class QGraphicsItem;

/// A host that records every call in one journal, as "item1.setPenWidth 3", and keeps the
/// items. Numbers are written with at most six digits.
class FakeHost : public TalCanvasModel, public ClassFactory
{
public:
    FakeHost();
    ~FakeHost() override;

    [[nodiscard]] ClassFactory* getClassFactory() override { return this; }
    void importItem(Item* item) override;
    void importCanvasParameters(double width, double height, bool canvasFlag,
                                bool orientation) override;
    void setCanvasBackgroundColor(const QColor&) override {}
    void setCanvasDefaultPenColor(const QColor&) override {}
    [[nodiscard]] QColor canvasBackgroundColor() const override { return {}; }
    [[nodiscard]] QColor canvasDefaultPenColor() const override { return {}; }
    void setReadOnlyStateOnItemsInList(bool, QList<QGraphicsItem*>) override {}
    void setUserBackgroundStateOnItemsInList(bool, QList<QGraphicsItem*>) override {}
    void completeCanvasLoading() override;

    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;

    /// Types for which the factory returns null.
    QSet<int> refusedTypes;
    /// Types for which the factory returns a picture.
    QSet<int> confusedTypes;

    /// All calls so far.
    [[nodiscard]] const QStringList& journal() const { return m_journal; }
    /// The calls on one item, without its name. Items are counted from 1.
    [[nodiscard]] QStringList callsOn(int item) const;
    /// The argument of the last call of this name on an item; null if there was none.
    [[nodiscard]] QString lastCall(int item, const QString& name) const;
    /// Clears the calls, not the items.
    void forgetCalls() { m_journal.clear(); }

    /// An item that still exists; numbers count all created items from 1.
    [[nodiscard]] QGraphicsItem* item(int number) const;
    [[nodiscard]] QString html(int number) const;
    /// Number of items that were added to the canvas.
    [[nodiscard]] int importedCount() const { return int(m_canvas.size()); }
    [[nodiscard]] int createdCount() const { return m_created; }
    /// The names of the requested types, in order.
    [[nodiscard]] QStringList createdTypes() const { return m_types; }

    void note(const QString& call) { m_journal.append(call); }
    void forgetItem(int number) { m_items.remove(number); }

private:
    QStringList m_journal;
    QStringList m_types;
    QMap<int, QGraphicsItem*> m_items;
    QHash<const QGraphicsItem*, int> m_numbers;
    std::vector<std::unique_ptr<Item>> m_canvas;
    int m_created = 0;
};

/// Numbers in the format of the journal.
[[nodiscard]] QString shown(double number);

/// The calls to the host's services, newest last; cleared by a new FakeHost.
[[nodiscard]] QStringList& serviceCalls();
