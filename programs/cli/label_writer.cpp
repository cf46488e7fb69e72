#include "cli/label_writer.h"

#include "archive/publish.h"
#include "cli/existing_output.h"
#include "cli/opened_label.h"
#include "workbench/document/label_file.h"
#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_image.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace cli {
namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(cli::LabelWriter)
};

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
                Words::tr("it has only %1 records, none with the number %2")
                    .arg(available)
                    .arg(range.first)};
    }
    const qint64 last = std::min(range.last.value_or(available), available);
    const qint64 count = last - range.first + 1;
    if (count > MaximumRecords) {
        return {0, 0,
                Words::tr("%1 records are more than the %2 that one command writes; name a "
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

// The label's name, as the title of drawings and documents.
QString titleOf(const QString& output)
{
    return QFileInfo(output).completeBaseName();
}

QString writePicture(const workbench::Canvas& canvas, const QString& output, int dpi)
{
    workbench::PageImage page = workbench::renderPage(canvas, dpi);
    if (!page.error.isEmpty()) {
        return page.error;
    }
    // No translation: it says in the picture whose it is.
    page.image.setText(QStringLiteral("Software"), QLatin1String(SoftwareMark));
    return workbench::writePng(page.image, output);
}

QString writeOne(const OpenedLabel& label, Target target, const QString& output,
                 const QString& title, int dpi)
{
    switch (target) {
    case Target::Png:
        return writePicture(*label.canvas, output, dpi);
    case Target::Svg:
        return workbench::writeSvg(*label.canvas, output, title);
    case Target::Label:
        return workbench::document::saveLabel(output, *label.canvas, *label.datasources);
    case Target::Pdf:
        break;
    }
    return {};
}

} // namespace

LabelWriter::LabelWriter(OpenedLabel& label, WriteOptions options, const QString& staging,
                         archive::SignOfLife alive)
    : m_label(label)
    , m_options(std::move(options))
    , m_staging(staging)
    , m_alive(std::move(alive))
{}

Written LabelWriter::write(Target target, const QString& output)
{
    if (target == Target::Label) {
        // All records are in it, whatever was asked of pictures.
        return writeFile(output, [&](const QString& file) {
            return writeOne(m_label, target, file, titleOf(output), m_options.dpi);
        });
    }
    const Records records = recordsOf(m_label, m_options.records);
    if (!records.error.isEmpty()) {
        return {{}, records.error};
    }
    return target == Target::Pdf ? writeDocument(output, records.first, records.count)
                                 : writeSeries(target, output, records.first, records.count);
}

Written LabelWriter::writeFile(const QString& output, const Write& write)
{
    if (!m_options.force && !mayOverwrite(output, m_options.known)) {
        return {{}, archive::notOursWords(output)};
    }
    const bool mayReplace = m_options.force || QFileInfo::exists(output);
    const QString staged = QDir(m_staging).filePath(
        QStringLiteral("%1.%2").arg(++m_written).arg(QFileInfo(output).suffix()));
    QString error = write(staged);
    m_alive();
    if (!error.isEmpty()) {
        return {{}, error.replace(staged, output)};
    }
    archive::FileStamp stamp = archive::stampOf(staged).value_or(archive::FileStamp{});
    stamp.path = output;
    return {{{staged, stamp, mayReplace}}, {}};
}

Written LabelWriter::writeDocument(const QString& output, qint64 first, qint64 count)
{
    return writeFile(output, [&](const QString& file) {
        return workbench::writePdf(*m_label.canvas, file, titleOf(output), count, [&](qint64 page) {
            m_label.showRecord(first + page);
            m_alive();
            return true;
        });
    });
}

Written LabelWriter::writeSeries(Target target, const QString& output, qint64 first, qint64 count)
{
    Written all;
    for (qint64 record = first; record < first + count && all.error.isEmpty(); ++record) {
        m_label.showRecord(record);
        const QString name = count > 1 ? numbered(output, record) : output;
        Written one = writeFile(name, [&](const QString& file) {
            return writeOne(m_label, target, file, titleOf(output), m_options.dpi);
        });
        all.files += one.files;
        all.error = one.error;
    }
    return all;
}

} // namespace cli
