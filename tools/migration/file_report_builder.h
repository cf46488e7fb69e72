#pragma once

#include "importer/reader_choice.h"
#include "migration/model/file_report.h"

#include <QString>

namespace workbench {
struct ImportResult;
}

namespace migration {

/// What a report takes the time for.
struct ReportOptions
{
    bool thumbnail = true; ///< a small picture of the label
    bool itemList = false; ///< every single item
};

/// Reports on a file that was given to a reader. The file is opened once more, to count
/// what it holds; whatever is in it, this neither fails nor takes long.
///
/// @param fileName  the file, as the reader had it
/// @param shownName the name that the report shows
/// @param reader    the reader that had it
/// @param result    what the import gave, as it was given
[[nodiscard]] FileReport makeFileReport(const QString& fileName, const QString& shownName,
                                        ReaderKind reader, const workbench::ImportResult& result,
                                        const ReportOptions& options = {});

/// Reports on a saved label (*.label) that was opened. Only canvas, datasources and error
/// of the result are looked at.
[[nodiscard]] FileReport makeSavedLabelReport(const QString& fileName, const QString& shownName,
                                              const workbench::ImportResult& result,
                                              const ReportOptions& options = {});

} // namespace migration
