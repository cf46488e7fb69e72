#pragma once

#include "migration/model/census.h"

#include <QList>

#include <array>
#include <map>

namespace workbench {
struct ImportResult;
}

namespace migration {

/// Why objects of one class are missing, as far as the import has said it.
struct Reason
{
    LossKind kind = LossKind::ObjectMissing;
    qint64 atMost = 0; ///< so many of them at most
};

/// What the import has said.
struct LogLosses
{
    std::array<QList<Reason>, ObjectClasses> reasons;
    /// Losses and changes that are about no single object.
    std::map<LossKind, Tally> tallies;
    /// Items that an issue says something about which has no kind of its own, and the kind
    /// that the issue stands for.
    QList<std::pair<int, LossKind>> items;
};

/// Sorts out what the log and the issues tell.
[[nodiscard]] LogLosses lossesOfLog(const workbench::ImportResult& result);

} // namespace migration
