#include "printing/print_batch.h"

#include "printing/print_queue.h"
#include "workbench/items/units.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace printing {
using namespace Qt::StringLiterals;
namespace {

using workbench::PointsPerMillimeter;

} // namespace

bool PrintBatch::Document::accepts(const std::optional<Sheet>& sheet, const QSizeF& size) const
{
    return sheet ? sheet == layout.sheet : !layout.sheet && size == page;
}

LabelSeries PrintBatch::Document::series() const
{
    return {count, page, [this](qint64 number) {
                const auto after = std::upper_bound(
                    parts.begin(), parts.end(), number,
                    [](qint64 wanted, const Part& part) { return wanted < part.start; });
                const Part& part = *std::prev(after);
                return part.label.show(number - part.start);
            }};
}

QString PrintBatch::Document::media() const
{
    const bool hasName = layout.sheet && !layout.sheet->paper.isEmpty();
    return hasName
               ? layout.sheet->paper
               : customMedia(layout.sheet ? layout.sheet->paperSize : page / PointsPerMillimeter);
}

PrintBatch::PrintBatch(SheetFor sheetFor, PrintLayout layout)
    : m_sheetFor(std::move(sheetFor))
    , m_layout(std::move(layout))
{}

QString PrintBatch::add(const BatchLabel& label)
{
    const QSizeF size = label.page / PointsPerMillimeter;
    PrintLayout layout = m_layout;
    layout.sheet = m_sheetFor(size);
    if (layout.sheet && fitOf(*layout.sheet, size) == Fit::TooLarge) {
        return misfitMessage(*layout.sheet, size);
    }
    const bool isFirst = m_documents.empty();
    const bool isNew = isFirst || !m_documents.back().accepts(layout.sheet, label.page);
    const qint64 before = isNew ? 0 : m_documents.back().count;
    if (!isFirst && isNew) {
        layout.firstPosition = 0; // the used sheet is the first one
    }
    const QString problem = problemOf(layout, before + label.records);
    if (!problem.isEmpty()) {
        return problem;
    }
    if (isNew) {
        m_documents.push_back({layout, label.page, 0, {}});
    }
    m_documents.back().parts.push_back({label, before});
    m_documents.back().count += label.records;
    return {};
}

qint64 PrintBatch::labels() const
{
    qint64 labels = 0;
    for (const Document& document : m_documents) {
        labels += document.count * document.layout.copies;
    }
    return labels;
}

qint64 PrintBatch::pages() const
{
    qint64 pages = 0;
    for (const Document& document : m_documents) {
        pages += pagesFor(document.layout, document.count);
    }
    return pages;
}

const PrintBatch::Document& PrintBatch::documentOf(qint64& page) const
{
    for (const Document& document : m_documents) {
        const qint64 pages = pagesFor(document.layout, document.count);
        if (page < pages) {
            return document;
        }
        page -= pages;
    }
    return m_documents.back();
}

QSizeF PrintBatch::pageSize(qint64 page) const
{
    const Document& document = documentOf(page);
    return document.layout.sheet ? document.layout.sheet->paperSize * PointsPerMillimeter
                                 : document.page;
}

const Sheet* PrintBatch::sheetOf(qint64 page) const
{
    const std::optional<Sheet>& sheet = documentOf(page).layout.sheet;
    return sheet ? &*sheet : nullptr;
}

bool PrintBatch::paint(QPainter& painter, qint64 page) const
{
    const Document& document = documentOf(page);
    return paintPrintPage(painter, document.layout, document.series(), page);
}

QString PrintBatch::write(const QString& folder, QList<PrintDocument>& written) const
{
    for (const Document& document : m_documents) {
        const QString file = QDir(folder).filePath(u"%1.pdf"_s.arg(written.size() + 1));
        const QString title = QFileInfo(document.parts.front().label.name).completeBaseName();
        const QString error = writePrintDocument(file, title, document.layout, document.series());
        if (!error.isEmpty() || !QFileInfo::exists(file)) {
            return error;
        }
        written.append({file, document.media()});
    }
    return {};
}

} // namespace printing
