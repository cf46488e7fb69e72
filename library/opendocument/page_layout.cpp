#include "opendocument/page_layout.h"

namespace opendocument {

namespace {

using namespace Qt::StringLiterals;

} // namespace

PageLayout readPageLayout(const xmllimits::Element& root)
{
    const xmllimits::Element properties = root.firstChildElement(u"office:automatic-styles"_s)
                                              .firstChildElement(u"style:page-layout"_s)
                                              .firstChildElement(u"style:page-layout-properties"_s);
    PageLayout layout;
    if (properties.hasAttribute(u"fo:page-width"_s)) {
        layout.width = properties.attribute(u"fo:page-width"_s);
        layout.height = properties.attribute(u"fo:page-height"_s);
    }
    layout.portrait =
        properties.attribute(u"style:print-orientation"_s, u"portrait"_s) == "portrait"_L1;
    return layout;
}

} // namespace opendocument
