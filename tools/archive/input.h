#pragma once

#include <QList>
#include <QString>

namespace archive {

/// One file to import.
struct Input
{
    QString path;      ///< what is opened
    QString shownName; ///< what messages and reports call it
    /// Folder below the output folder that its outputs go to, "a/b"; empty for none.
    QString folder;
    bool operator==(const Input&) const = default;
};

} // namespace archive
