// Every limit of the binary reader with its largest accepted and first rejected value.

#include "tavrel/file_content.h"
#include "tavrel/stream_picture.h"
#include "tavrel/tavrel_limits.h"
#include "tests/tavrel/reader_fixture.h"

#include <QBuffer>
#include <QDataStream>
#include <QImage>
#include <QTemporaryFile>

using namespace Qt::Literals::StringLiterals;

using namespace tavrel;
using namespace tavrel_test;

namespace {

class TavrelBounds : public ReaderTest
{};

TEST_F(TavrelBounds, MeasureTheFile)
{
    QTemporaryFile file;
    ASSERT_TRUE(file.open());
    ASSERT_TRUE(file.resize(MaximumFileSize)); // a sparse file, which uses no disk space
    const FileContent whole = loadFile(file.fileName());
    EXPECT_EQ(whole.status, FileContent::Status::Loaded);
    EXPECT_EQ(whole.bytes.size(), MaximumFileSize);
    ASSERT_TRUE(file.resize(MaximumFileSize + 1));
    EXPECT_EQ(loadFile(file.fileName()).status, FileContent::Status::TooLarge);
}

TEST_F(TavrelBounds, CountItemRecords)
{
    const auto import = [this](int records) {
        LabelFile label;
        label.shape({});
        label.raw(hex("00010005").repeated(records - 1));
        return ReaderTest::import(label);
    };
    EXPECT_TRUE(import(MaximumItemRecords));
    EXPECT_TRUE(errors().isEmpty());
    EXPECT_TRUE(import(MaximumItemRecords + 1));
    EXPECT_EQ(errors().size(), 1);
}

TEST_F(TavrelBounds, CountTheCharactersOfNotes)
{
    const auto import = [this](qsizetype characters) {
        return ReaderTest::import(LabelFile().text(QString(characters, QLatin1Char('x')), u"2"_s));
    };
    EXPECT_TRUE(import(MaximumNoteCharacters));
    EXPECT_TRUE(errors().isEmpty());
    EXPECT_TRUE(import(MaximumNoteCharacters + 1));
    EXPECT_EQ(errors().size(), 1);
}

// A picture of 8 bits per pixel with ten bytes of compressed data.
qint64 pixelsTakenBy(quint32 width, qint64 pixelsLeft = MaximumPixelsPerFile)
{
    Bytes png;
    png.raw(hex("00000001 89504E470D0A1A0A 0000000D 49484452"))
        .word(width)
        .raw(hex("00000001 08 00 00 00 00 00000000"))
        .raw(hex("0000000A 49444154 78DA6300000000000000 00000000"))
        .raw(hex("00000000 49454E44 AE426082"));
    QDataStream stream(png.bytes());
    qint64 left = pixelsLeft;
    (void)readPicture(stream, left);
    return pixelsLeft - left;
}

TEST_F(TavrelBounds, BelieveNoPictureThatItsDataCannotHold)
{
    constexpr qint64 packed = 10;
    constexpr auto most = quint32(packed * MaximumDeflateRatio);
    EXPECT_EQ(pixelsTakenBy(most), most);
    EXPECT_EQ(pixelsTakenBy(most + 1), 0);
}

TEST_F(TavrelBounds, CountThePixelsOfAFile)
{
    EXPECT_EQ(pixelsTakenBy(100, 100), 100);
    EXPECT_EQ(pixelsTakenBy(101, 100), 0);
    static_assert(MaximumPixelsPerFile == 8192 * 4096);
    const auto import = [this](int width, int height) {
        QImage image(width, height, QImage::Format_Mono);
        image.fill(1);
        QBuffer png;
        png.open(QIODevice::WriteOnly);
        image.save(&png, "PNG");
        return ReaderTest::import(LabelFile().picture(png.data()));
    };
    EXPECT_TRUE(import(8192, 4096));
    EXPECT_TRUE(errors().isEmpty());
    EXPECT_TRUE(import(8192, 4097));
    EXPECT_EQ(errors().size(), 1);
}

} // namespace
