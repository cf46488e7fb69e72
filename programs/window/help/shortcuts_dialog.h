#pragma once

#include "window/actions/actions.h"

#include <QDialog>

namespace window {

/// Lists all shortcuts of the program.
class ShortcutsDialog final : public QDialog
{
    Q_OBJECT

public:
    ShortcutsDialog(const QList<ShortcutRow>& rows, QWidget* parent);
};

} // namespace window
