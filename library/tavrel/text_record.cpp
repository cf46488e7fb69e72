#include "tavrel/text_record.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/field_run.h"
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
    std::tie(record.fixedWidth, record.fixedHeight) = readFields<double, double>(stream);
}

void readFontSize(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    record.fontSize = roundedPoints(readInt32(stream), file.resolution.x);
}

// Size and style: the font's name is not taken over.
void readFont(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    skipText(stream);
    const auto [dots, flag1, flag2, flag3] = readFields<qint32, bool, bool, bool>(stream);
    record.fontSize = roundedPoints(dots, file.resolution.x);
    record.styleFlag1 = flag1;
    record.styleFlag2 = flag2;
    record.styleFlag3 = flag3;
}

void readPenAndFont(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    const auto [dots, style] = readFields<qint32, qint32>(stream);
    record.penWidth = penWidth(dots, file.resolution.x);
    record.penStyle = style;
    readFont(stream, file, record);
}

void readColours(QDataStream& stream, TextRecord& record)
{
    std::tie(record.inverse, record.transparentBackground) = readFields<bool, bool>(stream);
}

// The first option is stored twice and old labels may hold two values: the second counts.
void readOptions(QDataStream& stream, TextRecord& record)
{
    std::tie(std::ignore, record.optionA, record.optionB) = readFields<bool, bool, bool>(stream);
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
    (void)readFields<qint32, qint32>(stream);
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
