// The page of a styles document.

#include "documents.h"

#include "opendocument/page_layout.h"

#include <gtest/gtest.h>

using opendocument::readPageLayout;
using namespace Qt::StringLiterals;

TEST(PageLayout, HasWidthHeightAndOrientationAsWritten)
{
    const auto layout = readPageLayout(elementOf(stylesXml(
        "fo:page-width=\"10cm\" fo:page-height=\"5mm\" style:print-orientation=\"landscape\"")));
    EXPECT_EQ(layout.width, u"10cm"_s);
    EXPECT_EQ(layout.height, u"5mm"_s);
    EXPECT_FALSE(layout.portrait);
}

TEST(PageLayout, IsPortraitUnlessItSaysOtherwise)
{
    EXPECT_TRUE(readPageLayout(elementOf(stylesXml("a=\"b\""))).portrait);
    EXPECT_TRUE(
        readPageLayout(elementOf(stylesXml("style:print-orientation=\"portrait\""))).portrait);
    for (const QByteArray value : {"landscape", "Portrait", ""}) {
        EXPECT_FALSE(
            readPageLayout(elementOf(stylesXml("style:print-orientation=\"" + value + "\"")))
                .portrait);
    }
}

TEST(PageLayout, HasNoHeightWithoutAWidth)
{
    const auto layout = readPageLayout(elementOf(stylesXml("fo:page-height=\"5in\"")));
    EXPECT_FALSE(layout.width);
    EXPECT_FALSE(layout.height);
}

TEST(PageLayout, IsTheFirstOfTheDocument)
{
    const auto layout = readPageLayout(
        elementOf("<d><office:automatic-styles><other/>"
                  "<style:page-layout><style:page-layout-properties fo:page-width=\"1in\"/>"
                  "<style:page-layout-properties fo:page-width=\"2in\"/></style:page-layout>"
                  "<style:page-layout><style:page-layout-properties fo:page-width=\"3in\"/>"
                  "</style:page-layout></office:automatic-styles></d>"));
    EXPECT_EQ(layout.width, u"1in"_s);
}

TEST(PageLayout, MayBeMissingAltogether)
{
    for (const QByteArray xml :
         {"<d/>", "<d><office:automatic-styles/></d>",
          "<d><office:automatic-styles><style:page-layout/></office:automatic-styles></d>"}) {
        const auto layout = readPageLayout(elementOf(xml));
        EXPECT_FALSE(layout.width);
        EXPECT_TRUE(layout.portrait);
    }
    EXPECT_TRUE(readPageLayout(xmllimits::Element()).portrait);
}
