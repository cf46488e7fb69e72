#include "exporting/zpl.h"

#include "exporting/label_walk.h"
#include "exporting/zpl_graphic.h"
#include "exporting/zpl_native.h"
#include "workbench/pictures/atomic_save.h"
#include "workbench/rendering/page_image.h"

#include <QSaveFile>

namespace exporting {
namespace {

using namespace Qt::StringLiterals;

constexpr double PointsPerInch = 72.0;

/// The parameters of ^PQ: labels in all; and how many are equal before a counter advances.
QByteArray quantityOf(qint64 records, int copies)
{
    const QByteArray total = QByteArray::number(records * copies);
    return records > 1 ? total + ",0," + QByteArray::number(copies) : total;
}

/// The commands of one label. The comment identifies our outputs.
QByteArray labelOf(const QSize& dots, const QByteArray& fields, const QByteArray& quantity)
{
    return "^XA^FX" + QByteArray(SoftwareMark) + "^FS\n^PW" + QByteArray::number(dots.width()) +
           "^LL" + QByteArray::number(dots.height()) + "^LH0,0\n" + fields + "^PQ" + quantity +
           "^XZ\n";
}

/// Where barcodes are, in dots.
QList<QRect> barcodeAreas(const ExportJob& job, qint64 record, double scale)
{
    QList<QRect> areas;
    for (const WalkedItem& item : walkLabel(job.canvas, job.sources, record)) {
        if (item.values.barcode) {
            const QRectF area = item.toPage.mapRect(QRectF(QPointF(), item.values.box.size));
            areas.append(QRectF(area.topLeft() * scale, area.size() * scale).toAlignedRect());
        }
    }
    return areas;
}

} // namespace

double printerResolution(int dpi)
{
    constexpr double eightInMillimeter = 203.2;
    return dpi == 203 ? eightInMillimeter : dpi;
}

LabelDots labelDots(const ExportJob& job, qint64 record, int dpi)
{
    const double resolution = printerResolution(dpi);
    const workbench::PageImage picture = workbench::renderPage(job.canvas, resolution);
    if (!picture.error.isEmpty()) {
        return {{}, picture.error};
    }
    return {printerDots(picture.image, barcodeAreas(job, record, resolution / PointsPerInch)), {}};
}

QString writeZpl(const ExportJob& job, const QString& fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return cannotWrite(fileName, file.errorString());
    }
    const int dpi = valueOf(job.options, Target::Zpl, DpiOption);
    const int copies = valueOf(job.options, Target::Zpl, CopiesOption);
    const bool isNative = valueOf(job.options, Target::Zpl, ZplNativeOption) != 0;
    for (qint64 page = 0; page < job.recordCount; ++page) {
        if (!prepareRecord(job, page)) {
            return {};
        }
        const auto [dots, error] = labelDots(job, job.firstRecord + page, dpi);
        if (!error.isEmpty()) {
            return error;
        }
        if (!isNative) {
            file.write(labelOf(dots.size(), graphicFields(dots), quantityOf(1, copies)));
            continue;
        }
        const NativeLabel native =
            nativeLabel(job, job.firstRecord + page, dots, printerResolution(dpi) / PointsPerInch);
        // A label that counts by itself is the label of all records.
        const qint64 records = native.isSerial ? job.recordCount : 1;
        file.write(labelOf(dots.size(), graphicFields(native.rest) + native.fields,
                           quantityOf(records, copies)));
        page += records - 1;
    }
    return workbench::commitComplete(file) ? QString()
                                           : cannotWrite(fileName, workbench::writeError(file));
}

} // namespace exporting
