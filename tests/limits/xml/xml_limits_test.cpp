// What a document of unknown origin may ask of the parser, and what it may not.

#include "limits/xml/xml_limits.h"

#include <QDomDocument>
#include <QStringEncoder>
#include <QTemporaryFile>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using xmllimits::parseDocument;

namespace {

QByteArray nested(int depth)
{
    return QByteArray("<a>").repeated(depth) + QByteArray("</a>").repeated(depth);
}

QByteArray withAttributes(int count)
{
    QByteArray xml = "<a";
    for (int i = 0; i < count; ++i) {
        xml += " b" + QByteArray::number(i) + "=\"x\"";
    }
    return xml + "/>";
}

QString messageFor(const QByteArray& xml)
{
    QDomDocument document;
    const auto failure = parseDocument(xml, document);
    EXPECT_NE(failure.has_value(), !document.documentElement().isNull());
    return failure ? failure->message : QString();
}

QByteArray inEncoding(const QString& text, const char* encoding)
{
    QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

} // namespace

TEST(XmlLimits, ParsesWhatIsWithinTheBounds)
{
    QDomDocument document;
    EXPECT_FALSE(parseDocument("<?xml version=\"1.0\"?><!DOCTYPE r><r a='1'>t<b/></r>", document));
    EXPECT_EQ(document.documentElement().attribute(u"a"_s), u"1"_s);
    EXPECT_EQ(document.documentElement().text(), u"t"_s);
}

TEST(XmlLimits, KeepsThePrefixesOfNames)
{
    QDomDocument document;
    ASSERT_FALSE(parseDocument("<o:r xmlns:o='urn:o' o:a='1'/>", document));
    EXPECT_EQ(document.documentElement().tagName(), u"o:r"_s);
    EXPECT_EQ(document.documentElement().attribute(u"o:a"_s), u"1"_s);
}

TEST(XmlLimits, GivesTheParsersOwnMessageAndPlace)
{
    const QByteArray xml = "<r>\n  <a>\n</r>";
    QDomDocument plain;
    QString message;
    int line = 0;
    int column = 0;
    ASSERT_FALSE(plain.setContent(xml, false, &message, &line, &column));

    QDomDocument document;
    const auto failure = parseDocument(xml, document);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->message, message);
    EXPECT_EQ(failure->line, line);
    EXPECT_EQ(failure->column, column);
    EXPECT_TRUE(document.documentElement().isNull());
}

TEST(XmlLimits, RefusesAnEmptyDocument)
{
    EXPECT_NE(messageFor({}), QString());
}

TEST(XmlLimits, EmptiesADocumentThatWasFilledBefore)
{
    QDomDocument document;
    ASSERT_FALSE(parseDocument("<r/>", document));
    ASSERT_TRUE(parseDocument("<r>", document));
    EXPECT_TRUE(document.documentElement().isNull());
}

TEST(XmlLimits, AcceptsTheDeepestNestingAndRefusesOneMore)
{
    EXPECT_EQ(messageFor(nested(xmllimits::MaximumDepth)), QString());
    EXPECT_EQ(messageFor(nested(xmllimits::MaximumDepth + 1)),
              u"Elements are nested deeper than 1000"_s);
}

TEST(XmlLimits, RefusesHostileNestingWithoutParsingIt)
{
    EXPECT_EQ(messageFor(nested(300000)), u"Elements are nested deeper than 1000"_s);
    EXPECT_EQ(messageFor(QByteArray("<a>").repeated(300000)),
              u"Elements are nested deeper than 1000"_s);
}

TEST(XmlLimits, DoesNotTakeSiblingsOrEmptyElementsForNesting)
{
    EXPECT_EQ(messageFor("<r>" + QByteArray("<a/>").repeated(3000) + "</r>"), QString());
    EXPECT_EQ(messageFor("<r>" + QByteArray("<a b='/'></a>").repeated(3000) + "</r>"), QString());
    EXPECT_EQ(messageFor("<r>" + QByteArray("<a b='x'/>").repeated(3000) + "</r>"), QString());
}

TEST(XmlLimits, DoesNotTakeOtherMarkupForElements)
{
    const QByteArray tags = QByteArray("<a>").repeated(2000);
    EXPECT_EQ(messageFor("<r><!--" + tags + "--></r>"), QString());
    EXPECT_EQ(messageFor("<r><![CDATA[" + tags + "]]></r>"), QString());
    EXPECT_EQ(messageFor("<r><?p " + tags + "?></r>"), QString());
    EXPECT_EQ(messageFor("<!DOCTYPE r [<!-- " + tags + " ']> --> <!ENTITY e \"]>\">]><r/>"),
              QString());
    // An attribute's value may contain ">", but not "<".
    EXPECT_EQ(messageFor("<r a=\"" + QByteArray("/>").repeated(2000) + "\" b='\"'><c/></r>"),
              QString());
}

