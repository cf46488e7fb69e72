// Other tests rely on the writer's layouts, so each layout of each record is compared with
// literal bytes.

#include "tests/support/canvas_writer/canvas_writer.h"

#include <QDataStream>
#include <QIODevice>
#include <QPixmap>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr quint32 oldest = 2000016;
constexpr quint32 newest = 2000024;

// Hexadecimal digits with optional spaces; a quoted text is written in the stream's encoding, as
// its length and its UTF-16 units.
QByteArray bytesOf(const char* notation)
{
    QByteArray hex;
    bool quoted = false;
    QByteArray text;
    for (const char* c = notation; *c != 0; ++c) {
        if (*c != '\'') {
            (quoted ? text : hex).append(*c);
            continue;
        }
        if (quoted) {
            hex += QByteArray::number(0x100000000LL + text.size() * 2, 16).mid(1);
            for (const char unit : text) {
                hex += "00" + QByteArray(1, unit).toHex();
            }
            text.clear();
        }
        quoted = !quoted;
    }
    return QByteArray::fromHex(hex);
}

#define EXPECT_BYTES(writer, notation)                                                             \
    EXPECT_EQ((writer).bytes().toHex(' ').toStdString(), bytesOf(notation).toHex(' ').toStdString())

TEST(CanvasWriterNotation, ReadsHexadecimalAndTexts)
{
    EXPECT_EQ(bytesOf("00 01ff 'A1' 02"), QByteArray::fromHex("0001ff 00000004 0041 0031 02"));
    EXPECT_EQ(bytesOf("''"), QByteArray::fromHex("00000000"));
}

TEST(CanvasWriter, WritesTheFileHeader)
{
    canvas::FileHeader header;
    header.leadingWord = 7;
    EXPECT_BYTES(CanvasWriter(oldest).add(header), "00000007 001e8490 00000000");
    EXPECT_BYTES(CanvasWriter(newest).add(header), "00000007 001e8498 00000000");
    EXPECT_BYTES(CanvasWriter(5).add(header), "00000007 00000005 00000000");
}

TEST(CanvasWriter, WritesAPreviewAsPng)
{
    canvas::FileHeader header;
    header.preview = QImage(1, 1, QImage::Format_RGB32);
    header.preview.fill(Qt::red);
    const QByteArray bytes = CanvasWriter(newest).add(header).bytes();
    EXPECT_EQ(bytes.mid(8, 12), QByteArray::fromHex("00000001 89504e470d0a1a0a"));
    EXPECT_EQ(bytes.right(8), QByteArray::fromHex("49454e44ae426082"));
}

canvas::CanvasRecord conspicuousCanvas()
{
    canvas::CanvasRecord record;
    record.unusedFlag = true;
    record.labelType = 5;
    record.ribbonType = 6;
    record.unusedText1 = u"a"_s;
    record.canvasFlag = true;
    record.orientation = 2;
    record.unusedValue = -1;
    record.unusedSize1 = {1.0, 2.0};
    record.unusedSize2 = {0.5, 0.0};
    record.resolutionX = 300.0;
    record.resolutionY = 600.0;
    return record;
}

const char* const canvasRest = "00000005 00000006 'a' ffffffff 01 00000002 ffffffff 00"
                               "3ff0000000000000 4000000000000000"
                               "3fe0000000000000 0000000000000000";

TEST(CanvasWriter, WritesTheCanvasInDots)
{
    canvas::CanvasRecord record = conspicuousCanvas();
    record.height = 600;
    record.width = 610;
    for (const quint32 version : {2000016U, 2000018U}) {
        EXPECT_BYTES(CanvasWriter(version).add(record),
                     (QByteArray("01 00000258 00000262") + canvasRest).constData());
    }
}

TEST(CanvasWriter, WritesTheCanvasInInches)
{
    canvas::CanvasRecord record = conspicuousCanvas();
    record.height = 2.0;
    record.width = 3.0;
    const QByteArray inches = QByteArray("01 4000000000000000 4008000000000000") + canvasRest;
    for (const quint32 version : {2000019U, 2000023U}) {
        EXPECT_BYTES(CanvasWriter(version).add(record), inches.constData());
    }
    EXPECT_BYTES(CanvasWriter(2000024).add(record),
                 (inches + "4072c00000000000 4082c00000000000").constData());
}

TEST(CanvasWriter, HasTheSameDefaultSizeInDotsAndInches)
{
    EXPECT_EQ(CanvasWriter(2000018).add(canvas::CanvasRecord()).bytes().mid(1, 8),
              QByteArray::fromHex("00000258 00000393"));
    EXPECT_EQ(CanvasWriter(2000019).add(canvas::CanvasRecord()).bytes().mid(1, 16),
              QByteArray::fromHex("4000000000000000 4008000000000000"));
}

