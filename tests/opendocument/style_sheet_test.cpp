// How default, common and automatic styles inherit from each other.

#include "reader_fixture.h"

using namespace Qt::StringLiterals;

namespace {

QByteArray text(const QByteArray& name, const QByteArray& parent, const QByteArray& properties,
                const QByteArray& family = "paragraph")
{
    return "<style:style style:family=\"" + family + "\" style:name=\"" + name +
           "\" style:parent-style-name=\"" + parent + "\"><style:text-properties " + properties +
           "/></style:style>";
}

QByteArray graphic(const QByteArray& name, const QByteArray& parent, const QByteArray& properties)
{
    return "<style:style style:family=\"graphic\" style:name=\"" + name +
           "\" style:parent-style-name=\"" + parent + "\"><style:graphic-properties " + properties +
           "/></style:style>";
}

QByteArray size(const QByteArray& value)
{
    return "fo:font-size=\"" + value + "\"";
}

class StyleSheet : public ReaderTest
{
protected:
    // The font size of a paragraph with this style.
    QString sizeOf(const QByteArray& style, const QByteArray& common,
                   const QByteArray& automatic = {})
    {
        EXPECT_TRUE(
            import(stylesXml({}, common),
                   textXml("<text:p text:style-name=\"" + style + "\">x</text:p>", automatic)));
        return host.lastCall(host.createdCount(), u"setFontPointSize"_s);
    }

    // The fill color of a rectangle with this style.
    QString fillOf(const QByteArray& style, const QByteArray& common,
                   const QByteArray& automatic = {})
    {
        EXPECT_TRUE(
            import(stylesXml({}, common),
                   drawingXml("<draw:rect draw:style-name=\"" + style + "\"/>", automatic)));
        return host.lastCall(host.createdCount(), u"setFillColor"_s);
    }
};

} // namespace

TEST_F(StyleSheet, WithoutStylesTheDefaultsHold)
{
    EXPECT_EQ(sizeOf("missing", ""), u"12"_s);
    EXPECT_EQ(host.lastCall(1, u"setFontFamily"_s), u"'_Nare Vol'"_s);
}

TEST_F(StyleSheet, DefaultStylesChangeTheDefaults)
{
    const QByteArray defaults =
        "<style:default-style style:family=\"paragraph\"><style:paragraph-properties "
        "fo:text-align=\"end\"/><style:text-properties fo:font-size=\"20pt\" "
        "style:font-name=\"Arial\"/></style:default-style>"
        "<style:default-style style:family=\"graphic\"><style:graphic-properties "
        "draw:fill-color=\"#010203\"/></style:default-style>"
        "<style:default-style style:family=\"table\"><style:text-properties "
        "fo:font-size=\"99pt\"/></style:default-style>"
        "<style:default-style style:family=\"text\"><style:text-properties "
        "fo:font-size=\"98pt\"/></style:default-style>";
    EXPECT_EQ(sizeOf("missing", defaults), u"20"_s);
    EXPECT_EQ(host.lastCall(1, u"setFontFamily"_s), u"'Arial'"_s);
    EXPECT_EQ(host.lastCall(1, u"setTextAlignment"_s), u"2"_s);
    EXPECT_EQ(fillOf("", defaults), u"'#ff010203'"_s);
}

TEST_F(StyleSheet, AutomaticDefaultStylesAreNotRead)
{
    EXPECT_EQ(sizeOf("missing", "",
                     "<style:default-style style:family=\"paragraph\"><style:text-properties "
                     "fo:font-size=\"99pt\"/></style:default-style>"),
              u"12"_s);
}

TEST_F(StyleSheet, StylesInheritFromTheirParents)
{
    const QByteArray parent = text("parent", "", size("10pt") + " fo:font-weight=\"bold\"");
    EXPECT_EQ(sizeOf("child", parent + text("child", "parent", size("150%"))), u"15"_s);
    EXPECT_EQ(host.lastCall(1, u"setFontBold"_s), u"true"_s);
    EXPECT_EQ(sizeOf("child", parent, text("child", "parent", size("200%"))), u"20"_s)
        << "an automatic style of a common one";
}

TEST_F(StyleSheet, ParagraphAndTextStylesShareTheirNames)
{
    EXPECT_EQ(
        sizeOf("child", text("parent", "", size("10pt"), "text") + text("child", "parent", "")),
        u"10"_s);
}

TEST_F(StyleSheet, AParentThatFollowsIsIgnored)
{
    const QByteArray child = text("child", "parent", size("150%"));
    EXPECT_EQ(sizeOf("child", child + text("parent", "", size("10pt"))), u"18"_s);
}

TEST_F(StyleSheet, TheLastOfTwoStylesOfOneNameApplies)
{
    EXPECT_EQ(sizeOf("a", "", text("a", "", size("10pt")) + text("a", "", size("11pt"))), u"11"_s);
    EXPECT_EQ(sizeOf("a", text("a", "", size("10pt") + " fo:font-weight=\"bold\""),
                     text("a", "", size("13pt"))),
              u"13"_s);
    EXPECT_EQ(host.lastCall(2, u"setFontBold"_s), u"false"_s) << "replaced, not merged";
}

TEST_F(StyleSheet, AStyleMayBuildOnTheOneThatItReplaces)
{
    EXPECT_EQ(sizeOf("a", text("a", "", size("10pt")), text("a", "a", size("150%"))), u"15"_s);
}

TEST_F(StyleSheet, GraphicStylesInheritTheSame)
{
    const QByteArray parent = graphic("parent", "", "draw:fill-color=\"#010203\"");
    EXPECT_EQ(fillOf("child", parent + graphic("child", "parent", "")), u"'#ff010203'"_s);
    EXPECT_EQ(fillOf("child2", graphic("child2", "parent2", "") +
                                   graphic("parent2", "", "draw:fill-color=\"#010203\"")),
              QString());
}

TEST_F(StyleSheet, TextAndGraphicStylesKeepTheirNamesApart)
{
    EXPECT_EQ(fillOf("a", graphic("a", "", "draw:fill-color=\"#010203\"") + text("a", "", "")),
              u"'#ff010203'"_s);
}

TEST_F(StyleSheet, OtherFamiliesAreIgnored)
{
    EXPECT_EQ(sizeOf("a", text("a", "", size("10pt"), "table-cell")), u"12"_s);
}

TEST_F(StyleSheet, TheFirstPropertiesElementCounts)
{
    EXPECT_EQ(sizeOf("a", "<style:style style:family=\"text\" style:name=\"a\">"
                          "<style:text-properties fo:font-size=\"10pt\"/>"
                          "<style:text-properties fo:font-size=\"11pt\"/></style:style>"),
              u"10"_s);
}
