#pragma once

#include "host/class_factory.h"
#include "host/datasource_controller.h"
#include "host/items/item.h"
#include "host/tal_canvas_model.h"
#include "host/tal_datasource.h"

#include <memory>
#include <vector>

/// A host that takes everything and does nothing: what an import costs without a host.
/// The services are defined with it, in silent_services.cpp.
namespace silent {

/// What the symbol creator makes of a drawing; for tests of hosts that fail.
enum class SymbolConversion {
    Works,
    Fails,   ///< says that it cannot
    Forgets, ///< says that it can, and then has nothing
};
extern SymbolConversion symbolConversion;

class Factory : public ClassFactory
{
public:
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;
};

/// Owns the imported items until clear() or its end.
class Canvas : public TalCanvasModel
{
public:
    [[nodiscard]] ClassFactory* getClassFactory() override { return &m_factory; }
    void importItem(Item* item) override { m_items.emplace_back(item); }
    void importCanvasParameters(double /*width*/, double /*height*/, bool /*canvasFlag*/,
                                bool /*orientation*/) override
    {}
    void setCanvasBackgroundColor(const QColor& color) override { m_background = color; }
    void setCanvasDefaultPenColor(const QColor& color) override { m_pen = color; }
    [[nodiscard]] QColor canvasBackgroundColor() const override { return m_background; }
    [[nodiscard]] QColor canvasDefaultPenColor() const override { return m_pen; }
    void setReadOnlyStateOnItemsInList(bool /*readOnly*/, QList<QGraphicsItem*> /*items*/) override
    {}
    void setUserBackgroundStateOnItemsInList(bool /*background*/,
                                             QList<QGraphicsItem*> /*items*/) override
    {}
    void completeCanvasLoading() override {}

    [[nodiscard]] std::size_t itemCount() const { return m_items.size(); }
    [[nodiscard]] const std::vector<std::unique_ptr<Item>>& items() const { return m_items; }
    void clear() { m_items.clear(); }

private:
    Factory m_factory;
    std::vector<std::unique_ptr<Item>> m_items;
    QColor m_background = Qt::white;
    QColor m_pen = Qt::black;
};

class Datasource : public TalDatasource
{
public:
    void setDatasourceProperty(const QString& /*name*/, const QVariant& /*value*/) override {}
    [[nodiscard]] QList<QString> fields() const override { return {QStringLiteral("Value")}; }
    void setSelectedFields(const QList<QString>& /*fields*/) override {}
};

/// Gives every caller one and the same source.
class Datasources : public DatasourceController
{
public:
    [[nodiscard]] int createDatasource(const QString& /*kind*/) override { return 1; }
    [[nodiscard]] TalDatasource* getDatasource(int /*id*/) override { return &m_source; }

private:
    Datasource m_source;
};

} // namespace silent
