#include "tests/support/canvas_writer/canvas_writer.h"

#include <QIODevice>

#include <cmath>

namespace {

// The first version of each layout.
constexpr quint32 textsHaveFixedSizes = 2000018;
constexpr quint32 sizesAreInches = 2000019;
constexpr quint32 textsHaveOptions = 2000020;
constexpr quint32 sequencesHaveTrailingValue = 2000020;
constexpr quint32 textsHaveSecondFontSize = 2000021;
constexpr quint32 contentIsFirst = 2000022;
constexpr quint32 textsHaveUnusedValues = 2000023;
constexpr quint32 symbolsHaveData = 2000023;
constexpr quint32 canvasHasResolution = 2000024;

} // namespace

CanvasWriter::CanvasWriter(quint32 version)
    : m_version(version)
    , m_stream(&m_bytes, QIODevice::WriteOnly)
{}

CanvasWriter& CanvasWriter::start(const canvas::CanvasRecord& record,
                                  const canvas::SequenceRecord& sequence,
                                  const canvas::DatabaseList& databases)
{
    return add(canvas::FileHeader()).add(record).add(sequence).add(databases);
}

CanvasWriter& CanvasWriter::add(const canvas::FileHeader& header)
{
    m_stream << header.leadingWord << m_version << header.preview;
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::CanvasRecord& record)
{
    m_stream << record.unusedFlag;
    writeSize(record.height, 2.0, 300.0);
    writeSize(record.width, 3.0, 305.0);
    m_stream << record.labelType << record.ribbonType << record.unusedText1 << record.unusedText2
             << record.canvasFlag << record.orientation << record.unusedValue << record.unusedFlag2
             << record.unusedSize1 << record.unusedSize2;
    if (m_version >= canvasHasResolution) {
        m_stream << record.resolutionX << record.resolutionY;
    }
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::SequenceRecord& record)
{
    m_stream << record.start << record.end << record.step << record.zeroPad << record.prefix
             << record.suffix;
    if (m_version >= sequencesHaveTrailingValue) {
        m_stream << record.trailingValue;
    }
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::DatabaseList& list)
{
    const auto count = static_cast<qint32>(list.entries.size());
    m_stream << list.unused1 << list.unused2 << list.selected << list.claimedCount.value_or(count);
    for (const canvas::DatabaseEntry& entry : list.entries) {
        m_stream << entry.path << entry.unusedValue;
    }
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::ShapeRecord& record)
{
    code(canvas::ShapeCode);
    write(record.header);
    m_stream << record.lineWidth << record.penStyle << record.fillMode << record.name;
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::PictureRecord& record)
{
    code(canvas::PictureCode);
    write(record.header);
    // An image and a pixmap have the same encoding.
    m_stream << record.picture;
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::SymbolRecord& record)
{
    code(canvas::SymbolCode);
    write(record.header);
    m_stream << record.name;
    if (m_version >= symbolsHaveData) {
        m_stream << record.svg;
    }
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::TextRecord& record)
{
    code(canvas::TextCode);
    write(record.header);
    if (m_version >= contentIsFirst) {
        writeTextFrom22(record);
    } else {
        writeTextBefore22(record);
    }
    return *this;
}

CanvasWriter& CanvasWriter::add(const canvas::BarcodeRecord& record, qint32 typeCode)
{
    code(typeCode);
    write(record.header);
    if (m_version >= contentIsFirst) {
        writeBarcodeFrom22(record);
    } else {
        writeBarcodeBefore22(record);
    }
    return *this;
}

CanvasWriter& CanvasWriter::code(qint32 typeCode)
{
    m_stream << typeCode;
    return *this;
}

CanvasWriter& CanvasWriter::raw(const QByteArray& bytes)
{
    m_stream.writeRawData(bytes.constData(), static_cast<int>(bytes.size()));
    return *this;
}

CanvasWriter& CanvasWriter::claim(quint32 length, const QByteArray& held)
{
    m_stream << length;
    return raw(held);
}

void CanvasWriter::write(const canvas::ItemHeader& header)
{
    m_stream << header.locked << header.x << header.y << header.layer << header.rotation
             << header.width << header.height;
}

void CanvasWriter::writeSize(std::optional<double> size, double inchesWhenUnset, double dotsPerInch)
{
    if (m_version >= sizesAreInches) {
        m_stream << size.value_or(inchesWhenUnset);
    } else {
        m_stream << static_cast<qint32>(std::lround(size.value_or(inchesWhenUnset * dotsPerInch)));
    }
}

void CanvasWriter::writeTextBefore22(const canvas::TextRecord& record)
{
    if (m_version >= textsHaveFixedSizes) {
        m_stream << record.fixedWidth << record.fixedHeight;
    }
    m_stream << record.datasourceKey;
    writeTextPen(record);
    m_stream << record.content << record.alignment << record.inverse
             << record.transparentBackground;
    if (m_version >= textsHaveOptions) {
        writeTextOptions(record);
    }
    if (m_version >= textsHaveSecondFontSize) {
        m_stream << record.fontSizeAgain.value_or(record.fontSize);
    }
}

void CanvasWriter::writeTextFrom22(const canvas::TextRecord& record)
{
    m_stream << record.content << record.datasourceText << record.datasourceKey << record.fixedWidth
             << record.fixedHeight;
    writeTextPen(record);
    m_stream << record.alignment << record.inverse << record.transparentBackground;
    writeTextOptions(record);
    m_stream << record.fontSizeAgain.value_or(record.fontSize);
    if (m_version >= textsHaveUnusedValues) {
        m_stream << record.unusedValue1 << record.unusedValue2;
    }
}

void CanvasWriter::writeTextPen(const canvas::TextRecord& record)
{
    m_stream << record.lineWidth << record.penStyle << record.unusedText << record.fontSize
             << record.styleFlag1 << record.styleFlag2 << record.styleFlag3;
}

void CanvasWriter::writeTextOptions(const canvas::TextRecord& record)
{
    m_stream << record.optionAFirst.value_or(record.optionA) << record.optionA << record.optionB;
}

void CanvasWriter::writeBarcodeBefore22(const canvas::BarcodeRecord& record)
{
    m_stream << record.datasourceKey << record.symbology << record.content;
    writeBarcodeLook(record);
    m_stream << record.datasourceText;
}

void CanvasWriter::writeBarcodeFrom22(const canvas::BarcodeRecord& record)
{
    m_stream << record.content << record.datasourceText << record.datasourceKey << record.symbology;
    writeBarcodeLook(record);
}

void CanvasWriter::writeBarcodeLook(const canvas::BarcodeRecord& record)
{
    m_stream << record.unusedFlag << record.unusedText << record.moduleWidth << record.textPlacement
             << record.flag1 << record.flag2 << record.flag3 << record.flag4 << record.numericText
             << record.value1 << record.value2 << record.unusedValue;
}
