#pragma once

#include "migration/model/file_report.h"

#include <QString>

#include <memory>

namespace migration {

/// One form of a report that is being written.
class ReportOutput
{
public:
    virtual ~ReportOutput() = default;

    virtual void setNote(const QString& note) = 0;
    virtual void add(const FileReport& report) = 0;
    /// Empty when the file is in its place, else why it is not.
    [[nodiscard]] virtual QString finish() = 0;
};

[[nodiscard]] std::unique_ptr<ReportOutput> makeJsonOutput(const QString& fileName);
[[nodiscard]] std::unique_ptr<ReportOutput> makeHtmlOutput(const QString& fileName);

/// Why a report cannot be written, for a person.
[[nodiscard]] QString cannotWrite(const QString& fileName, const QString& why);

} // namespace migration
