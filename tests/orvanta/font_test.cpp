#include "orvanta/control_properties.h"

#include "tests/orvanta/element_support.h"

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using element_support::knowsFamily;
using element_support::ParsedElement;

TEST(Font, KeepsDefaultsForWhatIsMissing)
{
    const orvanta::Font font = orvanta::readFont(ParsedElement("<font/>").element(), knowsFamily);
    EXPECT_EQ(font.family, u"Arial"_s);
    EXPECT_EQ(font.size, 24.0);
    EXPECT_EQ(font.style, 0);
}

TEST(Font, TheDefaultFamilyIsNotChecked)
{
    const auto knowsNothing = [](QString) { return false; };
    EXPECT_EQ(orvanta::readFont(ParsedElement("<font/>").element(), knowsNothing).family,
              u"Arial"_s);
}

TEST(Font, ReadsFamilySizeAndStyle)
{
    const orvanta::Font font = orvanta::readFont(
        ParsedElement("<font><family>Courier New</family><size>10.7</size><style>5</style></font>")
            .element(),
        knowsFamily);
    EXPECT_EQ(font.family, u"Courier New"_s);
    EXPECT_EQ(font.size, 10.7);
    EXPECT_EQ(font.style, 5);
}

TEST(Font, AFamilyThatTheHostLacksBecomesTheFallback)
{
    for (const char* xml :
         {"<font><family>Old Sans</family></font>", "<font><family/></font>",
          "<font><family>arial</family></font>", "<font><family>Arial </family></font>",
          "<font><family>Arial</family><family>Old Sans</family></font>"}) {
        SCOPED_TRACE(xml);
        EXPECT_EQ(orvanta::readFont(ParsedElement(xml).element(), knowsFamily).family,
                  u"_Nare Vol"_s);
    }
}

TEST(Font, InvalidNumbersAreZero)
{
    const orvanta::Font font = orvanta::readFont(
        ParsedElement("<font><size>big</size><style>bold</style></font>").element(), knowsFamily);
    EXPECT_EQ(font.size, 0.0);
    EXPECT_EQ(font.style, 0);
}
