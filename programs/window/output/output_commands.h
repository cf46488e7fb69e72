#pragma once

#include "printing/print_queue.h"
#include "window/label/open_label.h"

#include <QString>

#include <functional>

class QWidget;

namespace window {

class Prompts;

/// Asks what to export and writes it. Returns a message about the written files; empty if
/// there are none. The label shows the given record again afterwards.
[[nodiscard]] QString exportLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts,
                                  QWidget* window);

/// The print server; tests replace it.
struct PrintServer
{
    std::function<printing::Printers()> findPrinters = &printing::findPrinters;
    std::function<printing::Submission(const printing::PrintRequest&)> submit = &printing::submit;
};

/// Asks for printer and paper, and prints. Returns a message about the printed pages; empty if
/// there are none. The label shows the given record again afterwards.
[[nodiscard]] QString printLabel(OpenLabel& label, qint64 shownRecord, const Prompts& prompts,
                                 QWidget* window, const PrintServer& server = {});

} // namespace window
