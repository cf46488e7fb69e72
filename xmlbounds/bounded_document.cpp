#include "xmlbounds/bounded_document.h"

#include <QDomDocument>

namespace xmlbounds {

std::optional<ParseFailure> parseDocument(const QByteArray& bytes, QDomDocument& document)
{
    ParseFailure failure;
    int line = 0;
    int column = 0;
    if (document.setContent(bytes, false, &failure.message, &line, &column)) {
        return std::nullopt;
    }
    failure.line = line;
    failure.column = column;
    return failure;
}

} // namespace xmlbounds
