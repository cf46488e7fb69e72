#include "tavrel/text_builder.h"

#include "host/items/simple_text_item.h"
#include "host/services/basic_conversions.h"
#include "host/services/white_space.h"
#include "tavrel/datasource_binder.h"

#include <QObject>
#include <QRegularExpression>

#include <utility>

namespace tavrel {
namespace {

constexpr double PointsPerInch = 72.0;
// A header size of an inch stands for a text that was not stretched.
constexpr double UnscaledSize = 72.0;
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

/// The text's box and how it came about.
struct TextBox
{
    QSizeF size;
    int limiting = 0; ///< 1 for a fixed width, 2 for a fixed height, 3 for both
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
    item.importTextProperties(record.content, record.fontSize, record.styleFlag1, record.styleFlag2,
                              record.styleFlag3, record.alignment);
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

QString scaledTextNote(const QString& content, int fontSize)
{
    const QLatin1Char quote('"');
    QString words = content;
    words.replace(WhiteSpace::getWhiteSpacesSplitRegex(), QStringLiteral(" "));
    return quote + words + quote +
           QObject::tr(":\n\tOriginal font size: %1.", "Content of error message.").arg(fontSize);
}

TextOutcome buildText(const HostCanvas& host, const TextRecord& record,
                      const DatasourceBinder& binder)
{
    const TextColors colors = colorsOf(host, record);
    std::unique_ptr<SimpleTextItem> owned = createItem<SimpleTextItem>(host, KestTypes::SimpleText);
    if (!owned) {
        return {};
    }
    owned->setZValue(record.header.zValue);
    // Old labels depend on the item being in the canvas before it is set up: a host gives it
    // the canvas's defaults first, which the label's own properties then replace.
    SimpleTextItem* const item = importedEarly(host, std::move(owned));
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

} // namespace tavrel
