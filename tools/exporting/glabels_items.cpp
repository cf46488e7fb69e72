#include "exporting/glabels_items.h"

#include "exporting/glabels_barcodes.h"
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

/// Up to this width, in points, the corners of a box look alike with any join.
constexpr double ThinOutline = 1.0;
/// Of a drawing that is too large to be embedded: dots per point, most dots, and most of a side. A
/// dot has up to four bytes, and base 64 makes four characters of three bytes.
constexpr double RasterScale = 300.0 / 72.0;
constexpr double MostDots = MaximumEmbedded * 0.95 / (4.0 * 4.0 / 3.0);
constexpr double LongestRasterSide = 4'000.0;

struct GlabelsItemsTr
{
    Q_DECLARE_TR_FUNCTIONS(exporting::Glabels)
};

QRectF boxOf(const WalkedItem& item)
{
    return {{0.0, 0.0}, item.values.box.size};
}

PenValues penOf(const WalkedItem& item)
{
    return item.values.pen.value_or(PenValues());
}

bool isSolid(const PenValues& pen)
{
    return pen.style < Qt::DashLine || pen.style > Qt::DashDotDotLine;
}

/// Why gLabels cannot draw such a box or ellipse; empty if it can.
QString obstacleOf(const WalkedItem& item, bool hasCorners)
{
    const PenValues pen = penOf(item);
    const bool isMiter = pen.join == Qt::MiterJoin || pen.join == Qt::SvgMiterJoin;
    if (!plainColor(item.values.fill.value_or(FillValues()))) {
        return GlabelsItemsTr::tr("gLabels has no gradients and no hatches.");
    }
    if (!isSolid(pen)) {
        return GlabelsItemsTr::tr("gLabels has no dashed lines.");
    }
    if (hasCorners && !isMiter && pen.style != Qt::NoPen && pen.width > ThinOutline) {
        return GlabelsItemsTr::tr("gLabels has no round or beveled corners.");
    }
    return {};
}

/// gLabels 3 distorts the characters of a text at any other angle, and omits all further objects
/// after a text at 45°.
bool isUpright(const QTransform& toPage)
{
    constexpr double tolerance = 1e-6;
    return (std::abs(toPage.m12()) < tolerance && std::abs(toPage.m21()) < tolerance) ||
           (std::abs(toPage.m11()) < tolerance && std::abs(toPage.m22()) < tolerance);
}

/// What is painted, in dots.
QImage rasterOf(const QRectF& area, const Paint& paint)
{
    const double scale =
        std::min({RasterScale, LongestRasterSide / std::max(area.width(), area.height()),
                  std::sqrt(MostDots / (area.width() * area.height()))});
    QImage image((area.size() * scale).toSize().expandedTo({1, 1}),
                 QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.scale(image.width() / area.width(), image.height() / area.height());
    painter.translate(-area.topLeft());
    paint(painter);
    return image;
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
        if (!item.values.picture.value_or(PictureValues()).image.isNull()) {
            addDrawing(item, {});
        }
        break;
    case KestTypes::SimpleText:
    case KestTypes::RichText:
        addText(item);
        break;
    case KestTypes::Barcode:
        addBarcode(item);
        break;
    default:
        addDrawing(item, GlabelsItemsTr::tr("gLabels has no such shape."));
        break;
    }
}

void GlabelsItems::note(Fidelity fidelity, const WalkedItem& item, const QString& text)
{
    m_findings.add(fidelity, shapeCode(item.values.type), text);
}

void GlabelsItems::addShape(const WalkedItem& item)
{
    const bool isBox = item.values.type == KestTypes::Rectangle;
    const QString obstacle = obstacleOf(item, isBox);
    if (!obstacle.isEmpty()) {
        addDrawing(item, obstacle);
        return;
    }
    const QColor fill = *plainColor(item.values.fill.value_or(FillValues()));
    m_document.addShape(isBox ? GlabelsDocument::Shape::Box : GlabelsDocument::Shape::Ellipse,
                        boxOf(item), item.toPage, penOf(item), fill);
    note(Fidelity::Exact, item);
}

void GlabelsItems::addLine(const WalkedItem& item)
{
    const PenValues pen = penOf(item);
    const LineValues line = item.values.line.value_or(LineValues());
    if (pen.style == Qt::NoPen || line.end.isNull()) {
        return; // nothing is painted
    }
    if (startMarker(line.startMarker) != Marker::None ||
        endMarker(line.endMarker) != Marker::None) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels has no arrows."));
    } else if (!isSolid(pen)) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels has no dashed lines."));
    } else if (pen.cap == Qt::RoundCap && pen.width > ThinOutline) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels has no round line ends."));
    } else {
        QPointF extension;
        if (pen.cap == Qt::SquareCap) {
            extension = line.end * (pen.width / 2.0 / std::hypot(line.end.x(), line.end.y()));
        }
        m_document.addLine(item.toPage.map(-extension), item.toPage.map(line.end + extension), pen);
        note(Fidelity::Exact, item);
    }
}