TEST(XmlLimits, FindsNestingBehindOtherMarkup)
{
    const QByteArray deep = nested(1001);
    const QByteArray before[] = {"<!-- <a> -->", "<?p > ?>", "<!DOCTYPE a [<!ENTITY e '>]'>]>",
                                 "<!DOCTYPE a PUBLIC \"]>\" '[>'>"};
    for (const QByteArray& markup : before) {
        SCOPED_TRACE(markup.toStdString());
        EXPECT_EQ(messageFor(markup + deep), u"Elements are nested deeper than 1000"_s);
    }
    EXPECT_EQ(messageFor("<r><![CDATA[ </r> ]]>" + deep + "</r>"),
              u"Elements are nested deeper than 1000"_s);
}

TEST(XmlLimits, ReportsThePositionOfTheExcess)
{
    QByteArray xml = "<?xml version=\"1.0\"?>\n<a>\n";
    xml += QString::fromUtf8("äö").toUtf8() + QByteArray("<a>").repeated(1000);
    QDomDocument document;
    const auto failure = parseDocument(xml, document);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->line, 3);
    EXPECT_EQ(failure->column, 2 + 3 * 999);
}

TEST(XmlLimits, AcceptsTheMostAttributesAndRefusesOneMore)
{
    EXPECT_EQ(messageFor(withAttributes(xmllimits::MaximumAttributes)), QString());
    EXPECT_EQ(messageFor(withAttributes(xmllimits::MaximumAttributes + 1)),
              u"An element has more than 1000 attributes"_s);
}

TEST(XmlLimits, DoesNotTakeEqualsSignsInValuesForAttributes)
{
    EXPECT_EQ(messageFor("<r a='" + QByteArray("b=").repeated(2000) + "'/>"), QString());
}

TEST(XmlLimits, RefusesATreeThatWouldFillTheMemory)
{
    QDomDocument document;
    const QByteArray xml = "<r>" + QByteArray("<a/>").repeated(10000) + "</r>";
    EXPECT_FALSE(parseDocument(xml, document));
    const auto failure = parseDocument(xml, document, 1000000);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->message, u"The document is too large: its tree would take "
                                "more than 1000000 bytes"_s);
    EXPECT_TRUE(document.documentElement().isNull());
}

TEST(XmlLimits, AcceptsWhatTakesJustTheBoundAndRefusesOneByteMore)
{
    const QByteArray xml = "<r a='1'>t" + QByteArray("<a b='2'>u</a>").repeated(100) + "</r>";
    const auto isAccepted = [&xml](qint64 treeBytes) {
        QDomDocument document;
        return !parseDocument(xml, document, treeBytes);
    };
    qint64 refused = 0;
    qint64 accepted = xmllimits::MaximumTreeBytes;
    while (accepted - refused > 1) {
        const qint64 middle = (refused + accepted) / 2;
        (isAccepted(middle) ? accepted : refused) = middle;
    }
    EXPECT_GT(accepted, 100 * 300) << "a hundred elements, and what they hold";
    EXPECT_LT(accepted, 100 * 4000);
    EXPECT_TRUE(isAccepted(accepted));
    EXPECT_FALSE(isAccepted(accepted - 1));
}

TEST(XmlLimits, CountsWhatEachKindOfMarkupTakes)
{
    const QByteArray parts[] = {"<a/>", "t<a/>", "<a b='1'/>", "<!---->", "<?p?>", "<![CDATA[]]>"};
    for (const QByteArray& part : parts) {
        SCOPED_TRACE(part.toStdString());
        QDomDocument document;
        EXPECT_TRUE(parseDocument("<r>" + part.repeated(5000) + "</r>", document, 1000000));
        EXPECT_FALSE(parseDocument("<r>" + part.repeated(300) + "</r>", document, 1000000));
    }
}

TEST(XmlLimits, DoesNotCountTheWhiteSpaceOfIndentation)
{
    QDomDocument document;
    const QByteArray xml = "<r>" + (QByteArray(3000, ' ') + "\n<a/>").repeated(1000) + "</r>";
    EXPECT_FALSE(parseDocument(xml, document, 1000000));
}

TEST(XmlLimits, ReadsTheTextOfEntities)
{
    QDomDocument document;
    const QByteArray xml = "<!DOCTYPE r [<!ENTITY firm \"Acme\">]><r>" +
                           QByteArray("&firm; &amp; &#65;").repeated(2000) + "</r>";
    ASSERT_FALSE(parseDocument(xml, document));
    EXPECT_TRUE(document.documentElement().text().startsWith(u"Acme & A"_s));
}

TEST(XmlLimits, RefusesEntitiesThatMultiply)
{
    QByteArray declarations = "<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 10; ++i) {
        const QByteArray inner = "&e" + QByteArray::number(i - 1) + ";";
        declarations += "<!ENTITY e" + QByteArray::number(i) + " \"" + inner.repeated(10) + "\">";
    }
    EXPECT_NE(messageFor("<!DOCTYPE r [" + declarations + "]><r>&e9;</r>"), QString());
    EXPECT_NE(messageFor("<!DOCTYPE r [" + declarations + "]><r a='&e9;'/>"), QString());
}

