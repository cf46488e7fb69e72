// The table of targets.

#include "exporting/targets.h"

#include <array>

#include <gtest/gtest.h>

using namespace exporting;
using namespace Qt::StringLiterals;

TEST(Targets, AreFoundByTheirNames)
{
    for (const TargetEntry& entry : targets()) {
        EXPECT_EQ(targetOfName(nameOf(entry.target)), entry.target);
        EXPECT_EQ(&entryOf(entry.target), &entry) << "each target is listed once";
    }
    EXPECT_FALSE(targetOfName(u"bmp"_s).has_value());
    EXPECT_EQ(targetNames().size(), static_cast<qsizetype>(targets().size()));
}

TEST(Targets, OptionsAcceptTheirDefaults)
{
    for (const TargetEntry& entry : targets()) {
        for (const TargetOption& option : entry.options) {
            EXPECT_EQ(option.accepts(option.initial), option.kind != OptionKind::Name)
                << entry.name << " " << option.name;
            EXPECT_EQ(option.names != nullptr, option.kind == OptionKind::Name);
            EXPECT_EQ(findOption(entry.target, QLatin1String(option.name)), &option);
            EXPECT_EQ(valueOf({}, entry.target, QLatin1String(option.name)), option.initial);
        }
    }
    EXPECT_EQ(findOption(Target::Svg, DpiOption), nullptr);
}

TEST(Targets, OptionsRejectOtherValues)
{
    constexpr std::array choices{203, 300, 600};
    const TargetOption number{"n", OptionKind::Number, "", "", "", 1, 9, {}, 1};
    const TargetOption choice{"c", OptionKind::Choice, "", "", "", 0, 0, choices, 300};
    const TargetOption isSwitch{"s", OptionKind::Switch};
    EXPECT_TRUE(number.accepts(9));
    EXPECT_FALSE(number.accepts(0));
    EXPECT_FALSE(number.accepts(10));
    EXPECT_TRUE(choice.accepts(203));
    EXPECT_FALSE(choice.accepts(204));
    EXPECT_TRUE(isSwitch.accepts(1));
    EXPECT_FALSE(isSwitch.accepts(2));
}

TEST(Targets, ValuesComeFromJson)
{
    EXPECT_EQ(valueOf({{u"dpi"_s, 72}}, Target::Png, DpiOption), 72);
    EXPECT_EQ(valueOf({{u"dpi"_s, true}}, Target::Png, DpiOption), 1);
    EXPECT_EQ(valueOf({{u"dpi"_s, u"x"_s}}, Target::Png, DpiOption), 300);
}
