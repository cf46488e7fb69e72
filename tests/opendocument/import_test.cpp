// Complete imports: the package, the page, the log, and what is kept for the next file.

#include "reader_fixture.h"
#include "tests/support/captured_log.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

const QByteArray OneRectangle = "<draw:rect svg:width=\"1in\" svg:height=\"1in\"/>";
const QString ImportSignature = u"bool OpenOfficeReader::importLabelFromFile(const QString&)"_s;

class Import : public ReaderTest
{
protected:
    // The canvas parameters of a document with such a page.
    QString page(const QByteArray& attributes)
    {
        host.forgetCalls();
        EXPECT_TRUE(import(stylesXml(attributes), drawingXml("")));
        return host.calls().value(0).remove(u"canvas importCanvasParameters "_s);
    }
};

// A failed import must leave the canvas unchanged.
void expectFailure(TestHost& host, OpenOfficeReader& reader, const QString& path,
                   const QString& message)
{
    const CapturedLog log;
    EXPECT_FALSE(reader.importLabelFromFile(path));
    EXPECT_TRUE(host.calls().isEmpty());
    ASSERT_EQ(log.records().size(), 1) << log.messages().join(u'\n').toStdString();
    const auto& record = log.records().last();
    EXPECT_EQ(record.level, Logger::Debug);
    EXPECT_EQ(record.source, u"open_office_reader"_s);
    EXPECT_EQ(record.function, ImportSignature);
    EXPECT_EQ(record.message.toStdString(), message.toStdString());
}

} // namespace

TEST_F(Import, SetsThePageThenTheItemsThenCompletesTheCanvas)
{
    const CapturedLog log;
    EXPECT_TRUE(import(stylesXml(), drawingXml(OneRectangle)));
    EXPECT_EQ(host.calls().first(), u"canvas importCanvasParameters 612 792 false true"_s);
    EXPECT_EQ(host.calls().value(1), u"factory create 1002a"_s);
    EXPECT_EQ(host.calls().last(), u"canvas completeCanvasLoading"_s);
    EXPECT_EQ(host.calls().count(u"canvas completeCanvasLoading"_s), 1);
    EXPECT_TRUE(log.records().isEmpty()) << log.messages().join(u'\n').toStdString();
}

TEST_F(Import, FailsWithoutStylesEvenWhenThereIsContent)
{
    Package package;
    package.add(u"content.xml"_s, drawingXml(OneRectangle));
    expectFailure(host, reader, package.write(), u"Unable to get file styles."_s);
}

TEST_F(Import, FailsWithoutContent)
{
    Package package;
    package.add(u"styles.xml"_s, stylesXml());
    expectFailure(host, reader, package.write(), u"Unable to get file content."_s);
}

TEST_F(Import, FailsOnEmptyMembers)
{
    expectFailure(host, reader, Package({}, drawingXml("")).write(),
                  u"Unable to get file styles."_s);
    expectFailure(host, reader, Package(stylesXml(), {}).write(), u"Unable to get file content."_s);
}

TEST_F(Import, FailsOnFilesThatAreNotPackages)
{
    Package package;
    const QString message = u"Unable to get file styles."_s;
    expectFailure(host, reader, package.writeRaw({}), message);
    expectFailure(host, reader, package.writeRaw("no zip file"), message);
    expectFailure(host, reader, u"/nowhere/at/all.odg"_s, message);
    expectFailure(host, reader, u"/tmp"_s, message);
    expectFailure(host, reader, u"/dev/zero"_s, message);
    expectFailure(host, reader, QString(), message);
}

TEST_F(Import, ReportsWhyAPackageWasRefused)
{
    const CapturedLog log;
    Package package(stylesXml(), drawingXml(""));
    QByteArray bytes = package.bytes();
    const qsizetype directory = bytes.indexOf("PK\x01\x02");
    ASSERT_GT(directory, 0);
    bytes[directory] = 'X';
    const QString path = package.writeRaw(bytes);
    EXPECT_FALSE(reader.importLabelFromFile(path));
    EXPECT_EQ(log.messages(), (QStringList{u"The package's table of contents is damaged: "_s + path,
                                           u"Unable to get file styles."_s}));
}

TEST_F(Import, FailsOnMalformedStylesBeforeTheContentIsLookedAt)
{
    expectFailure(host, reader, Package("<a>\n<b></a>", "<c").write(),
                  u"Error parsing file: fileName / styles.xml at line 2, column 7:\n"
                  "Opening and ending tag mismatch."_s);
}

TEST_F(Import, FailsOnMalformedContent)
{
    expectFailure(host, reader, Package(stylesXml(), "<a>\n<b></a>").write(),
                  u"Error parsing file: fileName / content.xml at line 2, column 7:\n"
                  "Opening and ending tag mismatch."_s);
}

