#pragma once

#include <QString>

/// What the open-file dialog offers.
struct OpenDialogFilters
{
    QString all;         ///< every entry, as QFileDialog takes them
    QString preselected; ///< the entry that the dialog starts with
};

/// The filters in the language of the application.
[[nodiscard]] OpenDialogFilters openDialogFilters();
