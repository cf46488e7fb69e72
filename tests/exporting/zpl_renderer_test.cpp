// Labels in ZPL as an independent renderer prints them. CTest installs it, see zpl_renderer/.

#include "exporting/zpl.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/import/label_import.h"
#include "workbench/rendering/page_image.h"

#include <QDirIterator>
#include <QFile>
#include <QHash>
#include <QProcess>
#include <QTemporaryDir>

#define ZX_USE_UTF8 1
#include <ZXing/ReadBarcode.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace {
using namespace exporting;
using namespace Qt::StringLiterals;

QString sample(const QString& name)
{
    return QStringLiteral(LABELPORT_SAMPLES "/") + name;
}

QStringList samples()
{
    QStringList names;
    QDirIterator files(sample(QString()),
                       {u"*.odt"_s, u"*.odg"_s, u"*.qmtx"_s, u"*.cnv"_s, u"*.roc"_s}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        names.append(files.next());
    }
    return names;
}

/// Renders all ZPL files of a folder as pictures.
void render(const QString& folder, int dotsPerMillimeter)
{
    QProcess node;
    node.start(u"node"_s, {QStringLiteral(LABELPORT_ZPL_RENDERER "/render.cjs"), folder,
                           QString::number(dotsPerMillimeter)});
    ASSERT_TRUE(node.waitForFinished(-1)) << "Node.js is missing";
    ASSERT_EQ(node.exitCode(), 0) << node.readAllStandardError().toStdString();
}

/// The text of the first barcode that is found in a picture; empty for none.
QString barcodeIn(const QImage& picture)
{
    const QImage gray = picture.convertToFormat(QImage::Format_Grayscale8);
    const ZXing::ImageView view(gray.constBits(), gray.width(), gray.height(),
                                ZXing::ImageFormat::Lum, static_cast<int>(gray.bytesPerLine()));
    ZXing::DecodeHints hints;
    hints.setTryHarder(true);
    hints.setTryRotate(true);
    return QString::fromStdString(ZXing::ReadBarcode(view, hints).text());
}

/// The text of the first barcode of a label's picture in colors; empty for none.
QString barcodeOf(const QString& file)
{
    constexpr double dpi = 300.0;
    static QHash<QString, QString> known;
    const auto found = known.constFind(file);
    if (found != known.constEnd()) {
        return *found;
    }
    const workbench::ImportResult label = workbench::importLabel(file);
    return *known.insert(file, barcodeIn(workbench::renderPage(*label.canvas, dpi).image));
}

struct Label
{
    QString file;
    QImage dots; ///< of the last record
};

/// Writes a label with its first records.
Label writeLabel(const QString& file, const QString& zpl, const OptionValues& options,
                 qint64 records = 1)
{
    workbench::ImportResult label = workbench::importLabel(file);
    EXPECT_TRUE(label.isImported()) << label.error.toStdString();
    const ExportJob job{*label.canvas, *label.datasources,         0, records, {},
                        options,       [](qint64) { return true; }};
    EXPECT_EQ(exportFile(Target::Zpl, job, zpl), QString());
    const int dpi = valueOf(options, Target::Zpl, DpiOption);
    return {file, labelDots(job, records - 1, dpi).dots};
}

/// The number of dots that differ.
int difference(const QImage& one, const QImage& other)
{
    const QImage a = one.convertToFormat(QImage::Format_Grayscale8);
    const QImage b = other.convertToFormat(QImage::Format_Grayscale8);
    if (a == b) {
        return 0;
    }
    int count = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            count += (a.constScanLine(y)[x] < 128) != (b.constScanLine(y)[x] < 128) ? 1 : 0;
        }
    }
    return count;
}

class RenderedZpl : public ::testing::TestWithParam<int>
{};

// The graphic fields are exact: each dot is printed, and no other. Scanners read the barcodes.
TEST_P(RenderedZpl, SamplesShowTheirPictures)
{
    const int dpi = GetParam();
    const QTemporaryDir folder;
    std::vector<Label> labels;
    for (const QString& file : samples()) {
        const QString zpl = folder.filePath(QString::number(labels.size()) + u".zpl"_s);
        labels.push_back(writeLabel(file, zpl, {{u"dpi"_s, dpi}}));
    }
    ASSERT_GT(labels.size(), 10U);
    render(folder.path(), dpi == 203 ? 8 : dpi / 25);
    int decoded = 0;
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const auto& [file, dots] = labels.at(index);
        SCOPED_TRACE(file.toStdString());
        const QImage printed(folder.filePath(u"%1-1.png"_s.arg(index)));
        ASSERT_EQ(printed.size(), dots.size());
        EXPECT_EQ(difference(printed, dots), 0);
        const QString barcode = barcodeOf(file);
        if (!barcode.isEmpty()) {
            ++decoded;
            EXPECT_EQ(barcodeIn(printed).toStdString(), barcode.toStdString());
        }
    }
    EXPECT_GE(decoded, 5) << "samples with a barcode that can be read";
}

