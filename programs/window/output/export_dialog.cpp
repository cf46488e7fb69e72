#include "window/output/export_dialog.h"

#include "window/output/record_chooser.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace window {

namespace {

constexpr int LeastDpi = 10;
constexpr int MostDpi = 2400;
constexpr int UsualDpi = 300;

QString withSuffix(const QString& fileName, OutputFormat format)
{
    if (fileName.isEmpty()) {
        return fileName;
    }
    const QFileInfo info(fileName);
    const QString base = info.suffix().isEmpty() ? info.fileName() : info.completeBaseName();
    return info.dir().filePath(base + QLatin1Char('.') + suffixOf(format));
}

QString filterOf(OutputFormat format)
{
    switch (format) {
    case OutputFormat::Svg:
        return ExportDialog::tr("SVG drawings (*.svg)");
    case OutputFormat::Pdf:
        return ExportDialog::tr("PDF documents (*.pdf)");
    case OutputFormat::Png:
        break;
    }
    return ExportDialog::tr("PNG pictures (*.png)");
}

} // namespace

ExportDialog::ExportDialog(const QString& suggestedName, qint64 recordCount, qint64 shownRecord,
                           QWidget* parent)
    : QDialog(parent)
    , m_format(new QComboBox(this))
    , m_fileName(new QLineEdit(this))
    , m_browse(new QPushButton(tr("&Browse…"), this))
    , m_dpi(new QSpinBox(this))
    , m_records(new RecordChooser(recordCount, shownRecord, this))
    , m_note(new QLabel(this))
{
    setWindowTitle(tr("Export Label"));
    m_format->addItem(tr("PNG picture"));
    m_format->addItem(tr("SVG drawing"));
    m_format->addItem(tr("PDF document"));
    m_format->setAccessibleName(tr("Format"));
    m_fileName->setAccessibleName(tr("File"));
    m_fileName->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_browse->setAccessibleDescription(tr("Chooses the file in a dialog"));
    m_dpi->setRange(LeastDpi, MostDpi);
    m_dpi->setValue(UsualDpi);
    m_dpi->setSuffix(tr(" dpi"));
    m_dpi->setAccessibleName(tr("Resolution in dots per inch"));
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_note->setWordWrap(true);
    buildForm();
    m_fileName->setText(withSuffix(suggestedName, format()));
    connect(m_format, &QComboBox::currentIndexChanged, this, &ExportDialog::followFormat);
    connect(m_fileName, &QLineEdit::textChanged, this, &ExportDialog::followInput);
    connect(m_records, &RecordChooser::rangeChanged, this, &ExportDialog::followInput);
    connect(m_browse, &QPushButton::clicked, this, &ExportDialog::browse);
    followFormat();
}

void ExportDialog::buildForm()
{
    auto* file = new QHBoxLayout;
    file->addWidget(m_fileName);
    file->addWidget(m_browse);
    auto* form = new QFormLayout;
    form->addRow(tr("&Format"), m_format);
    form->addRow(tr("F&ile"), file);
    form->addRow(tr("Re&solution"), m_dpi);
    form->addRow(tr("Records"), m_records);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    m_export->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
}

OutputFormat ExportDialog::format() const
{
    return static_cast<OutputFormat>(m_format->currentIndex());
}

OutputOrder ExportDialog::order() const
{
    return {format(), m_fileName->text().trimmed(), m_dpi->value(), m_records->range()};
}

void ExportDialog::setFormat(OutputFormat format)
{
    m_format->setCurrentIndex(static_cast<int>(format));
}

void ExportDialog::setFileName(const QString& fileName)
{
    m_fileName->setText(fileName);
}

void ExportDialog::setDpi(int dpi)
{
    m_dpi->setValue(dpi);
}

void ExportDialog::followFormat()
{
    m_fileName->setText(withSuffix(m_fileName->text(), format()));
    m_dpi->setEnabled(format() == OutputFormat::Png);
    followInput();
}

void ExportDialog::followInput()
{
    const OutputOrder wanted = order();
    m_export->setEnabled(!wanted.fileName.isEmpty());
    if (wanted.records.count > 1 && wanted.format == OutputFormat::Pdf) {
        m_note->setText(tr("One document of %1 pages.").arg(wanted.records.count));
    } else if (wanted.records.count > 1 && !wanted.fileName.isEmpty()) {
        m_note->setText(tr("%1 files: %2 and so on.")
                            .arg(wanted.records.count)
                            .arg(QFileInfo(fileNameInSeries(wanted, 0)).fileName()));
    } else {
        m_note->setText(tr("One file."));
    }
}

void ExportDialog::browse()
{
    const QString chosen =
        QFileDialog::getSaveFileName(this, windowTitle(), m_fileName->text(), filterOf(format()),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty()) {
        m_fileName->setText(withSuffix(chosen, format()));
    }
}

void ExportDialog::accept()
{
    if (!order().fileName.isEmpty() && mayReplaceExisting()) {
        QDialog::accept();
    }
}

bool ExportDialog::mayReplaceExisting()
{
    const OutputOrder wanted = order();
    const qint64 files = wanted.format == OutputFormat::Pdf ? 1 : wanted.records.count;
    for (qint64 position = 0; position < files; ++position) {
        const QString fileName = files == 1 ? wanted.fileName : fileNameInSeries(wanted, position);
        if (QFileInfo::exists(fileName)) {
            return askReplace(QFileInfo(fileName).fileName());
        }
    }
    return true;
}

bool ExportDialog::askReplace(const QString& fileName)
{
    QMessageBox box(QMessageBox::Question, windowTitle(),
                    tr("“%1” exists already. Replace it?").arg(fileName),
                    QMessageBox::Yes | QMessageBox::No, this);
    box.setTextFormat(Qt::PlainText);
    box.setDefaultButton(QMessageBox::No);
    return box.exec() == QMessageBox::Yes;
}

} // namespace window
