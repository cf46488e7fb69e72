#include "archive/shard.h"

#include <QRegularExpression>

namespace archive {
using namespace Qt::StringLiterals;

std::optional<Shard> shardOf(const QString& text)
{
    static const QRegularExpression form(u"^([0-9]{1,6})/([0-9]{1,6})\\z"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    const Shard shard{match.captured(1).toInt(), match.captured(2).toInt()};
    const bool isPart = shard.number >= 1 && shard.number <= shard.count;
    return isPart && shard.count <= MaximumShards ? std::optional(shard) : std::nullopt;
}

} // namespace archive
