#pragma once

#include "exporting/glabels_export.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

/// A label that is exported to gLabels.
class Glabels : public testing::Test
{
protected:
    static workbench::ItemValues itemOf(KestTypes::ShapeType type, const QSizeF& size = {40, 20})
    {
        workbench::ItemValues values;
        values.type = type;
        values.box.size = size;
        values.placement.position = {10, 20};
        return values;
    }

    static workbench::ItemValues shapeOf(KestTypes::ShapeType type)
    {
        workbench::ItemValues values = itemOf(type);
        values.pen = workbench::PenValues{Qt::red, 2.0};
        values.fill = workbench::FillValues{QColor(0, 255, 0, 128)};
        return values;
    }

    static workbench::ItemValues textOf(const QString& text)
    {
        workbench::ItemValues values = itemOf(KestTypes::SimpleText, {200, 20});
        values.pen = workbench::PenValues{Qt::black, 1.0, Qt::NoPen};
        values.fill = workbench::FillValues();
        values.font = workbench::FontValues{u"Liberation Sans"_s, 10, true};
        values.textStyle = workbench::TextStyleValues{Qt::blue, Qt::AlignRight | Qt::AlignBottom};
        values.text = workbench::TextValues{text, {}};
        values.textLabel = workbench::TextLabelValues{{200, 20}};
        return values;
    }

    static workbench::ItemValues barcodeOf(int symbology, const QString& content)
    {
        workbench::ItemValues values = itemOf(KestTypes::Barcode, {160, 60});
        values.barcode = workbench::BarcodeValues();
        values.barcode->symbology = symbology;
        values.barcode->content = content;
        return values;
    }

    int addCounter(int end)
    {
        const int id = sources.createDatasource(u"SequenceDatasource"_s);
        sources.getDatasource(id)->setDatasourceProperty(u"Start"_s, 1);
        sources.getDatasource(id)->setDatasourceProperty(u"End"_s, end);
        return id;
    }

    int addList(const QStringList& texts)
    {
        const int id = sources.createDatasource(u"TextListDatasource"_s);
        sources.getDatasource(id)->setDatasourceProperty(u"TextList"_s, texts);
        return id;
    }

    void addBound(workbench::ItemValues values, int id)
    {
        values.datasource = workbench::DatasourceValues{id, {}};
        canvas.addItem(values);
    }

    exporting::GlabelsLabel write(const std::optional<printing::Sheet>& sheet = {})
    {
        canvas.showRecord(0, [this](int id, qint64 record, const QStringList& fields) {
            return sources.recordText(id, record, fields);
        });
        exporting::GlabelsLabel label =
            exporting::toGlabels(canvas, sources, {u"asset"_s, u"asset.csv"_s, sheet});
        QXmlStreamReader reader(label.label);
        while (!reader.atEnd()) {
            reader.readNext();
        }
        EXPECT_FALSE(reader.hasError()) << reader.errorString().toStdString();
        return label;
    }

    std::string xml(const std::optional<printing::Sheet>& sheet = {})
    {
        return write(sheet).label.toStdString();
    }

    exporting::Fidelity onlyFidelity()
    {
        const QList<exporting::ExportFinding> findings = write().findings.all();
        EXPECT_EQ(findings.size(), 1);
        return findings.value(0).fidelity;
    }

    workbench::Canvas canvas;
    workbench::datasources::DatasourceController sources;
};
