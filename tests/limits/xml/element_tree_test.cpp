// The compact tree: what can be asked of it, and what it may take.

#include "limits/xml/element_tree.h"

#include <QStringEncoder>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using xmllimits::Element;
using xmllimits::ElementTree;
using xmllimits::Node;

namespace {

class ElementTreeTest : public testing::Test
{
protected:
    Element root(const QByteArray& xml)
    {
        EXPECT_FALSE(tree.parse(xml)) << xml.toStdString();
        return tree.documentElement();
    }

    ElementTree tree;
};

QStringList childNames(const Element& element)
{
    QStringList names;
    for (Element child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        names += child.tagName();
    }
    return names;
}

} // namespace

TEST_F(ElementTreeTest, KeepsThePrefixesOfNames)
{
    const Element element = root("<o:r xmlns:o='urn:o' o:a='1'/>");
    EXPECT_EQ(element.tagName(), u"o:r"_s);
    EXPECT_EQ(element.attribute(u"o:a"), u"1"_s);
}

TEST_F(ElementTreeTest, DistinguishesAnEmptyAttributeFromAMissingOne)
{
    const Element element = root("<r a='' b='x'/>");
    EXPECT_TRUE(element.hasAttribute(u"a"));
    EXPECT_FALSE(element.hasAttribute(u"c"));
    EXPECT_EQ(element.attribute(u"a", u"otherwise"_s), QString());
    EXPECT_EQ(element.attribute(u"c", u"otherwise"_s), u"otherwise"_s);
    EXPECT_EQ(element.attribute(u"b"), u"x"_s);
}

TEST_F(ElementTreeTest, GivesEachElementItsOwnAttributes)
{
    const Element element = root("<r a='1'><c a='2' b='3'/><c b='4'/></r>");
    const Element first = element.firstChildElement();
    EXPECT_EQ(element.attribute(u"a"), u"1"_s);
    EXPECT_FALSE(element.hasAttribute(u"b"));
    EXPECT_EQ(first.attribute(u"a"), u"2"_s);
    EXPECT_EQ(first.attribute(u"b"), u"3"_s);
    EXPECT_FALSE(first.nextSiblingElement().hasAttribute(u"a"));
    EXPECT_EQ(first.nextSiblingElement().attribute(u"b"), u"4"_s);
}

TEST_F(ElementTreeTest, WalksChildrenAndNothingBelowOrBeside)
{
    const Element element = root("<r><a><x/></a>t<b/><!-- c --><a/></r>");
    EXPECT_EQ(childNames(element), (QStringList{u"a"_s, u"b"_s, u"a"_s}));
    EXPECT_EQ(childNames(element.firstChildElement()), QStringList{u"x"_s});
    EXPECT_EQ(childNames(element.firstChildElement(u"b")), QStringList());
}

TEST_F(ElementTreeTest, FindsElementsByName)
{
    const Element element = root("<r><a i='1'/><b/><a i='2'><a i='3'/></a><a i='4'/></r>");
    const Element second = element.firstChildElement(u"a").nextSiblingElement(u"a");
    EXPECT_EQ(second.attribute(u"i"), u"2"_s);
    EXPECT_EQ(second.nextSiblingElement(u"a").attribute(u"i"), u"4"_s);
    EXPECT_TRUE(second.nextSiblingElement(u"b").isNull());
    EXPECT_TRUE(element.firstChildElement(u"c").isNull());
    EXPECT_TRUE(element.firstChildElement(u"r").isNull());
}

TEST_F(ElementTreeTest, WalksAllKindsOfNodes)
{
    Node node = root("<r>one<!-- c --><![CDATA[two]]><e/><?p i?></r>").firstChild();
    EXPECT_TRUE(node.isText());
    EXPECT_EQ(node.nodeValue(), u"one"_s);
    EXPECT_TRUE(node.toElement().isNull());
    node = node.nextSibling();
    EXPECT_FALSE(node.isText());
    EXPECT_TRUE(node.toElement().isNull());
    node = node.nextSibling();
    EXPECT_TRUE(node.isText()) << "CDATA is text";
    EXPECT_EQ(node.nodeValue(), u"two"_s);
    node = node.nextSibling();
    EXPECT_FALSE(node.isText());
    EXPECT_EQ(node.nodeValue(), QString());
    EXPECT_EQ(node.toElement().tagName(), u"e"_s);
    node = node.nextSibling();
    EXPECT_FALSE(node.isNull());
    EXPECT_TRUE(node.nextSibling().isNull());
}

TEST_F(ElementTreeTest, AnElementWithAnythingInsideHasChildren)
{
    EXPECT_FALSE(root("<r></r>").hasChildNodes());
    EXPECT_FALSE(root("<r> \n </r>").hasChildNodes()) << "white space is not a node";
    EXPECT_FALSE(root("<r>\u00a0</r>").hasChildNodes()) << "nor are hard spaces alone";
    EXPECT_TRUE(root("<r>t</r>").hasChildNodes());
    EXPECT_TRUE(root("<r><!-- c --></r>").hasChildNodes());
    EXPECT_TRUE(root("<r><?p?></r>").hasChildNodes());
    EXPECT_TRUE(root("<r><![CDATA[]]></r>").hasChildNodes()) << "CDATA is, even an empty one";
    EXPECT_FALSE(root("<!DOCTYPE r [<!ENTITY e SYSTEM 'x'>]><r>&e;</r>").hasChildNodes());
}

