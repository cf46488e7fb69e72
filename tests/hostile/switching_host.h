#pragma once

#include "tests/hostile/many_labels.h"

#include "host/class_factory.h"
#include "host/datasource_controller.h"
#include "host/tal_canvas_model.h"
#include "importer/legacy_template_importer.h"
#include "recorder/recording_host.h"

#include <QBuffer>

#include <memory>

/// One canvas and one controller for an importer's whole life, with another recording host
/// behind them for every import: each import's trace stands alone, and what the last one
/// left is gone with its host.
class SwitchingHost
{
public:
    SwitchingHost();

    /// Imports a label and gives its trace.
    [[nodiscard]] QByteArray trace(LegacyTemplateImporter& importer, const Label& label);

private:
    class Factory : public ClassFactory
    {
    public:
        [[nodiscard]] Item* create(KestTypes::ShapeType type) override
        {
            return target->create(type);
        }
        ClassFactory* target = nullptr;
    };

    class Canvas : public TalCanvasModel
    {
    public:
        [[nodiscard]] ClassFactory* getClassFactory() override { return &factory; }
        void importItem(Item* item) override { target->importItem(item); }
        void importCanvasParameters(double width, double height, bool flag,
                                    bool orientation) override
        {
            target->importCanvasParameters(width, height, flag, orientation);
        }
        void setCanvasBackgroundColor(const QColor& color) override
        {
            target->setCanvasBackgroundColor(color);
        }
        void setCanvasDefaultPenColor(const QColor& color) override
        {
            target->setCanvasDefaultPenColor(color);
        }
        [[nodiscard]] QColor canvasBackgroundColor() const override
        {
            return target->canvasBackgroundColor();
        }
        [[nodiscard]] QColor canvasDefaultPenColor() const override
        {
            return target->canvasDefaultPenColor();
        }
        void setReadOnlyStateOnItemsInList(bool readOnly, QList<QGraphicsItem*> items) override
        {
            target->setReadOnlyStateOnItemsInList(readOnly, items);
        }
        void setUserBackgroundStateOnItemsInList(bool background,
                                                 QList<QGraphicsItem*> items) override
        {
            target->setUserBackgroundStateOnItemsInList(background, items);
        }
        void completeCanvasLoading() override { target->completeCanvasLoading(); }

        Factory factory;
        TalCanvasModel* target = nullptr;
    };

    class Datasources : public DatasourceController
    {
    public:
        [[nodiscard]] int createDatasource(const QString& kind) override
        {
            return target->createDatasource(kind);
        }
        [[nodiscard]] TalDatasource* getDatasource(int id) override
        {
            return target->getDatasource(id);
        }
        DatasourceController* target = nullptr;
    };

    QBuffer m_out;

public:
    Canvas canvas;
    Datasources datasources;
    recorder::IdleFileController files;
};
