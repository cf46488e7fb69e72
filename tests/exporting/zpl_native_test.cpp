// What of a label a printer draws itself.

#include "exporting/zpl_graphic.h"
#include "exporting/zpl_native.h"
#include "exporting/zpl_serial.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/rendering/page_image.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {
using namespace exporting;
using namespace Qt::StringLiterals;
using workbench::ItemValues;

TEST(Serialization, CountsTheLastDigitsThatChange)
{
    EXPECT_EQ(serialization({u"A007"_s, u"A008"_s, u"A009"_s, u"A010"_s}), "%ddd,1");
    EXPECT_EQ(serialization({u"10 kg"_s, u"15 kg"_s, u"20 kg"_s}), "dd%%%,5%%%");
    EXPECT_EQ(serialization({u"2-098/B"_s, u"2-100/B"_s}), "%%ddd%%,2%%");
}

TEST(Serialization, NeedsAFixedNumberOfDigits)
{
    EXPECT_EQ(serialization({u"9"_s, u"10"_s}), QByteArray());
    EXPECT_EQ(serialization({u"a"_s, u"b"_s}), QByteArray());
    EXPECT_EQ(serialization({u"5"_s, u"4"_s}), QByteArray()) << "counts down";
    EXPECT_EQ(serialization({u"1"_s, u"2"_s, u"4"_s}), QByteArray());
    EXPECT_EQ(serialization({u"A1"_s, u"B2"_s}), QByteArray());
    EXPECT_EQ(serialization({u"7"_s, u"7"_s}), QByteArray());
    EXPECT_EQ(serialization({u"7"_s}), QByteArray());
    EXPECT_EQ(serialization({u"1234567890123"_s, u"1234567890124"_s}), QByteArray());
}

ItemValues barcodeAt(const QPointF& position, const QString& content, int symbology)
{
    ItemValues values;
    values.type = KestTypes::Barcode;
    values.box.size = {120.0, 40.0};
    values.placement.position = position;
    values.barcode = workbench::BarcodeValues();
    values.barcode->symbology = symbology;
    values.barcode->content = content;
    return values;
}

ItemValues lineAt(const QPointF& position, const QPointF& end)
{
    ItemValues values;
    values.type = KestTypes::Line;
    values.placement.position = position;
    values.pen = workbench::PenValues();
    values.pen->width = 2.0;
    values.line = workbench::LineValues{end, 0, 0};
    return values;
}

class NativeZpl : public ::testing::Test
{
protected:
    NativeZpl() { canvas.importCanvasParameters(288.0, 144.0, false, false); }

    NativeLabel native(qint64 records = 1)
    {
        showRecord(canvas, sources, 0);
        const double dpi = 300.0;
        dots = printerDots(workbench::renderPage(canvas, dpi).image);
        const ExportJob job{canvas, sources, 0, records, {}, {}, [](qint64) { return true; }};
        return nativeLabel(job, 0, dots, dpi / 72.0);
    }

    int addCounter(int start, int end)
    {
        const int id = sources.createDatasource(u"SequenceDatasource"_s);
        TalDatasource* counter = sources.getDatasource(id);
        counter->setDatasourceProperty(u"Start"_s, start);
        counter->setDatasourceProperty(u"End"_s, end);
        return id;
    }

    QImage dots;
    workbench::Canvas canvas;
    workbench::datasources::DatasourceController sources;
};

TEST_F(NativeZpl, UprightLinesAreBoxes)
{
    canvas.addItem(lineAt({24.0, 48.0}, {72.0, 0.0}));
    canvas.addItem(lineAt({120.0, 24.0}, {0.0, 48.0}));
    const NativeLabel label = native();
    EXPECT_TRUE(label.fields.contains("^FO100,196^GB300,8,8^FS\n")) << label.fields.toStdString();
    EXPECT_TRUE(label.fields.contains("^FO496,100^GB8,200,8^FS\n")) << label.fields.toStdString();
    EXPECT_EQ(graphicFields(label.rest), QByteArray());
}

TEST_F(NativeZpl, SlantedDashedAndCoveredLinesStayInThePicture)
{
    canvas.addItem(lineAt({24.0, 20.0}, {72.0, 30.0}));
    ItemValues dashed = lineAt({24.0, 70.0}, {72.0, 0.0});
    dashed.pen->style = Qt::DashLine;
    canvas.addItem(dashed);
    canvas.addItem(lineAt({24.0, 100.0}, {72.0, 0.0}));
    ItemValues cover;
    cover.type = KestTypes::Rectangle;
    cover.box.size = {20.0, 20.0};
    cover.placement.position = {40.0, 90.0};
    cover.placement.z = 5.0;
    cover.fill = workbench::FillValues{Qt::white, true, Qt::SolidPattern};
    cover.pen = workbench::PenValues();
    cover.pen->color = Qt::white;
    canvas.addItem(cover);
    const NativeLabel label = native();
    EXPECT_EQ(label.fields, QByteArray());
    EXPECT_EQ(label.rest, dots);
}

