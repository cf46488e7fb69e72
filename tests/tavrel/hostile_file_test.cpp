// Files that end anywhere or claim anything: no crash, hang or excessive memory, and
// what was read before the damage is kept.

#include "tavrel/tavrel_limits.h"
#include "tests/tavrel/reader_fixture.h"

#include <algorithm>
#include <cmath>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel_test;

namespace {

// The memory of the sanitizers would distort the measurement.
#if defined(__SANITIZE_ADDRESS__)
constexpr bool MemoryIsMeasured = false;
#else
constexpr bool MemoryIsMeasured = true;
#endif

void expectModestMemory()
{
    rusage usage{};
    ASSERT_EQ(getrusage(RUSAGE_SELF, &usage), 0);
    if (MemoryIsMeasured) {
        EXPECT_LT(usage.ru_maxrss, 256L * 1024) << "peak in kilobytes";
    }
}

class Hostile : public ReaderTest
{};

class CutFile : public ReaderTest, public testing::WithParamInterface<quint32>
{};

TEST_P(CutFile, KeepsRecordsBeforeTheCut)
{
    LabelFile label(GetParam(), {u"C:\\data\\list.csv"_s});
    label.shape(u"Oval"_s)
        .text(u"Net  weight"_s, u"3/2"_s, u"_SEQUENCE"_s)
        .picture(pngOf(5, 4))
        .barcode(true, 20, u"_DATE"_s)
        .barcode(false, 55)
        .symbol(u"arrow.svg"_s, "<svg/>")
        .shape(u"VerticalLine"_s);
    QFile file(written(label.bytes()));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    for (qsizetype size = label.bytes().size(); size >= 0; --size) {
        SCOPED_TRACE(size);
        ASSERT_TRUE(file.resize(size));
        host.recorder().reset();
        const bool imported = reader.importLabelFromFile(path);
        const auto whole = int(std::count_if(label.recordEnds().begin(), label.recordEnds().end(),
                                             [size](qsizetype end) { return end <= size; }));
        EXPECT_GE(host.itemCount(), whole);
        EXPECT_LE(host.itemCount(), whole + 1);
        EXPECT_EQ(imported, host.takeTrace().count("completeCanvasLoading") == 1);
        EXPECT_EQ(imported, host.itemCount() > 0);
        EXPECT_EQ(host.livingItems(), host.itemCount());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    expectModestMemory();
}

INSTANTIATE_TEST_SUITE_P(Versions, CutFile,
                         testing::Values(2000016U, 2000017U, 2000018U, 2000019U, 2000020U, 2000021U,
                                         2000022U, 2000023U, 2000024U));

TEST_F(Hostile, CutRecordIsBuiltFromZeros)
{
    LabelFile label;
    label.typeCode(0x10002); // a shape without a single byte
    EXPECT_TRUE(import(label));
    EXPECT_EQ(host.callsWith("factory create"), lines({"factory create 1002a"}));
    EXPECT_EQ(host.callsWith("setItemSize"), lines({"item:1 setItemSize 72 72"}));
    EXPECT_EQ(host.item(1)->pos(), QPointF(0.0, 0.0));
}

TEST_F(Hostile, HeaderAloneIsAPageOfZeros)
{
    EXPECT_FALSE(import(hex("00000000 001E8498")));
    EXPECT_EQ(host.callsWith("importCanvasParameters"),
              lines({"canvas importCanvasParameters 0 0 false true"}));
    EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Hostile, HalfATypeCodeIsTheCodeZero)
{
    EXPECT_TRUE(import(LabelFile().shape({}).raw(hex("0001"))));
    EXPECT_EQ(errors(), lines({"Invalid type: 0"}));
    EXPECT_EQ(host.itemCount(), 1);
}

TEST_F(Hostile, LengthsBeyondTheEndGiveEmptyValues)
{
    for (const char* length : {"80000000", "7FFFFFFE", "FFFFFFFE", "00FFFFFE"}) {
        SCOPED_TRACE(length);
        host.forgetCalls();
        const QByteArray plain(37, '\0'); // lock, position, layer, rotation, empty width
        EXPECT_TRUE(import(LabelFile()
                               .shape({})
                               .typeCode(0x10000)
                               .raw(plain)
                               .raw(hex(length))
                               .raw(QByteArray(1000, 'x'))));
        EXPECT_EQ(host.callsWith("importTextProperties").size(), 1);
        EXPECT_EQ(host.callsWith("importTextProperties ''").size(), 1);
    }
    expectModestMemory();
}

TEST_F(Hostile, SvgBeyondTheEndIsIgnored)
{
    LabelFile label(2000024);
    label.symbol(u"arrow.svg"_s);
    QByteArray bytes = label.bytes();
    bytes.chop(4);
    EXPECT_TRUE(import(bytes + hex("80000000 3C"))) << "the name is looked up instead";
    EXPECT_EQ(host.recorder().symbolCreatorsMade(), 0);
}

TEST_F(Hostile, DatabaseCountOfTwoBillionStopsAtTheEnd)
{
    LabelFile label;
    QByteArray bytes = label.bytes();
    bytes.chop(4);
    EXPECT_FALSE(import(bytes + hex("7FFFFFFF") + QByteArray(100'000, '\0')));
    EXPECT_FALSE(import(bytes + hex("80000000")));
    EXPECT_FALSE(import(bytes + hex("FFFFFFFF")));
    EXPECT_TRUE(errors().isEmpty());
}

// A PNG that claims 60,000 by 60,000 pixels.
const QByteArray HugePng = hex("89504E470D0A1A0A"
                               "0000000D 49484452 0000EA60 0000EA60 0802000000 0FB0E215"
                               "0000000F 49444154 78DA63F8CFC0C0F09F010007FF01FFB80435E0"
                               "00000000 49454E44 AE426082");

TEST_F(Hostile, HugePictureIsLeftEmptyAndReadingContinues)
{
    EXPECT_TRUE(import(LabelFile().picture(HugePng).shape(u"Oval"_s)));
    EXPECT_EQ(host.itemCount(), 2);
    EXPECT_EQ(errors().size(), 1);
    EXPECT_EQ(host.callsWith("pixmapImportActions"), lines({"item:1 pixmapImportActions 0x0"}));
    expectModestMemory();
}

TEST_F(Hostile, HugePreviewIsNotDecoded)
{
    const QByteArray label = LabelFile().shape({}).bytes();
    const qsizetype rest = 12 + pngOf(3, 2).size();
    EXPECT_TRUE(import(label.left(12) + HugePng + label.mid(rest)));
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_TRUE(errors().isEmpty());
    expectModestMemory();
}

TEST_F(Hostile, PicturesOfAFileShareOneBound)
{
    const QByteArray large = pngOf(5000, 5000, QImage::Format_Mono);
    EXPECT_TRUE(import(LabelFile().picture(large).picture(large).picture(pngOf(2, 2))));
    EXPECT_EQ(host.callsWith("pixmapImportActions"),
              lines({"item:1 pixmapImportActions 5000x5000", "item:2 pixmapImportActions 0x0",
                     "item:3 pixmapImportActions 2x2"}));
    EXPECT_EQ(errors().size(), 1);
    host.recorder().reset();
    EXPECT_TRUE(import(LabelFile().picture(large))) << "the next file starts again";
    EXPECT_EQ(host.callsWith("pixmapImportActions 5000x5000").size(), 2);
    expectModestMemory();
}

TEST_F(Hostile, ItemsAreCounted)
{
    LabelFile label;
    label.shape({});
    label.raw(hex("00010005").repeated(tavrel::MaximumItemRecords));
    EXPECT_TRUE(import(label));
    EXPECT_EQ(errors().size(), 1);
}

TEST_F(Hostile, NotesShareOneBound)
{
    const QString scaled = u"2"_s;
    const QString large(60'000, QLatin1Char('x'));
    EXPECT_TRUE(import(LabelFile().text(large, scaled).text(large, scaled).text(u"a b"_s, scaled)));
    EXPECT_EQ(errors().size(), 1);
    EXPECT_LT(boxText().size(), 70'000);
    EXPECT_TRUE(boxText().endsWith(u"\n\"a b\":\n\tOriginal font size: 12."_s));
    boxes.clear();
    EXPECT_TRUE(import(LabelFile().text(large, scaled))) << "the next file starts again";
    EXPECT_GT(boxText().size(), 60'000);
}

TEST_F(Hostile, TextOfBlanksAloneTakesNoMemoryForItsNote)
{
    EXPECT_TRUE(import(LabelFile().text(u"a "_s.repeated(2'000'000), u"2"_s)));
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_EQ(errors().size(), 1);
    expectModestMemory();
}

TEST_F(Hostile, NumbersThatAreNotFiniteAreHarmless)
{
    for (const double odd : {double(NAN), double(HUGE_VAL), -double(HUGE_VAL), 0.0, -1.0, 1e300}) {
        SCOPED_TRACE(odd);
        QByteArray bytes = LabelFile().bytes();
        const QByteArray usual = Bytes().real(300.0).real(305.0).bytes();
        ASSERT_EQ(bytes.count(usual), 1);
        bytes.replace(usual, Bytes().real(odd).real(odd).bytes());
        const QByteArray items = LabelFile()
                                     .text(u"x"_s, u"1/0"_s)
                                     .barcode(true, 20)
                                     .symbol(u"arrow.svg"_s)
                                     .picture(pngOf(2, 2), u"0/0"_s)
                                     .shape(u"VerticalLine"_s)
                                     .bytes()
                                     .mid(bytes.size());
        host.recorder().reset();
        EXPECT_TRUE(import(bytes + items));
        EXPECT_EQ(host.itemCount(), 5);
    }
}

TEST_F(Hostile, NoiseIsReadToAnEnd)
{
    quint32 state = 1;
    for (int round = 0; round < 300; ++round) {
        QByteArray bytes = LabelFile(2000016 + quint32(round % 9))
                               .text(u"a"_s)
                               .picture(pngOf(2, 2))
                               .barcode(true, 20)
                               .shape({})
                               .bytes();
        for (int change = 0; change < 12; ++change) {
            state = state * 1664525U + 1013904223U;
            bytes[qsizetype(8 + (state >> 8) % quint32(bytes.size() - 8))] = char(state >> 24);
        }
        host.recorder().reset();
        (void)import(bytes);
        EXPECT_EQ(host.livingItems(), host.itemCount());
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    expectModestMemory();
}

} // namespace
