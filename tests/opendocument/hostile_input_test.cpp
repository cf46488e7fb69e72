// Malicious files. Each must end in a reported failure or in a label,
// and none may take much time or memory.

#include "reader_fixture.h"
#include "tests/support/captured_log.h"

#include "opendocument/opendocument_limits.h"

#include <QtEndian>

#include <cmath>

using namespace Qt::StringLiterals;

namespace {

class HostileInput : public ReaderTest
{
protected:
    using ReaderTest::import;

    bool import(const QByteArray& zip)
    {
        Package package;
        return reader.importLabelFromFile(package.writeRaw(zip));
    }

    CapturedLog log;
};

QByteArray nested(const QByteArray& tag, int depth, const QByteArray& inside = {})
{
    return ("<" + tag + ">").repeated(depth) + inside + ("</" + tag + ">").repeated(depth);
}

} // namespace

TEST_F(HostileInput, EveryTruncatedPackageFails)
{
    const QByteArray zip = Package(stylesXml(), drawingXml("<draw:rect/>")).bytes();
    for (qsizetype size = 0; size < zip.size(); size += 7) {
        SCOPED_TRACE(size);
        EXPECT_FALSE(import(zip.first(size)));
    }
    EXPECT_EQ(log.messages().last(), u"Unable to get file styles."_s);
}

TEST_F(HostileInput, EveryDamagedBytePassesOrFails)
{
    const QByteArray zip = Package(stylesXml(), drawingXml("<draw:rect/>")).bytes();
    for (qsizetype at = 0; at < zip.size(); ++at) {
        QByteArray damaged = zip;
        damaged[at] = static_cast<char>(damaged[at] ^ 0xFF);
        if (!import(damaged)) {
            EXPECT_TRUE(log.messages().last().startsWith(u"Unable to get file"_s)) << at;
        }
    }
}

TEST_F(HostileInput, AWrongChecksumIsReported)
{
    QByteArray zip = Package(stylesXml(), drawingXml("")).bytes();
    zip[zip.lastIndexOf("PK\x01\x02") + 16] ^= 1;
    EXPECT_FALSE(import(zip));
    EXPECT_TRUE(log.messages().contains(u"The package's member styles.xml is damaged"_s));
}

TEST_F(HostileInput, AMemberThatClaimsGigabytesIsRefused)
{
    QByteArray zip = Package(stylesXml(), drawingXml("")).bytes();
    qToLittleEndian<quint32>(0x7fffffff, zip.data() + zip.lastIndexOf("PK\x01\x02") + 24);
    EXPECT_FALSE(import(zip));
    EXPECT_EQ(log.messages().last(), u"Unable to get file styles."_s);
}

TEST_F(HostileInput, ABombThatClaimsToBeSmallIsRefused)
{
    QByteArray zip = Package(QByteArray(40 << 20, ' '), drawingXml("")).bytes();
    qToLittleEndian<quint32>(10, zip.data() + zip.lastIndexOf("PK\x01\x02") + 24);
    EXPECT_FALSE(import(zip));
    EXPECT_EQ(log.messages().last(), u"Unable to get file styles."_s);
}

TEST_F(HostileInput, LargeMembersAreRefused)
{
    EXPECT_FALSE(import(QByteArray(opendocument::limits::StylesBytes + 1, ' '), "<a/>"));
    EXPECT_EQ(log.messages().last(), u"Unable to get file styles."_s);
    EXPECT_FALSE(import(stylesXml(), QByteArray(opendocument::limits::ContentBytes + 1, ' ')));
    EXPECT_EQ(log.messages().last(), u"Unable to get file content."_s);
}

TEST_F(HostileInput, DeepNestingIsRefused)
{
    EXPECT_FALSE(import(stylesXml(), nested("draw:g", 300000)));
    EXPECT_TRUE(log.messages().last().startsWith(
        u"Error parsing file: fileName / content.xml at line 1, column "_s));
    EXPECT_TRUE(log.messages().last().endsWith(u"Elements are nested deeper than 1000"_s));
    EXPECT_FALSE(import(nested("a", 300000), drawingXml("")));
    EXPECT_TRUE(log.messages().last().contains(u"styles.xml"_s));
}

TEST_F(HostileInput, DeepTextIsRead)
{
    ASSERT_TRUE(
        import(stylesXml(), textXml("<text:p>" + nested("text:span", 900, "deep") + "</text:p>")));
    EXPECT_EQ(host.lastCall(1, u"setText"_s), u"'deep'"_s);
}

TEST_F(HostileInput, EntityBombsAreRefused)
{
    QByteArray bomb = "<!DOCTYPE a [<!ENTITY e0 \"0123456789\">";
    for (int i = 1; i < 12; ++i) {
        bomb += "<!ENTITY e" + QByteArray::number(i) + " \"" +
                ("&e" + QByteArray::number(i - 1) + ";").repeated(10) + "\">";
    }
    EXPECT_FALSE(import(stylesXml(), bomb + "]><a>&e11;</a>"));
    EXPECT_TRUE(log.messages().last().startsWith(u"Error parsing file: fileName / content.xml"_s));
}

TEST_F(HostileInput, TreesThatWouldFillTheMemoryAreRefused)
{
    EXPECT_FALSE(import(stylesXml(), "<a>" + QByteArray("<b c='d'/>").repeated(3000000) + "</a>"));
    EXPECT_TRUE(log.messages().last().contains(u"The document is too large"_s));
}

