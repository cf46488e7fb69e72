#include "exporting/glabels_export.h"

#include "exporting/glabels_items.h"
#include "printing/print_document.h"
#include "printing/sheet_presets.h"
#include "workbench/canvas/canvas.h"
#include "workbench/datasources/datasource_controller.h"
#include "workbench/pictures/atomic_save.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFileInfo>
#include <QSaveFile>

namespace exporting {

using namespace Qt::StringLiterals;
using namespace workbench;

namespace {

constexpr QLatin1String Mark("LabelPort");

struct GlabelsExportTr
{
    Q_DECLARE_TR_FUNCTIONS(exporting::Glabels)
};

/// Paper of the label's size, in millimeters.
printing::Sheet ownPaper(const QString& name, const QSizeF& size)
{
    return {{name}, {}, size, 1, 1, size, {}, size};
}

/// A label that is smaller than its place is centered in it.
QTransform centered(const QSizeF& place, const QSizeF& page)
{
    constexpr double pointsPerMillimeter = 72.0 / 25.4;
    const QSizeF room = place * pointsPerMillimeter - page;
    return QTransform::fromTranslate(room.width() / 2.0, room.height() / 2.0);
}

/// Paper is white.
void addBackground(GlabelsDocument& document, const PageValues& page, const QTransform& toLabel)
{
    if (page.background.alpha() > 0 && page.background != QColor(Qt::white)) {
        document.addShape(GlabelsDocument::Shape::Box, QRectF({0.0, 0.0}, page.size), toLabel,
                          {{}, 0.0, Qt::NoPen}, page.background);
    }
}

QByteArray checksumOf(const QByteArray& records)
{
    return QCryptographicHash::hash(records, QCryptographicHash::Sha256).toHex();
}

/// Writes both files completely before it replaces any.
QString writeFiles(const GlabelsLabel& label, const QString& fileName)
{
    const QString recordsFile = recordsFileOf(Target::Glabels, fileName);
    QSaveFile records(recordsFile);
    QSaveFile file(fileName);
    const bool hasRecords = !label.records.isEmpty();
    if (hasRecords && (!records.open(QIODevice::WriteOnly) || records.write(label.records) < 0)) {
        return cannotWrite(recordsFile, records.errorString());
    }
    if (!file.open(QIODevice::WriteOnly) || file.write(label.label) < 0 || !file.flush()) {
        return cannotWrite(fileName, file.errorString());
    }
    if (hasRecords && !commitComplete(records)) {
        return cannotWrite(recordsFile, writeError(records));
    }
    return commitComplete(file) ? QString() : cannotWrite(fileName, writeError(file));
}

} // namespace

GlabelsLabel toGlabels(const Canvas& canvas, const datasources::DatasourceController& sources,
                       const GlabelsOptions& options, const Heartbeat& heartbeat)
{
    QList<WalkedItem> items = walkLabel(canvas, sources, 0);
    RecordsTable records(items, sources);
    heartbeat();
    const QSizeF size = printing::labelSize(canvas);
    const printing::Sheet sheet = options.sheet.value_or(ownPaper(options.name, size));
    const bool isRotated = printing::fitOf(sheet, size) == printing::Fit::Rotated;
    const QTransform toLabel =
        centered(isRotated ? sheet.label.transposed() : sheet.label, canvas.page().size);
    GlabelsDocument document(sheet, isRotated);
    addBackground(document, canvas.page(), toLabel);
    GlabelsItems writer(document, records, toLabel);
    for (WalkedItem& item : items) {
        item.toPage *= toLabel;
        writer.add(item);
        heartbeat();
    }
    if (records.isCut()) {
        writer.findings().add(Fidelity::Simplified, u"label"_s,
                              GlabelsExportTr::tr("Only the first records are in the CSV file."));
    }
    GlabelsLabel result;
    QString remark = Mark;
    if (!records.isEmpty()) {
        result.records = records.toCsv();
        remark += u", records "_s + QString::fromLatin1(checksumOf(result.records));
    }
    result.label = document.finish(remark, records.isEmpty() ? QString() : options.recordsName);
    result.findings = writer.findings();
    return result;
}

QString writeGlabels(const ExportJob& job, const QString& fileName)
{
    const QSizeF size = printing::labelSize(job.canvas);
    const std::optional<printing::Sheet> sheet =
        printing::sheetOfName(job.options.value(SheetOption).toString(), size);
    if (sheet && printing::fitOf(*sheet, size) == printing::Fit::TooLarge) {
        return printing::misfitMessage(*sheet, size);
    }
    bool isStopped = false;
    const auto heartbeat = [&] { isStopped = isStopped || !job.beforeRecord(0); };
    const QString finalName = job.finalName.isEmpty() ? fileName : job.finalName;
    const QString recordsName = QFileInfo(recordsFileOf(Target::Glabels, finalName)).fileName();
    showRecord(job.canvas, job.sources, 0);
    const GlabelsLabel label =
        toGlabels(job.canvas, job.sources, {job.title, recordsName, sheet}, heartbeat);
    if (job.findings != nullptr) {
        *job.findings = label.findings;
    }
    return isStopped ? QString() : writeFiles(label, fileName);
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