TEST_F(Import, ReadsThePageInEachUnit)
{
    EXPECT_EQ(page("fo:page-width=\"8.5in\" fo:page-height=\"11in\""), u"612 792 false true"_s);
    EXPECT_EQ(page("fo:page-width=\"21.59cm\" fo:page-height=\"27.94cm\""),
              u"612 792 false true"_s);
    EXPECT_EQ(page("fo:page-width=\"51pc\" fo:page-height=\"66pc\""), u"612 792 false true"_s);
    // A hundred times the points of a millimeter: old labels depend on it.
    EXPECT_EQ(page("fo:page-width=\"215.9mm\" fo:page-height=\"279.4mm\""),
              u"61200 79200 false true"_s);
}

TEST_F(Import, ReadsTheHeightInTheUnitOfTheWidth)
{
    EXPECT_EQ(page("fo:page-width=\"8.5in\" fo:page-height=\"279.4mm\""),
              u"612 20116.8 false true"_s);
}

TEST_F(Import, PassesTheOrientation)
{
    const QByteArray size = "fo:page-width=\"1in\" fo:page-height=\"2in\" ";
    EXPECT_EQ(page(size + "style:print-orientation=\"landscape\""), u"72 144 false false"_s);
    EXPECT_EQ(page(size + "style:print-orientation=\"portrait\""), u"72 144 false true"_s);
}

TEST_F(Import, HasALetterPageWithoutAWidth)
{
    EXPECT_EQ(page("fo:page-height=\"5in\""), u"612 792 false true"_s);
}

TEST_F(Import, KeepsTheWidthThatDoesNotConvert)
{
    EXPECT_EQ(page("fo:page-width=\"72\" fo:page-height=\"2in\""), u"612 144 false true"_s);
    EXPECT_EQ(page("fo:page-width=\"xin\" fo:page-height=\"nanin\""), u"612 144 false true"_s);
    EXPECT_EQ(page("fo:page-width=\"1e308in\" fo:page-height=\"\""), u"612 144 false true"_s);
}

TEST_F(Import, KeepsTheFactorOfAUnitThatIsNotKnown)
{
    EXPECT_EQ(page("fo:page-width=\"2pt\" fo:page-height=\"3pt\""), u"144 216 false true"_s);
    EXPECT_EQ(page("fo:page-width=\"2pc\" fo:page-height=\"3pc\""), u"24 36 false true"_s);
    EXPECT_EQ(page("fo:page-width=\"2pt\" fo:page-height=\"3pt\""), u"24 36 false true"_s)
        << "the last document's";
}

TEST_F(Import, CarriesThePageOverToTheNextFile)
{
    EXPECT_EQ(page("fo:page-width=\"2cm\" fo:page-height=\"4cm\""),
              u"56.69291339 113.3858268 false true"_s);
    EXPECT_EQ(page("x=\"y\""), u"56.69291339 113.3858268 false true"_s);
    host.forgetCalls();
    ASSERT_TRUE(import(stylesXml("x=\"y\""), drawingXml("<draw:rect svg:width=\"1cm\" "
                                                        "svg:height=\"2in\"/>")));
    EXPECT_EQ(host.lastCall(1, u"setItemSize"_s), u"28.34645669 56.69291339"_s) << "and its unit";
}

TEST_F(Import, CarriesStylesOverToTheNextFile)
{
    const QByteArray styles =
        "<style:default-style style:family=\"graphic\"><style:graphic-properties "
        "draw:fill-color=\"#010203\"/></style:default-style>"
        "<style:default-style style:family=\"paragraph\"><style:text-properties "
        "fo:font-size=\"20pt\"/></style:default-style>"
        "<style:style style:family=\"graphic\" style:name=\"g\"><style:graphic-properties "
        "draw:fill-color=\"#040506\"/></style:style>"
        "<style:style style:family=\"paragraph\" style:name=\"p\"><style:text-properties "
        "fo:font-size=\"30pt\"/></style:style>";
    ASSERT_TRUE(import(stylesXml({}, styles), drawingXml("")));
    ASSERT_TRUE(import(stylesXml(), drawingXml("<draw:rect/><draw:rect draw:style-name=\"g\"/>")));
    EXPECT_EQ(host.lastCall(1, u"setFillColor"_s), u"'#ff010203'"_s);
    EXPECT_EQ(host.lastCall(2, u"setFillColor"_s), u"'#ff040506'"_s);
    ASSERT_TRUE(import(stylesXml(), textXml("<text:p>a</text:p>"
                                            "<text:p text:style-name=\"p\">b</text:p>")));
    EXPECT_EQ(host.lastCall(3, u"setFontPointSize"_s), u"20"_s);
    EXPECT_EQ(host.lastCall(4, u"setFontPointSize"_s), u"30"_s);
}

