#include "host/services/white_space.h"

QRegularExpression WhiteSpace::getWhiteSpacesSplitRegex()
{
    return QRegularExpression(QStringLiteral("\\s+"),
                              QRegularExpression::UseUnicodePropertiesOption);
}
