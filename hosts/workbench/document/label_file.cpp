#include "workbench/document/label_file.h"

#include "workbench/document/document_limits.h"
#include "workbench/document/label_json.h"
#include "workbench/document/picture_pixels.h"
#include "workbench/pictures/atomic_save.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <map>
#include <set>

namespace workbench::document {

namespace {

struct LabelFileTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::LabelFile)
};

[[nodiscard]] QString cannotSave(const QString& path, const QString& reason)
{
    return LabelFileTr::tr("The label cannot be saved as %1: %2.")
        .arg(QDir::toNativeSeparators(path), reason);
}

[[nodiscard]] QString cannotOpen(const QString& path, const QString& reason)
{
    return LabelFileTr::tr("The file %1 cannot be opened: %2.")
        .arg(QDir::toNativeSeparators(path), reason);
}

// Readers number z values on through all labels of a process. A saved label must not depend on
// the labels imported before it, so only the order of the values is kept.
void renumberZ(QList<ItemValues>& items)
{
    std::set<double> values;
    for (const ItemValues& item : items) {
        values.insert(item.placement.z);
    }
    std::map<double, double> ranks;
    for (const double z : values) {
        ranks.emplace_hint(ranks.end(), z, static_cast<double>(ranks.size()));
    }
    for (ItemValues& item : items) {
        item.placement.z = ranks.at(item.placement.z);
    }
}

} // namespace

SavedLabel snapshot(const Canvas& canvas, const datasources::DatasourceController& datasources)
{
    SavedLabel label{canvas.page(), datasources.values(), {}};
    for (const CanvasItem* item : canvas.items()) {
        label.items << item->values();
    }
    renumberZ(label.items);
    return label;
}

bool restore(const SavedLabel& label, Canvas& canvas,
             datasources::DatasourceController& datasources)
{
    if (!datasources.setValues(label.datasources)) {
        return false;
    }
    canvas.clear();
    canvas.setPage(label.page);
    for (const ItemValues& item : label.items) {
        canvas.addItem(item);
    }
    canvas.showRecord(0, [&](int id, qint64 record, const QStringList& fields) {
        return datasources.recordText(id, record, fields);
    });
    canvas.completeCanvasLoading();
    return true;
}

QString saveLabel(const QString& path, const Canvas& canvas,
                  const datasources::DatasourceController& datasources, Origin origin,
                  const Heartbeat& heartbeat)
{
    const SavedLabel label = snapshot(canvas, datasources);
    if (label.items.size() > limits::Items || label.datasources.size() > limits::Items) {
        return cannotSave(path, LabelFileTr::tr("it has more than %1 items").arg(limits::Items));
    }
    if (pixelsOf(label) > limits::AllPicturePixels) {
        return cannotSave(path, LabelFileTr::tr("its pictures are too large"));
    }
    const QByteArray bytes = toJson(label, origin, heartbeat);
    heartbeat();
    if (bytes.size() > limits::FileBytes) {
        return cannotSave(path, LabelFileTr::tr("its pictures are too large"));
    }
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return cannotSave(path, file.errorString());
    }
    if (file.write(bytes) != bytes.size() || !commitComplete(file)) {
        return cannotSave(path, writeError(file));
    }
    return {};
}

bool isUneditedImport(const QString& path)
{
    QFile file(path);
    return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) &&
           file.size() <= limits::FileBytes && isUneditedImport(file.readAll());
}

QString openLabel(const QString& path, Canvas& canvas,
                  datasources::DatasourceController& datasources)
{
    const QFileInfo info(path);
    if (info.isDir()) {
        return cannotOpen(path, LabelFileTr::tr("it is a folder"));
    }
    // Opening a pipe could wait for ever.
    if (info.exists() && !info.isFile()) {
        return cannotOpen(path, LabelFileTr::tr("it is not a regular file"));
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        return cannotOpen(path, file.errorString());
    }
    // Asked first: to read up to a bound takes the memory of the bound, however small the file.
    if (file.size() > limits::FileBytes) {
        return cannotOpen(path, LabelFileTr::tr("it is larger than any label"));
    }
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError) {
        return cannotOpen(path, file.errorString());
    }
    const ReadLabel read = fromJson(bytes);
    if (!read.error.isEmpty()) {
        return read.error;
    }
    if (!restore(read.label, canvas, datasources)) {
        return LabelFileTr::tr("The label file is damaged: its data sources do not fit together.");
    }
    return {};
}

} // namespace workbench::document
