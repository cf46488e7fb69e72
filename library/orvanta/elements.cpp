#include "orvanta/elements.h"

#include "numeric/plain_number.h"

using namespace Qt::Literals::StringLiterals;

namespace orvanta {

int readInteger(const Element& element)
{
    bool isNumber = false;
    const int value = element.text().toInt(&isNumber, 10);
    return isNumber ? value : 0;
}

double readDouble(const Element& element)
{
    const QString text = element.text();
    if (const std::optional<double> plain = plainDecimal(text)) {
        return *plain;
    }
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber ? value : 0.0;
}

bool readFlag(const Element& element)
{
    return element.text() == "true"_L1;
}

QStringList readTexts(const Element& element)
{
    QStringList texts;
    for (Element child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        texts.append(child.text());
    }
    return texts;
}

} // namespace orvanta
