#include "xmlbounds/bounded_document.h"

#include "xmlbounds/markup_scanner.h"
#include "xmlbounds/readings.h"

#include <QDomDocument>

namespace xmlbounds {

namespace {

ParseFailure failureAt(const QByteArray& utf8, const Excess& excess)
{
    const Place place = placeOf(utf8, excess.offset);
    return {excess.message, place.line, place.column};
}

} // namespace

std::optional<ParseFailure> parseDocument(const QByteArray& bytes, QDomDocument& document,
                                          qint64 treeBytes)
{
    document = QDomDocument();
    for (const QByteArray& utf8 : readingsOf(bytes)) {
        if (const auto excess = findExcess(utf8, treeBytes)) {
            return failureAt(utf8, *excess);
        }
    }
    ParseFailure failure;
    int line = 0;
    int column = 0;
    if (document.setContent(bytes, false, &failure.message, &line, &column)) {
        return std::nullopt;
    }
    document = QDomDocument();
    failure.line = line;
    failure.column = column;
    return failure;
}

} // namespace xmlbounds
