#pragma once

#include "window/actions.h"

#include <QDialog>

namespace desktop {

/// All keys of the program.
class ShortcutsDialog final : public QDialog
{
    Q_OBJECT

public:
    ShortcutsDialog(const QList<ShortcutRow>& rows, QWidget* parent);
};

} // namespace desktop
