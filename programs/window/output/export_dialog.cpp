#include "window/output/export_dialog.h"

#include "window/output/record_chooser.h"

#include <QCheckBox>
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

// The current value of an editor that makeEditor() made.
QJsonValue valueOf(const TargetOption& option, const QWidget& editor)
{
    switch (option.kind) {
    case OptionKind::Number:
        return dynamic_cast<const QSpinBox&>(editor).value();
    case OptionKind::Choice:
        return dynamic_cast<const QComboBox&>(editor).currentData().toInt();
    case OptionKind::Name:
        return dynamic_cast<const QComboBox&>(editor).currentData().toString();
    case OptionKind::Switch:
        break;
    }
    return dynamic_cast<const QCheckBox&>(editor).isChecked();
}

void setValue(const TargetOption& option, QWidget& editor, int value)
{
    switch (option.kind) {
    case OptionKind::Number:
        dynamic_cast<QSpinBox&>(editor).setValue(value);
        break;
    case OptionKind::Choice: {
        auto& choices = dynamic_cast<QComboBox&>(editor);
        choices.setCurrentIndex(choices.findData(value));
        break;
    }
    case OptionKind::Name: // the position in the list; 0 is for no name
        dynamic_cast<QComboBox&>(editor).setCurrentIndex(value);
        break;
    case OptionKind::Switch:
        dynamic_cast<QCheckBox&>(editor).setChecked(value != 0);
        break;
    }
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
            QWidget* editor = makeEditor(option);
            // A check box has its own label.
            form.addRow(option.kind == OptionKind::Switch ? QString()
                                                          : exporting::translated(option.label),
                        editor);
            m_options.push_back({&option, editor});
        }
    }
}

QWidget* ExportDialog::makeEditor(const TargetOption& option)
{
    const QString unit = exporting::translated(option.unit);
    QWidget* editor = nullptr;
    if (option.kind == OptionKind::Number) {
        auto* number = new QSpinBox(this);
        number->setRange(option.minimum, option.maximum);
        number->setSuffix(unit.isEmpty() ? QString() : QLatin1Char(' ') + unit);
        editor = number;
    } else if (option.kind == OptionKind::Choice) {
        auto* choices = new QComboBox(this);
        for (const int choice : option.choices) {
            choices->addItem(u"%1 %2"_s.arg(choice).arg(unit).trimmed(), choice);
        }
        editor = choices;
    } else if (option.kind == OptionKind::Name) {
        auto* names = new QComboBox(this);
        names->addItem(tr("None"), QString());
        for (const QString& name : option.names()) {
            names->addItem(name, name);
        }
        editor = names;
    } else {
        editor = new QCheckBox(exporting::translated(option.label), this);
    }
    const QString description = exporting::translated(option.description);
    editor->setObjectName(QLatin1String(option.name));
    editor->setAccessibleName(description);
    editor->setToolTip(description);
    setValue(option, *editor, option.initial);
    return editor;
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
            values.insert(QLatin1String(field.option->name), valueOf(*field.option, *field.editor));
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
            setValue(*field.option, *field.editor, value);
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
