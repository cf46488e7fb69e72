#include "exporting/glabels_export.h"

#include "exporting/glabels_items.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"

#include <QCoreApplication>
#include <QCryptographicHash>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

constexpr QLatin1String Mark("LabelPort");
constexpr QLatin1String RecordsSuffix("-records.csv");

QString tr(const char* text)
{
    return QCoreApplication::translate("exporting::Glabels", text);
}

/// The sheet in points, with labels as large as its cells.
GlabelsSheet onPaper(const printing::Sheet& sheet, const QSizeF& page)
{
    constexpr double pointsPerMillimeter = 72.0 / 25.4;
    const bool isRotated =
        printing::fitOf(sheet, page / pointsPerMillimeter) == printing::Fit::Rotated;
    return {u"LabelPort"_s,
            sheet.name(),
            sheet.paperSize * pointsPerMillimeter,
            sheet.label * pointsPerMillimeter,
            0.0,
            sheet.columns,
            sheet.rows,
            sheet.start * pointsPerMillimeter,
            sheet.pitch * pointsPerMillimeter,
            isRotated};
}

GlabelsSheet onOwnPaper(const QString& name, const QSizeF& page)
{
    return {u"LabelPort"_s, name, page, page, 0.0, 1, 1, {}, page, false};
}

/// A label that is smaller than its place is centered in it.
QTransform centered(const GlabelsSheet& sheet, const QSizeF& page)
{
    const QSizeF room = (sheet.isRotated ? sheet.label.transposed() : sheet.label) - page;
    return QTransform::fromTranslate(room.width() / 2.0, room.height() / 2.0);
}

/// Paper is white.
void addBackground(GlabelsDocument& document, const PageValues& page, const QTransform& toLabel)
{
    if (page.background.alpha() > 0 && page.background != QColor(Qt::white)) {
        document.addBox(QRectF({0.0, 0.0}, page.size), toLabel, {}, page.background);
    }
}

QByteArray checksumOf(const QByteArray& records)
{
    return QCryptographicHash::hash(records, QCryptographicHash::Sha256).toHex();
}

} // namespace

GlabelsLabel toGlabels(const Canvas& canvas, const datasources::DatasourceController& sources,
                       const GlabelsOptions& options, const Heartbeat& heartbeat)
{
    QList<WalkedItem> items = walkLabel(canvas, sources, 0);
    RecordsTable records(items, sources);
    heartbeat();
    const QSizeF page = canvas.page().size;
    const GlabelsSheet sheet =
        options.sheet ? onPaper(*options.sheet, page) : onOwnPaper(options.name, page);
    const QTransform toLabel = centered(sheet, page);
    GlabelsDocument document(sheet);
    addBackground(document, canvas.page(), toLabel);
    GlabelsItems writer(document, records, toLabel);
    for (WalkedItem& item : items) {
        item.toPage *= toLabel;
        writer.add(item);
        heartbeat();
    }
    if (records.isCut()) {
        writer.findings().add(Fidelity::Simplified, u"label"_s,
                              tr("Only the first records are in the CSV file."));
    }
    GlabelsLabel result;
    QString remark = Mark;
    if (!records.isEmpty()) {
        result.records = records.toCsv();
        remark += u", records "_s + QString::fromLatin1(checksumOf(result.records));
    }
    result.label = document.finish(remark, records.isEmpty() ? QString() : options.recordsName);
    result.findings = writer.findings().all();
    return result;
}

QString glabelsRecordsName(const QString& label)
{
    return label + RecordsSuffix;
}

QString glabelsLabelOfRecords(const QString& recordsName)
{
    return recordsName.endsWith(RecordsSuffix) ? recordsName.chopped(RecordsSuffix.size())
                                               : QString();
}

bool isUneditedGlabels(const QByteArray& head)
{
    return head.contains("<!-- LabelPort") && head.contains("<Glabels-document");
}

bool areRecordsOf(const QByteArray& head, const QByteArray& records)
{
    return isUneditedGlabels(head) && head.contains(", records " + checksumOf(records));
}

} // namespace exporting