void GlabelsItems::addText(const WalkedItem& item)
{
    if (!isUpright(item.toPage)) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels 3 distorts text at such angles."));
        return;
    }
    GlabelsField field;
    if (item.isBound) {
        field.name = m_records.columnOf(*item.values.datasource);
    }
    for (const QString& record : m_records.recordsOf(field.name)) {
        field.longest = record.size() > field.longest.size() ? record : field.longest;
    }
    // The characters are added above the background, so it comes first; if gLabels cannot
    // express them, the picture covers it.
    addGround(item);
    if (!addTextItem(m_document, m_findings, item, field)) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels has no such text format."));
    }
}

/// The background and the frame of a text.
void GlabelsItems::addGround(const WalkedItem& item)
{
    const PenValues pen = penOf(item);
    const FillValues fill = item.values.fill.value_or(FillValues());
    const QColor color = plainColor(fill).value_or(QColor(Qt::black));
    if (pen.style == Qt::NoPen && color.alpha() == 0) {
        return;
    }
    const QRectF box = boxOf(item);
    if (obstacleOf(item, true).isEmpty()) {
        m_document.addShape(GlabelsDocument::Shape::Box, box, item.toPage, pen, color);
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
    const barcodes::BarcodeSymbol symbol = barcodes::encode(barcodeRequest(values, values.content));
    const barcodes::BarcodeStyle style = barcodeStyle(item.values);
    const barcodes::BarcodeLayout layout = barcodes::layOut(symbol, boxOf(item), style);
    if (!symbol.isValid() || layout.moduleWidth <= 0.0) {
        addDrawing(item, GlabelsItemsTr::tr("The content cannot be encoded."));
        return;
    }
    auto known = glabelsSymbol(values, symbol, layout);
    if (!known) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels does not encode this barcode."));
        return;
    }
    if (!symbol.caption.isEmpty() && !isUpright(item.toPage)) {
        addDrawing(item, GlabelsItemsTr::tr("gLabels 3 distorts text at such angles."));
        return;
    }
    if (values.background.alpha() > 0) {
        m_document.addShape(GlabelsDocument::Shape::Box, boxOf(item), item.toPage,
                            {{}, 0.0, Qt::NoPen}, values.background);
    }
    QString& field = known->barcode.field;
    field = item.isBound ? m_records.columnOf(*item.values.datasource) : QString();
    m_document.addBarcode(known->box, item.toPage, known->barcode);
    if (!symbol.caption.isEmpty()) {
        addCaption(m_document, item.toPage, symbol.caption,
                   field.isEmpty() ? QString() : captionColumn(values, field), layout, style);
    }
    const QStringList records = m_records.recordsOf(field);
    const bool areKnown = std::all_of(records.begin(), records.end(), [&](const QString& text) {
        return isGlabelsContent(values, text);
    });
    note(areKnown ? Fidelity::Exact : Fidelity::Simplified, item,
         areKnown ? QString() : GlabelsItemsTr::tr("gLabels cannot encode some of the records."));
}

QString GlabelsItems::captionColumn(const BarcodeValues& values, const QString& column)
{
    const QString suffix = u"%1 %2"_s.arg(values.symbology).arg(values.option);
    return m_records.addDerived(column, suffix, [&](const QString& content) {
        return barcodes::encode(barcodeRequest(values, content)).caption;
    });
}

void GlabelsItems::addDrawing(const WalkedItem& item, const QString& reason)
{
    const QGraphicsItem& graphicsItem = *item.item->graphicsItem();
    const bool isPicture = reason.isEmpty();
    // The item paints its flips itself. A picture fills its box.
    const bool isReduced =
        addSvg(isPicture ? boxOf(item) : graphicsItem.boundingRect(),
               graphicsItem.sceneTransform() * m_toLabel,
               [&](QPainter& painter) { paintUnplacedItem(painter, *item.item); });
    if (item.isBound) {
        note(Fidelity::Simplified, item,
             (reason + u' ' + GlabelsItemsTr::tr("It shows the first record only.")).trimmed());
    } else if (isReduced) {
        note(Fidelity::Simplified, item, GlabelsItemsTr::tr("A large picture was scaled down."));
    } else {
        note(isPicture ? Fidelity::Exact : Fidelity::Picture, item, reason);
    }
}

bool GlabelsItems::addSvg(const QRectF& area, const QTransform& toPage, const Paint& paint)
{
    QByteArray svg = drawingSvg(area, paint);
    const bool isReduced = svg.size() > MaximumEmbedded;
    if (isReduced) {
        svg = drawingSvg(
            area, [&](QPainter& painter) { painter.drawImage(area, rasterOf(area, paint)); });
    }
    m_document.addDrawing(area, toPage, svg);
    return isReduced;
}

} // namespace exporting
