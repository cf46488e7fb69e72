// Labels as commands of label printers. A decoder of its own reads the graphic fields back.

#include "exporting/zpl.h"
#include "exporting/zpl_graphic.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <QFile>
#include <QPainter>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <random>

namespace {
using namespace exporting;
using namespace Qt::StringLiterals;

QImage blankDots(int width, int height)
{
    QImage dots(width, height, QImage::Format_Mono);
    dots.setColorTable({qRgb(255, 255, 255), qRgb(0, 0, 0)});
    dots.fill(0);
    return dots;
}

/// The rows of compressed hexadecimal digits, as the language's manual defines them.
QList<QByteArray> expanded(const QByteArray& data, qsizetype digitsInRow)
{
    QList<QByteArray> rows;
    QByteArray row;
    int count = 0;
    for (const char letter : data) {
        if (letter >= 'G' && letter <= 'Y') {
            count += letter - 'G' + 1;
        } else if (letter >= 'g' && letter <= 'z') {
            count += 20 * (letter - 'g' + 1);
        } else if (letter == ':') {
            EXPECT_TRUE(row.isEmpty());
            row = rows.value(rows.size() - 1, QByteArray(digitsInRow, '0'));
        } else if (letter == ',') {
            row = row.leftJustified(digitsInRow, '0');
        } else {
            row += QByteArray(std::max(count, 1), letter);
            count = 0;
        }
        if (row.size() >= digitsInRow) {
            EXPECT_EQ(row.size(), digitsInRow) << "a row ends where its digits end";
            rows.append(row);
            row.clear();
        }
    }
    EXPECT_TRUE(row.isEmpty());
    return rows;
}

/// The dots that the graphic fields print.
QImage printed(const QByteArray& fields, const QSize& size)
{
    QImage dots = blankDots(size.width(), size.height());
    static const QRegularExpression field(
        u"\\^FO0,(\\d+)\\^GFA,(\\d+),(\\d+),(\\d+),([^^]*)\\^FS\n"_s);
    auto matches = field.globalMatch(QString::fromLatin1(fields));
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        const int bytesInRow = match.captured(4).toInt();
        EXPECT_EQ(bytesInRow, (size.width() + 7) / 8);
        EXPECT_EQ(match.captured(2), match.captured(3));
        EXPECT_LE(match.captured(3).toInt(), 99'999);
        const auto rows = expanded(match.captured(5).toLatin1(), 2 * bytesInRow);
        EXPECT_EQ(rows.size() * bytesInRow, match.captured(3).toInt());
        for (qsizetype row = 0; row < rows.size(); ++row) {
            const QByteArray bytes = QByteArray::fromHex(rows.at(row));
            std::copy(bytes.begin(), bytes.end(),
                      dots.scanLine(static_cast<int>(match.captured(1).toInt() + row)));
        }
    }
    return dots;
}

TEST(ZplGraphic, FieldsPrintTheDots)
{
    std::mt19937 random(7); // NOLINT: the same pictures in each run
    for (const QSize size : {QSize(1, 1), QSize(8, 3), QSize(13, 40), QSize(811, 300)}) {
        for (const unsigned density : {2U, 50U, 4000U}) {
            QImage dots = blankDots(size.width(), size.height());
            for (int y = 0; y < size.height(); ++y) {
                for (int x = 0; x < size.width(); ++x) {
                    dots.setPixel(x, y, random() % density == 0 ? 1 : 0);
                }
            }
            EXPECT_EQ(printed(graphicFields(dots), size), dots);
            dots.invertPixels();
            EXPECT_EQ(printed(graphicFields(dots), size), dots);
        }
    }
}

TEST(ZplGraphic, RunsOfEveryLengthAreReadBack)
{
    for (int length = 1; length <= 830; ++length) {
        QImage dots = blankDots(4 * 840, 1);
        for (int x = 0; x < 4 * length; x += 2) {
            dots.setPixel(x, 0, 1); // digits "A", which no row fills
        }
        EXPECT_EQ(printed(graphicFields(dots), dots.size()), dots) << length;
    }
}

TEST(ZplGraphic, EqualRowsTakeOneLetter)
{
    QImage dots = blankDots(800, 500);
    for (int y = 0; y < 500; ++y) {
        dots.setPixel(3, y, 1);
    }
    EXPECT_LT(graphicFields(dots).size(), 600);
}

TEST(ZplGraphic, LargePicturesTakeSeveralFields)
{
    QImage dots = blankDots(4000, 1000);
    dots.fill(1);
    EXPECT_EQ(graphicFields(dots).count("^GFA"), 6);
    EXPECT_EQ(printed(graphicFields(dots), dots.size()), dots);
}

TEST(ZplGraphic, BlankRowsAreNotSent)
{
    QImage dots = blankDots(80, 100);
    EXPECT_EQ(graphicFields(dots), QByteArray());
    dots.setPixel(0, 60, 1);
    EXPECT_EQ(graphicFields(dots), "^FO0,60^GFA,10,10,10,8,^FS\n");
}

/// The share of printed dots in a rectangle.
double inkIn(const QImage& dots, const QRect& area)
{
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y) {
        for (int x = area.left(); x <= area.right(); ++x) {
            count += dots.pixelIndex(x, y);
        }
    }
    return static_cast<double>(count) / area.width() / area.height();
}

