#include "window/output/print_dialog.h"

#include "window/label/label_files.h"
#include "window/output/page_preview.h"
#include "window/output/record_chooser.h"
#include "window/output/sheet_editor.h"
#include "workbench/items/units.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace window {

namespace {

using workbench::PointsPerMillimeter;
constexpr QLatin1String PrinterKey("print/printer");

} // namespace

PrintDialog::PrintDialog(OpenLabel& label, qint64 shownRecord, const printing::Printers& printers,
                         QWidget* parent)
    : QDialog(parent)
    , m_label(label)
    , m_shownRecord(shownRecord)
    , m_printer(new QComboBox(this))
    , m_labels(new QListWidget(this))
    , m_records(new RecordChooser(label.sources->recordCount(), shownRecord, this))
    , m_copies(new QSpinBox(this))
    , m_sheet(new SheetEditor(label.canvas->page().size / PointsPerMillimeter, this))
    , m_preview(new PagePreview(this))
    , m_note(new QLabel(this))
    , m_pageText(new QLabel(this))
{
    setWindowTitle(tr("Print"));
    fillPrinters(printers);
    m_copies->setRange(1, printing::MaximumCopies);
    m_copies->setAccessibleName(tr("Copies"));
    m_note->setWordWrap(true);
    m_labels->addItem(displayName(label));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_print = buttons->addButton(tr("&Print"), QDialogButtonBox::AcceptRole);
    m_print->setDefault(true);
    auto* columns = new QHBoxLayout;
    columns->addWidget(makeForm());
    columns->addWidget(makePreview(), 1);
    alignForms();
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(columns, 1);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &PrintDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PrintDialog::reject);
    connect(m_sheet, &SheetEditor::changed, this, &PrintDialog::refresh);
    connect(m_records, &RecordChooser::rangeChanged, this, &PrintDialog::refresh);
    connect(m_copies, &QSpinBox::valueChanged, this, &PrintDialog::refresh);
    connect(m_preview, &PagePreview::positionRequested, m_sheet, &SheetEditor::setFirstPosition);
    m_mayShow = [this] { return m_previewTime.elapsed() <= m_previewLimit; };
    connect(m_preview, &PagePreview::aboutToPaint, this, [this] { m_previewTime.start(); });
    connect(m_preview, &PagePreview::painted, this, &PrintDialog::finishPreview);
    m_printer->setFocus();
    resize(900, 600);
    refresh();
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::fillPrinters(const printing::Printers& printers)
{
    for (const QString& name : printers.names) {
        m_printer->addItem(name, name);
    }
    m_printer->addItem(tr("PDF file"), QString());
    m_printer->setAccessibleName(tr("Printer"));
    m_printer->setToolTip(printers.error);
    for (const QString& name : {QSettings().value(PrinterKey).toString(), printers.usual}) {
        const int index = name.isEmpty() ? -1 : m_printer->findData(name);
        if (index >= 0) {
            m_printer->setCurrentIndex(index);
            return;
        }
    }
}

QString PrintDialog::printer() const
{
    return m_printer->currentData().toString();
}

void PrintDialog::askForLabels()
{
    addLabels(QFileDialog::getOpenFileNames(
        this, tr("Add Labels"), QFileInfo(m_label.suggestedName).path(),
        tr("Labels (%1);;All files (*)").arg(u"*.label "_s + legacyPatterns())));
}

void PrintDialog::addLabels(const QStringList& fileNames)
{
    QStringList errors;
    for (const QString& fileName : fileNames) {
        ReadLabel read =
            isSavedLabel(fileName) ? readSavedLabel(fileName) : readLegacyLabel(fileName);
        if (read.label) {
            m_labels->addItem(QFileInfo(fileName).fileName());
            m_added.push_back(std::make_unique<OpenLabel>(std::move(*read.label)));
        } else if (read.isCanceled) {
            break;
        } else {
            errors.append(tr("%1: %2").arg(QFileInfo(fileName).fileName(), read.error));
        }
    }
    if (!errors.isEmpty()) {
        QMessageBox box(QMessageBox::Warning, windowTitle(), errors.join(u'\n'), QMessageBox::Ok,
                        this);
        box.setTextFormat(Qt::PlainText);
        box.exec();
    }
    refresh();
}

