// What bound items show, record by record.

#include "exporting/records_csv.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
using namespace exporting;
using namespace Qt::StringLiterals;

TEST(CsvLine, QuotesWhatNeedsIt)
{
    EXPECT_EQ(csvLine({u"1"_s, u"plain text"_s, QString()}), "1,plain text,\r\n");
    EXPECT_EQ(csvLine({u"a,b"_s, u"5\" pipe"_s, u"two\nlines"_s}),
              "\"a,b\",\"5\"\" pipe\",\"two\nlines\"\r\n");
    EXPECT_EQ(csvLine({u"Grüße"_s}), "Gr\xC3\xBC\xC3\x9F"
                                     "e\r\n");
}

workbench::ItemValues itemAt(KestTypes::ShapeType type, double y, int source)
{
    workbench::ItemValues values;
    values.type = type;
    values.box.size = {100.0, 20.0};
    values.placement.position = {10.0, y};
    values.placement.z = y;
    if (source >= 0) {
        values.datasource = workbench::DatasourceValues{source, {}};
    }
    return values;
}

TEST(RecordsCsv, HasAColumnForEachBoundItem)
{
    workbench::Canvas canvas;
    workbench::datasources::DatasourceController sources;
    canvas.importCanvasParameters(200.0, 200.0, false, false);
    const int counter = sources.createDatasource(u"SequenceDatasource"_s);
    sources.getDatasource(counter)->setDatasourceProperty(u"Prefix"_s, u"A,"_s);
    sources.getDatasource(counter)->setDatasourceProperty(u"Start"_s, 1);
    sources.getDatasource(counter)->setDatasourceProperty(u"End"_s, 9);
    auto code = itemAt(KestTypes::Barcode, 10.0, counter);
    code.barcode = workbench::BarcodeValues();
    canvas.addItem(code);
    canvas.addItem(itemAt(KestTypes::Rectangle, 40.0, -1));
    // Bound to a source that does not exist: shows its own text.
    auto text = itemAt(KestTypes::SimpleText, 70.0, 99);
    text.text = workbench::TextValues{u"own"_s, {}};
    canvas.addItem(text);

    const QTemporaryDir folder;
    const QString path = folder.filePath(u"records.csv"_s);
    ASSERT_EQ(
        exportFile(Target::Csv, {canvas, sources, 1, 2, {}, {}, [](qint64) { return true; }}, path),
        QString());
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "record,item-1,item-3\r\n2,\"A,2\",own\r\n3,\"A,3\",own\r\n");
}

} // namespace
