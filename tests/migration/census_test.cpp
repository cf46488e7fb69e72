// The counts of binary and XML labels and of saved ones.

#include "migration/census/counting.h"
#include "tests/migration/documents.h"
#include "tests/support/canvas_writer/canvas_writer.h"

#include <gtest/gtest.h>

#include <QFile>

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

std::array<qint64, ObjectClasses> countsOf(const Census& census)
{
    std::array<qint64, ObjectClasses> counts{};
    for (const CountedObject& object : census.objects) {
        ++counts[static_cast<std::size_t>(object.objectClass)];
    }
    return counts;
}

QByteArray canvasOfAll(quint32 version)
{
    CanvasWriter writer(version);
    canvas::FileHeader header;
    header.preview = QImage(3, 3, QImage::Format_RGB32);
    header.preview.fill(Qt::blue);
    canvas::DatabaseList databases;
    databases.entries = {{u"a.csv"_s, 1}, {u"b.csv"_s, 2}};
    writer.add(header).add(canvas::CanvasRecord()).add(canvas::SequenceRecord()).add(databases);
    canvas::TextRecord text;
    text.content = u"Text %_DATE%"_s;
    text.datasourceText = text.content;
    text.datasourceKey = u"_SPECIAL"_s;
    canvas::BarcodeRecord barcode;
    barcode.content = u"123"_s;
    barcode.unusedText = u"unused"_s;
    barcode.numericText = u"17"_s;
    canvas::PictureRecord picture;
    picture.picture = QImage(2, 2, QImage::Format_RGB32);
    picture.picture.fill(Qt::red);
    canvas::SymbolRecord symbol;
    symbol.name = u"star.svg"_s;
    symbol.svg = "<svg/>";
    canvas::ShapeRecord shape;
    shape.name = u"Oval"_s;
    canvas::ShapeRecord line;
    line.name = u"VerticalLine"_s;
    writer.add(text).code(canvas::EmptyCode).add(barcode).add(picture).add(symbol);
    writer.add(barcode, canvas::TwoDimensionalBarcodeCode).add(shape).add(line).add(text);
    return writer.bytes();
}

} // namespace

TEST(TavrelCensus, CountsEveryVersion)
{
    for (quint32 version = 2000016; version <= 2000025; ++version) {
        SCOPED_TRACE(version);
        const Census census = countTavrel(canvasOfAll(version));
        EXPECT_TRUE(census.unknown.isEmpty()) << census.unknown.toStdString();
        // shapes, lines, texts, barcodes, pictures, symbols
        EXPECT_EQ(countsOf(census), (std::array<qint64, ObjectClasses>{1, 1, 2, 2, 1, 1}));
        EXPECT_TRUE(census.objects.constFirst().needsSource);
    }
}

TEST(TavrelCensus, KnowsThatACutFileMayHaveHeldMore)
{
    const QByteArray whole = canvasOfAll(2000024);
    qint64 cutRecords = 0;
    for (qsizetype size = 0; size < whole.size(); ++size) {
        const Census census = countTavrel(whole.first(size));
        cutRecords += census.unknown.isEmpty() ? 0 : 1;
        EXPECT_LE(census.objects.size(), 8);
    }
    // Only a cut between two records is not detected: before each of nine, one of them empty.
    EXPECT_EQ(cutRecords, whole.size() - 9);
}

TEST(TavrelCensus, RefusesDataThatIsNotALabel)
{
    EXPECT_FALSE(countTavrel({}).unknown.isEmpty());
    EXPECT_FALSE(
        countTavrel(canvasOfAll(2000016).replace(4, 4, QByteArray(4, '\0'))).unknown.isEmpty());
}

TEST(TavrelCensus, SurvivesAnyBytes)
{
    const QByteArray whole = canvasOfAll(2000024);
    for (qsizetype at = 8; at < whole.size(); ++at) {
        for (const char byte : {'\x00', '\x7f', '\xff'}) {
            QByteArray damaged = whole;
            damaged[at] = byte;
            EXPECT_LE(countTavrel(damaged).objects.size(), whole.size());
        }
    }
}

TEST(OrvantaCensus, PutsTheBackgroundFirst)
{
    const QByteArray image = pngOf().toBase64();
    const Census census =
        countOrvanta("<qmtx><controls><transparent_label/></controls><pre_printed_image><content>" +
                     image + "</content></pre_printed_image></qmtx>");
    ASSERT_EQ(census.objects.size(), 2);
    EXPECT_EQ(census.objects.constFirst().objectClass, ObjectClass::Picture);
    EXPECT_EQ(census.objects.constLast().objectClass, ObjectClass::Text);
}

TEST(OrvantaCensus, SaysThatADamagedFileIsNotCounted)
{
    EXPECT_FALSE(countOrvanta("<qmtx><controls>").unknown.isEmpty());
    EXPECT_FALSE(countOrvanta({}).unknown.isEmpty());
}

TEST(OrvantaCensus, DoesNotFollowHostileDepths)
{
    const QByteArray deep = QByteArray("<a>").repeated(200'000);
    EXPECT_FALSE(countOrvanta(deep).unknown.isEmpty());
    QByteArray wide = "<a";
    for (int attribute = 0; attribute < 100'000; ++attribute) {
        wide += " a" + QByteArray::number(attribute) + "=\"\"";
    }
    EXPECT_FALSE(countOrvanta(wide + "/>").unknown.isEmpty());
}

TEST(SavedLabelCensus, CountsTheItems)
{
    const Census census =
        countSavedLabel(R"({"label": {"items": [{"type": "line"}, {"type": "richText"}]}})");
    EXPECT_EQ(countsOf(census), (std::array<qint64, ObjectClasses>{0, 1, 1, 0, 0, 0}));
    const Census unknown = countSavedLabel(R"({"label": {"items": [{"type": "hologram"}]}})");
    ASSERT_EQ(unknown.objects.size(), 1);
    EXPECT_EQ(unknown.objects.constFirst().lost, LossKind::UnknownObject);
    EXPECT_FALSE(countSavedLabel("{}").unknown.isEmpty());
    EXPECT_FALSE(countSavedLabel("no JSON").unknown.isEmpty());
}

TEST(Census, ReadsNoFolderAndNoDevice)
{
    QString unknown;
    EXPECT_TRUE(bytesToCount(u"/dev/zero"_s, unknown).isEmpty());
    EXPECT_FALSE(unknown.isEmpty());
    unknown.clear();
    EXPECT_TRUE(bytesToCount(u"/"_s, unknown).isEmpty());
    EXPECT_FALSE(unknown.isEmpty());
}