TEST_F(NativeZpl, BarcodesHaveModulesOfWholeDots)
{
    ItemValues code = barcodeAt({24.0, 24.0}, u"AB123456"_s, 20);
    code.barcode->flag3 = false;
    canvas.addItem(code);
    const NativeLabel label = native();
    EXPECT_TRUE(label.fields.contains("^BY4,")) << label.fields.toStdString();
    EXPECT_TRUE(label.fields.contains("^BCN,167,N,N,N,A^FDAB123456^FS\n"))
        << label.fields.toStdString();
    EXPECT_EQ(graphicFields(label.rest), QByteArray());
}

TEST_F(NativeZpl, CaptionsStayInThePicture)
{
    canvas.addItem(barcodeAt({24.0, 24.0}, u"AB123456"_s, 20));
    const NativeLabel label = native();
    EXPECT_TRUE(label.fields.contains("^BCN,")) << label.fields.toStdString();
    EXPECT_NE(graphicFields(label.rest), QByteArray());
}

TEST_F(NativeZpl, OtherBarcodesStayInThePicture)
{
    ItemValues rotated = barcodeAt({24.0, 50.0}, u"AB1234"_s, 20);
    rotated.box.rotation = 30.0;
    canvas.addItem(rotated);
    EXPECT_EQ(native().fields, QByteArray());
    canvas.clear();
    canvas.importCanvasParameters(288.0, 144.0, false, false);
    for (const QString& content :
         {u"a^XZ"_s, u"a~b"_s, u"x>8y"_s, u"_5E"_s, u"Gr\u00FC\u00DFe"_s}) {
        canvas.addItem(barcodeAt({24.0, 24.0}, content, 20));
        EXPECT_EQ(native().fields, QByteArray()) << content.toStdString();
        canvas.clear();
        canvas.importCanvasParameters(288.0, 144.0, false, false);
    }
    canvas.addItem(barcodeAt({24.0, 24.0}, u"12345"_s, 34));
    EXPECT_EQ(native().fields, QByteArray()) << "a symbology without a command";
}

TEST_F(NativeZpl, CountersOfAFixedLengthAreSerialized)
{
    const int id = addCounter(101, 150);
    ItemValues code = barcodeAt({24.0, 24.0}, QString(), 20);
    code.datasource = workbench::DatasourceValues{id, {}};
    code.barcode->flag3 = false;
    canvas.addItem(code);
    ItemValues text;
    text.type = KestTypes::SimpleText;
    text.box.size = {100.0, 20.0};
    text.placement.position = {24.0, 80.0};
    text.text = workbench::TextValues{u"own"_s, {}};
    text.textStyle = workbench::TextStyleValues();
    text.font = workbench::FontValues();
    text.datasource = workbench::DatasourceValues{id, {}};
    canvas.addItem(text);
    const NativeLabel label = native(20);
    EXPECT_TRUE(label.isSerial);
    EXPECT_TRUE(label.fields.contains("^FD101^SFddd,1^FS\n")) << label.fields.toStdString();
    EXPECT_TRUE(label.fields.contains("^A0N,")) << label.fields.toStdString();
    EXPECT_EQ(graphicFields(label.rest), QByteArray());
}

// A caption in the picture would not count.
TEST_F(NativeZpl, ThePrinterWritesCaptionsThatCount)
{
    ItemValues code = barcodeAt({24.0, 24.0}, QString(), 20);
    code.datasource = workbench::DatasourceValues{addCounter(101, 150), {}};
    canvas.addItem(code);
    const NativeLabel label = native(20);
    EXPECT_TRUE(label.isSerial);
    EXPECT_TRUE(label.fields.contains(",Y,N,N,A^FD101^SFddd,1^FS")) << label.fields.toStdString();
    EXPECT_EQ(graphicFields(label.rest), QByteArray());
}

TEST_F(NativeZpl, OtherCountersAreLabelsOfTheirOwn)
{
    ItemValues code = barcodeAt({24.0, 24.0}, QString(), 20);
    code.datasource = workbench::DatasourceValues{addCounter(8, 30), {}};
    canvas.addItem(code);
    const NativeLabel label = native(20);
    EXPECT_FALSE(label.isSerial);
    EXPECT_TRUE(label.fields.contains("^FD8^FS")) << label.fields.toStdString();
}

TEST_F(NativeZpl, OneLabelCountsForAllRecordsAndCopies)
{
    ItemValues code = barcodeAt({24.0, 24.0}, QString(), 20);
    code.barcode->flag3 = false;
    code.datasource = workbench::DatasourceValues{addCounter(101, 150), {}};
    canvas.addItem(code);
    const QTemporaryDir folder;
    const auto write = [&](qint64 first, qint64 count) {
        const QString path = folder.filePath(u"x.zpl"_s);
        const OptionValues options{{u"zpl-native"_s, true}, {u"copies"_s, 2}};
        EXPECT_EQ(
            exportFile(Target::Zpl,
                       {canvas, sources, first, count, {}, options, [](qint64) { return true; }},
                       path),
            QString());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    const QByteArray serial = write(4, 20);
    EXPECT_EQ(serial.count("^XA"), 1);
    EXPECT_TRUE(serial.contains("^FD105^SFddd,1^FS")) << serial.toStdString();
    EXPECT_TRUE(serial.endsWith("^PQ40,0,2^XZ\n")) << serial.toStdString();
    EXPECT_TRUE(write(4, 1).endsWith("^PQ2^XZ\n"));
}

} // namespace
