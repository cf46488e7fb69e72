#include "migration/model/census.h"

namespace migration {

void Tally::addDetail(const QString& detail)
{
    const QString shortened =
        detail.size() <= LongestDetail ? detail : detail.left(LongestDetail - 1) + QChar(0x2026);
    if (!shortened.isEmpty() && details.size() < MaximumDetails && !details.contains(shortened)) {
        details.append(shortened);
    }
}

void Census::note(LossKind kind, qint64 count, const QString& detail)
{
    Tally& tally = tallies[kind];
    tally.count += count;
    tally.addDetail(detail);
}

void Census::detail(LossKind kind, const QString& detail)
{
    tallies[kind].addDetail(detail);
}

} // namespace migration
