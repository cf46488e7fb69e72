#pragma once

#include "host/class_factory.h"
#include "host/datasource_controller.h"
#include "host/tal_canvas_model.h"
#include "host/tal_datasource.h"
#include "tests/orvanta/fake_items.h"

#include <QHash>

#include <memory>
#include <vector>

/// A host that does nothing but write down what it is asked for.
namespace fake {

class Factory : public ClassFactory
{
public:
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;
    /// The name under which an item was made.
    [[nodiscard]] QString nameOf(const Item* item) const { return m_names.value(item); }

    /// Make nothing of these types.
    QList<KestTypes::ShapeType> refused;
    /// Make something else of these types than they name.
    QList<KestTypes::ShapeType> mistaken;
    /// The size of a symbol once its data is loaded.
    QSizeF symbolSize{10.0, 10.0};

private:
    QHash<const Item*, QString> m_names;
    int m_count = 0;
};

class Canvas : public TalCanvasModel
{
public:
    [[nodiscard]] ClassFactory* getClassFactory() override { return &factory; }
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

    /// Position of the N-th imported item, from 0.
    [[nodiscard]] QPointF positionOf(std::size_t index) const;

    Factory factory;
    std::vector<std::unique_ptr<Item>> items;
    QColor background{0x10, 0x20, 0x30};
    QColor pen{0x40, 0x50, 0x60};

private:
    [[nodiscard]] QString namesOf(const QList<QGraphicsItem*>& items) const;
};

class Datasource : public TalDatasource
{
public:
    explicit Datasource(int id);
    void setDatasourceProperty(const QString& name, const QVariant& value) override;
    [[nodiscard]] QList<QString> fields() const override;
    void setSelectedFields(const QList<QString>& fields) override;

private:
    QString m_name;
};

class Datasources : public DatasourceController
{
public:
    [[nodiscard]] int createDatasource(const QString& kind) override;
    [[nodiscard]] TalDatasource* getDatasource(int id) override;

    /// Make no source at all, but give identifiers.
    bool refusing = false;

private:
    std::vector<std::unique_ptr<Datasource>> m_sources;
};

/// What the symbol creator answers to a conversion.
bool& svgConverts();

} // namespace fake