TEST(CanvasWriter, WritesSequenceSettings)
{
    const canvas::SequenceRecord record = {1, 99, 2, 4, u"P"_s, QString(), 7};
    const QByteArray old = "00000001 00000063 00000002 00000004 'P' ffffffff";
    EXPECT_BYTES(CanvasWriter(2000016).add(record), old.constData());
    EXPECT_BYTES(CanvasWriter(2000019).add(record), old.constData());
    EXPECT_BYTES(CanvasWriter(2000020).add(record), (old + "00000007").constData());
    EXPECT_BYTES(CanvasWriter(2000024).add(record), (old + "00000007").constData());
}

TEST(CanvasWriter, WritesTheDatabaseList)
{
    canvas::DatabaseList list;
    EXPECT_BYTES(CanvasWriter(newest).add(list), "00000000 00000000 00000000 00000000");

    list = {1, 2, 1, {{u"a"_s, 3}, {u"b/c"_s, -1}}, std::nullopt};
    const QByteArray entries = "'a' 00000003 'b/c' ffffffff";
    EXPECT_BYTES(CanvasWriter(newest).add(list),
                 ("00000001 00000002 00000001 00000002" + entries).constData());
    list.claimedCount = -5;
    EXPECT_BYTES(CanvasWriter(newest).add(list),
                 ("00000001 00000002 00000001 fffffffb" + entries).constData());
}

canvas::ItemHeader conspicuousHeader()
{
    return {true, 0.5, 1.0, 2.0, 90.0, u"1/2"_s, u"3"_s};
}

const QByteArray headerBytes = "01 3fe0000000000000 3ff0000000000000 4000000000000000"
                               "4056800000000000 '1/2' '3'";

TEST(CanvasWriter, WritesAShape)
{
    canvas::ShapeRecord record;
    record.header = conspicuousHeader();
    record.lineWidth = 10;
    record.penStyle = 2;
    record.fillMode = 1;
    record.name = u"Oval"_s;
    for (const quint32 version : {oldest, newest}) {
        EXPECT_BYTES(CanvasWriter(version).add(record),
                     ("00010002" + headerBytes + "0000000a 00000002 00000001 'Oval'").constData());
    }
}

