#pragma once

#include "migration/model/census.h"

#include <QList>

#include <array>
#include <map>

namespace workbench {
struct ImportResult;
}

namespace migration {

/// A reason why objects of one class are missing, from the log.
struct Reason
{
    LossKind kind = LossKind::ObjectMissing;
    qint64 atMost = 0; ///< the most objects that it explains
};

/// The losses and changes that the import logged.
struct LogLosses
{
    std::array<QList<Reason>, ObjectClasses> reasons;
    /// Losses and changes that concern no single object.
    std::map<LossKind, Tally> tallies;
    /// Items that an issue concerns, and the kind of the issue.
    QList<std::pair<int, LossKind>> items;
};

/// Finds the losses in the log and the issues.
[[nodiscard]] LogLosses lossesOfLog(const workbench::ImportResult& result);

} // namespace migration