TEST(PrinterDots, BlackAndWhiteStaySharp)
{
    QImage picture(60, 40, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF(10.3, 10.0, 20.0, 20.0), Qt::black);
    painter.end();
    QImage expected = blankDots(60, 40);
    for (int y = 10; y < 30; ++y) {
        for (int x = 10; x < 30; ++x) {
            expected.setPixel(x, y, 1);
        }
    }
    EXPECT_EQ(printerDots(picture), expected);
}

TEST(PrinterDots, TonesBecomePatternsOfTheirDensity)
{
    for (const int tone : {32, 64, 128, 192, 224}) {
        QImage picture(64, 64, QImage::Format_RGB32);
        picture.fill(qRgb(tone, tone, tone));
        EXPECT_NEAR(inkIn(printerDots(picture), picture.rect()), 1.0 - tone / 255.0, 0.04) << tone;
    }
}

// A threshold alone would lose it.
TEST(PrinterDots, LightTextIsNotLost)
{
    QImage picture(40, 40, QImage::Format_RGB32);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.fillRect(10, 5, 4, 30, QColor(190, 190, 190));
    painter.end();
    EXPECT_NEAR(inkIn(printerDots(picture), {10, 5, 4, 30}), 0.25, 0.1);
}

// Bars of a light color would be patterns of dots.
TEST(PrinterDots, BarcodesAreBlackAndWhite)
{
    QImage picture(60, 20, QImage::Format_RGB32);
    picture.fill(QColor(255, 255, 200));
    QPainter painter(&picture);
    for (int x = 5; x < 55; x += 10) {
        painter.fillRect(x, 2, 5, 16, QColor(200, 120, 90));
    }
    painter.end();
    const QImage dots = printerDots(picture, {QRect(0, 0, 60, 20)});
    EXPECT_EQ(inkIn(dots, {5, 2, 5, 16}), 1.0);
    EXPECT_EQ(inkIn(dots, {10, 2, 5, 16}), 0.0);
    EXPECT_LT(inkIn(printerDots(picture), {5, 2, 5, 16}), 1.0) << "only barcodes";
}

class ZplLabel : public ::testing::Test
{
protected:
    ZplLabel()
    {
        canvas.importCanvasParameters(144.0, 72.0, false, false);
        const int id = sources.createDatasource(u"SequenceDatasource"_s);
        TalDatasource* counter = sources.getDatasource(id);
        counter->setDatasourceProperty(u"Start"_s, 8);
        counter->setDatasourceProperty(u"End"_s, 30);
        workbench::ItemValues code;
        code.type = KestTypes::Barcode;
        code.box.size = {100.0, 50.0};
        code.placement.position = {10.0, 10.0};
        code.barcode = workbench::BarcodeValues();
        code.datasource = workbench::DatasourceValues{id, {}};
        canvas.addItem(code);
    }

    QString write(const OptionValues& options, qint64 first = 0, qint64 count = 1)
    {
        return exportFile(Target::Zpl,
                          {canvas, sources, first, count, u"label"_s, options, beforeRecord}, path);
    }

    QByteArray written() const
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"label.zpl"_s);
    workbench::Canvas canvas;
    workbench::datasources::DatasourceController sources;
    BeforeRecord beforeRecord = [](qint64) { return true; };
};

TEST_F(ZplLabel, HasTheSizeInDots)
{
    ASSERT_EQ(write({{u"dpi"_s, 203}}), QString());
    EXPECT_TRUE(written().startsWith("^XA^FXLabelPort^FS\n^PW407^LL204^LH0,0\n^FO0,"));
    EXPECT_TRUE(written().endsWith("^FS\n^PQ1^XZ\n"));
    ASSERT_EQ(write({{u"dpi"_s, 600}}), QString());
    EXPECT_TRUE(written().contains("^PW1200^LL600^LH0,0"));
    ASSERT_EQ(write({}), QString());
    EXPECT_TRUE(written().contains("^PW600^LL300^LH0,0"));
}

TEST_F(ZplLabel, ARecordIsALabelAndHasItsCopies)
{
    ASSERT_EQ(write({{u"copies"_s, 3}}, 1, 2), QString());
    const QByteArray both = written();
    EXPECT_EQ(both.count("^XA"), 2);
    EXPECT_EQ(both.count("^PQ3^XZ"), 2);
    const qsizetype end = both.indexOf("^XZ\n") + 4;
    EXPECT_NE(both.left(end), both.mid(end)) << "the counter advances";
}

TEST_F(ZplLabel, AStoppedExportWritesNothing)
{
    beforeRecord = [](qint64 done) { return done < 1; };
    EXPECT_EQ(write({}, 0, 5), QString());
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(ZplLabel, ReportsWhatCannotBeWritten)
{
    path = folder.filePath(u"missing/label.zpl"_s);
    EXPECT_TRUE(write({}).contains(u"missing/label.zpl"_s));
}

} // namespace
