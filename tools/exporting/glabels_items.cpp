#include "exporting/glabels_items.h"

#include "exporting/glabels_barcodes.h"
#include "exporting/glabels_embedding.h"
#include "exporting/glabels_texts.h"
#include "workbench/items/barcode_item.h"
#include "workbench/items/line_item.h"
#include "workbench/items/line_markers.h"
#include "workbench/items/pen_and_fill.h"
#include "workbench/items/shape_kinds.h"
#include "workbench/rendering/page_painter.h"

#include <QCoreApplication>
#include <QGraphicsItem>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

/// The thinnest line of our output; gLabels would draw nothing.
constexpr double HairlineWidth = 0.25;
/// Up to this width, in points, the corners of a box look alike with any join.
constexpr double ThinOutline = 1.0;
constexpr double PointsPerInch = 72.0;
/// Of an item whose drawing is too large.
constexpr double RasterDpi = 300.0;

QString tr(const char* text)
{
    return QCoreApplication::translate("exporting::Glabels", text);
}

GlabelsPen penOf(const PenValues& pen)
{
    if (pen.style == Qt::NoPen) {
        return {};
    }
    return {pen.color, pen.width > 0.0 ? pen.width : HairlineWidth};
}

bool isSolid(const PenValues& pen)
{
    return pen.style < Qt::DashLine || pen.style > Qt::DashDotDotLine;
}

bool isPlainOutline(const PenValues& pen)
{
    const bool isMiter = pen.join == Qt::MiterJoin || pen.join == Qt::SvgMiterJoin;
    return isSolid(pen) && (isMiter || pen.style == Qt::NoPen || pen.width <= ThinOutline);
}

QRectF boxOf(const WalkedItem& item)
{
    return {{0.0, 0.0}, item.values.box.size};
}

} // namespace

void GlabelsItems::add(const WalkedItem& item)
{
    const BoxValues& box = item.values.box;
    const bool isEmpty = box.size.width() <= 0.0 || box.size.height() <= 0.0;
    if (isEmpty && item.values.type != KestTypes::Line) {
        return; // nothing is painted
    }
    switch (item.values.type) {
    case KestTypes::Rectangle:
    case KestTypes::Ellipse:
        addShape(item);
        break;
    case KestTypes::Line:
        addLine(item);
        break;
    case KestTypes::Picture:
        addPicture(item);
        break;
    case KestTypes::SimpleText:
    case KestTypes::RichText:
        addText(item);
        break;
    case KestTypes::Barcode:
        addBarcode(item);
        break;
    default:
        addDrawing(item, tr("gLabels has no such shape."));
        break;
    }
}

void GlabelsItems::note(Fidelity fidelity, const WalkedItem& item, const QString& text)
{
    m_findings.add(fidelity, shapeCode(item.values.type), text);
}

void GlabelsItems::addShape(const WalkedItem& item)
{
    const PenValues pen = item.values.pen.value_or(PenValues());
    const FillValues fill = item.values.fill.value_or(FillValues());
    const std::optional<QColor> color = plainColor(fill);
    const bool isEllipse = item.values.type == KestTypes::Ellipse;
    if (!color) {
        addDrawing(item, tr("gLabels has no gradients and no hatches."));
    } else if (!isSolid(pen)) {
        addDrawing(item, tr("gLabels has no dashed lines."));
    } else if (!isEllipse && !isPlainOutline(pen)) {
        addDrawing(item, tr("gLabels has no round or beveled corners."));
    } else {
        isEllipse ? m_document.addEllipse(boxOf(item), item.toPage, penOf(pen), *color)
                  : m_document.addBox(boxOf(item), item.toPage, penOf(pen), *color);
        note(Fidelity::Exact, item);
    }
}

void GlabelsItems::addLine(const WalkedItem& item)
{
    const PenValues pen = item.values.pen.value_or(PenValues());
    const LineValues line = item.values.line.value_or(LineValues());
    if (pen.style == Qt::NoPen || line.end.isNull()) {
        return; // nothing is painted
    }
    const bool hasMarkers =
        startMarker(line.startMarker) != Marker::None || endMarker(line.endMarker) != Marker::None;
    if (hasMarkers) {
        addDrawing(item, tr("gLabels has no arrows."));
    } else if (!isSolid(pen)) {
        addDrawing(item, tr("gLabels has no dashed lines."));
    } else if (pen.cap == Qt::RoundCap && pen.width > ThinOutline) {
        addDrawing(item, tr("gLabels has no round line ends."));
    } else {
        QPointF extension;
        if (pen.cap == Qt::SquareCap) {
            extension = line.end * (pen.width / 2.0 / std::hypot(line.end.x(), line.end.y()));
        }
        m_document.addLine(item.toPage.map(-extension), item.toPage.map(line.end + extension),
                           penOf(pen));
        note(Fidelity::Exact, item);
    }
}

void GlabelsItems::addPicture(const WalkedItem& item)
{
    const PictureValues picture = item.values.picture.value_or(PictureValues());
    if (picture.image.isNull()) {
        return; // nothing is painted
    }
    if (m_document.addPicture(boxOf(item), item.toPage, picture.image)) {
        note(Fidelity::Exact, item);
    } else {
        note(Fidelity::Simplified, item, tr("A large picture was scaled down."));
    }
}

void GlabelsItems::addText(const WalkedItem& item)
{
    const QString field = item.isBound ? m_records.columnOf(*item.values.datasource) : QString();
    QString longest;
    for (const QString& record : m_records.recordsOf(field)) {
        longest = record.size() > longest.size() ? record : longest;
    }
    // The characters are added above the background, so it comes first; if gLabels cannot
    // express them, the picture covers it.
    addGround(item);
    if (!addTextItem(m_document, m_findings, item, field, longest)) {
        addDrawing(item, tr("gLabels has no such text format."));
    }
}

