#include "cli/print_worker.h"

#include "cli/label_input.h"
#include "cli/label_writer.h"
#include "exporting/export_file.h"
#include "printing/print_document.h"
#include "printing/print_queue.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>

#include <vector>

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

OpenedLabel open(const PrintLabel& label)
{
    return openLabel(LabelInput(label.file, label.file, std::nullopt));
}

/// The labels of one document, with their records. One label is open at a time.
class Document
{
public:
    Document(const archive::Heartbeat& heartbeat, printing::PrintLayout layout, QSizeF size)
        : m_heartbeat(heartbeat)
        , m_layout(std::move(layout))
        , m_size(size)
    {}

    /// Whether a label with this layout and page can be in the same document.
    [[nodiscard]] bool accepts(const printing::PrintLayout& layout, const QSizeF& size) const
    {
        return layout.sheet ? layout.sheet == m_layout.sheet : size == m_size && !m_layout.sheet;
    }

    void add(const PrintLabel& label, const RecordSelection& records)
    {
        m_parts.append({label, records, m_count});
        m_count += records.count;
    }

    /// The user-visible reason why the document cannot be written; empty if it was.
    [[nodiscard]] QString write(const QString& file)
    {
        const QString problem = printing::problemOf(m_layout, m_count);
        return problem.isEmpty()
                   ? printing::writePrintDocument(
                         file, QFileInfo(m_parts.first().label.shownName).completeBaseName(),
                         m_layout,
                         {m_count, m_size, [this](qint64 number) { return show(number); }})
                   : problem;
    }

    [[nodiscard]] QString media() const
    {
        if (m_layout.sheet) {
            return m_layout.sheet->paper;
        }
        constexpr double pointsPerMillimeter = 72.0 / 25.4;
        return printing::customMedia(m_size / pointsPerMillimeter);
    }

private:
    struct Part
    {
        PrintLabel label;
        RecordSelection records;
        qint64 start; ///< number of its first record in the document
    };

    const workbench::Canvas* show(qint64 number)
    {
        if (m_open < 0 || number < m_parts.at(m_open).start) {
            openPart(0);
        }
        while (number >= m_parts.at(m_open).start + m_parts.at(m_open).records.count) {
            openPart(m_open + 1);
        }
        m_heartbeat();
        if (!m_label.isOpen()) {
            return nullptr;
        }
        const Part& part = m_parts.at(m_open);
        exporting::showRecord(*m_label.canvas, *m_label.datasources,
                              part.records.first + number - part.start);
        return m_label.canvas.get();
    }

    void openPart(qsizetype part)
    {
        m_label = open(m_parts.at(part).label);
        m_open = part;
    }

    const archive::Heartbeat& m_heartbeat;
    printing::PrintLayout m_layout;
    QSizeF m_size; ///< of a page without a sheet, in points
    QList<Part> m_parts;
    qint64 m_count = 0;
    qsizetype m_open = -1;
    OpenedLabel m_label;
};

/// All documents of a job.
class Documents
{
public:
    Documents(const JobOptions& options, const archive::Heartbeat& heartbeat)
        : m_options(options)
        , m_heartbeat(heartbeat)
    {}

    /// The user-visible reason why a label cannot be printed; empty if it can.
    [[nodiscard]] QString add(const PrintLabel& label)
    {
        const OpenedLabel opened = open(label);
        m_heartbeat();
        if (!opened.isOpen()) {
            return opened.error;
        }
        const RecordSelection records = selectRecords(opened, m_options.records);
        if (!records.error.isEmpty()) {
            return records.error;
        }
        printing::PrintLayout layout = layoutFor(m_options, *opened.canvas);
        const QString problem = layoutProblem(layout, *opened.canvas, records.count);
        if (!problem.isEmpty()) {
            return problem;
        }
        const QSizeF size = opened.canvas->page().size;
        if (m_documents.empty() || !m_documents.back().accepts(layout, size)) {
            // The first free position is on the first sheet only.
            layout.firstPosition = m_documents.empty() ? layout.firstPosition : 0;
            m_documents.emplace_back(m_heartbeat, layout, size);
        }
        m_documents.back().add(label, records);
        return {};
    }

    [[nodiscard]] QString write(const QString& folder, QList<PrintDocument>& written)
    {
        for (Document& document : m_documents) {
            const QString file = QDir(folder).filePath(u"%1.pdf"_s.arg(written.size() + 1));
            const QString error = document.write(file);
            if (!error.isEmpty()) {
                return error;
            }
            if (!QFileInfo::exists(file)) {
                return QCoreApplication::translate("cli::PrintWorker",
                                                   "A label changed while it was printed.");
            }
            written.append({file, document.media()});
        }
        return {};
    }

private:
    const JobOptions& m_options;
    const archive::Heartbeat& m_heartbeat;
    std::vector<Document> m_documents;
};

QJsonArray toJson(const QList<PrintDocument>& documents)
{
    QJsonArray array;
    for (const PrintDocument& document : documents) {
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

QList<PrintDocument> documentsOf(const archive::FileResult& result)
{
    QList<PrintDocument> documents;
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
    archive::FileResult result;
    Documents documents(options, heartbeat);
    for (const PrintLabel& label : labelsOf(job)) {
        const QString error = documents.add(label);
        if (!error.isEmpty()) {
            result.errors.append(u"%1: %2"_s.arg(label.shownName, error));
        }
    }
    QList<PrintDocument> written;
    if (result.errors.isEmpty()) {
        const QString error = documents.write(job.staging, written);
        result.errors = error.isEmpty() ? QStringList() : QStringList{error};
    }
    result.outcome =
        result.errors.isEmpty() ? archive::FileOutcome::Done : archive::FileOutcome::Failed;
    result.report.insert(DocumentsKey, toJson(written));
    return result;
}

} // namespace cli