TEST(CanvasWriter, WritesAPictureAsAPixmap)
{
    QImage image(2, 1, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    image.setPixelColor(1, 0, Qt::blue);
    QByteArray pixmap;
    QDataStream stream(&pixmap, QIODevice::WriteOnly);
    stream << QPixmap::fromImage(image);

    canvas::PictureRecord record;
    record.header = conspicuousHeader();
    record.picture = QPixmap::fromImage(image).toImage();
    const QByteArray before = bytesOf(("00010004" + headerBytes).constData());
    for (const quint32 version : {oldest, newest}) {
        const QByteArray bytes = CanvasWriter(version).add(record).bytes();
        EXPECT_EQ(bytes.left(before.size()), before);
        EXPECT_EQ(bytes.mid(before.size()), pixmap);
    }
    record.picture = QImage();
    EXPECT_BYTES(CanvasWriter(newest).add(record),
                 ("00010004" + headerBytes + "00000000").constData());
}

TEST(CanvasWriter, WritesASymbol)
{
    canvas::SymbolRecord record;
    record.header = conspicuousHeader();
    record.name = u"x.svg"_s;
    record.svg = "<svg/>";
    const QByteArray old = "00010001" + headerBytes + "'x.svg'";
    EXPECT_BYTES(CanvasWriter(oldest).add(record), old.constData());
    EXPECT_BYTES(CanvasWriter(2000022).add(record), old.constData());
    EXPECT_BYTES(CanvasWriter(2000023).add(record), (old + "00000006 3c7376672f3e").constData());
    record.svg.clear();
    EXPECT_BYTES(CanvasWriter(2000024).add(record), (old + "ffffffff").constData());
}

TEST(CanvasWriter, WritesABarcodeInBothLayouts)
{
    canvas::BarcodeRecord record;
    record.header = conspicuousHeader();
    record.content = u"123"_s;
    record.datasourceText = u"t"_s;
    record.datasourceKey = u"_ROW"_s;
    record.symbology = 20;
    record.unusedFlag = true;
    record.unusedText = u"u"_s;
    record.moduleWidth = 7;
    record.textPlacement = 2;
    record.flag1 = true;
    record.flag3 = true;
    record.numericText = u"9"_s;
    record.value1 = 10;
    record.value2 = 11;
    record.unusedValue = 12;
    const QByteArray look = "01 'u' 00000007 00000002 01 00 01 00 '9' 0000000a 0000000b 0000000c";
    const QByteArray old = headerBytes + "'_ROW' 00000014 '123'" + look + "'t'";
    const QByteArray later = headerBytes + "'123' 't' '_ROW' 00000014" + look;
    EXPECT_BYTES(CanvasWriter(2000016).add(record), ("00010003" + old).constData());
    EXPECT_BYTES(CanvasWriter(2000021).add(record), ("00010003" + old).constData());
    EXPECT_BYTES(CanvasWriter(2000022).add(record), ("00010003" + later).constData());
    EXPECT_BYTES(CanvasWriter(2000024).add(record, canvas::TwoDimensionalBarcodeCode),
                 ("00010006" + later).constData());
}

canvas::TextRecord conspicuousText()
{
    canvas::TextRecord record;
    record.header = conspicuousHeader();
    record.fixedWidth = 1.0;
    record.fixedHeight = 2.0;
    record.content = u"Hi"_s;
    record.datasourceText = u"t"_s;
    record.datasourceKey = u"k"_s;
    record.lineWidth = 3;
    record.penStyle = 4;
    record.unusedText = u"u"_s;
    record.fontSize = 50;
    record.styleFlag1 = true;
    record.styleFlag3 = true;
    record.alignment = 2;
    record.inverse = true;
    record.optionA = true;
    record.optionAFirst = false;
    record.optionB = true;
    record.fontSizeAgain = 25;
    record.unusedValue1 = 8;
    record.unusedValue2 = 9;
    return record;
}

TEST(CanvasWriter, WritesATextInEveryLayout)
{
    const QByteArray fixed = "3ff0000000000000 4000000000000000";
    const QByteArray pen = "00000003 00000004 'u' 00000032 01 00 01";
    const QByteArray end = "00000002 01 00";
    const QByteArray options = "00 01 01";
    const QByteArray oldContent = pen + "'Hi'" + end;
    const QByteArray newContent = "'Hi' 't' 'k'" + fixed + pen + end + options + "00000019";
    struct
    {
        quint32 version;
        QByteArray fields;
    } const cases[] = {
        {2000016, "'k'" + oldContent},
        {2000017, "'k'" + oldContent},
        {2000018, fixed + "'k'" + oldContent},
        {2000019, fixed + "'k'" + oldContent},
        {2000020, fixed + "'k'" + oldContent + options},
        {2000021, fixed + "'k'" + oldContent + options + "00000019"},
        {2000022, newContent},
        {2000023, newContent + "00000008 00000009"},
        {2000024, newContent + "00000008 00000009"},
    };
    for (const auto& row : cases) {
        SCOPED_TRACE(row.version);
        EXPECT_BYTES(CanvasWriter(row.version).add(conspicuousText()),
                     ("00010000" + headerBytes + row.fields).constData());
    }
}

TEST(CanvasWriter, RepeatsOptionAndFontSizeWhenTheyAreNotSetApart)
{
    canvas::TextRecord record = conspicuousText();
    record.optionAFirst.reset();
    record.fontSizeAgain.reset();
    const QByteArray bytes = CanvasWriter(2000022).add(record).bytes();
    EXPECT_EQ(bytes.right(7), QByteArray::fromHex("010101 00000032"));
}

TEST(CanvasWriter, StartsAFileWithAllRecordsBeforeTheItems)
{
    for (quint32 version = oldest; version <= newest; ++version) {
        CanvasWriter parts(version);
        parts.add(canvas::FileHeader())
            .add(canvas::CanvasRecord())
            .add(canvas::SequenceRecord())
            .add(canvas::DatabaseList());
        EXPECT_EQ(CanvasWriter(version).start().bytes(), parts.bytes());
    }
}

TEST(CanvasWriter, WritesWhatNoFileShouldHold)
{
    EXPECT_BYTES(CanvasWriter(newest).code(canvas::EmptyCode).code(-1), "00010005 ffffffff");
    EXPECT_BYTES(CanvasWriter(newest).raw(QByteArray::fromHex("00ff00")), "00ff00");
    EXPECT_BYTES(CanvasWriter(newest).put(qint32(1)).put(0.5).put(true),
                 "00000001 3fe0000000000000 01");
    EXPECT_BYTES(CanvasWriter(newest).claim(0x80000000U, "ab"), "80000000 6162");
}

} // namespace
