#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace cli {

/// Most records that one command writes of one label: a counter may have billions.
inline constexpr qint64 MaximumRecords = 10'000;

/// Records of a label's data sources, counted from 1 as people do. Without an end, all to the
/// last one.
struct RecordRange
{
    qint64 first = 1;
    std::optional<qint64> last = 1;
};

/// Reads "all", "7", "3-12" or "3-"; nothing for anything else.
[[nodiscard]] std::optional<RecordRange> recordRangeOf(const QString& text);

} // namespace cli
