#pragma once

#include "exporting/targets.h"

#include <QJsonValue>

class QWidget;

namespace window {

// The fields of a dialog for the options of an export.

/// A field with the option's initial value; the parent owns it.
[[nodiscard]] QWidget* makeOptionEditor(const exporting::TargetOption& option, QWidget* parent);

/// The value in a field that makeOptionEditor() made.
[[nodiscard]] QJsonValue optionValue(const exporting::TargetOption& option, const QWidget& editor);

/// Of an option with names, the value is the place in their list; 0 is for no name.
void setOptionValue(const exporting::TargetOption& option, QWidget& editor, int value);

} // namespace window
