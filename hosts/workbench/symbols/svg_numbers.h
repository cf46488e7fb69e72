#pragma once

#include <QStringView>

/// The numbers of path data and other coordinate lists.
namespace workbench::symbols {

struct NumberSummary
{
    qint64 count = 0;
    /// Greatest absolute value; infinite when a number is too large to hold.
    double greatest = 0.0;
    double sum = 0.0;
};

/// Counts and measures every number in the text, whatever stands between them.
[[nodiscard]] NumberSummary summarizeNumbers(QStringView text);

} // namespace workbench::symbols