TEST_F(Import, AppliesAStyleWithoutChangingIt)
{
    // The first rectangle completes its own copy: no pen. The next file's style, which
    // starts from the same default, still has an open pen that a width makes solid.
    ASSERT_TRUE(import(stylesXml(), drawingXml("<draw:rect/>")));
    EXPECT_EQ(host.lastCall(1, u"setPenStyle"_s), u"0"_s);
    ASSERT_TRUE(
        import(stylesXml(), drawingXml("<draw:rect draw:style-name=\"g\"/>",
                                       "<style:style style:family=\"graphic\" style:name=\"g\">"
                                       "<style:graphic-properties svg:stroke-width=\"1in\"/>"
                                       "</style:style>")));
    EXPECT_EQ(host.lastCall(2, u"setPenStyle"_s), u"1"_s);
    EXPECT_EQ(host.lastCall(2, u"setPenWidth"_s), u"72"_s);
}

TEST_F(Import, ResetsTheTextFlowAndKeepsTheRestAfterAFailure)
{
    const QByteArray text = textXml("<text:p>a</text:p><text:p>b</text:p>");
    ASSERT_TRUE(import(stylesXml("fo:page-width=\"2in\" fo:page-height=\"3in\""), text));
    EXPECT_FALSE(import(stylesXml("fo:page-width=\"9in\" fo:page-height=\"9in\""), "<a"));
    host.forgetCalls();
    ASSERT_TRUE(import(stylesXml("x=\"y\""), text));
    EXPECT_EQ(host.calls().first(), u"canvas importCanvasParameters 144 216 false true"_s);
    EXPECT_EQ(host.item(3)->pos(), QPointF(0, 0));
    EXPECT_EQ(host.item(4)->pos(), QPointF(0, 12));
}

TEST_F(Import, ReadsTheSameInALocaleWithADecimalComma)
{
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::German));
    ASSERT_TRUE(import(stylesXml("fo:page-width=\"1.5in\" fo:page-height=\"2.5in\""),
                       drawingXml("<draw:rect svg:width=\"0.5in\" svg:height=\"0.25in\" "
                                  "draw:transform=\"rotate (1.5707963267949) "
                                  "translate (0.5in 1.5in)\"><text:p>x</text:p></draw:rect>")));
    QLocale::setDefault(before);
    EXPECT_EQ(host.calls().first(), u"canvas importCanvasParameters 108 180 false true"_s);
    EXPECT_EQ(host.lastCall(1, u"setItemSize"_s), u"36 18"_s);
    EXPECT_EQ(host.lastCall(1, u"setItemRotation"_s), u"270"_s);
    EXPECT_EQ(host.item(1)->pos(), QPointF(36, 108));
}

TEST_F(Import, ClosesThePackageWhenAsked)
{
    ASSERT_TRUE(import(stylesXml(), drawingXml("")));
    reader.closePackage();
    reader.closePackage();
    EXPECT_TRUE(import(stylesXml(), drawingXml("")));
}

TEST_F(Import, ReadsAPackageThatIsNamedInAnyLetters)
{
    Package package(stylesXml(), drawingXml(""));
    const QString path = package.write();
    const QString other = QFileInfo(path).path() + u"/Etikett ä%1.odg"_s;
    ASSERT_TRUE(QFile::copy(path, other));
    EXPECT_TRUE(reader.importLabelFromFile(other));
}

TEST(Uncompressed, ReadsMembersThatAreStoredUncompressed)
{
    const QByteArray picture =
        QByteArray::fromBase64("iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAIAAACQd1PeAAAADElEQVQI12P4z8AAAAM"
                               "BAQAY3Y2wAAAAAElFTkSuQmCC");
    Package package(stylesXml(), drawingXml("<draw:rect/><draw:frame><draw:image "
                                            "xlink:href=\"Pictures/a.png\"/></draw:frame>"));
    package.add(u"Pictures/a.png"_s, picture).storeUncompressed();
    ASSERT_TRUE(package.bytes().contains("<draw:rect/>")) << "nothing is compressed";
    TestHost host;
    OpenOfficeReader reader(host.canvas(), nullptr);
    EXPECT_TRUE(reader.importLabelFromFile(package.write()));
    EXPECT_EQ(host.requestedTypes(),
              (QList<KestTypes::ShapeType>{KestTypes::Rectangle, KestTypes::Picture}));

    QByteArray damaged = package.bytes();
    damaged.replace("<draw:rect/>", "<draw:reft/>");
    EXPECT_FALSE(reader.importLabelFromFile(package.writeRaw(damaged)));
}
