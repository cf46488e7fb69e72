#pragma once

#include "host/class_factory.h"
#include "host/datasource_controller.h"
#include "host/items/item.h"
#include "host/kest_types.h"
#include "host/tal_canvas_model.h"
#include "host/tal_datasource.h"
#include "tests/tavrel/call_list.h"

#include <QGraphicsItem>
#include <QSet>

#include <map>
#include <memory>
#include <vector>

namespace tavrel_test {

class FakeFactory : public ClassFactory
{
public:
    explicit FakeFactory(CallList& calls)
        : m_calls(calls)
    {}

    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;

    QSet<int> refusedTypes;    ///< codes for which it returns no item
    QSet<int> mismatchedTypes; ///< codes for which it returns an item of another class

private:
    CallList& m_calls;
    int m_created = 0;
};

/// A canvas that stores its values and records the calls. White with a black pen
/// until changed.
class FakeCanvas : public TalCanvasModel
{
public:
    explicit FakeCanvas(CallList& calls);

    [[nodiscard]] ClassFactory* getClassFactory() override { return &factory; }
    void importItem(Item* item) override;
    void importCanvasParameters(double width, double height, bool canvasFlag,
                                bool orientation) override;
    void setCanvasBackgroundColor(const QColor& color) override;
    void setCanvasDefaultPenColor(const QColor& color) override;
    [[nodiscard]] QColor canvasBackgroundColor() const override { return m_background; }
    [[nodiscard]] QColor canvasDefaultPenColor() const override { return m_pen; }
    void setReadOnlyStateOnItemsInList(bool /*readOnly*/, QList<QGraphicsItem*> /*items*/) override
    {}
    void setUserBackgroundStateOnItemsInList(bool /*background*/,
                                             QList<QGraphicsItem*> /*items*/) override
    {}
    void completeCanvasLoading() override;

    [[nodiscard]] std::size_t itemCount() const { return m_items.size(); }
    /// The imported item of this number, from 0.
    [[nodiscard]] QGraphicsItem* item(std::size_t number) const;
    void clear() { m_items.clear(); }

    FakeFactory factory;

private:
    CallList& m_calls;
    std::vector<std::unique_ptr<Item>> m_items;
    QColor m_background = Qt::white;
    QColor m_pen = Qt::black;
};

class FakeDatasources : public DatasourceController
{
public:
    explicit FakeDatasources(CallList& calls)
        : m_calls(calls)
    {}

    [[nodiscard]] int createDatasource(const QString& kind) override;
    [[nodiscard]] TalDatasource* getDatasource(int id) override;

    bool forgetsSources = false; ///< has no source for the identifiers that it returned

private:
    CallList& m_calls;
    std::map<int, std::unique_ptr<TalDatasource>> m_sources;
};

/// The complete host.
struct FakeHost
{
    CallList calls;
    FakeCanvas canvas{calls};
    FakeDatasources datasources{calls};
};

} // namespace tavrel_test
