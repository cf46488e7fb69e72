#include "cli/record_range.h"

#include <QRegularExpression>

namespace cli {
using namespace Qt::StringLiterals;

std::optional<RecordRange> recordRangeOf(const QString& text)
{
    if (text == "all"_L1) {
        return RecordRange{1, std::nullopt};
    }
    static const QRegularExpression form(u"^([0-9]{1,15})(-([0-9]{1,15})?)?\\z"_s);
    const QRegularExpressionMatch match = form.match(text);
    if (!match.hasMatch()) {
        return std::nullopt;
    }
    RecordRange range;
    range.first = match.captured(1).toLongLong();
    range.last = range.first;
    if (match.hasCaptured(3)) {
        range.last = match.captured(3).toLongLong();
    } else if (match.hasCaptured(2)) {
        range.last = std::nullopt;
    }
    const bool isInOrder = range.first >= 1 && range.last.value_or(range.first) >= range.first;
    return isInOrder ? std::optional(range) : std::nullopt;
}

} // namespace cli
