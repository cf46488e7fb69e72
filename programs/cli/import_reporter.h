#pragma once

#include "archive/progress.h"
#include "archive/run.h"

namespace cli {

/// What standard output lists.
enum class Listing : quint8 {
    Names,         ///< of the files written, one on each line
    NamesWithNull, ///< each ends with NUL
    Events,        ///< see fileEvent()
    Nothing,
};

/// Reports an import: the files written on standard output, errors and warnings on standard error,
/// and a progress line on a terminal.
class ImportReporter
{
public:
    /// @param isQuiet reports errors only
    ImportReporter(bool isQuiet, Listing listing);

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
    void list(const archive::Delivery& delivery) const;

    bool m_isQuiet;
    Listing m_listing;
    archive::ProgressDisplay m_display;
};

} // namespace cli
