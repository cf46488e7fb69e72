#include "limits/xml/bounds_check.h"

#include "limits/xml/readings.h"

namespace xmlbounds {

std::optional<ParseFailure> exceededBound(const QByteArray& bytes, qint64 treeBytes,
                                          const TreeCosts& costs)
{
    for (const QByteArray& utf8 : readingsOf(bytes)) {
        if (const auto excess = findExcess(utf8, treeBytes, costs)) {
            const Place place = placeOf(utf8, excess->offset);
            return ParseFailure{excess->message, place.line, place.column};
        }
    }
    return std::nullopt;
}

} // namespace xmlbounds
