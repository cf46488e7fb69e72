#include "apps/cli/label_writer.h"

#include "apps/cli/existing_output.h"
#include "apps/cli/opened_label.h"
#include "workbench/document/label_file.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_image.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace cli {
namespace {

/// The records to write, counted from 0.
struct Records
{
    qint64 first = 0;
    qint64 count = 1;
    QString error;
};

Records recordsOf(const OpenedLabel& label, const RecordRange& range)
{
    const qint64 available = label.datasources->recordCount();
    if (range.first > available) {
        return {0, 0,
                QStringLiteral("it has only %1 records, none with the number %2")
                    .arg(available)
                    .arg(range.first)};
    }
    const qint64 last = std::min(range.last.value_or(available), available);
    const qint64 count = last - range.first + 1;
    if (count > MaximumRecords) {
        return {0, 0,
                QStringLiteral("%1 records are more than the %2 that one command writes; name a "
                               "part of them with --records")
                    .arg(count)
                    .arg(MaximumRecords)};
    }
    return {range.first - 1, count, {}};
}

QString numbered(const QString& output, qint64 record)
{
    const QFileInfo info(output);
    const QString number = QStringLiteral("-%1.").arg(record + 1, 4, 10, QLatin1Char('0'));
    return QDir::cleanPath(info.dir().filePath(info.completeBaseName() + number + info.suffix()));
}

QString obstacleTo(const QString& output, const WriteOptions& options)
{
    if (options.force || mayOverwrite(output)) {
        return {};
    }
    return QStringLiteral("%1 exists and was not made by labelport, or may have been changed "
                          "since; it is left as it is (--force overwrites it)")
        .arg(output);
}

QString writePicture(const workbench::Canvas& canvas, const QString& output, int dpi)
{
    workbench::PageImage page = workbench::renderPage(canvas, dpi);
    if (!page.error.isEmpty()) {
        return page.error;
    }
    page.image.setText(QStringLiteral("Software"), QLatin1String(SoftwareMark));
    return workbench::writePng(page.image, output);
}

QString writeOne(const OpenedLabel& label, Target target, const QString& output, int dpi)
{
    switch (target) {
    case Target::Png:
        return writePicture(*label.canvas, output, dpi);
    case Target::Svg:
        return workbench::writeSvg(*label.canvas, output);
    case Target::Label:
        return workbench::document::saveLabel(output, *label.canvas, *label.datasources);
    case Target::Pdf:
        break;
    }
    return {};
}

QString writeDocument(OpenedLabel& label, const QString& output, const Records& records)
{
    return workbench::writePdf(*label.canvas, output, records.count, [&](qint64 page) {
        label.showRecord(records.first + page);
        return true;
    });
}

Written writeFile(const QString& output, const WriteOptions& options, auto write)
{
    QString error = obstacleTo(output, options);
    if (error.isEmpty()) {
        error = write(output);
    }
    return error.isEmpty() ? Written{{output}, {}} : Written{{}, error};
}

Written writeSeries(OpenedLabel& label, Target target, const QString& output,
                    const Records& records, const WriteOptions& options)
{
    Written all;
    for (qint64 index = 0; index < records.count && all.error.isEmpty(); ++index) {
        const qint64 record = records.first + index;
        label.showRecord(record);
        const QString name = options.records.isSeries() ? numbered(output, record) : output;
        const Written one = writeFile(name, options, [&](const QString& file) {
            return writeOne(label, target, file, options.dpi);
        });
        all.files += one.files;
        all.error = one.error;
    }
    return all;
}

} // namespace

Written writeLabel(OpenedLabel& label, Target target, const QString& output,
                   const WriteOptions& options)
{
    if (target == Target::Label) {
        // All records are in it, whatever was asked of pictures.
        return writeFile(output, options, [&](const QString& file) {
            return writeOne(label, target, file, options.dpi);
        });
    }
    const Records records = recordsOf(label, options.records);
    if (!records.error.isEmpty()) {
        return {{}, records.error};
    }
    if (target == Target::Pdf) {
        return writeFile(output, options,
                         [&](const QString& file) { return writeDocument(label, file, records); });
    }
    return writeSeries(label, target, output, records, options);
}

} // namespace cli
