#pragma once

#include <QString>

/// The filters of the open-file dialog.
struct OpenDialogFilters
{
    QString all;         ///< all entries, in the format of QFileDialog
    QString preselected; ///< the entry that is selected at first
};

/// The filters in the language of the application.
[[nodiscard]] OpenDialogFilters openDialogFilters();
