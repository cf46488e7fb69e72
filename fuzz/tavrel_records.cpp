// A single decoder of the binary format: the first byte selects the decoder, the second the
// version. The decoder reads the remaining bytes as a stream, repeatedly until its end.

#include "fuzz/harness.h"
#include "tavrel/barcodes.h"
#include "tavrel/file_versions.h"
#include "tavrel/label_stream.h"
#include "tavrel/page_records.h"
#include "tavrel/pictures.h"
#include "tavrel/shapes.h"
#include "tavrel/symbols.h"
#include "tavrel/tavrel_limits.h"
#include "tavrel/texts.h"

#include <QDataStream>

#include <array>
#include <cstddef>

using namespace tavrel;

namespace {

struct Reading
{
    QDataStream& stream;
    FileContext file;
    qint64& pixelsLeft;
};

// Returns the bytes that a decoder has allocated, which must not exceed those it has read.
using Decode = qsizetype (*)(const Reading& reading);

qsizetype sizeOf(const QString& text)
{
    return text.size() * qsizetype(sizeof(QChar));
}

qsizetype decodeText(const Reading& reading)
{
    const TextRecord record = readTextRecord(reading.stream, reading.file, 0);
    return sizeOf(record.content) + sizeOf(record.datasourceKey) + sizeOf(record.datasourceText);
}

qsizetype decodeBarcode(const Reading& reading)
{
    const BarcodeRecord record = readBarcodeRecord(reading.stream, reading.file, 0);
    return sizeOf(record.content) + sizeOf(record.datasourceKey) + sizeOf(record.datasourceText);
}

qsizetype decodeSymbol(const Reading& reading)
{
    const SymbolRecord record = readSymbolRecord(reading.stream, reading.file, 0);
    return sizeOf(record.name) + record.data.size();
}

qsizetype decodeShape(const Reading& reading)
{
    const ShapeRecord record = readShapeRecord(reading.stream, reading.file, 0);
    const ShapeKind kind = shapeKindOf(record.name);
    if (kind.rule == ShapeRule::VerticalLine) {
        (void)uprightLineHeader(record.header);
    }
    return sizeOf(record.name);
}

qsizetype decodePicture(const Reading& reading)
{
    const qint64 before = reading.pixelsLeft;
    const PictureRecord record =
        readPictureRecord(reading.stream, reading.file, 0, reading.pixelsLeft);
    const QImage& image = record.picture.image;
    const qint64 pixels = qint64(image.width()) * image.height();
    if (reading.pixelsLeft < 0 || pixels > before - reading.pixelsLeft) {
        qFatal("a picture has more pixels than it was allowed");
    }
    return 0;
}

qsizetype decodeSequence(const Reading& reading)
{
    const SequenceSettings settings = readSequenceSettings(reading.stream, reading.file.version);
    return sizeOf(settings.sequencePrefix) + sizeOf(settings.sequenceSuffix);
}

qsizetype decodeDatabases(const Reading& reading)
{
    (void)readDatabaseList(reading.stream);
    return 0;
}

qsizetype decodeCanvas(const Reading& reading)
{
    (void)readCanvasRecord(reading.stream, reading.file.version);
    return 0;
}

qsizetype decodeHeader(const Reading& reading)
{
    (void)readCanvasHeader(reading.stream);
    skipPicture(reading.stream);
    return 0;
}

constexpr std::array<Decode, 9> Decoders{decodeText,      decodeBarcode, decodeSymbol,
                                         decodeShape,     decodePicture, decodeSequence,
                                         decodeDatabases, decodeCanvas,  decodeHeader};

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    if (input.size() < 2) {
        return;
    }
    const Decode decode = Decoders.at(std::size_t(quint8(input[0])) % Decoders.size());
    const quint32 version = OldestVersion + quint8(input[1]) % (CurrentVersion - OldestVersion + 2);
    QDataStream stream(input.mid(2));
    qint64 pixelsLeft = MaximumPixelsPerFile;
    const Reading reading{stream, {version, {300.0, 305.0}}, pixelsLeft};
    while (!stream.atEnd()) {
        const qint64 before = bytesLeft(stream);
        const qsizetype taken = decode(reading);
        const qint64 read = before - bytesLeft(stream);
        if (read <= 0 || taken > read) {
            qFatal("a record took %lld bytes into memory and %lld from the stream",
                   qlonglong(taken), qlonglong(read));
        }
    }
}
