#include "exporting/records_csv.h"

#include "exporting/label_walk.h"
#include "workbench/canvas/canvas.h"
#include "workbench/items/label_document.h"
#include "workbench/pictures/atomic_save.h"

#include <QSaveFile>

#include <algorithm>

namespace exporting {
namespace {

using namespace Qt::StringLiterals;

bool isBound(const workbench::ItemValues& values)
{
    return values.datasource && values.datasource->id >= 0;
}

/// The positions in the stack, counted from 1, of the items bound to a data source.
QList<int> boundPositions(const workbench::Canvas& canvas)
{
    QList<int> positions;
    int position = 0;
    for (const workbench::CanvasItem* item : canvas.itemsFromBottom()) {
        ++position;
        if (isBound(item->values())) {
            positions.append(position);
        }
    }
    return positions;
}

QString shownText(const workbench::ItemValues& values)
{
    if (values.barcode) {
        return values.barcode->content;
    }
    const workbench::TextValues text = values.text.value_or(workbench::TextValues());
    return text.html.isEmpty() ? text.text : workbench::textOfHtml(text.html);
}

QStringList cellsOf(const ExportJob& job, qint64 record, const QList<int>& positions)
{
    const QList<WalkedItem> walk = walkLabel(job.canvas, job.sources, record);
    QStringList cells{QString::number(record + 1)};
    for (const int position : positions) {
        const auto found = std::find_if(walk.begin(), walk.end(), [&](const WalkedItem& item) {
            return item.position == position;
        });
        // An item outside the page shows nothing.
        cells.append(found != walk.end() ? shownText(found->values) : QString());
    }
    return cells;
}

} // namespace

QByteArray csvLine(const QStringList& cells)
{
    QStringList quoted;
    for (QString cell : cells) {
        const bool isPlain = std::none_of(
            cell.begin(), cell.end(), [](QChar letter) { return u"\",\r\n"_s.contains(letter); });
        quoted.append(isPlain ? cell : u'"' + cell.replace(u'"', u"\"\""_s) + u'"');
    }
    return (quoted.join(u',') + u"\r\n"_s).toUtf8();
}

QString writeRecordsCsv(const ExportJob& job, const QString& fileName)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return cannotWrite(fileName, file.errorString());
    }
    const QList<int> positions = boundPositions(job.canvas);
    QStringList header{u"record"_s};
    for (const int position : positions) {
        header.append(u"item-%1"_s.arg(position));
    }
    file.write(csvLine(header));
    for (qint64 page = 0; page < job.recordCount; ++page) {
        if (!prepareRecord(job, page)) {
            return {};
        }
        file.write(csvLine(cellsOf(job, job.firstRecord + page, positions)));
    }
    return workbench::commitComplete(file) ? QString()
                                           : cannotWrite(fileName, workbench::writeError(file));
}

} // namespace exporting
