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

/// A host that writes every call into one journal, as "item1.setPenWidth 3", and keeps the
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

    /// Types that the factory refuses to make.
    QSet<int> refusedTypes;
    /// Types that the factory gives a picture for, whatever they are.
    QSet<int> confusedTypes;

    /// All calls so far.
    [[nodiscard]] const QStringList& journal() const { return m_journal; }
    /// The calls on one item, without its name. Items are counted from 1.
    [[nodiscard]] QStringList callsOn(int item) const;
    /// The argument of the last call of this name on an item; null when there was none.
    [[nodiscard]] QString lastCall(int item, const QString& name) const;
    /// Forgets the calls, not the items.
    void forgetCalls() { m_journal.clear(); }

    /// An item that was made and is still there, counted from 1 over all that were made.
    [[nodiscard]] QGraphicsItem* item(int number) const;
    [[nodiscard]] QString html(int number) const;
    /// How many items the canvas took.
    [[nodiscard]] int importedCount() const { return int(m_canvas.size()); }
    [[nodiscard]] int createdCount() const { return m_created; }
    /// The types that were asked for, by name, in order.
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

/// Numbers as the journal writes them.
[[nodiscard]] QString shown(double number);

/// What the host's services were called with, newest last; cleared by a new FakeHost.
[[nodiscard]] QStringList& serviceCalls();
