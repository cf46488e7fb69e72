#include "window/output/output_job.h"

#include "workbench/rendering/page_export.h"
#include "workbench/rendering/page_image.h"

#include <QCoreApplication>
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

QString writeRecord(const OpenLabel& label, const OutputOrder& order, const QString& fileName)
{
    if (order.format == OutputFormat::Svg) {
        return workbench::writeSvg(*label.canvas, fileName, titleOf(label));
    }
    const workbench::PageImage page = workbench::renderPage(*label.canvas, order.dpi);
    return page.error.isEmpty() ? workbench::writePng(page.image, fileName) : page.error;
}

OutputReport writeSeries(OpenLabel& label, const OutputOrder& order, const Progress& progress)
{
    OutputReport report;
    for (qint64 position = 0; position < order.records.count; ++position) {
        if (!progress(position)) {
            report.wasStopped = true;
            return report;
        }
        showRecord(label, order.records.first + position);
        report.error = writeRecord(label, order, fileNameInSeries(order, position));
        if (!report.error.isEmpty()) {
            return report;
        }
        ++report.files;
    }
    return report;
}

// Reports the progress of one document's pages.
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

OutputReport writeDocument(OpenLabel& label, const OutputOrder& order, const Progress& progress)
{
    Pages pages(label, order.records, progress);
    OutputReport report;
    report.error =
        workbench::writePdf(*label.canvas, order.fileName, titleOf(label), order.records.count,
                            [&pages](qint64 page) { return pages.prepare(page); });
    report.wasStopped = pages.wasStopped();
    report.files = report.error.isEmpty() && !report.wasStopped ? 1 : 0;
    return report;
}

} // namespace

QString suffixOf(OutputFormat format)
{
    switch (format) {
    case OutputFormat::Svg:
        return u"svg"_s;
    case OutputFormat::Pdf:
        return u"pdf"_s;
    case OutputFormat::Png:
        break;
    }
    return u"png"_s;
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
    return order.format == OutputFormat::Pdf ? writeDocument(label, order, progress)
                                             : writeSeries(label, order, progress);
}

OutputReport printOutput(OpenLabel& label, QPagedPaintDevice& printer, const RecordRange& records,
                         const Progress& progress)
{
    Pages pages(label, records, progress);
    const bool isPrinted =
        workbench::paintPages(printer, *label.canvas, records.count,
                              [&pages](qint64 page) { return pages.prepare(page); });
    OutputReport report;
    report.wasStopped = pages.wasStopped();
    if (!isPrinted && !report.wasStopped) {
        report.error = QCoreApplication::translate(
            "window::OutputJob",
            "The printer did not take the pages. See that it is switched on and connected, or "
            "print into a PDF file with “Export”.");
    }
    return report;
}

} // namespace window
