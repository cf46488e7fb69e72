#pragma once

#include "importer/reader_choice.h"
#include "migration/losses/repaired_losses.h"
#include "migration/model/census.h"
#include "migration/model/file_report.h"

#include <QHash>
#include <QString>

namespace workbench {
struct ImportResult;
}

namespace migration {

/// Parts of a report that take time.
struct ReportOptions
{
    bool thumbnail = true; ///< with a small picture of the label
    bool itemList = false; ///< with all items one by one
};

/// Builds the report of an imported file. Opens the file again to count its objects; never fails,
/// whatever the file contains.
///
/// @param fileName  the file, as it was imported
/// @param shownName the name in the report
/// @param reader    the reader that imported it
/// @param result    the result of the import
[[nodiscard]] FileReport makeFileReport(const QString& fileName, const QString& shownName,
                                        ReaderKind reader, const workbench::ImportResult& result,
                                        const ReportOptions& options = {});

/// Builds the report of an OpenDocument file whose pages were repaired and imported one by one.
class RepairedFileReport
{
public:
    /// @param fileName the file, as the user has it
    RepairedFileReport(const QString& fileName, const QString& shownName,
                       const ReportOptions& options = {});

    /// The next page, imported. The picture and the list of items are those of the first one.
    /// @param package the repaired document that the reader imported
    void addPage(const workbench::ImportResult& result, const QByteArray& package,
                 const QList<RepairReport>& repairs);
    /// Further pages, in their order, that were not imported.
    void leaveOutPages(int count) { m_losses.leaveOutPages(count); }
    [[nodiscard]] FileReport finish();

private:
    void addIssues(const QList<IssueReport>& issues);

    ReportOptions m_options;
    Census m_census;
    RepairedLosses m_losses;
    FileReport m_report;
    QHash<QString, qsizetype> m_issuePlaces; ///< by text
};

/// Builds the report of a saved label (*.label) that was opened. Uses only canvas, datasources and
/// error of the result.
[[nodiscard]] FileReport makeSavedLabelReport(const QString& fileName, const QString& shownName,
                                              const workbench::ImportResult& result,
                                              const ReportOptions& options = {});

} // namespace migration
