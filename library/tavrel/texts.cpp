#include "tavrel/texts.h"

#include "host/items/simple_text_item.h"
#include "host/services/basic_conversions.h"
#include "host/services/white_space.h"
#include "messages/reader_messages.h"
#include "tavrel/datasource_binder.h"
#include "tavrel/file_versions.h"
#include "tavrel/label_stream.h"
#include "tavrel/printer_dots.h"

#include <QObject>
#include <QRegularExpression>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tavrel {
namespace {

Qt::Alignment alignmentOfCode(qint32 code)
{
    constexpr qint32 Right = 1;
    constexpr qint32 Center = 2;
    switch (code) {
    case Right:
        return Qt::AlignRight;
    case Center:
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

// Size and style. The font's name is not imported.
void readFont(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    skipText(stream);
    const auto [dots, flag1, flag2, flag3] = readFields<qint32, bool, bool, bool>(stream);
    record.fontSize = roundedPoints(dots, file.resolution.x);
    record.bold = flag1;
    record.italic = flag2;
    record.underline = flag3;
}

void readPenAndFont(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    const auto [dots, style] = readFields<qint32, qint32>(stream);
    record.penWidth = penWidth(dots, file.resolution.x);
    record.penStyle = style;
    readFont(stream, file, record);
}

void readColors(QDataStream& stream, TextRecord& record)
{
    std::tie(record.inverse, record.transparentBackground) = readFields<bool, bool>(stream);
}

// Option A is stored twice, and the two values may differ in old labels: the second counts.
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
    readColors(stream, record);
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
    readColors(stream, record);
    readOptions(stream, record);
}

void readWithSecondFontSize(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    readWithOptions(stream, file, record);
    readFontSize(stream, file, record);
}

void readTextContentFirst(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    record.content = readText(stream);
    record.datasourceText = readText(stream);
    record.datasourceKey = readText(stream);
    readFixedSize(stream, record);
    readPenAndFont(stream, file, record);
    record.alignment = alignmentOfFlags(readInt32(stream));
    readColors(stream, record);
    readOptions(stream, record);
    readFontSize(stream, file, record);
}

void readWithTrailer(QDataStream& stream, const FileContext& file, TextRecord& record)
{
    readTextContentFirst(stream, file, record);
    (void)readFields<qint32, qint32>(stream);
}

constexpr std::array TextLayouts{
    Layout{OldestVersion, &readBare},
    Layout{FirstWithFixedTextSize, &readSized},
    Layout{FirstWithTextOptions, &readWithOptions},
    Layout{FirstWithSecondFontSize, &readWithSecondFontSize},
    Layout{FirstWithContentFirst, &readTextContentFirst},
    Layout{FirstWithTextTrailer, &readWithTrailer},
};

// Header size of a text that was not stretched.
constexpr double UnscaledSize = PointsPerInch;
constexpr double ScaleTolerance = 0.0005;

struct TextColors
{
    QColor text;
    QColor background;
};

TextColors colorsOf(const HostCanvas& host, const TextRecord& record)
{
    TextColors colors;
    colors.text = host.model->canvasDefaultPenColor();
    colors.background = host.model->canvasBackgroundColor();
    if (record.inverse) {
        std::swap(colors.text, colors.background);
    }
    if (record.transparentBackground) {
        colors.background = Qt::transparent;
    }
    return colors;
}

// The size of a text's box and where it comes from.
struct TextBox
{
    QSizeF size;
    int limiting = 0; // for SimpleTextItem::setItemSizeLimiting(): +1 fixed width, +2 fixed height
    bool scaled = false;
};

bool isUnscaled(double headerSize)
{
    return BasicConversions::almostEqual(headerSize, UnscaledSize, ScaleTolerance);
}

void chooseWidth(TextBox& box, const TextRecord& record, const SimpleTextItem& item)
{
    if (record.fixedWidth > 0.0) {
        box.size.setWidth(record.fixedWidth * PointsPerInch);
        box.limiting += 1;
    } else if (isUnscaled(record.header.width)) {
        box.size.setWidth(item.getItemSize().width());
    } else {
        box.size.setWidth(record.header.width);
        box.scaled = true;
    }
}

void chooseHeight(TextBox& box, const TextRecord& record, const SimpleTextItem& item)
{
    if (record.fixedHeight > 0.0) {
        box.size.setHeight(record.fixedHeight * PointsPerInch);
        box.limiting += 2;
    } else if (isUnscaled(record.header.height)) {
        box.size.setHeight(item.getItemSize().height());
    } else {
        box.size.setHeight(record.header.height);
        box.scaled = true;
    }
}

TextBox boxOf(const TextRecord& record, const SimpleTextItem& item)
{
    TextBox box;
    chooseWidth(box, record, item);
    chooseHeight(box, record, item);
    return box;
}

void applyContent(SimpleTextItem& item, const TextRecord& record, const TextBox& box)
{
    item.setItemSizeLimiting(static_cast<signed char>(box.limiting));
    item.setTextBoxSize(box.size);
    item.importTextProperties(record.content, record.fontSize, record.bold, record.italic,
                              record.underline, record.alignment);
}

void applyLook(SimpleTextItem& item, const TextRecord& record, const TextColors& colors)
{
    item.setPenWidth(record.penWidth);
    item.setPenStyle(record.penStyle);
    item.setPenColor(colors.text);
    item.setFillColor(colors.background);
    item.setTextColor(colors.text);
    item.setOptionA(record.optionA);
    item.setOptionB(record.optionB);
    item.applyTextOptions();
}

} // namespace

TextRecord readTextRecord(QDataStream& stream, const FileContext& file, qint64 itemNumber)
{
    TextRecord record;
    record.header = readItemHeader(stream, file, itemNumber);
    layoutFor(TextLayouts, file.version)(stream, file, record);
    return record;
}

TextOutcome buildText(const HostCanvas& host, const TextRecord& record,
                      const DatasourceBinder& binder)
{
    const TextColors colors = colorsOf(host, record);
    auto owned = building::createItem<SimpleTextItem>(host.factory, KestTypes::SimpleText);
    if (!owned) {
        return {};
    }
    owned->setZValue(record.header.zValue);
    // Old labels depend on the item being in the canvas before it is set up: the host may first
    // give it the canvas's defaults, which the label's own properties then replace.
    SimpleTextItem* const item = building::handOver(*host.model, std::move(owned));
    if (item == nullptr) {
        return {BuildResult::Lost, false};
    }
    const TextBox box = boxOf(record, *item);
    applyContent(*item, record, box);
    binder.bindDatasource(*item, record.datasourceKey, record.datasourceText);
    applyLook(*item, record, colors);
    item->setFlag(QGraphicsItem::ItemIsMovable, record.header.movable);
    item->setPos(record.header.position());
    return {BuildResult::Built, box.scaled};
}

QString scaledTextNote(const QString& content, int fontSize)
{
    QString words = content;
    words.replace(WhiteSpace::getWhiteSpacesSplitRegex(), u" "_s);
    return u'"' + words + u'"' +
           QObject::tr(messages::TextStretched.text, messages::TextStretched.comment).arg(fontSize);
}

} // namespace tavrel