/// The background and the frame of a text.
void GlabelsItems::addGround(const WalkedItem& item)
{
    const PenValues pen = item.values.pen.value_or(PenValues());
    const FillValues fill = item.values.fill.value_or(FillValues());
    const std::optional<QColor> color = plainColor(fill);
    if (pen.style == Qt::NoPen && color && color->alpha() == 0) {
        return;
    }
    const QRectF box = boxOf(item);
    if (color && isPlainOutline(pen)) {
        m_document.addBox(box, item.toPage, penOf(pen), *color);
        return;
    }
    const double margin = 4.0 * pen.width + 1.0;
    addSvg(box.adjusted(-margin, -margin, margin, margin), item.toPage, [&](QPainter& painter) {
        QPainterPath path;
        path.addRect(box);
        painter.setRenderHint(QPainter::Antialiasing);
        paintShape(painter, path, box, fill, pen);
    });
}

void GlabelsItems::addBarcode(const WalkedItem& item)
{
    const BarcodeValues values = item.values.barcode.value_or(BarcodeValues());
    barcodes::BarcodeSymbol symbol = barcodes::encode(barcodeRequest(values, values.content));
    const barcodes::BarcodeStyle style = barcodeStyle(item.values);
    const barcodes::BarcodeLayout layout = barcodes::layOut(symbol, boxOf(item), style);
    if (!symbol.isValid() || layout.moduleWidth <= 0.0) {
        addDrawing(item, tr("The content cannot be encoded."));
        return;
    }
    if (values.background.alpha() > 0) {
        m_document.addBox(boxOf(item), item.toPage, {}, values.background);
    }
    const bool followsRecords = addBars(item, values, symbol, layout, style);
    if (!symbol.caption.isEmpty()) {
        addCaption(m_document, layout.caption, item.toPage, symbol.caption,
                   followsRecords ? captionColumn(item, values) : QString(), style.font,
                   layout.captionPixelSize, style.textColor, style.captionAlignment);
    }
}

/// Returns whether the bars follow the records.
bool GlabelsItems::addBars(const WalkedItem& item, const BarcodeValues& values,
                           barcodes::BarcodeSymbol symbol, const barcodes::BarcodeLayout& layout,
                           const barcodes::BarcodeStyle& style)
{
    if (const auto known = glabelsSymbol(values, values.content, symbol, layout)) {
        const QString field =
            item.isBound ? m_records.columnOf(*item.values.datasource) : QString();
        m_document.addBarcode(known->box, item.toPage,
                              {known->backend, known->style, values.content, field, known->checksum,
                               values.foreground});
        noteRecords(item, values, field);
        return !field.isEmpty();
    }
    symbol.caption.clear();
    const QRectF bars = layout.bars;
    addSvg(bars, item.toPage,
           [&](QPainter& painter) { barcodes::paintBarcode(painter, bars, symbol, style); });
    if (item.isBound) {
        note(Fidelity::Simplified, item,
             tr("gLabels does not encode this barcode: it shows the first record only."));
    } else {
        note(Fidelity::Picture, item, tr("gLabels does not encode this barcode."));
    }
    return false;
}

void GlabelsItems::noteRecords(const WalkedItem& item, const BarcodeValues& values,
                               const QString& field)
{
    const QStringList records = m_records.recordsOf(field);
    const bool areKnown = std::all_of(records.begin(), records.end(), [&](const QString& text) {
        return isGlabelsContent(values, text);
    });
    if (areKnown) {
        note(Fidelity::Exact, item);
    } else {
        note(Fidelity::Simplified, item, tr("gLabels cannot encode some of the records."));
    }
}

QString GlabelsItems::captionColumn(const WalkedItem& item, const BarcodeValues& values)
{
    const QString column = m_records.columnOf(*item.values.datasource);
    const QString suffix = u"%1 %2"_s.arg(values.symbology).arg(values.option);
    return m_records.addDerived(column, suffix, [&](const QString& content) {
        return barcodes::encode(barcodeRequest(values, content)).caption;
    });
}

void GlabelsItems::addDrawing(const WalkedItem& item, const QString& reason)
{
    const QGraphicsItem& graphicsItem = *item.item->graphicsItem();
    // The item paints its flips itself.
    addSvg(graphicsItem.boundingRect(), graphicsItem.sceneTransform() * m_toLabel,
           [&](QPainter& painter) { paintUnplacedItem(painter, *item.item); });
    if (item.isBound) {
        note(Fidelity::Simplified, item, reason + u' ' + tr("It shows the first record only."));
    } else {
        note(Fidelity::Picture, item, reason);
    }
}

void GlabelsItems::addSvg(const QRectF& area, const QTransform& toPage, const Paint& paint)
{
    if (!m_document.addDrawing(area, toPage, drawingSvg(area, paint))) {
        addRaster(area, toPage, paint);
    }
}

/// A drawing that is too large to be embedded becomes a picture.
void GlabelsItems::addRaster(const QRectF& area, const QTransform& toPage, const Paint& paint)
{
    constexpr double bytesPerPixel = 4.0 * 4.0 / 3.0; // in base 64
    const double scale =
        std::min(RasterDpi / PointsPerInch,
                 std::sqrt(MaximumEmbedded / bytesPerPixel /
                           (std::max(1.0, area.width()) * std::max(1.0, area.height()))));
    QImage image((area.size() * scale).toSize().expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-area.topLeft());
    paint(painter);
    painter.end();
    m_document.addPicture(area, toPage, image);
}

} // namespace exporting