TEST_F(HostileInput, NumbersOfAllKindsGiveItemsWithSoundGeometry)
{
    const QByteArrayList values = {
        "nanin", "infin", "-infin", "1e308in",  "-1e308in", "1e-320in",
        "abc",   "",      "in",     "-5in",     "1e306in",  "99999999999in",
        "0x1in", "1,5in", "--1in",  "1e5000in", "%",        "%1in"};
    QByteArray shapes;
    for (const QByteArray& value : values) {
        QByteArray all;
        for (const char* name :
             {"svg:x", "svg:y", "svg:width", "svg:height", "svg:x1", "svg:y1", "svg:x2", "svg:y2",
              "draw:corner-radius", "draw:z-index", "fo:min-height"}) {
            all += QByteArray(" ") + name + "=\"" + value + "\"";
        }
        all += " draw:transform=\"rotate (" + value + ") translate (" + value + " " + value + ")\"";
        const QByteArray text = "><text:p>x</text:p></";
        shapes += "<draw:rect" + all + text + "draw:rect><draw:line" + all + "/><draw:ellipse" +
                  all + text + "draw:ellipse><draw:frame" + all + "><draw:text-box" + all + text +
                  "draw:text-box></draw:frame>";
    }
    ASSERT_TRUE(import(stylesXml(), drawingXml(shapes)));
    ASSERT_TRUE(import(stylesXml(), textXml(shapes + "<text:p>x</text:p>")));
    EXPECT_GT(host.importedCount(), values.size() * 7);
    for (int item = 1; item <= host.createdCount(); ++item) {
        SCOPED_TRACE(item);
        const QPointF pos = host.item(item)->pos();
        EXPECT_TRUE(std::isfinite(pos.x()) && std::isfinite(pos.y()));
        EXPECT_TRUE(std::isfinite(host.item(item)->zValue()));
    }
    for (const QString& call : host.callsWith("item:")) {
        EXPECT_FALSE(call.contains(u"nan"_s) || call.contains(u"inf"_s)) << call.toStdString();
    }
}

TEST_F(HostileInput, AFlowOfEnormousFramesStaysSound)
{
    const QByteArray frame =
        "<draw:frame svg:height=\"1e306in\" svg:width=\"1e306in\"><draw:text-box/></draw:frame>";
    ASSERT_TRUE(import(stylesXml(), textXml(frame.repeated(40) + "<text:p>" + frame.repeated(40) +
                                            "x</text:p><text:p>y</text:p>")));
    const QPointF last = host.item(host.createdCount())->pos();
    EXPECT_TRUE(std::isfinite(last.x()) && std::isfinite(last.y()));
}

TEST_F(HostileInput, TextOfAMegabyteInAShapeIsRead)
{
    const QByteArray text = QByteArray("\"&lt;%1").repeated(1 << 18);
    ASSERT_TRUE(
        import(stylesXml(), drawingXml("<draw:rect><text:p>" + text + "</text:p></draw:rect>")));
    EXPECT_EQ(host.createdCount(), 2);
}

TEST_F(HostileInput, EndlessTextInAShapeIsLeftOut)
{
    const QByteArray text(opendocument::limits::TextCharacters + 1, 'x');
    ASSERT_TRUE(
        import(stylesXml(), drawingXml("<draw:rect><text:p>" + text + "</text:p></draw:rect>")));
    EXPECT_EQ(host.createdCount(), 1);
    EXPECT_EQ(log.messages().size(), 1);
}

TEST_F(HostileInput, ManyElementsAreReadInLinearTime)
{
    const int count = 20000;
    ASSERT_TRUE(import(stylesXml(), textXml(QByteArray("<text:p>x</text:p>").repeated(count))));
    EXPECT_EQ(host.importedCount(), count);
    EXPECT_EQ(host.item(count)->pos(), QPointF(0, 12.0 * (count - 1)));
}

TEST_F(HostileInput, StylesThatNameThemselvesOrEachOtherAreHarmless)
{
    const QByteArray styles =
        "<style:style style:family=\"text\" style:name=\"a\" style:parent-style-name=\"a\"/>"
        "<style:style style:family=\"text\" style:name=\"b\" style:parent-style-name=\"c\"/>"
        "<style:style style:family=\"text\" style:name=\"c\" style:parent-style-name=\"b\"/>"
        "<style:style/>";
    EXPECT_TRUE(
        import(stylesXml({}, styles), textXml("<text:p text:style-name=\"c\">x</text:p>", styles)));
}

TEST_F(HostileInput, PercentagesThatMultiplyStayWithinTheLargestFont)
{
    QByteArray styles;
    for (int i = 1; i < 50; ++i) {
        styles += "<style:style style:family=\"text\" style:name=\"s" + QByteArray::number(i) +
                  "\" style:parent-style-name=\"s" + QByteArray::number(i - 1) +
                  "\"><style:text-properties fo:font-size=\"1000%\"/></style:style>";
    }
    ASSERT_TRUE(
        import(stylesXml({}, styles), textXml("<text:p text:style-name=\"s49\">x</text:p>")));
    EXPECT_LE(host.lastCall(1, u"setFontPointSize"_s).toInt(), 10000);
}
