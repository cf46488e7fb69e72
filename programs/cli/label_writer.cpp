#include "cli/label_writer.h"

#include "archive/publish.h"
#include "cli/existing_output.h"
#include "cli/label_input.h"
#include "exporting/export_file.h"
#include "workbench/document/label_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <climits>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

struct LabelWriterTr
{
    Q_DECLARE_TR_FUNCTIONS(cli::LabelWriter)
};

QString numbered(const QString& output, qint64 record)
{
    const QFileInfo info(output);
    const QString number = u"-%1."_s.arg(record + 1, 4, 10, QLatin1Char('0'));
    return QDir::cleanPath(info.dir().filePath(info.completeBaseName() + number + info.suffix()));
}

// The label's name, as the title of drawings and documents.
QString titleOf(const QString& output)
{
    return QFileInfo(output).completeBaseName();
}

exporting::OptionValues exportOptions(const JobOptions& options)
{
    return {{exporting::DpiOption, options.dpi},
            {exporting::SheetOption, options.sheet},
            {exporting::FirstPositionOption, options.firstPosition + 1},
            {exporting::CopiesOption, options.copies},
            {exporting::CropMarksOption, options.cropMarks},
            {exporting::ZplNativeOption, options.zplNative}};
}

archive::StagedFile stagedFile(const QString& staged, const QString& output)
{
    archive::FileStamp stamp = archive::stampOf(staged).value_or(archive::FileStamp{});
    stamp.path = output;
    return {staged, stamp};
}

} // namespace

RecordSelection selectRecords(const OpenedLabel& label, const RecordRange& range)
{
    const qint64 available = label.datasources->recordCount();
    if (range.first > available) {
        const int count = static_cast<int>(std::min<qint64>(available, INT_MAX));
        return {0, 0,
                QCoreApplication::translate("cli::LabelWriter",
                                            "The label has only %n record(s); record %1 does not "
                                            "exist.",
                                            nullptr, count)
                    .arg(range.first)};
    }
    const qint64 last = std::min(range.last.value_or(available), available);
    const qint64 count = last - range.first + 1;
    if (count > MaximumRecords) {
        return {
            0, 0,
            LabelWriterTr::tr("%1 records are more than the %2 that one command writes; select a "
                              "range with --records.")
                .arg(count)
                .arg(MaximumRecords)};
    }
    return {range.first - 1, count, {}};
}

LabelWriter::LabelWriter(OpenedLabel& label, WriteOptions options, const QString& staging,
                         archive::Heartbeat heartbeat)
    : m_label(label)
    , m_options(std::move(options))
    , m_staging(staging)
    , m_reachable(staging)
    , m_heartbeat(std::move(heartbeat))
{}

Written LabelWriter::write(exporting::Target target, const QString& output)
{
    if (target == exporting::Target::Glabels) {
        return writeGlabels(output);
    }
    const exporting::RecordFiles files = exporting::entryOf(target).records;
    if (files == exporting::RecordFiles::Always) {
        return writeFile(output, [&](const QString& file) {
            return workbench::document::saveLabel(file, *m_label.canvas, *m_label.datasources,
                                                  workbench::document::Origin::Import, m_heartbeat);
        });
    }
    const RecordSelection records = selectRecords(m_label, m_options.job.records);
    if (!records.error.isEmpty()) {
        return {{}, records.error};
    }
    return files == exporting::RecordFiles::OneFile
               ? writeRecords(target, output, records.first, records.count, titleOf(output))
               : writeSeries(target, output, records.first, records.count);
}

Written LabelWriter::writeFile(const QString& output, const Write& write)
{
    if (console::kindOf(output) == console::FileKind::Folder) {
        return {{}, archive::folderInPlaceMessage(output)};
    }
    const QString name =
        u"%1-%2.%3"_s.arg(m_options.page).arg(++m_written).arg(QFileInfo(output).suffix());
    const QString path = QDir(m_reachable.path()).filePath(name);
    QString error = write(path);
    m_heartbeat();
    if (!error.isEmpty()) {
        return {{}, error.replace(path, output)};
    }
    const QString staged = QDir(m_staging).filePath(name);
    return {{stagedFile(staged, output)}, {}};
}

Written LabelWriter::writeRecords(exporting::Target target, const QString& output, qint64 first,
                                  qint64 count, const QString& title)
{
    const auto beforeRecord = [this](qint64) {
        m_heartbeat();
        return true;
    };
    return writeFile(output, [&](const QString& file) {
        return exporting::exportFile(target,
                                     {*m_label.canvas, *m_label.datasources, first, count, title,
                                      exportOptions(m_options.job), beforeRecord},
                                     file);
    });
}

Written LabelWriter::writeGlabels(const QString& output)
{
    exporting::ExportFindings findings;
    Written written = writeFile(output, [&](const QString& file) {
        return exporting::exportFile(exporting::Target::Glabels,
                                     {*m_label.canvas, *m_label.datasources, 0, 1, titleOf(output),
                                      exportOptions(m_options.job),
                                      [this](qint64) {
                                          m_heartbeat();
                                          return true;
                                      },
                                      output, &findings},
                                     file);
    });
    written.findings = findings;
    const QString staged = written.files.isEmpty() ? QString() : written.files.first().staged;
    const QString records = exporting::recordsFileOf(exporting::Target::Glabels, staged);
    if (!staged.isEmpty() && console::kindOf(records) == console::FileKind::File) {
        // Before the label: whether existing records are ours depends on the label next to them.
        written.files.prepend(
            stagedFile(records, exporting::recordsFileOf(exporting::Target::Glabels, output)));
    }
    return written;
}

Written LabelWriter::writeSeries(exporting::Target target, const QString& output, qint64 first,
                                 qint64 count)
{
    Written all;
    for (qint64 record = first; record < first + count && all.error.isEmpty(); ++record) {
        const QString name = count > 1 ? numbered(output, record) : output;
        Written one = writeRecords(target, name, record, 1, titleOf(output));
        all.files += one.files;
        all.error = one.error;
    }
    return all;
}

} // namespace cli