TEST(XmlLimits, RefusesEntitiesThatContainThemselves)
{
    EXPECT_NE(messageFor("<!DOCTYPE r [<!ENTITY a \"&b;\"><!ENTITY b \"&a;\">]><r>&a;</r>"),
              QString());
}

TEST(XmlLimits, RefusesManyReferencesToOneLargeEntity)
{
    const QByteArray entity =
        "<!DOCTYPE r [<!ENTITY e \"" + QByteArray("<a/>").repeated(1000) + "\">]>";
    EXPECT_EQ(messageFor(entity + "<r>&e;&e;</r>"), QString());
    EXPECT_NE(messageFor(entity + "<r>" + QByteArray("&e;").repeated(100000) + "</r>"), QString());
    // The same, hidden in a character reference.
    const QByteArray hidden =
        "<!DOCTYPE r [<!ENTITY e \"" + QByteArray("&#60;a/>").repeated(500) + "\">]>";
    EXPECT_NE(messageFor(hidden + "<r>" + QByteArray("&e;").repeated(100000) + "</r>"), QString());
    const QByteArray inAttribute = "<!DOCTYPE r [<!ENTITY e \"" + QByteArray(4000, 'x') + "\">]>";
    EXPECT_NE(messageFor(inAttribute + "<r a='" + QByteArray("&e;").repeated(1000000) + "'/>"),
              QString());
}

TEST(XmlLimits, RefusesDefaultAttributesThatMultiply)
{
    QByteArray declarations;
    for (int i = 0; i < 5000; ++i) {
        declarations += "<!ATTLIST a b" + QByteArray::number(i) + " CDATA 'x'>";
    }
    const QByteArray elements = "<r>" + QByteArray("<a/>").repeated(5000) + "</r>";
    EXPECT_NE(messageFor("<!DOCTYPE r [" + declarations + "]>" + elements), QString());
    EXPECT_EQ(messageFor("<!DOCTYPE r [<!ATTLIST a b CDATA 'x'>]>" + elements), QString());
}

TEST(XmlLimits, NeverOpensExternalEntities)
{
    QTemporaryFile secret;
    ASSERT_TRUE(secret.open());
    secret.write("secret");
    secret.flush();
    const QByteArray url = "file://" + secret.fileName().toUtf8();
    QDomDocument document;
    const auto failure =
        parseDocument("<!DOCTYPE r [<!ENTITY e SYSTEM \"" + url + "\">]><r>&e;</r>", document);
    EXPECT_FALSE(document.toString().contains(u"secret"_s));
    EXPECT_FALSE(failure);
    EXPECT_FALSE(parseDocument("<!DOCTYPE r SYSTEM \"" + url + "\"><r>x</r>", document));
    EXPECT_FALSE(document.toString().contains(u"secret"_s));
}

class XmlLimitsEncodings : public testing::TestWithParam<const char*>
{};

TEST_P(XmlLimitsEncodings, AreReadAndBounded)
{
    const QString declaration =
        u"<?xml version=\"1.0\" encoding=\"%1\"?>"_s.arg(QLatin1StringView(GetParam()));
    QDomDocument document;
    ASSERT_FALSE(parseDocument(inEncoding(declaration + u"<r>aé</r>"_s, GetParam()), document));
    EXPECT_EQ(document.documentElement().text(), u"aé"_s);

    const QString deep = declaration + QString::fromLatin1(nested(1001));
    const auto failure = parseDocument(inEncoding(deep, GetParam()), document);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->message, u"Elements are nested deeper than 1000"_s);
}

INSTANTIATE_TEST_SUITE_P(, XmlLimitsEncodings,
                         testing::Values("UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", "UTF-32",
                                         "ISO-8859-1"));

TEST(XmlLimits, FindsNestingThatAnEncodingHides)
{
    // Where Qt knows UTF-7, "+ADw-" is "<" there.
    const QByteArray declaration = "<?xml version='1.0' encoding='UTF-7'?>";
    const QByteArray deep = declaration + "<r>" + QByteArray("+ADw-a+AD4-").repeated(2000) + "</r>";
    EXPECT_NE(messageFor(deep), QString());
}

TEST(XmlLimits, StopsAtTheEndOfTruncatedMarkup)
{
    const QByteArray whole = "<!DOCTYPE r [<!-- c --><?p p?><!ENTITY e 'v'>]><r a='1' b=\"2\">"
                             "<!-- c --><![CDATA[ d ]]><?p p?>t&e;</r>";
    EXPECT_EQ(messageFor(whole), QString());
    for (qsizetype length = 0; length < whole.size(); ++length) {
        SCOPED_TRACE(length);
        EXPECT_NE(messageFor(whole.first(length)), QString());
    }
}
