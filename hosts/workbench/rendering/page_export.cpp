#include "workbench/rendering/page_export.h"

#include "workbench/canvas/canvas.h"
#include "workbench/items/units.h"
#include "workbench/pictures/atomic_save.h"
#include "workbench/rendering/page_painter.h"
#include "workbench/rendering/svg_groups.h"
#include "workbench/rendering/true_size_pdf.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QPageLayout>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <QSaveFile>
#include <QScreen>
#include <QSvgGenerator>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

constexpr double MillimetersPerInch = 25.4;
constexpr int PdfDpi = 1200;
// Of drawings that are embedded in other documents, and the most of a side.
constexpr double UnitsPerPoint = 100.0;
constexpr double MostUnits = 1e8;
// The attributes of an SVG document that hold its size.
constexpr qsizetype HeadLength = 600;

struct PageExportTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::PageExport)
};

QString cannotWrite(const QString& fileName, const QString& reason)
{
    return PageExportTr::tr("Cannot write \"%1\": %2.").arg(fileName, reason);
}

// The resolution for the layout of fonts with sizes in points.
int layoutDpi()
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen != nullptr ? qRound(screen->logicalDotsPerInch()) : 96;
}

QByteArray millimeters(double points)
{
    return QByteArray::number(points / PointsPerInch * MillimetersPerInch, 'g', 8) + "mm";
}

QByteArray sizeAttributes(const QByteArray& width, const QByteArray& height)
{
    return "width=\"" + width + "\" height=\"" + height + '"';
}

// The generator rounds a document's size to pixels; a label must have its exact size.
QByteArray withSize(QByteArray svg, const QByteArray& attributes)
{
    const QString head = QString::fromUtf8(svg.left(HeadLength));
    static const QRegularExpression size(u"<svg width=\"[^\"]*\" height=\"[^\"]*\""_s);
    const QRegularExpressionMatch match = size.match(head);
    return match.hasMatch()
               ? svg.replace(match.capturedStart(), match.capturedLength(), "<svg " + attributes)
               : svg;
}

QByteArray generatedSvg(const QRectF& area, const QString& title, const Paint& paint)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setResolution(layoutDpi());
    generator.setSize(area.size().toSize().expandedTo({1, 1}));
    generator.setViewBox(area);
    generator.setTitle(title.toHtmlEscaped()); // the generator does not escape the title
    generator.setDescription(u"LabelPort"_s);
    QPainter painter(&generator);
    paint(painter);
    painter.end();
    return withNamedItems(buffer.data());
}

QByteArray svgOf(const Canvas& canvas, const QString& title)
{
    const QSizeF page = canvas.page().size;
    const QByteArray svg = generatedSvg(canvas.pageRect(), title, [&canvas](QPainter& painter) {
        paintPage(painter, canvas, [&](int position) { markSvgItem(painter, position); });
    });
    return withSize(svg, sizeAttributes(millimeters(page.width()), millimeters(page.height())));
}

// In whole points, as QPdfWriter writes it, rounded up: TrueSizePdf corrects it.
QPageSize pageSizeOf(const QSizeF& page)
{
    return QPageSize(QSizeF(std::ceil(page.width()), std::ceil(page.height())), QPageSize::Point,
                     {}, QPageSize::ExactMatch);
}

bool isTooLargeForPdf(const QSizeF& page)
{
    return std::max(page.width(), page.height()) > MaximumPdfSide;
}

void setUp(QPdfWriter& writer, const QSizeF& page, const QString& title)
{
    writer.setResolution(PdfDpi);
    writer.setPageSize(pageSizeOf(page));
    writer.setPageOrientation(QPageLayout::Portrait);
    writer.setPageMargins(QMarginsF());
    writer.setCreator(u"LabelPort"_s);
    writer.setTitle(title);
}

bool paintPages(QPdfWriter& writer, qint64 pages, const PaintPdfPage& paint)
{
    QPainter painter;
    if (pages < 1 || !painter.begin(&writer)) {
        return false;
    }
    for (qint64 page = 0; page < pages; ++page) {
        if (page > 0 && !writer.newPage()) {
            return false;
        }
        painter.save();
        painter.scale(writer.logicalDpiX() / PointsPerInch, writer.logicalDpiY() / PointsPerInch);
        const bool isPainted = paint(painter, page);
        painter.restore();
        if (!isPainted) {
            return false;
        }
    }
    return painter.end();
}

} // namespace

QByteArray drawingSvg(const QRectF& area, const Paint& paint)
{
    // Programs round the size of a drawing to whole units; many units make the error small.
    const double unitsPerPoint =
        std::min(UnitsPerPoint, MostUnits / std::max({1.0, area.width(), area.height()}));
    const auto side = [unitsPerPoint](double points) {
        return QByteArray::number(std::max(1.0, std::round(points * unitsPerPoint)), 'f', 0);
    };
    return withSize(generatedSvg(area, {}, paint),
                    sizeAttributes(side(area.width()), side(area.height())) +
                        " preserveAspectRatio=\"none\"");
}

QString writeSvg(const Canvas& canvas, const QString& fileName, const QString& title)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return cannotWrite(fileName, file.errorString());
    }
    const QByteArray svg = svgOf(canvas, title);
    if (file.write(svg) != svg.size() || !commitComplete(file)) {
        return cannotWrite(fileName, writeError(file));
    }
    return {};
}

QString writePdf(const Canvas& canvas, const QString& fileName, const QString& title, qint64 pages,
                 const PreparePage& prepare)
{
    return writePdf(fileName, title, canvas.page().size, pages,
                    [&](QPainter& painter, qint64 page) {
                        if (!prepare(page)) {
                            return false;
                        }
                        paintPage(painter, canvas);
                        return true;
                    });
}

QString writePdf(const QString& fileName, const QString& title, const QSizeF& page, qint64 pages,
                 const PaintPdfPage& paint)
{
    if (isTooLargeForPdf(page)) {
        return PageExportTr::tr(
                   "The page is longer than %1 points, the most that a PDF document can have.")
            .arg(MaximumPdfSide);
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return cannotWrite(fileName, file.errorString());
    }
    bool isComplete = false;
    bool isStopped = false;
    {
        TrueSizePdf document(file, page);
        QPdfWriter writer(&document);
        setUp(writer, page, title);
        isComplete = paintPages(writer, pages, [&](QPainter& painter, qint64 number) {
            isStopped = !paint(painter, number);
            return !isStopped;
        });
    }
    if (!isComplete) {
        const QString error = isStopped ? QString() : cannotWrite(fileName, writeError(file));
        file.cancelWriting();
        return error;
    }
    return commitComplete(file) ? QString() : cannotWrite(fileName, writeError(file));
}

} // namespace workbench
