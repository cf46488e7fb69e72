// The compact tree beside Qt's own: the same documents are accepted and refused, with the same
// message at the same place, and the same is found in them. Labels were read from Qt's trees for
// long, so every difference would change some label.

#include "limits/xml/element_tree.h"

#include <QDomDocument>
#include <QFile>
#include <QRandomGenerator>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using xmllimits::ElementTree;

namespace {

// Everything that a reader can see of a tree, as text. Written once for both kinds.
template <class DomNode>
void describe(const DomNode& node, QString& text);

template <class DomElement, class DomNode>
void describeChildren(const DomElement& element, QString& text)
{
    text += element.hasChildNodes() ? u"{"_s : u"["_s;
    for (DomNode child = element.firstChild(); !child.isNull(); child = child.nextSibling()) {
        describe(child, text);
    }
    for (DomElement child = element.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement()) {
        text += child.tagName() + u',';
    }
    text += u'}';
}

const QStringList& attributeNames()
{
    static const QStringList names = {u"a"_s, u"b"_s, u"o:c"_s, u"d"_s, u"xmlns:o"_s};
    return names;
}

template <class DomNode>
void describe(const DomNode& node, QString& text)
{
    const auto element = node.toElement();
    if (element.isNull()) {
        text += node.isText() ? u"\""_s + node.nodeValue() + u'"' : u"?"_s;
        return;
    }
    text += u'<' + element.tagName();
    for (const QString& name : attributeNames()) {
        text += element.hasAttribute(name) ? name + u'=' + element.attribute(name) : QString();
    }
    describeChildren<std::decay_t<decltype(element)>, DomNode>(element, text);
}

struct Outcome
{
    QString contents;
    QString message;
    qint64 line = 0;
    qint64 column = 0;

    bool operator==(const Outcome&) const = default;
};

void PrintTo(const Outcome& outcome, std::ostream* out)
{
    *out << outcome.contents.toStdString() << " / " << outcome.message.toStdString() << " at "
         << outcome.line << ":" << outcome.column;
}

Outcome outcomeOfDom(const QByteArray& xml)
{
    QDomDocument document;
    QString message;
    int line = 0;
    int column = 0;
    if (!document.setContent(xml, false, &message, &line, &column)) {
        return {QString(), message, line, column};
    }
    Outcome outcome;
    describe(QDomNode(document.documentElement()), outcome.contents);
    return outcome;
}

Outcome outcomeOfTree(const QByteArray& xml)
{
    ElementTree tree;
    if (const auto failure = tree.parse(xml)) {
        return {QString(), failure->message, failure->line, failure->column};
    }
    Outcome outcome;
    describe(xmllimits::Node(tree.documentElement()), outcome.contents);
    return outcome;
}

void expectSame(const QByteArray& xml)
{
    EXPECT_EQ(outcomeOfTree(xml), outcomeOfDom(xml)) << xml.left(2000).toStdString();
}

const QByteArrayList& documents()
{
    static const QByteArrayList all = {
        "",
        " ",
        "text",
        "<r/>",
        "\xef\xbb\xbf<r/>",
        " <?xml version='1.0'?><r/>",
        "<?xml version='1.0'?><r/>",
        "<?xml version='1.1'?><r/>",
        "<?xml version='1.0' encoding='UTF-8' standalone='yes'?><r/>",
        "<?xml version='1.0' encoding='ISO-8859-1'?><r a='\xe9'>\xe4</r>",
        "<?xml version='1.0' encoding='nonsense'?><r/>",
        "<?xml version='1.0' encoding='UTF-16'?><r/>",
        "<r>\xff</r>",
        "<r a='\xc3'/>",
        "<r>\x01</r>",
        "<r>&#xD800;</r>",
        "<r>&#0;</r>",
        "<r>&#x10FFFF;&#xFEFF;&#xFFFE;</r>",
        "<r a='1' a='2'/>",
        "<r o:c='1' p:c='2'/>",
        "<o:r xmlns:o='u' o:c='1'><o:a/></o:r>",
        "<o:r/>",
        "<o:p:r/>",
        "<r><a></r></a>",
        "<r></s>",
        "<r/><s/>",
        "<r/>text",
        "<r/> <!-- c --> <?p i?> ",
        "<r/><!DOCTYPE r>",
        "<!DOCTYPE r><!DOCTYPE r><r/>",
        "<!DOCTYPE r><r/>",
        "<!DOCTYPE r SYSTEM 'nowhere.dtd'><r>&e;</r>",
        "<!DOCTYPE r PUBLIC 'x' 'nowhere.dtd'><r/>",
        "<!DOCTYPE r [<!ENTITY e 'v'>]><r a='&e;'>&e;&e; t</r>",
        "<!DOCTYPE r [<!ENTITY e '<a>x</a>'>]><r>&e;</r>",
        "<!DOCTYPE r [<!ENTITY e '<a>'>]><r>&e;</a></r>",
        "<!DOCTYPE r [<!ENTITY e SYSTEM 'x'>]><r>t&e;u</r>",
        "<!DOCTYPE r [<!ENTITY e SYSTEM 'x'>]><r a='&e;'/>",
        "<!DOCTYPE r [<!ENTITY e SYSTEM 'x' NDATA n><!NOTATION n SYSTEM 'y'>]><r/>",
        "<!DOCTYPE r [<!ENTITY e '&e;'>]><r>&e;</r>",
        "<!DOCTYPE r [<!ENTITY e ' '>]><r>&e;</r>",
        "<!DOCTYPE r [<!ENTITY % p 'x'> %p; ]><r/>",
        "<!DOCTYPE r [<!ATTLIST r a CDATA 'x' b CDATA #IMPLIED>]><r/>",
        "<!DOCTYPE r [<!ATTLIST r a CDATA 'x'>]><r a='y'/>",
        "<!DOCTYPE r [<!ATTLIST r a NMTOKENS #IMPLIED>]><r a='  x   y '/>",
        "<!DOCTYPE r [<!ELEMENT r (a)><!-- c --><?p?>]><r><a/></r>",
        "<r>&unknown;</r>",
        "<r a='&unknown;'/>",
        "<r>&amp;&lt;&gt;&quot;&apos;</r>",
        "<r> \n\t </r>",
        "<r xml:space='preserve'>  </r>",
        "<r> a <b/> c </r>",
        "<r>&#32;</r>",
        "<r>&#160;</r>",
        "<r>\xc2\xa0</r>",
        "<r>\xe2\x80\x83</r>",
        "<r><![CDATA[]]></r>",
        "<r><![CDATA[ ]]></r>",
        "<r><![CDATA[a]]><![CDATA[b]]>c</r>",
        "<r>a<![CDATA[b]]>c</r>",
        "<r>]]></r>",
        "<r><!-- a -- b --></r>",
        "<r><!----></r>",
        "<r>a<!-- c -->b</r>",
        "<r><?xml version='1.0'?></r>",
        "<r><?p?><?q i?></r>",
        "<r a='<'/>",
        "<r a=1/>",
        "<r a/>",
        "<r a='1'b='2'/>",
        "<r a='1\n2\t3&#10;4'/>",
        "<r>a\r\nb\rc</r>",
        "<r a=\"it's\" b='\"'/>",
        "<1/>",
        "<r><",
        "<r",
        "<r a",
        "<r a='",
        "<r><!--",
        "<r><![CDATA[",
        "<r>&",
        "<r>&amp",
        "<\xc3\xa9 \xc3\xa4='1'/>",
        "<r d=''><a/><a></a><a> </a></r>",
    };
    return all;
}

// Content before the interesting part that exceeds the block that the reader decodes at once.
QByteArray farInside(const QByteArray& part, int padding)
{
    return "<r>" + QByteArray("<b a='\xc3\xa9'>t</b>\n").repeated(padding) + part + "</r>";
}

QByteArray mutated(QByteArray xml, QRandomGenerator& random)
{
    static const QByteArrayList pieces = {
        "<",   ">",    "/",   "&",  ";",    "'",    "\"",    "=",     "<!--",      "-->", "]]>",
        "<a>", "</a>", "&e;", "\0", "\xc3", "&#1;", "<?p?>", "a='1'", "<![CDATA[", " "};
    for (int edits = random.bounded(1, 4); edits > 0; --edits) {
        const qsizetype at = random.bounded(xml.size() + 1);
        if (random.bounded(2) == 0) {
            xml.insert(at, pieces[random.bounded(pieces.size())]);
        } else {
            xml.remove(at, random.bounded(1, 6));
        }
    }
    return xml;
}

} // namespace

