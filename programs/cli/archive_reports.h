#pragma once

#include "archive/run.h"
#include "migration/report/report_writer.h"

#include <QStringList>

#include <memory>
#include <vector>

namespace cli {

/// The reports of one command: written file by file, and looked through for losses.
class ArchiveReports
{
public:
    /// @param fileNames  where they go; may be none
    /// @param isLooking  whether losses are to be counted even so
    ArchiveReports(const QStringList& fileNames, bool isLooking);

    /// Why one of the reports could not be written in the end, for a person; empty when all
    /// can, as far as that is known before.
    [[nodiscard]] QString obstacle() const;
    void add(const archive::Delivery& delivery);
    /// Puts the reports in their place; returns what went wrong, for a person.
    [[nodiscard]] QStringList finish();

    /// Files of which something did not come over.
    [[nodiscard]] qint64 losses() const { return m_losses; }

private:
    QStringList m_fileNames;
    bool m_isLooking;
    std::vector<std::unique_ptr<migration::ReportWriter>> m_writers;
    qint64 m_losses = 0;
};

} // namespace cli
