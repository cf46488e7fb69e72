#pragma once

#include "archive/progress.h"
#include "archive/run.h"

namespace cli {

/// Reports an import: the files written on standard output, errors and warnings on standard error,
/// and a progress line on a terminal.
class ImportReporter
{
public:
    /// @param isQuiet          reports errors only
    /// @param endsNamesWithNull ends names on standard output with NUL
    ImportReporter(bool isQuiet, bool endsNamesWithNull);

    /// One file is done.
    void reportFile(const archive::Delivery& delivery);
    void showProgress(const archive::Progress& progress);
    /// A message that belongs to no file.
    void print(const QString& text);

    /// The counts at the end.
    /// @param isArchive    whether counts are of interest: folders, lists, many files
    /// @param ignoredFiles files of folders without the suffix of a label
    void printSummary(const archive::Progress& progress, bool isArchive, qint64 ignoredFiles);

private:
    bool m_isQuiet;
    bool m_endsNamesWithNull;
    archive::ProgressDisplay m_display;
};

} // namespace cli
