#include "migration/losses/label_facts.h"

#include "limits/image/png_chunks.h"
#include "limits/zip/zip_directory.h"
#include "workbench/import/label_import.h"
#include "workbench/items/label_document.h"
#include "workbench/items/shape_kinds.h"
#include "workbench/pictures/png_encoder.h"
#include "workbench/rendering/page_image.h"

#include <QBuffer>
#include <QMap>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace migration {

namespace {

using namespace Qt::StringLiterals;

constexpr double MillimetersPerPoint = 25.4 / 72.0;
constexpr int ThumbnailSide = 160;
// Above this a thumbnail has fewer colors, then fewer pixels.
constexpr qsizetype ThumbnailBytes = 6 * 1024;
// Of the picture that a file contains; office programs write 256 pixels a side.
constexpr qint64 MaximumPreview = 1024 * 1024;
constexpr qint64 MaximumPreviewPixels = 1'000'000;
// Longest content of an item that a report takes over.
constexpr qsizetype ContentLength = 2'000;
// The name of a source's property that contains a file name.
constexpr QLatin1String FileProperty("File");

double toMillimeters(double points)
{
    // Micrometers are fine enough, and the same on every machine.
    return std::round(points * MillimetersPerPoint * 1000.0) / 1000.0;
}

QList<KindCount> kindsOf(const workbench::Canvas& canvas)
{
    QMap<QString, qint64> counts;
    for (const workbench::CanvasItem* item : canvas.items()) {
        ++counts[workbench::shapeCode(item->shapeType())];
    }
    QList<KindCount> kinds;
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        kinds.append({count.key(), count.value()});
    }
    return kinds;
}

QList<SourceReport> sourcesOf(const workbench::datasources::DatasourceController& controller)
{
    QList<SourceReport> sources;
    for (const workbench::datasources::SourceValues& values : controller.values()) {
        sources.append({values.id, values.kind, values.selectedFields,
                        values.properties.value(FileProperty).toString()});
    }
    return sources;
}

QString contentOf(const workbench::ItemValues& values)
{
    if (values.barcode) {
        return values.barcode->content.left(ContentLength);
    }
    if (!values.text) {
        return {};
    }
    const QString text =
        values.text->html.isEmpty() ? values.text->text : workbench::textOfHtml(values.text->html);
    return text.left(ContentLength);
}

QSizeF sizeOf(const workbench::ItemValues& values)
{
    return values.line ? QSizeF(values.line->end.x(), values.line->end.y()) : values.box.size;
}

// What the label shows: an item that is bound to a data source shows its first record.
QString shownContent(const workbench::ItemValues& values, const workbench::ImportResult& result)
{
    std::optional<QString> content;
    if (values.datasource && result.datasources) {
        content =
            result.datasources->recordText(values.datasource->id, 0, values.datasource->fields);
    }
    return content ? content->left(ContentLength) : contentOf(values);
}

ItemReport itemReportOf(const workbench::ItemValues& values, const workbench::ImportResult& result)
{
    const QSizeF size = sizeOf(values);
    return {workbench::shapeCode(values.type),
            toMillimeters(values.placement.position.x()),
            toMillimeters(values.placement.position.y()),
            toMillimeters(size.width()),
            toMillimeters(size.height()),
            shownContent(values, result),
            values.datasource ? values.datasource->id : -1};
}

QByteArray pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    return buffer.open(QIODevice::WriteOnly) && workbench::encodePng(image, buffer) ? bytes
                                                                                    : QByteArray();
}

QByteArray smallPng(const QImage& picture)
{
    QByteArray png;
    for (const int side : {ThumbnailSide, ThumbnailSide / 2}) {
        const QImage image =
            picture.scaled(side, side, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        png = pngOf(image.convertToFormat(QImage::Format_RGB32));
        if (png.size() > ThumbnailBytes) {
            png = pngOf(image.convertToFormat(QImage::Format_Indexed8));
        }
        if (png.size() <= ThumbnailBytes) {
            break;
        }
    }
    return png;
}

// The version of a binary label is followed by a number, and by its picture unless that is 0.
QByteArray pictureIn(const QByteArray& file, ReaderKind reader)
{
    constexpr qsizetype binaryHead = 12;
    if (reader == ReaderKind::Tavrel) {
        return file.mid(binaryHead, MaximumPreview);
    }
    ziplimits::ZipDirectory package;
    if (reader != ReaderKind::OpenDocument || package.openBytes(file)) {
        return {};
    }
    return package.read(u"Thumbnails/thumbnail.png"_s, MaximumPreview).value_or(QByteArray());
}

} // namespace

QByteArray previewOf(const QByteArray& file, ReaderKind reader)
{
    const QByteArray picture = pictureIn(file, reader);
    const auto header = imagelimits::pngHeader(picture);
    if (!header || header->pixels() > MaximumPreviewPixels) {
        return {};
    }
    const QImage image = QImage::fromData(imagelimits::pixelsOnly(picture), "PNG");
    if (image.isNull()) {
        return {};
    }
    QImage onWhite(image.size(), QImage::Format_RGB32);
    onWhite.fill(Qt::white);
    QPainter(&onWhite).drawImage(0, 0, image);
    return smallPng(onWhite);
}

void describeLabel(const workbench::ImportResult& result, FileReport& report)
{
    const QSizeF page = result.canvas->page().size;
    report.page.width = toMillimeters(page.width());
    report.page.height = toMillimeters(page.height());
    report.items = kindsOf(*result.canvas);
    if (result.datasources) {
        report.datasources = sourcesOf(*result.datasources);
    }
    for (const workbench::ImportIssue& issue : result.issues) {
        report.issues.append({issue.text, issue.item, issue.repeats});
    }
}

QList<ItemReport> itemListOf(const workbench::ImportResult& result)
{
    QList<ItemReport> items;
    for (const workbench::CanvasItem* item : result.canvas->items()) {
        items.append(itemReportOf(item->values(), result));
    }
    return items;
}

QByteArray thumbnailOf(const workbench::Canvas& canvas)
{
    const QSizeF page = canvas.page().size;
    const double longest = std::max({page.width(), page.height(), 1.0});
    const double dpi = 72.0 * ThumbnailSide / longest;
    const workbench::PageImage painted = workbench::renderPage(canvas, dpi);
    if (painted.image.isNull()) {
        return {};
    }
    return smallPng(painted.image);
}

} // namespace migration