void PrintDialog::removeLabel()
{
    const int row = m_labels->currentRow();
    if (row > 0) {
        m_batch.reset(); // refers to the label
        m_preview->show(nullptr, 0);
        delete m_labels->takeItem(row);
        m_added.erase(m_added.begin() + row - 1);
        refresh();
    }
}

RecordRange PrintDialog::recordsOf(const OpenLabel& label) const
{
    const RecordRange range = m_records->range();
    if (&label == &m_label) {
        return range;
    }
    const qint64 available = label.sources->recordCount();
    const qint64 first = m_records->isRun() ? range.first : 0;
    return {first, std::clamp<qint64>(available - first, 0, range.count)};
}

QString PrintDialog::addAll(printing::PrintBatch& batch)
{
    std::vector<OpenLabel*> labels{&m_label};
    for (const std::unique_ptr<OpenLabel>& added : m_added) {
        labels.push_back(added.get());
    }
    for (OpenLabel* label : labels) {
        const RecordRange records = recordsOf(*label);
        const auto show = [this, label, records](qint64 number) -> const workbench::Canvas* {
            if (!m_mayShow()) {
                return nullptr;
            }
            showRecord(*label, records.first + number);
            return label->canvas.get();
        };
        const QString problem =
            batch.add({displayName(*label), label->canvas->page().size, records.count, show});
        if (!problem.isEmpty()) {
            return labels.size() > 1 ? tr("%1: %2").arg(displayName(*label), problem) : problem;
        }
    }
    return {};
}

void PrintDialog::refresh()
{
    const SheetEditor* sheet = m_sheet;
    const auto batch = std::make_shared<printing::PrintBatch>(
        [sheet](const QSizeF& label) { return sheet->sheetFor(label); },
        printing::PrintLayout{{}, sheet->firstPosition(), m_copies->value(), sheet->cropMarks()});
    QString problem = m_sheet->problem();
    if (problem.isEmpty()) {
        problem = addAll(*batch);
    }
    m_batch = problem.isEmpty() ? batch : nullptr;
    m_note->setText(problem);
    m_print->setEnabled(problem.isEmpty());
    showPage(m_page);
}

OutputReport PrintDialog::write(const QString& folder, const Progress& progress,
                                QList<printing::PrintDocument>& documents)
{
    OutputReport report;
    qint64 done = 0;
    const auto mayPreview = std::exchange(m_mayShow, [&] {
        report.wasStopped = report.wasStopped || !progress(done++);
        return !report.wasStopped;
    });
    report.error = m_batch->write(folder, documents);
    m_mayShow = mayPreview;
    if (report.wasStopped) {
        documents.clear();
    }
    return report;
}

void PrintDialog::finishPreview(bool isComplete)
{
    showRecord(m_label, m_shownRecord);
    if (!isComplete) {
        m_pageText->setText(
            tr("%1 – the preview shows its first labels only").arg(m_pageText->text()));
    }
}

QString PrintDialog::problem() const
{
    return m_note->text();
}

QString PrintDialog::pageText() const
{
    return m_pageText->text();
}

void PrintDialog::showPage(qint64 page)
{
    const qint64 pages = m_batch != nullptr ? m_batch->pages() : 0;
    m_page = std::clamp<qint64>(page, 0, std::max<qint64>(pages - 1, 0));
    m_preview->show(pages > 0 ? m_batch : nullptr, m_page);
    m_back->setEnabled(m_page > 0);
    m_forward->setEnabled(m_page + 1 < pages);
    const QLocale locale;
    m_pageText->setText(
        pages > 0 ? tr("Page %1 of %2").arg(locale.toString(m_page + 1), locale.toString(pages))
                  : QString());
}

void PrintDialog::accept()
{
    if (m_batch != nullptr && m_batch->pages() > 0) {
        QSettings().setValue(PrinterKey, printer());
        m_sheet->store();
        QDialog::accept();
    }
}

} // namespace window
