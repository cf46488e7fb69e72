#pragma once

#include "window/label/open_label.h"

#include <QString>

class QWidget;

namespace window {

class Prompts;

/// Asks what to export and writes it. Returns a message about the written files; empty if
/// there are none. The label shows the given record again afterwards.
[[nodiscard]] QString exportLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts,
                                  QWidget* window);

/// Asks for a printer and prints. Returns a message about the printed pages; empty if there
/// are none. The label shows the given record again afterwards.
[[nodiscard]] QString printLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts,
                                 QWidget* window);

} // namespace window
