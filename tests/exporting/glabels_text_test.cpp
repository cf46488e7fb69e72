// Texts of labels for gLabels.

#include "glabels_fixture.h"

#include <gmock/gmock.h>

namespace {

using namespace exporting;
using namespace workbench;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::Not;

TEST_F(Glabels, WritesATextWithoutTheMarginOfGlabels)
{
    canvas.addItem(textOf(u"Anna & <Bob>\nCity"_s));
    const std::string label = xml();
    EXPECT_THAT(label, HasSubstr(R"(<Object-text x="7pt")"));
    EXPECT_THAT(label, HasSubstr(R"(w="206pt")"));
    EXPECT_THAT(label, HasSubstr(R"(justify="Right" valign="Bottom")"));
    EXPECT_THAT(label, HasSubstr("font_family=\"Liberation Sans\""));
    EXPECT_THAT(label, HasSubstr(R"(color="0x0000ffff")"));
    EXPECT_THAT(label, HasSubstr("Anna &amp; &lt;Bob&gt;<NL/>City</Span>"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

TEST_F(Glabels, KeepsGlabelsFromFindingFieldsInATextAndOmitsControlCharacters)
{
    canvas.addItem(textOf(u"${Number}\u0001!"_s));
    EXPECT_THAT(xml(), HasSubstr("$\u200B{Number}!"));
}

TEST_F(Glabels, DrawsTextsThatAreNotUpright)
{
    ItemValues code = barcodeOf(20, u"ABC-123"_s);
    for (ItemValues values : {textOf(u"Price"_s), code}) {
        for (const double angle : {0.0, 90.0, 180.0, 270.0, -90.0}) {
            values.box.rotation = angle;
            canvas.clear();
            canvas.addItem(values);
            EXPECT_EQ(onlyFidelity(), Fidelity::Exact) << angle;
        }
        for (const double angle : {1.0, 45.0, 89.0, -30.0}) {
            values.box.rotation = angle;
            canvas.clear();
            canvas.addItem(values);
            EXPECT_EQ(onlyFidelity(), Fidelity::Picture) << angle;
            EXPECT_THAT(xml(), Not(HasSubstr("<Object-text"))) << angle;
        }
    }
}

TEST_F(Glabels, UnderlinesWithALine)
{
    ItemValues text = textOf(u"Price"_s);
    text.font->underline = true;
    canvas.addItem(text);
    EXPECT_THAT(xml(), HasSubstr("<Object-line"));
}

TEST_F(Glabels, ReportsReplacedFonts)
{
    ItemValues text = textOf(u"Price"_s);
    text.font->family = u"No Such Font"_s;
    canvas.addItem(text);
    const GlabelsLabel label = write();
    EXPECT_THAT(label.label.toStdString(), Not(HasSubstr("No Such Font")));
    EXPECT_THAT(label.findings.all().value(0).text.toStdString(), HasSubstr("No Such Font"));
}

TEST_F(Glabels, WritesATextForEachFormat)
{
    ItemValues text = textOf({});
    text.type = KestTypes::RichText;
    text.textLabel.reset();
    text.text = TextValues{{}, u"<p>one <b>two</b></p><p>three</p>"_s};
    canvas.addItem(text);
    const std::string label = xml();
    EXPECT_THAT(label, HasSubstr(">one </Span>"));
    EXPECT_THAT(label, HasSubstr(R"(font_weight="Bold" font_italic="False")"));
    EXPECT_THAT(label, HasSubstr(">two</Span>"));
    EXPECT_THAT(label, HasSubstr(">three</Span>"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Simplified);
}

// gLabels prints letters of 10 points up to 8 % wider, because it rounds their advances.
TEST_F(Glabels, SplitsLinesInSeveralFormatsWhereLettersWouldMove)
{
    ItemValues text = textOf({});
    text.type = KestTypes::RichText;
    text.textLabel.reset();
    text.text = TextValues{{},
                           u"<body style='font-family:Liberation Sans; font-size:10px'>"
                           "<p>opened once, <b>in use</b></p><p><u>do not open</u></p>"_s};
    canvas.addItem(text);
    const std::string label = xml();
    EXPECT_THAT(label, HasSubstr(">opened</Span>"));
    EXPECT_THAT(label, HasSubstr(">once,</Span>"));
    EXPECT_THAT(label, HasSubstr(R"(justify="Center")"));
    EXPECT_THAT(label, HasSubstr(">do not open</Span>")) << "its line has no gaps";
}

TEST_F(Glabels, KeepsTextInOneFormatTogether)
{
    ItemValues text = textOf(u"opened once, do not open"_s);
    text.font->bold = false;
    canvas.addItem(text);
    EXPECT_THAT(xml(), HasSubstr(">opened once, do not open</Span>"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

TEST_F(Glabels, WritesADocumentInOneFormatAsOneText)
{
    ItemValues text = textOf({});
    text.type = KestTypes::RichText;
    text.textLabel.reset();
    text.text = TextValues{{}, u"<p align=right>one two</p><p align=right>three</p>"_s};
    canvas.addItem(text);
    EXPECT_THAT(xml(), HasSubstr(">one two<NL/>three</Span>"));
    EXPECT_THAT(xml(), HasSubstr(R"(justify="Right")"));
    EXPECT_EQ(onlyFidelity(), Fidelity::Exact);
}

TEST_F(Glabels, DrawsFormatsThatItDoesNotHave)
{
    for (const char* html : {"x<sup>2</sup>", "<s>old</s>", "<ul><li>one</li></ul>",
                             "<table><tr><td>cell</td></tr></table>",
                             "<span style=\"background-color:#ffff00\">bright</span>"}) {
        canvas.clear();
        ItemValues text = textOf({});
        text.type = KestTypes::RichText;
        text.textLabel.reset();
        text.text = TextValues{{}, QString::fromLatin1(html)};
        canvas.addItem(text);
        EXPECT_THAT(xml(), HasSubstr("<Object-image")) << html;
        EXPECT_EQ(onlyFidelity(), Fidelity::Picture) << html;
    }
}

TEST_F(Glabels, OmitsControlCharactersFromDrawings)
{
    ItemValues text = textOf({});
    text.type = KestTypes::RichText;
    text.textLabel.reset();
    text.text = TextValues{{}, u"x<sup>2\u0002</sup>"_s};
    canvas.addItem(text);
    EXPECT_THAT(xml(), HasSubstr("<Object-image")); // xml() checks that it can be parsed
}

} // namespace
