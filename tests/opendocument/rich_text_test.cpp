// The text of a shape as HTML.

#include "documents.h"

#include "opendocument/rich_text.h"

#include <QTextDocument>

#include <gtest/gtest.h>

using namespace opendocument;
using namespace Qt::StringLiterals;

namespace {

OOTextStyle named(const QString& family, double size, bool bold)
{
    OOTextStyle style;
    style.fontFamily = family;
    style.fontSize = size;
    style.bold = bold;
    return style;
}

TextStyles styles()
{
    OOTextStyle underlined;
    underlined.underline = true;
    underlined.alignment = Qt::AlignHCenter;
    return {{u"Bold"_s, named(u"Arial"_s, 12, true)},
            {u"Big"_s, named(u"_Nare Vol"_s, 24, false)},
            {u"Line"_s, underlined}};
}

RichText richText(const QByteArray& paragraphs)
{
    static const TextStyles known = styles();
    static const OOTextStyle defaultStyle;
    return toRichText(elementOf("<shape>" + paragraphs + "</shape>"), {known, defaultStyle, 0.75});
}

// The content of the body element.
QString body(const QByteArray& paragraphs)
{
    const QString html = richText(paragraphs).html;
    const qsizetype start = html.indexOf(u'>', html.indexOf(u"<body"_s)) + 1;
    return html.sliced(start, html.indexOf(u"</body>"_s) - start);
}

const QString NoMargins =
    u" margin-top:0pt; margin-bottom:0pt; margin-left:0pt; margin-right:0pt;"_s;
const QString Plain = u"<p style=\""_s + NoMargins + u"\">"_s;

} // namespace

TEST(RichText, BeginsAndEndsAsTheFrameworksOwnHtml)
{
    QTextDocument document;
    document.setPlainText(u"x"_s);
    const QString expected = document.toHtml();
    const QString ours = richText("<text:p>x</text:p>").html;
    const QString header = expected.first(expected.indexOf(u"<body"_s));
    EXPECT_EQ(ours.first(header.size()), header);
    EXPECT_TRUE(ours.endsWith(u"</p></body></html>"_s));
    EXPECT_TRUE(expected.endsWith(u"</p></body></html>"_s));
}

TEST(RichText, HeaderIsTheSameWhateverTheFramework)
{
    EXPECT_TRUE(richText("<text:p>x</text:p>")
                    .html.startsWith(u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
                                     "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
                                     "<html><head><meta name=\"qrichtext\" content=\"1\" />"
                                     "<meta charset=\"utf-8\" /><style type=\"text/css\">\n"
                                     "p, li { white-space: pre-wrap; }\n"
                                     "hr { height: 1px; border-width: 0; }\n"
                                     "li.unchecked::marker { content: \"\\2610\"; }\n"
                                     "li.checked::marker { content: \"\\2612\"; }\n"
                                     "</style></head><body "_s));
}

TEST(RichText, BodyHasTheCompleteDefaultStyle)
{
    EXPECT_TRUE(
        richText("<text:p>x</text:p>")
            .html.contains(u"<body  style=\" font-family:'_Nare Vol'; font-size:9.00pt; "
                           "font-weight:400; font-style:normal; text-decoration:none;\">"_s));
}

TEST(RichText, ParagraphOfPlainText)
{
    EXPECT_EQ(body("<text:p>x</text:p>"), Plain + u"<span>x</span></p>"_s);
}

TEST(RichText, ParagraphStatesItsDifferencesButNotItsUnderline)
{
    EXPECT_EQ(body("<text:p text:style-name=\"Bold\">x</text:p>"),
              u"<p style=\""_s + NoMargins +
                  u" font-family:'Arial'; font-weight:700;\"><span>x</span></p>"_s);
    EXPECT_EQ(body("<text:p text:style-name=\"Big\">x</text:p>"),
              u"<p style=\""_s + NoMargins + u" font-size:18.00pt;\"><span>x</span></p>"_s);
    EXPECT_EQ(body("<text:p text:style-name=\"Line\">x</text:p>"),
              u"<p align=\"center\" style=\""_s + NoMargins + u"\"><span>x</span></p>"_s);
    EXPECT_EQ(body("<text:p text:style-name=\"Unknown\">x</text:p>"),
              Plain + u"<span>x</span></p>"_s);
}

