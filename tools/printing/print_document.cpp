#include "printing/print_document.h"

#include "workbench/canvas/canvas.h"
#include "workbench/items/units.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_painter.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPen>

#include <algorithm>

namespace printing {
namespace {

struct PrintDocumentTr
{
    Q_DECLARE_TR_FUNCTIONS(printing::PrintDocument)
};

using workbench::PointsPerMillimeter;
constexpr double MarkWidth = 0.1; // millimeters

QSizeF inPoints(const QSizeF& millimeters)
{
    return millimeters * PointsPerMillimeter;
}

QRectF inPoints(const QRectF& millimeters)
{
    return {millimeters.topLeft() * PointsPerMillimeter, inPoints(millimeters.size())};
}

void paintInCell(QPainter& painter, const workbench::Canvas& canvas, const QRectF& cell,
                 bool isRotated)
{
    painter.save();
    painter.setClipRect(cell);
    painter.translate(cell.center());
    if (isRotated) {
        painter.rotate(90.0);
    }
    painter.translate(-canvas.pageRect().center());
    workbench::paintPage(painter, canvas);
    painter.restore();
}

void paintMarks(QPainter& painter, const Sheet& sheet)
{
    painter.save();
    painter.scale(PointsPerMillimeter, PointsPerMillimeter);
    painter.setPen(QPen(Qt::black, MarkWidth, Qt::SolidLine, Qt::FlatCap));
    painter.drawLines(cropMarks(sheet));
    painter.restore();
}

bool paintSheet(QPainter& painter, const PrintLayout& layout, const LabelSeries& series,
                qint64 page)
{
    const Sheet& sheet = *layout.sheet;
    const qint64 before = page * sheet.positions() - layout.firstPosition;
    const qint64 first = std::max<qint64>(before, 0);
    const qint64 end = std::min(before + sheet.positions(), series.count * layout.copies);
    for (qint64 index = first; index < end; ++index) {
        const workbench::Canvas* canvas = series.show(index / layout.copies);
        if (canvas == nullptr) {
            return false;
        }
        const QRectF cell = inPoints(cellAt(sheet, static_cast<int>(index - before)));
        paintInCell(painter, *canvas, cell, fitOf(sheet, labelSize(*canvas)) == Fit::Rotated);
    }
    if (layout.cropMarks) {
        paintMarks(painter, sheet);
    }
    return true;
}

} // namespace

QSizeF labelSize(const workbench::Canvas& canvas)
{
    return canvas.page().size / PointsPerMillimeter;
}

QString problemOf(const PrintLayout& layout, qint64 labels)
{
    if (labels > MaximumLabels / layout.copies) {
        return PrintDocumentTr::tr("%1 labels in %2 copies are more than the %3 of one document.")
            .arg(labels)
            .arg(layout.copies)
            .arg(MaximumLabels);
    }
    if (layout.sheet && layout.firstPosition >= layout.sheet->positions()) {
        return PrintDocumentTr::tr("Sheet \"%1\" has no position %2; its positions are 1 to %3.")
            .arg(layout.sheet->name())
            .arg(layout.firstPosition + 1)
            .arg(layout.sheet->positions());
    }
    return {};
}

qint64 pagesFor(const PrintLayout& layout, qint64 labels)
{
    const qint64 printed = labels * layout.copies;
    return layout.sheet ? sheetsFor(*layout.sheet, layout.firstPosition, printed) : printed;
}

bool paintPrintPage(QPainter& painter, const PrintLayout& layout, const LabelSeries& series,
                    qint64 page)
{
    if (layout.sheet) {
        return paintSheet(painter, layout, series, page);
    }
    const workbench::Canvas* canvas = series.show(page / layout.copies);
    if (canvas != nullptr) {
        workbench::paintPage(painter, *canvas);
    }
    return canvas != nullptr;
}

QString writePrintDocument(const QString& fileName, const QString& title, const PrintLayout& layout,
                           const LabelSeries& series)
{
    const QSizeF paper = layout.sheet ? inPoints(layout.sheet->paperSize) : series.size;
    return workbench::writePdf(fileName, title, paper, pagesFor(layout, series.count),
                               [&](QPainter& painter, qint64 page) {
                                   return paintPrintPage(painter, layout, series, page);
                               });
}

} // namespace printing
