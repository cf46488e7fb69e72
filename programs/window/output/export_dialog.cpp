#include "window/output/export_dialog.h"

#include "window/output/option_editor.h"
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
#include <QVBoxLayout>

#include <algorithm>

namespace window {
using namespace Qt::StringLiterals;

namespace {

using exporting::OptionKind;
using exporting::TargetEntry;
using exporting::TargetOption;

QString withSuffix(const QString& fileName, exporting::Target target)
{
    if (fileName.isEmpty()) {
        return fileName;
    }
    const QFileInfo info(fileName);
    const QString base = info.suffix().isEmpty() ? info.fileName() : info.completeBaseName();
    return info.dir().filePath(base + QLatin1Char('.') + exporting::nameOf(target));
}

QString filterOf(exporting::Target target)
{
    const TargetEntry& entry = exporting::entryOf(target);
    return u"%1 (*.%2)"_s.arg(exporting::translated(entry.files), QLatin1String(entry.name));
}

// Whether a target has this option. The options of targets are separate objects.
bool hasOption(const TargetEntry& entry, const TargetOption& option)
{
    return std::any_of(entry.options.begin(), entry.options.end(),
                       [&](const TargetOption& other) { return &other == &option; });
}

} // namespace

ExportDialog::ExportDialog(const QString& suggestedName, qint64 recordCount, qint64 shownRecord,
                           QWidget* parent)
    : QDialog(parent)
    , m_target(new QComboBox(this))
    , m_fileName(new QLineEdit(this))
    , m_browse(new QPushButton(tr("&Browse…"), this))
    , m_form(new QFormLayout)
    , m_records(new RecordChooser(recordCount, shownRecord, this))
    , m_note(new QLabel(this))
{
    setWindowTitle(tr("Export Label"));
    for (const TargetEntry& entry : exporting::targets()) {
        // Labels are saved, not exported.
        if (entry.target != exporting::Target::Label) {
            m_target->addItem(exporting::translated(entry.title), static_cast<int>(entry.target));
        }
    }
    m_target->setAccessibleName(tr("Format"));
    m_fileName->setAccessibleName(tr("File"));
    m_fileName->setMinimumWidth(fontMetrics().averageCharWidth() * 50);
    m_browse->setAccessibleDescription(tr("Chooses the file in a dialog"));
    m_note->setForegroundRole(QPalette::PlaceholderText);
    m_note->setWordWrap(true);
    buildForm();
    m_fileName->setText(withSuffix(suggestedName, target()));
    connect(m_target, &QComboBox::currentIndexChanged, this, &ExportDialog::followTarget);
    connect(m_fileName, &QLineEdit::textChanged, this, &ExportDialog::followInput);
    connect(m_records, &RecordChooser::rangeChanged, this, &ExportDialog::followInput);
    connect(m_browse, &QPushButton::clicked, this, &ExportDialog::browse);
    followTarget();
}

void ExportDialog::buildForm()
{
    auto* file = new QHBoxLayout;
    file->addWidget(m_fileName);
    file->addWidget(m_browse);
    m_form->addRow(tr("&Format"), m_target);
    // A row with a layout has no field that its mnemonic could focus.
    auto* fileCaption = new QLabel(tr("F&ile"), this);
    fileCaption->setBuddy(m_fileName);
    m_form->addRow(fileCaption, file);
    addOptionFields(*m_form);
    m_form->addRow(tr("Records"), m_records);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
    m_export = buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole);
    m_export->setDefault(true);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(m_form);
    layout->addWidget(m_note);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);
}

void ExportDialog::addOptionFields(QFormLayout& form)
{
    for (int index = 0; index < m_target->count(); ++index) {
        const auto target = static_cast<exporting::Target>(m_target->itemData(index).toInt());
        for (const TargetOption& option : exporting::entryOf(target).options) {
            QWidget* editor = makeOptionEditor(option, this);
            // A check box has its own label.
            form.addRow(option.kind == OptionKind::Switch ? QString()
                                                          : exporting::translated(option.label),
                        editor);
            m_options.push_back({&option, editor});
        }
    }
}

exporting::Target ExportDialog::target() const
{
    return static_cast<exporting::Target>(m_target->currentData().toInt());
}

OutputOrder ExportDialog::order() const
{
    const TargetEntry& entry = exporting::entryOf(target());
    exporting::OptionValues values;
    for (const OptionField& field : m_options) {
        if (hasOption(entry, *field.option)) {
            values.insert(QLatin1String(field.option->name),
                          optionValue(*field.option, *field.editor));
        }
    }
    return {target(), m_fileName->text().trimmed(), values, m_records->range()};
}

void ExportDialog::setTarget(exporting::Target target)
{
    m_target->setCurrentIndex(m_target->findData(static_cast<int>(target)));
}

void ExportDialog::setOption(QLatin1String name, int value)
{
    for (const OptionField& field : m_options) {
        if (field.option == exporting::findOption(target(), name)) {
            setOptionValue(*field.option, *field.editor, value);
        }
    }
}

void ExportDialog::setFileName(const QString& fileName)
{
    m_fileName->setText(fileName);
}

void ExportDialog::followTarget()
{
    m_fileName->setText(withSuffix(m_fileName->text(), target()));
    const TargetEntry& entry = exporting::entryOf(target());
    for (const OptionField& field : m_options) {
        const bool isShown = hasOption(entry, *field.option);
        field.editor->setVisible(isShown);
        if (QWidget* label = m_form->labelForField(field.editor)) {
            label->setVisible(isShown);
        }
    }
    m_records->setEnabled(entry.records != exporting::RecordFiles::Always);
    followInput();
}

void ExportDialog::followInput()
{
    const OutputOrder wanted = order();
    m_export->setEnabled(!wanted.fileName.isEmpty());
    if (exporting::entryOf(wanted.target).records == exporting::RecordFiles::Always) {
        m_note->setText(tr("One file. The records are in a table next to it."));
    } else if (wanted.records.count > 1 && writesOneFile(wanted)) {
        m_note->setText(tr("One file of %1 records.").arg(wanted.records.count));
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
        QFileDialog::getSaveFileName(this, windowTitle(), m_fileName->text(), filterOf(target()),
                                     nullptr, QFileDialog::DontConfirmOverwrite);
    if (!chosen.isEmpty()) {
        m_fileName->setText(withSuffix(chosen, target()));
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
    const qint64 files = writesOneFile(wanted) ? 1 : wanted.records.count;
    for (qint64 position = 0; position < files; ++position) {
        const QString fileName = files == 1 ? wanted.fileName : fileNameInSeries(wanted, position);
        if (QFileInfo::exists(fileName)) {
            return askReplace(QFileInfo(fileName).fileName());
        }
    }
    const QString records = exporting::recordsFileOf(wanted.target, wanted.fileName);
    return records.isEmpty() || !QFileInfo::exists(records) ||
           askReplace(QFileInfo(records).fileName());
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