INSTANTIATE_TEST_SUITE_P(Resolutions, RenderedZpl, ::testing::Values(203, 300, 600));

TEST(RenderedRecords, EachIsALabel)
{
    const QTemporaryDir folder;
    std::vector<Label> labels;
    for (const int count : {1, 2, 3}) {
        labels.push_back(writeLabel(sample(u"orvanta/asset_tag.qmtx"_s),
                                    folder.filePath(u"tag.zpl"_s), {{u"dpi"_s, 203}}, count));
    }
    render(folder.path(), 8);
    for (int record = 1; record <= 3; ++record) {
        const QImage printed(folder.filePath(u"tag-%1.png"_s.arg(record)));
        EXPECT_EQ(difference(printed, labels.at(static_cast<std::size_t>(record - 1)).dots), 0);
    }
}

// The printer's own barcodes have the same content and, with the lines, the same place.
TEST(RenderedNative, SamplesReadTheSame)
{
    const QTemporaryDir folder;
    std::vector<Label> labels;
    int fields = 0;
    for (const QString& file : samples()) {
        const QString zpl = folder.filePath(QString::number(labels.size()) + u".zpl"_s);
        const Label label = writeLabel(file, zpl, {{u"dpi"_s, 300}, {u"zpl-native"_s, true}});
        QFile written(zpl);
        ASSERT_TRUE(written.open(QIODevice::ReadOnly));
        const QByteArray bytes = written.readAll();
        const auto own = bytes.count("^BY") + bytes.count("^GB");
        fields += static_cast<int>(own);
        if (own > 0) {
            labels.push_back(label);
        } else { // only graphic fields, as without the option
            written.remove();
        }
    }
    EXPECT_GE(fields, 5);
    render(folder.path(), 12);
    for (std::size_t index = 0; index < labels.size(); ++index) {
        const auto& [file, dots] = labels.at(index);
        SCOPED_TRACE(file.toStdString());
        const QImage printed(folder.filePath(u"%1-1.png"_s.arg(index)));
        ASSERT_EQ(printed.size(), dots.size());
        EXPECT_LT(difference(printed, dots), dots.width() * dots.height() / 50);
        EXPECT_EQ(barcodeIn(printed).toStdString(), barcodeIn(dots).toStdString());
    }
}

struct NativeCode
{
    int symbology;
    const char* content;
    const char* read; ///< by the decoder
};

TEST(RenderedNative, EverySymbologyReadsTheSame)
{
    const QTemporaryDir folder;
    const std::vector<NativeCode> codes{
        {3, "12345678", "12345678"},
        {8, "AB-12 3", "AB-12 3"},
        {13, "400638133393", "4006381333931"},
        {14, "4006381333931", "4006381333931"},
        {20, "Ab 12345678", "Ab 12345678"},
        {58, "https://labels.example/7", "https://labels.example/7"},
        {60, "Abc123", "Abc123"},
    };
    for (std::size_t index = 0; index < codes.size(); ++index) {
        workbench::Canvas canvas;
        const workbench::datasources::DatasourceController sources;
        canvas.importCanvasParameters(288.0, 144.0, false, false);
        workbench::ItemValues code;
        code.type = KestTypes::Barcode;
        const bool isMatrix = codes.at(index).symbology == 58;
        code.box.size = isMatrix ? QSizeF(40.0, 40.0) : QSizeF(200.0, 80.0);
        code.placement.position = {40.0, 30.0};
        code.barcode = workbench::BarcodeValues();
        code.barcode->symbology = codes.at(index).symbology;
        code.barcode->content = QString::fromLatin1(codes.at(index).content);
        canvas.addItem(code);
        const QString zpl = folder.filePath(u"%1.zpl"_s.arg(index));
        ASSERT_EQ(
            exportFile(
                Target::Zpl,
                {canvas, sources, 0, 1, {}, {{u"zpl-native"_s, true}}, [](qint64) { return true; }},
                zpl),
            QString());
        QFile file(zpl);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_TRUE(file.readAll().contains("^BY")) << codes.at(index).symbology;
    }
    render(folder.path(), 12);
    for (std::size_t index = 0; index < codes.size(); ++index) {
        const QImage printed(folder.filePath(u"%1-1.png"_s.arg(index)));
        EXPECT_EQ(barcodeIn(printed).toStdString(), codes.at(index).read)
            << codes.at(index).symbology;
    }
}

} // namespace
