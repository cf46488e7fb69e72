// Every limit of saved labels with its largest accepted and first rejected value.

#include "limits/json/tree_size.h"
#include "workbench/document/document_limits.h"
#include "workbench/document/item_json_values.h"
#include "workbench/document/label_file.h"
#include "workbench/document/label_json.h"
#include "workbench/document/picture_pixels.h"

#include "sample_label.h"
#include "tests/support/encoded_picture.h"

#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;
using namespace workbench::document;
using fields::Json;

namespace {

QString openingOfFileOf(qint64 bytes)
{
    const QTemporaryDir folder;
    QFile file(folder.filePath(u"a.label"_s));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_TRUE(file.resize(bytes)); // a sparse file, which uses no disk space
    file.close();
    Canvas canvas;
    datasources::DatasourceController sources;
    return openLabel(file.fileName(), canvas, sources);
}

QJsonObject withItems(const QJsonArray& items)
{
    QJsonObject file = QJsonDocument::fromJson(toJson(sampleLabel())).object();
    file.remove(QLatin1String("checksum"));
    QJsonObject label = file[QLatin1String("label")].toObject();
    label[QLatin1String("items")] = items;
    file[QLatin1String("label")] = label;
    return file;
}

std::string refusalOf(const QJsonObject& file)
{
    return fromJson(QJsonDocument(file).toJson()).error.toStdString();
}

// The beginning of a picture, up to its size.
QJsonObject itemClaiming(quint32 width, quint32 height)
{
    QByteArray header = monoPng(1, 1);
    qToBigEndian(width, header.data() + 16);
    qToBigEndian(height, header.data() + 20);
    const QJsonObject image{{QLatin1String("png"), QString::fromLatin1(header.toBase64())}};
    return {{QLatin1String("picture"), QJsonObject{{QLatin1String("image"), image}}}};
}

bool isPicture(int width, int height)
{
    QImage read;
    return Json<QImage>::read(
        QJsonObject{{QLatin1String("png"), QString::fromLatin1(monoPng(width, height).toBase64())},
                    {QLatin1String("pixels"), QLatin1String("rgb")}},
        read);
}

TEST(LabelLimits, MeasureTheFile)
{
    const QString tooLarge = u"it is larger than any label"_s;
    EXPECT_FALSE(openingOfFileOf(limits::FileBytes).contains(tooLarge));
    EXPECT_TRUE(openingOfFileOf(limits::FileBytes + 1).contains(tooLarge));
}

TEST(LabelLimits, WaitForNoPipe)
{
    const QTemporaryDir folder;
    const QString pipe = folder.filePath(u"a.label"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    Canvas canvas;
    datasources::DatasourceController sources;
    EXPECT_TRUE(openLabel(pipe, canvas, sources).endsWith(u"it is not a regular file."));
}

TEST(LabelLimits, CountItems)
{
    QJsonArray items;
    for (qsizetype i = 0; i < limits::Items; ++i) {
        items.append(0);
    }
    EXPECT_EQ(refusalOf(withItems(items)),
              "The label file is damaged: items[0] is not a group of fields.");
    items.append(0);
    EXPECT_EQ(refusalOf(withItems(items)),
              "The label file is damaged: items is longer than 500000.");
}

// Parsing the largest accepted text takes gigabytes; the test therefore only measures it.
TEST(LabelLimits, MeasureTheParsersTree)
{
    const QByteArray lists = QByteArray("[[[[[[[[ ").repeated(1'840'000);
    const qint64 taken = jsonlimits::treeBytes(lists + "\"\"", limits::TreeBytes);
    const qint64 left = (limits::TreeBytes - taken) / 2; // a character takes two bytes
    const QByteArray most = lists + "\"" + QByteArray(left, 'x');
    ASSERT_LT(most.size(), limits::FileBytes);
    EXPECT_FALSE(jsonlimits::isLargerThan(most + "\"", limits::TreeBytes));
    EXPECT_EQ(fromJson(most + "x\"").error,
              u"The label file is damaged: it holds more than any label."_s);
}

TEST(LabelLimits, MeasureAPicturesSide)
{
    EXPECT_TRUE(isPicture(limits::PictureSide, 1));
    EXPECT_TRUE(isPicture(1, limits::PictureSide));
    EXPECT_FALSE(isPicture(limits::PictureSide + 1, 1));
    EXPECT_FALSE(isPicture(1, limits::PictureSide + 1));
}

TEST(LabelLimits, MeasureAPicturesArea)
{
    static_assert(limits::PicturePixels == 8192 * 4096);
    EXPECT_TRUE(isPicture(8192, 4096));
    EXPECT_FALSE(isPicture(8193, 4096));
}

TEST(LabelLimits, CountThePixelsOfAllPictures)
{
    static_assert(limits::AllPicturePixels == 2 * 15'000 * 5'000);
    const QJsonObject half = itemClaiming(15'000, 5'000);
    const QJsonObject most{{QLatin1String("items"), QJsonArray{half, half}}};
    EXPECT_EQ(claimedPixels(most), limits::AllPicturePixels);
    EXPECT_NE(refusalOf(withItems({half, half})),
              "The label file is damaged: its pictures are too large.");
    EXPECT_EQ(refusalOf(withItems({half, half, itemClaiming(1, 1)})),
              "The label file is damaged: its pictures are too large.");
    EXPECT_EQ(refusalOf(withItems({itemClaiming(0xFFFFFFFF, 0xFFFFFFFF)})),
              "The label file is damaged: its pictures are too large.");
}

TEST(LabelLimits, RefuseToSaveALabelThatCouldNotBeOpened)
{
    SavedLabel label = sampleLabel();
    qint64 pixels = pixelsOf(label);
    for (const ItemValues& item : sampleLabel().items) {
        if (item.picture) {
            pixels -= qint64{item.picture->image.width()} * item.picture->image.height();
        }
    }
    EXPECT_GT(pixelsOf(label), 0);
    EXPECT_EQ(pixels, 0);
    EXPECT_EQ(
        claimedPixels(
            QJsonDocument::fromJson(toJson(label)).object()[QLatin1String("label")].toObject()),
        pixelsOf(label));
}

} // namespace
