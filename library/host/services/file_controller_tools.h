#pragma once

#include "host/services/visibility.h"

#include <QString>

/// The host's folders.
class LABELPORT_HOST_SERVICE FileControllerTools
{
public:
    FileControllerTools() = delete;

    /// The folder in which the import dialog opens.
    [[nodiscard]] static QString getDefaultImportFolder();
};
