#include "limits/xml/bounded_document.h"

#include "limits/xml/bounds_check.h"

#include <QDomDocument>

namespace xmlbounds {

std::optional<ParseFailure> parseDocument(const QByteArray& bytes, QDomDocument& document,
                                          qint64 treeBytes)
{
    document = QDomDocument();
    if (auto excess = exceededBound(bytes, treeBytes, DomCosts)) {
        return excess;
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
