#include "host/services/white_space.h"

using namespace Qt::StringLiterals;

QRegularExpression WhiteSpace::getWhiteSpacesSplitRegex()
{
    return QRegularExpression(u"\\s+"_s, QRegularExpression::UseUnicodePropertiesOption);
}