TEST(RichText, SpanStatesItsDifferencesFromTheParagraph)
{
    EXPECT_EQ(body("<text:p text:style-name=\"Bold\">a<text:span text:style-name=\"Line\">b"
                   "</text:span></text:p>"),
              u"<p style=\""_s + NoMargins +
                  u" font-family:'Arial'; font-weight:700;\"><span>a</span>"
                  "<span style=\" font-family:'_Nare Vol'; font-weight:400; "
                  "text-decoration:underline;\">b</span></p>"_s);
    EXPECT_EQ(body("<text:p text:style-name=\"Bold\"><text:span>b</text:span></text:p>"),
              u"<p style=\""_s + NoMargins +
                  u" font-family:'Arial'; font-weight:700;\"><span style=\"\">b</span></p>"_s)
        << "a span without a style has the paragraph's";
}

TEST(RichText, EachTextElementBecomesAParagraph)
{
    EXPECT_EQ(body("<text:span>a</text:span><text:h>b</text:h><text:p>c</text:p>"
                   "<text:date>d</text:date><text:time>e</text:time>"
                   "<text:list><text:p>no</text:p></text:list><draw:glue-point/>"),
              Plain + u"<span>a</span></p>"_s + Plain + u"<span>b</span></p>"_s + Plain +
                  u"<span>c</span></p>"_s + Plain + u"<span>d</span></p>"_s + Plain +
                  u"<span>e</span></p>"_s);
}

TEST(RichText, TabsAreKeptAndOtherElementsSkipped)
{
    EXPECT_EQ(body("<text:p>a<text:tab/>b<text:s/><text:date>no</text:date><!-- no -->c</text:p>"),
              Plain + u"<span>a</span>\t<span>b</span><span>c</span></p>"_s);
}

TEST(RichText, AnEmptyParagraphStaysEmpty)
{
    EXPECT_EQ(body("<text:p/><text:p>x</text:p>"),
              Plain + u"</p>"_s + Plain + u"<span>x</span></p>"_s);
}

TEST(RichText, NestedTextOfASpanBelongsToIt)
{
    EXPECT_EQ(body("<text:p><text:span>a<text:a>b<text:span>c</text:span></text:a>d</text:span>"
                   "</text:p>"),
              Plain + u"<span style=\"\">abcd</span></p>"_s);
}

TEST(RichText, MarkupCharactersAreEscaped)
{
    EXPECT_EQ(body("<text:p>a &lt; b &amp; \"c\" &gt;<text:span>&lt;b></text:span></text:p>"),
              Plain + u"<span>a &lt; b &amp; &quot;c&quot; &gt;</span>"
                      "<span style=\"\">&lt;b&gt;</span></p>"_s);
}

TEST(RichText, PercentSignsOfALabelAreNotPlaceholders)
{
    EXPECT_EQ(body("<text:p>100 %1 %2 %3 %L1 %%<text:span>%1</text:span></text:p>"),
              Plain + u"<span>100 %1 %2 %3 %L1 %%</span><span style=\"\">%1</span></p>"_s);
}

TEST(RichText, IsEmptyWithoutVisibleText)
{
    for (const QByteArray blank :
         {"", "<text:p/>", "<text:p>  </text:p>", "<text:p><text:tab/></text:p>",
          "<text:p><text:span> \t </text:span></text:p>",
          "<text:list><text:p>x</text:p></text:list>", "<text:p>&#160;</text:p>",
          "<text:p><![CDATA[  ]]></text:p>",
          "<text:p><text:span><![CDATA[ ]]></text:span></text:p>"}) {
        SCOPED_TRACE(blank.toStdString());
        EXPECT_TRUE(richText(blank).isBlank);
    }
    EXPECT_FALSE(richText("<text:p/><text:p><text:span> x</text:span></text:p>").isBlank);
}

TEST(RichText, CountsItsCharacters)
{
    EXPECT_EQ(richText("<text:p>ab&amp;<text:span>cd</text:span></text:p>").length, 5);
}
