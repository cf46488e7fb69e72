#include "window/edit/clipboard.h"

#include "workbench/document/document_limits.h"
#include "workbench/document/label_json.h"

#include <QMimeData>
#include <QSet>
#include <QStringList>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

QString mimeType()
{
    return u"application/x-labelport-label"_s;
}

QString plainTextOf(const workbench::ItemValues& values)
{
    if (values.barcode) {
        return values.barcode->content;
    }
    return values.text ? values.text->text : QString();
}

} // namespace

std::unique_ptr<QMimeData> copyItems(const QList<workbench::CanvasItem*>& items,
                                     const workbench::datasources::DatasourceController& sources)
{
    workbench::document::SavedLabel label;
    QSet<int> sourceIds;
    QStringList texts;
    for (const workbench::CanvasItem* item : items) {
        label.items.append(item->values());
        const workbench::ItemValues& values = label.items.constLast();
        sourceIds.insert(values.datasource.value_or(workbench::DatasourceValues()).id);
        texts.append(plainTextOf(values));
    }
    for (const auto& source : sources.values()) {
        if (sourceIds.contains(source.id)) {
            label.datasources.append(source);
        }
    }
    texts.removeAll(QString());
    auto data = std::make_unique<QMimeData>();
    data->setData(mimeType(), workbench::document::toJson(label));
    if (!texts.isEmpty()) {
        data->setText(texts.join(u'\n'));
    }
    return data;
}

bool hasItems(const QMimeData* data)
{
    return data != nullptr && data->hasFormat(mimeType());
}

QList<workbench::ItemValues>
pastedItems(const QMimeData* data, const workbench::datasources::DatasourceController& sources)
{
    if (!hasItems(data)) {
        return {};
    }
    const QByteArray bytes = data->data(mimeType());
    if (bytes.size() > workbench::document::limits::FileBytes) {
        return {};
    }
    workbench::document::ReadLabel read = workbench::document::fromJson(bytes);
    if (!read.error.isEmpty()) {
        return {};
    }
    const auto& copied = read.label.datasources;
    const auto here = sources.values();
    for (workbench::ItemValues& item : read.label.items) {
        const bool isKnown =
            item.datasource && std::any_of(copied.begin(), copied.end(), [&](const auto& source) {
                return source.id == item.datasource->id && here.contains(source);
            });
        if (item.datasource && !isKnown) {
            item.datasource = workbench::DatasourceValues();
        }
    }
    return read.label.items;
}

} // namespace window
