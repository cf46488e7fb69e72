#include "window/output/option_editor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QSpinBox>

namespace window {
using namespace Qt::StringLiterals;

using exporting::OptionKind;
using exporting::TargetOption;

QJsonValue optionValue(const TargetOption& option, const QWidget& editor)
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

void setOptionValue(const TargetOption& option, QWidget& editor, int value)
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

QWidget* makeOptionEditor(const TargetOption& option, QWidget* parent)
{
    const QString unit = exporting::translated(option.unit);
    QWidget* editor = nullptr;
    if (option.kind == OptionKind::Number) {
        auto* number = new QSpinBox(parent);
        number->setRange(option.minimum, option.maximum);
        number->setSuffix(unit.isEmpty() ? QString() : QLatin1Char(' ') + unit);
        editor = number;
    } else if (option.kind == OptionKind::Choice) {
        auto* choices = new QComboBox(parent);
        for (const int choice : option.choices) {
            choices->addItem(u"%1 %2"_s.arg(choice).arg(unit).trimmed(), choice);
        }
        editor = choices;
    } else if (option.kind == OptionKind::Name) {
        auto* names = new QComboBox(parent);
        names->addItem(QCoreApplication::translate("window::ExportDialog", "None"), QString());
        for (const QString& name : option.names()) {
            names->addItem(name, name);
        }
        editor = names;
    } else {
        editor = new QCheckBox(exporting::translated(option.label), parent);
    }
    const QString description = exporting::translated(option.description);
    editor->setObjectName(QLatin1String(option.name));
    editor->setAccessibleName(description);
    editor->setToolTip(description);
    setOptionValue(option, *editor, option.initial);
    return editor;
}

} // namespace window