TEST_F(ElementTreeTest, GathersTextInOrderAndLeavesTheRest)
{
    EXPECT_EQ(root("<a>1<b>2<c/>3</b><!-- x --><![CDATA[4]]><d><e>5</e></d>6</a>").text(),
              u"123456"_s);
    EXPECT_EQ(root("<r><a>1</a><b>2</b></r>").firstChildElement().text(), u"1"_s)
        << "nothing of what follows";
    EXPECT_EQ(root("<a/>").text(), QString());
}

TEST_F(ElementTreeTest, IgnoresContentOutsideTheRoot)
{
    const Element element = root("<?xml version='1.0'?><!-- a --><?p?><r/><!-- b --><?q?>");
    EXPECT_EQ(element.tagName(), u"r"_s);
    EXPECT_TRUE(element.nextSibling().isNull());
    EXPECT_FALSE(element.hasChildNodes());
}

TEST_F(ElementTreeTest, ANullElementAnswersWithNothing)
{
    const Element none;
    EXPECT_TRUE(none.isNull());
    EXPECT_EQ(none.tagName(), QString());
    EXPECT_FALSE(none.hasAttribute(u"a"));
    EXPECT_EQ(none.attribute(u"a", u"otherwise"_s), u"otherwise"_s);
    EXPECT_EQ(none.text(), QString());
    EXPECT_FALSE(none.hasChildNodes());
    EXPECT_FALSE(none.isText());
    EXPECT_TRUE(none.firstChild().isNull());
    EXPECT_TRUE(none.nextSibling().isNull());
    EXPECT_TRUE(none.firstChildElement(u"a").isNull());
    EXPECT_TRUE(none.nextSiblingElement().isNull());
    EXPECT_TRUE(none.toElement().isNull());
}

TEST_F(ElementTreeTest, IsEmptyBeforeAndAfterAFailure)
{
    EXPECT_TRUE(tree.documentElement().isNull());
    EXPECT_FALSE(root("<r/>").isNull());
    EXPECT_TRUE(tree.parse("<r><a/>"));
    EXPECT_TRUE(tree.documentElement().isNull());
    EXPECT_FALSE(root("<s/>").isNull());
    EXPECT_EQ(tree.documentElement().tagName(), u"s"_s) << "nothing of the first is left";
}

TEST_F(ElementTreeTest, HoldsTheBoundsOfAllDocuments)
{
    const auto deep = tree.parse(QByteArray("<a>").repeated(300000));
    ASSERT_TRUE(deep);
    EXPECT_EQ(deep->message, u"Elements are nested deeper than 1000"_s);
    EXPECT_EQ(deep->line, 1);
    EXPECT_EQ(deep->column, 3000);

    QByteArray wide = "<a";
    for (int i = 0; i <= xmllimits::MaximumAttributes; ++i) {
        wide += " b" + QByteArray::number(i) + "='x'";
    }
    const auto tooWide = tree.parse(wide + "/>");
    ASSERT_TRUE(tooWide);
    EXPECT_EQ(tooWide->message, u"An element has more than 1000 attributes"_s);
}

TEST_F(ElementTreeTest, CountsWhatEachKindOfMarkupTakes)
{
    const QByteArray parts[] = {"<a/>", "t<a/>", "<a b='1'/>", "<!---->", "<?p?>", "<![CDATA[t]]>"};
    for (const QByteArray& part : parts) {
        SCOPED_TRACE(part.toStdString());
        const auto failure = tree.parse("<r>" + part.repeated(6000) + "</r>", 1000000);
        ASSERT_TRUE(failure);
        EXPECT_EQ(failure->message,
                  u"The document is too large: its tree would take more than 1000000 bytes"_s);
        EXPECT_TRUE(tree.documentElement().isNull());
        EXPECT_FALSE(tree.parse("<r>" + part.repeated(2500) + "</r>", 1000000));
    }
}

TEST_F(ElementTreeTest, CountsTheTextOfEntities)
{
    const QByteArray entity = "<!DOCTYPE r [<!ENTITY e \"" + QByteArray(4000, 'x') + "\">]>";
    EXPECT_FALSE(tree.parse(entity + "<r>&e;&e;</r>", 1000000));
    EXPECT_TRUE(tree.parse(entity + "<r>" + QByteArray("&e;").repeated(100) + "</r>", 1000000));
    EXPECT_TRUE(tree.parse(entity + "<r a='" + QByteArray("&e;").repeated(100) + "'/>", 1000000));
}

TEST_F(ElementTreeTest, ReadsEveryEncodingThatADeclarationNames)
{
    for (const char* encoding : {"UTF-8", "UTF-16", "UTF-16BE", "UTF-32", "ISO-8859-1"}) {
        SCOPED_TRACE(encoding);
        QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
        const QByteArray xml =
            encoder(u"<?xml version='1.0' encoding='%1'?><r a='\u00e9'>\u00e4</r>"_s.arg(
                QLatin1StringView(encoding)));
        EXPECT_EQ(root(xml).attribute(u"a"), u"\u00e9"_s);
        EXPECT_EQ(tree.documentElement().text(), u"\u00e4"_s);
    }
}

TEST_F(ElementTreeTest, KeepsEveryCharacter)
{
    const Element element = root("<r a='&#xFEFF;x\xF0\x9F\x8F\xB7'>&#xFEFF;&lt;&#65;</r>");
    EXPECT_EQ(element.attribute(u"a"), QString(QChar(0xFEFF)) + u"x\U0001F3F7"_s);
    EXPECT_EQ(element.text(), QString(QChar(0xFEFF)) + u"<A"_s);
}
