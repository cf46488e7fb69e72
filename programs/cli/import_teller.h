#pragma once

#include "archive/progress.h"
#include "archive/run.h"

namespace cli {

/// Tells a person how an import goes: what was written on standard output, what went wrong
/// on standard error, and on a terminal how far it is.
class ImportTeller
{
public:
    explicit ImportTeller(bool isQuiet);

    /// One file is done.
    void tell(const archive::Delivery& delivery);
    void showProgress(const archive::Progress& progress);
    /// A message that belongs to no file.
    void say(const QString& text);

    /// The counts at the end.
    /// @param isArchive whether there is something to count: folders, lists, many files
    void sumUp(const archive::Progress& progress, bool isArchive, qint64 skippedFiles);

private:
    bool m_isQuiet;
    archive::ProgressDisplay m_display;
};

} // namespace cli
