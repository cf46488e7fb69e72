#include "orvanta/label_page.h"

#include "orvanta/bounds.h"

#include <QDomElement>

namespace orvanta {

LabelPage readLabelPage(const QDomElement& root)
{
    const QDomElement bounds = root.firstChildElement(QStringLiteral("printable_control"))
                                   .firstChildElement(QStringLiteral("bounds"));
    if (bounds.isNull()) {
        return {};
    }
    const QRectF rectangle = readBounds(bounds);
    return {rectangle.width(), rectangle.height(), rectangle.height() > rectangle.width()};
}

} // namespace orvanta
