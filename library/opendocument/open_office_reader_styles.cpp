// The named and the default styles: each starts as a copy of its parent.

#include "opendocument/open_office_reader.h"

#include "host/services/common_lists.h"
#include "limits/xml/element_tree.h"

using namespace opendocument;
using namespace Qt::StringLiterals;

void OpenOfficeReader::readDefaultStyles(const xmllimits::Element& officeStyles)
{
    const QString tag = u"style:default-style"_s;
    for (xmllimits::Element element = officeStyles.firstChildElement(tag); !element.isNull();
         element = element.nextSiblingElement(tag)) {
        const QString family = element.attribute(u"style:family"_s);
        if (family == "paragraph"_L1) {
            readTextProperties(element.firstChildElement(u"style:text-properties"_s),
                               &CommonLists::isValidFamily, m_defaultTextStyle);
            readParagraphProperties(element.firstChildElement(u"style:paragraph-properties"_s),
                                    m_unitFactor, m_defaultTextStyle);
        } else if (family == "graphic"_L1) {
            readGraphicProperties(element.firstChildElement(u"style:graphic-properties"_s), unit(),
                                  m_defaultGraphicStyle);
        }
    }
}

void OpenOfficeReader::readStyles(const xmllimits::Element& container)
{
    const QString tag = u"style:style"_s;
    for (xmllimits::Element element = container.firstChildElement(tag); !element.isNull();
         element = element.nextSiblingElement(tag)) {
        const QString family = element.attribute(u"style:family"_s);
        if (family == "paragraph"_L1 || family == "text"_L1) {
            readTextStyle(element);
        } else if (family == "graphic"_L1) {
            readGraphicStyle(element);
        }
    }
}

void OpenOfficeReader::readTextStyle(const xmllimits::Element& element)
{
    OOTextStyle style =
        m_textStyles.value(element.attribute(u"style:parent-style-name"_s), m_defaultTextStyle);
    readTextProperties(element.firstChildElement(u"style:text-properties"_s),
                       &CommonLists::isValidFamily, style);
    readParagraphProperties(element.firstChildElement(u"style:paragraph-properties"_s),
                            m_unitFactor, style);
    m_textStyles.insert(element.attribute(u"style:name"_s), style);
}

void OpenOfficeReader::readGraphicStyle(const xmllimits::Element& element)
{
    OOGraphicStyle style = m_graphicStyles.value(element.attribute(u"style:parent-style-name"_s),
                                                 m_defaultGraphicStyle);
    readGraphicProperties(element.firstChildElement(u"style:graphic-properties"_s), unit(), style);
    m_graphicStyles.insert(element.attribute(u"style:name"_s), style);
}