// A host may have parsed the document itself.
TEST(ElementTree, CopiesAnElementOfQtsTree)
{
    for (const QByteArray& xml : documents()) {
        QDomDocument document;
        if (!document.setContent(xml)) {
            continue;
        }
        const ElementTree copy(document.documentElement());
        QString contents;
        describe(xmllimits::Node(copy.documentElement()), contents);
        EXPECT_EQ(contents, outcomeOfDom(xml).contents) << xml.toStdString();
    }
    EXPECT_TRUE(ElementTree(QDomElement()).documentElement().isNull());
}

TEST(SameAsDom, ForDocumentsOfAllKinds)
{
    for (const QByteArray& xml : documents()) {
        expectSame(xml);
    }
}

TEST(SameAsDom, ForDocumentsThatAreDecodedInPieces)
{
    for (const QByteArray& xml : documents()) {
        for (const int padding : {1, 455, 900}) {
            expectSame(farInside(xml, padding));
        }
        expectSame(xml + QByteArray(9000, '\n'));
        expectSame(xml + "<!--" + QByteArray("\xc3\xa9\n").repeated(3000) + "-->" + xml);
    }
}

TEST(SameAsDom, WhereverAPieceEnds)
{
    // Characters of two and more bytes, line ends and markup across the border.
    for (int padding = 8192 - 60; padding < 8192 + 10; ++padding) {
        const QByteArray start = "<r>" + QByteArray(padding, 'x');
        expectSame(start + "\r\n\xc3\xa9\xf0\x9f\x8f\xb7<a b='\xe2\x82\xac'/>&amp;\r\n</r>");
        expectSame(start + "\r\n\xc3\xa9\xf0\x9f\x8f\xb7<a b='\xe2\x82\xac'/>&amp;\r\n</s>");
        expectSame(start + "\xf0\x9f");
    }
}

TEST(SameAsDom, ForDamagedDocuments)
{
    QRandomGenerator random(20240229);
    for (int round = 0; round < 20; ++round) {
        for (const QByteArray& xml : documents()) {
            expectSame(mutated(xml, random));
            expectSame(mutated(farInside(xml, 3), random));
        }
    }
}
