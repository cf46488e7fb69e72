#pragma once

#include <QString>
#include <QtGlobal>

#include <optional>

namespace archive {

/// One of several parts of an archive, which several machines share.
struct Shard
{
    int number = 1; ///< from 1 to count
    int count = 1;

    [[nodiscard]] bool isEverything() const { return count == 1; }
    /// Whether the input of this index, in the order of all inputs, belongs to the part. Each
    /// belongs to one, and neighbors to different ones: folders with large files are shared.
    [[nodiscard]] bool takes(qsizetype index) const { return index % count == number - 1; }
};

inline constexpr int MaximumShards = 100'000;

/// Reads "3/8"; nothing for anything else.
[[nodiscard]] std::optional<Shard> shardOf(const QString& text);

} // namespace archive
