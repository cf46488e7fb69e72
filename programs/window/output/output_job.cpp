#include "window/output/output_job.h"

#include "exporting/export_file.h"
#include "workbench/rendering/page_export.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

constexpr int FewestDigits = 3;

// The label's name without the suffix.
QString titleOf(const OpenLabel& label)
{
    return QFileInfo(displayName(label)).completeBaseName();
}

// Writes one file with some of the records.
OutputReport writeFile(OpenLabel& label, const OutputOrder& order, const QString& fileName,
                       const RecordRange& records, const Progress& progress)
{
    OutputReport report;
    const auto beforeRecord = [&](qint64 done) {
        report.wasStopped = !progress(done);
        return !report.wasStopped;
    };
    report.error = exporting::exportFile(order.target,
                                         {*label.canvas,
                                          *label.sources,
                                          records.first,
                                          records.count,
                                          titleOf(label),
                                          order.options,
                                          beforeRecord,
                                          {},
                                          &report.findings},
                                         fileName);
    report.files = report.error.isEmpty() && !report.wasStopped ? 1 : 0;
    return report;
}

OutputReport writeSeries(OpenLabel& label, const OutputOrder& order, const Progress& progress)
{
    OutputReport report;
    for (qint64 position = 0; position < order.records.count; ++position) {
        const OutputReport one = writeFile(label, order, fileNameInSeries(order, position),
                                           {order.records.first + position, 1},
                                           [&](qint64) { return progress(position); });
        report.files += one.files;
        report.wasStopped = one.wasStopped;
        report.error = one.error;
        if (one.files == 0) {
            return report;
        }
    }
    return report;
}

// Reports the progress of printed pages.
class Pages
{
public:
    Pages(OpenLabel& label, const RecordRange& records, const Progress& progress)
        : m_label(label)
        , m_first(records.first)
        , m_progress(progress)
    {}

    bool prepare(qint64 page)
    {
        if (!m_progress(page)) {
            m_wasStopped = true;
            return false;
        }
        showRecord(m_label, m_first + page);
        return true;
    }

    [[nodiscard]] bool wasStopped() const { return m_wasStopped; }

private:
    OpenLabel& m_label;
    qint64 m_first;
    const Progress& m_progress;
    bool m_wasStopped = false;
};

} // namespace

bool writesOneFile(const OutputOrder& order)
{
    return exporting::entryOf(order.target).records != exporting::RecordFiles::FileForEach;
}

QString fileNameInSeries(const OutputOrder& order, qint64 position)
{
    if (order.records.count <= 1) {
        return order.fileName;
    }
    const QFileInfo info(order.fileName);
    const qint64 last = order.records.first + order.records.count;
    const int digits = std::max(FewestDigits, static_cast<int>(QString::number(last).size()));
    const QString number = QString::number(order.records.first + position + 1)
                               .rightJustified(digits, QLatin1Char('0'));
    return info.dir().filePath(info.completeBaseName() + QLatin1Char('-') + number +
                               QLatin1Char('.') + info.suffix());
}

OutputReport writeOutput(OpenLabel& label, const OutputOrder& order, const Progress& progress)
{
    return writesOneFile(order) ? writeFile(label, order, order.fileName, order.records, progress)
                                : writeSeries(label, order, progress);
}

} // namespace window
