#include "printing/sheet.h"

#include <QCoreApplication>
#include <QLocale>
#include <QPageSize>

#include <algorithm>
#include <array>
#include <cmath>

namespace printing {
using namespace Qt::StringLiterals;
namespace {

struct SheetTr
{
    Q_DECLARE_TR_FUNCTIONS(printing::Sheet)
};

// A label may be so much larger than its cell: legacy programs rounded to points or inches. The
// excess is not painted.
constexpr double Tolerance = 1.0;
// Measures of sheets are rounded to a tenth of a millimeter.
constexpr double Rounding = 0.06;
// Around the labels of plain paper: most printers cannot print closer to the edge.
constexpr double PlainMargin = 6.0;
constexpr double PlainGap = 2.0;
constexpr double MarkLength = 5.0;
// Between a mark and the label, so that a cut slightly off shows no mark on the label.
constexpr double MarkDistance = 1.0;

constexpr std::array Papers{QPageSize::A3, QPageSize::A4,     QPageSize::A5,
                            QPageSize::A6, QPageSize::Letter, QPageSize::Legal};

bool isUsable(double length, double least)
{
    return std::isfinite(length) && length >= least && length <= MaximumPaperSide;
}

int countFitting(double available, double size)
{
    const double count = std::floor((available + PlainGap + 1e-6) / (size + PlainGap));
    return static_cast<int>(std::clamp(count, 0.0, double{MaximumGrid}));
}

double extent(int count, double pitch, double size)
{
    return count > 0 ? (count - 1) * pitch + size : 0.0;
}

QString sizeText(const QSizeF& size)
{
    const QLocale locale;
    const auto number = [&locale](double value) {
        return locale.toString(std::round(value * 10.0) / 10.0, 'g', 6);
    };
    return SheetTr::tr("%1 × %2 mm").arg(number(size.width()), number(size.height()));
}

bool fits(const QSizeF& label, const QSizeF& cell)
{
    return label.width() <= cell.width() + Tolerance && label.height() <= cell.height() + Tolerance;
}

/// The two edges of each row or column.
QList<double> edges(double start, int count, double pitch, double size)
{
    QList<double> all;
    for (int index = 0; index < count; ++index) {
        all << start + index * pitch << start + index * pitch + size;
    }
    return all;
}

} // namespace

QString problemOf(const Sheet& sheet)
{
    if (!isUsable(sheet.paperSize.width(), 1.0) || !isUsable(sheet.paperSize.height(), 1.0)) {
        return SheetTr::tr("The sides of the paper must be from 1 to %1 mm.").arg(MaximumPaperSide);
    }
    if (std::min(sheet.columns, sheet.rows) < 1 ||
        std::max(sheet.columns, sheet.rows) > MaximumGrid) {
        return SheetTr::tr("A sheet has 1 to %1 rows and columns.").arg(MaximumGrid);
    }
    if (!isUsable(sheet.label.width(), 1.0) || !isUsable(sheet.label.height(), 1.0)) {
        return SheetTr::tr("The sides of a label must be at least 1 mm.");
    }
    if (!isUsable(sheet.pitch.width(), sheet.label.width() - Rounding) ||
        !isUsable(sheet.pitch.height(), sheet.label.height() - Rounding)) {
        return SheetTr::tr("The labels of the sheet overlap.");
    }
    const double right =
        sheet.start.x() + extent(sheet.columns, sheet.pitch.width(), sheet.label.width());
    const double bottom =
        sheet.start.y() + extent(sheet.rows, sheet.pitch.height(), sheet.label.height());
    const bool isOnPaper = isUsable(sheet.start.x(), 0.0) && isUsable(sheet.start.y(), 0.0) &&
                           right <= sheet.paperSize.width() + Rounding &&
                           bottom <= sheet.paperSize.height() + Rounding;
    return isOnPaper ? QString() : SheetTr::tr("The labels of the sheet exceed the paper.");
}

QSizeF paperSizeOf(const QString& name)
{
    for (const QPageSize::PageSizeId id : Papers) {
        if (name.compare(QPageSize::name(id).section(u' ', 0, 0), Qt::CaseInsensitive) == 0) {
            return QPageSize::size(id, QPageSize::Millimeter);
        }
    }
    return {};
}

QStringList paperNames()
{
    QStringList names;
    for (const QPageSize::PageSizeId id : Papers) {
        names.append(QPageSize::name(id).section(u' ', 0, 0));
    }
    return names;
}

Sheet plainSheet(const QString& paper, const QSizeF& label)
{
    const QSizeF size = paperSizeOf(paper);
    const QSizeF usable = size - 2.0 * QSizeF(PlainMargin, PlainMargin);
    for (const QSizeF& cell : {label, label.transposed()}) {
        const int columns = countFitting(usable.width(), cell.width());
        const int rows = countFitting(usable.height(), cell.height());
        if (columns > 0 && rows > 0) {
            const QSizeF pitch = cell + QSizeF(PlainGap, PlainGap);
            const QPointF start((size.width() - extent(columns, pitch.width(), cell.width())) / 2.0,
                                (size.height() - extent(rows, pitch.height(), cell.height())) /
                                    2.0);
            return {{paper}, paper, size, columns, rows, cell, start, pitch};
        }
    }
    return {{paper}, paper, size, 1, 1, usable, {PlainMargin, PlainMargin}, usable};
}

QRectF cellAt(const Sheet& sheet, int position)
{
    const int column = position % sheet.columns;
    const int row = position / sheet.columns;
    return {sheet.start + QPointF(column * sheet.pitch.width(), row * sheet.pitch.height()),
            sheet.label};
}

Fit fitOf(const Sheet& sheet, const QSizeF& label)
{
    if (fits(label, sheet.label)) {
        return Fit::Upright;
    }
    return fits(label.transposed(), sheet.label) ? Fit::Rotated : Fit::TooLarge;
}

QString misfitMessage(const Sheet& sheet, const QSizeF& label)
{
    return SheetTr::tr("The label is %1; the labels of sheet \"%2\" are only %3.")
        .arg(sizeText(label), sheet.name(), sizeText(sheet.label));
}

QList<QLineF> cropMarks(const Sheet& sheet)
{
    const double right =
        sheet.start.x() + extent(sheet.columns, sheet.pitch.width(), sheet.label.width());
    const double bottom =
        sheet.start.y() + extent(sheet.rows, sheet.pitch.height(), sheet.label.height());
    constexpr double near = MarkDistance;
    constexpr double far = MarkDistance + MarkLength;
    const double left = sheet.start.x();
    const double top = sheet.start.y();
    QList<QLineF> marks;
    for (const double x : edges(left, sheet.columns, sheet.pitch.width(), sheet.label.width())) {
        marks << QLineF(x, top - near, x, top - far) << QLineF(x, bottom + near, x, bottom + far);
    }
    for (const double y : edges(top, sheet.rows, sheet.pitch.height(), sheet.label.height())) {
        marks << QLineF(left - near, y, left - far, y) << QLineF(right + near, y, right + far, y);
    }
    return marks;
}

qint64 sheetsFor(const Sheet& sheet, int firstPosition, qint64 labels)
{
    return (firstPosition + labels + sheet.positions() - 1) / sheet.positions();
}

} // namespace printing
