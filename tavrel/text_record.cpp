#include "tavrel/text_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/file_versions.h"
#include "tavrel/whole_numbers.h"

namespace tavrel {
namespace {

Qt::Alignment alignmentOfCode(qint32 code)
{
    constexpr qint32 right = 1;
    constexpr qint32 centre = 2;
    switch (code) {
    case right:
        return Qt::AlignRight;
    case centre:
        return Qt::AlignHCenter;
    default:
        return Qt::AlignLeft;
    }
}

Qt::Alignment alignmentOfFlags(qint32 flags)
{
    return Qt::Alignment::fromInt(static_cast<Qt::Alignment::Int>(flags));
}

void readFixedSize(QDataStream& stream, TextRecord& record)
{
    record.fixedWidth = readDouble(stream);
    record.fixedHeight = readDouble(stream);
}

void readFontSize(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    record.fontSize = roundedPoints(readInt32(stream), file.resolution.x);
}

void readPenAndFont(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    record.penWidth = penWidth(readInt32(stream), file.resolution.x);
    record.penStyle = readInt32(stream);
    readText(stream);
    readFontSize(stream, file, record);
    record.styleFlag1 = readBool(stream);
    record.styleFlag2 = readBool(stream);
    record.styleFlag3 = readBool(stream);
}

void readColours(QDataStream& stream, TextRecord& record)
{
    record.inverse = readBool(stream);
    record.transparentBackground = readBool(stream);
}

// The first option is stored twice and old labels may hold two values: the second counts.
void readOptions(QDataStream& stream, TextRecord& record)
{
    readBool(stream);
    record.optionA = readBool(stream);
    record.optionB = readBool(stream);
}

void readBare(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    record.datasourceKey = readText(stream);
    readPenAndFont(stream, file, record);
    record.content = readText(stream);
    record.alignment = alignmentOfCode(readInt32(stream));
    readColours(stream, record);
}

void readSized(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    readFixedSize(stream, record);
    readBare(stream, file, record);
}

void readWithOptions(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    readFixedSize(stream, record);
    record.datasourceKey = readText(stream);
    readPenAndFont(stream, file, record);
    record.content = readText(stream);
    record.alignment = alignmentOfFlags(readInt32(stream));
    readColours(stream, record);
    readOptions(stream, record);
}

void readWithSecondFontSize(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    readWithOptions(stream, file, record);
    readFontSize(stream, file, record);
}

void readContentFirst(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    record.content = readText(stream);
    record.datasourceText = readText(stream);
    record.datasourceKey = readText(stream);
    readFixedSize(stream, record);
    readPenAndFont(stream, file, record);
    record.alignment = alignmentOfFlags(readInt32(stream));
    readColours(stream, record);
    readOptions(stream, record);
    readFontSize(stream, file, record);
}

void readWithTrailer(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    readContentFirst(stream, file, record);
    readInt32(stream);
    readInt32(stream);
}

constexpr std::array Layouts{
    Layout{OldestVersion, &readBare},
    Layout{FirstWithFixedTextSize, &readSized},
    Layout{FirstWithTextOptions, &readWithOptions},
    Layout{FirstWithSecondFontSize, &readWithSecondFontSize},
    Layout{FirstWithContentFirst, &readContentFirst},
    Layout{FirstWithTextTrailer, &readWithTrailer},
};

} // namespace

TextRecord readTextRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    TextRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    layoutFor(Layouts, file.version)(stream, file, record);
    return record;
}

} // namespace tavrel
