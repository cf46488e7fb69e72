#include "cli/print_worker.h"

#include "cli/label_input.h"
#include "cli/label_writer.h"
#include "exporting/export_file.h"
#include "printing/sheet_presets.h"

#include <QJsonArray>

namespace cli {
using namespace Qt::StringLiterals;
namespace {

constexpr QLatin1String LabelsKey("labels");
constexpr QLatin1String DocumentsKey("documents");
constexpr QLatin1String FileKey("file");
constexpr QLatin1String NameKey("name");
constexpr QLatin1String MediaKey("media");

QList<PrintLabel> labelsOf(const archive::Job& job)
{
    QList<PrintLabel> labels;
    for (const QJsonValue& value : job.options.value(LabelsKey).toArray()) {
        const QJsonObject label = value.toObject();
        labels.append({label.value(FileKey).toString(), label.value(NameKey).toString()});
    }
    return labels;
}

/// Opens labels one at a time, and shows their records.
class LabelLoader
{
public:
    explicit LabelLoader(const archive::Heartbeat& heartbeat)
        : m_heartbeat(heartbeat)
    {}

    [[nodiscard]] OpenedLabel& open(const PrintLabel& label)
    {
        if (m_file != label.file) {
            m_file = label.file;
            m_label = openLabel(LabelInput(label.file, label.file, std::nullopt));
        }
        m_heartbeat();
        return m_label;
    }

    [[nodiscard]] const workbench::Canvas* show(const PrintLabel& label, qint64 record)
    {
        OpenedLabel& opened = open(label);
        if (opened.isOpen()) {
            exporting::showRecord(*opened.canvas, *opened.datasources, record);
        }
        return opened.canvas.get();
    }

private:
    const archive::Heartbeat& m_heartbeat;
    QString m_file;
    OpenedLabel m_label;
};

/// The user-visible reason why a label cannot be printed; empty if it can.
QString addLabel(printing::PrintBatch& batch, LabelLoader& loader, const PrintLabel& label,
                 const RecordRange& range)
{
    const OpenedLabel& opened = loader.open(label);
    if (!opened.isOpen()) {
        return opened.error;
    }
    const RecordSelection records = selectRecords(opened, range);
    if (!records.error.isEmpty()) {
        return records.error;
    }
    const auto show = [&loader, label, first = records.first](qint64 number) {
        return loader.show(label, first + number);
    };
    return batch.add({label.shownName, opened.canvas->page().size, records.count, show});
}

QJsonArray toJson(const QList<printing::PrintDocument>& documents)
{
    QJsonArray array;
    for (const printing::PrintDocument& document : documents) {
        array.append(QJsonObject{{FileKey, document.file}, {MediaKey, document.media}});
    }
    return array;
}

} // namespace

archive::Job printJob(const QList<PrintLabel>& labels, const JobOptions& options,
                      const QString& staging)
{
    QJsonArray array;
    for (const PrintLabel& label : labels) {
        array.append(QJsonObject{{FileKey, label.file}, {NameKey, label.shownName}});
    }
    archive::Job job;
    job.staging = staging;
    job.options = outputOptions(options);
    job.options.insert(LabelsKey, array);
    return job;
}

bool isPrintJob(const archive::Job& job)
{
    return job.options.contains(LabelsKey);
}

QList<printing::PrintDocument> documentsOf(const archive::FileResult& result)
{
    QList<printing::PrintDocument> documents;
    for (const QJsonValue& value : result.report.value(DocumentsKey).toArray()) {
        const QJsonObject document = value.toObject();
        documents.append({document.value(FileKey).toString(), document.value(MediaKey).toString()});
    }
    return documents;
}

archive::FileResult writePrintDocuments(const archive::Job& job,
                                        const archive::Heartbeat& heartbeat)
{
    const JobOptions options = jobOptionsFromJson(job.options);
    const auto sheetFor = [&options](const QSizeF& label) {
        return printing::sheetOfName(options.sheet, label);
    };
    archive::FileResult result;
    LabelLoader loader(heartbeat);
    printing::PrintBatch batch(sheetFor,
                               {{}, options.firstPosition, options.copies, options.cropMarks});
    for (const PrintLabel& label : labelsOf(job)) {
        const QString error = addLabel(batch, loader, label, options.records);
        if (!error.isEmpty()) {
            result.errors.append(u"%1: %2"_s.arg(label.shownName, error));
        }
    }
    QList<printing::PrintDocument> written;
    if (result.errors.isEmpty()) {
        const QString error = batch.write(job.staging, written);
        result.errors = error.isEmpty() ? QStringList() : QStringList{error};
    }
    result.outcome =
        result.errors.isEmpty() ? archive::FileOutcome::Done : archive::FileOutcome::Failed;
    result.report.insert(DocumentsKey, toJson(written));
    return result;
}

} // namespace cli
