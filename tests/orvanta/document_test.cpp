#include "tests/orvanta/reader_fixture.h"

#include "orvanta/file_limits.h"

#include <QFile>
#include <QStringConverter>

using namespace Qt::Literals::StringLiterals;

namespace {

using Document = ReaderFixture;

constexpr char ImportFunction[] = "bool LegacyOrvanta::importLabelFromFile(const QString&)";

/// A label whose only object is a text with letters beyond Latin-1.
QString labelText(const QString& declaration)
{
    return declaration + u"<qmtx><controls><transparent_label><printable_control><text>"
                         "Käse\u20AC</text></printable_control></transparent_label></controls>"
                         "</qmtx>"_s;
}

QByteArray encodedAs(QStringConverter::Encoding encoding, const QString& text)
{
    QStringEncoder encoder(encoding, QStringConverter::Flag::WriteBom);
    return encoder(text);
}

/// Whether a document parses directly from a file opened in text mode, as the reader does.
bool parsesFromTextDevice(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QDomDocument document;
    return document.setContent(&file);
}

} // namespace

TEST_F(Document, AnEmptyLabelHasTheDefaultPage)
{
    EXPECT_TRUE(import("<qmtx/>"));
    EXPECT_EQ(takeCalls(), QStringList({u"canvas importCanvasParameters 432 288 false false"_s,
                                        u"canvas completeCanvasLoading"_s}));
    EXPECT_EQ(logText(), QString());
}

TEST_F(Document, ThePageIsTurnedWhenItIsHigherThanWide)
{
    const struct
    {
        const char* bounds;
        const char* call;
    } rows[] = {
        {"<w>400</w><h>600</h>", "canvas importCanvasParameters 300 450 false true"},
        {"<w>600</w><h>600</h>", "canvas importCanvasParameters 450 450 false false"},
        {"<w>576</w><h>384</h>", "canvas importCanvasParameters 432 288 false false"},
        {"", "canvas importCanvasParameters 0 0 false false"},
        {"<w>x</w><h>1</h>", "canvas importCanvasParameters 0 0.75 false true"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.bounds);
        EXPECT_TRUE(import(QByteArray("<qmtx><printable_control><bounds>") + row.bounds +
                           "</bounds></printable_control></qmtx>"));
        EXPECT_EQ(takeCalls().first(), QString::fromLatin1(row.call));
    }
}

TEST_F(Document, IsReadInItsOwnOrderPageBackgroundObjects)
{
    EXPECT_TRUE(import("<qmtx><controls><transparent_shape/></controls>"
                       "<pre_printed_image><content>YWJj</content></pre_printed_image>"
                       "<printable_control><bounds><w>4</w><h>4</h></bounds></printable_control>"
                       "</qmtx>"));
    const QStringList calls = takeCalls();
    EXPECT_EQ(calls.first(), u"canvas importCanvasParameters 3 3 false false"_s);
    EXPECT_EQ(calls.at(3), u"factory create 1000c"_s);
    EXPECT_EQ(calls.filter(u"factory"_s).last(), u"factory create 1002a"_s);
    EXPECT_EQ(calls.last(), u"canvas completeCanvasLoading"_s);
}

TEST_F(Document, OnlyTheFirstOfRepeatedPartsCounts)
{
    EXPECT_TRUE(import("<qmtx><pre_printed_image/><controls/><controls><barcode/></controls>"
                       "<pre_printed_image><content>YWJj</content></pre_printed_image></qmtx>"));
    EXPECT_EQ(host.itemCount(), 0);
}

TEST_F(Document, EveryKindOfObjectHasItsItem)
{
    const struct
    {
        const char* tag;
        const char* created;
    } rows[] = {
        {"barcode", "create 1001d"},           {"combo_box", "create 10015"},
        {"date_time_picker", "create 10015"},  {"numeric_up_down", "create 10015"},
        {"swap_text_box", "create 10016"},     {"transparent_label", "create 10016"},
        {"transparent_shape", "create 1002a"}, {"transparent_polygon", "create 1002a"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tag);
        host.forgetCalls();
        readControls(QByteArray("<") + row.tag + "/>");
        EXPECT_EQ(callsOf("factory"), QStringList(QString::fromLatin1(row.created)));
    }
    host.forgetCalls();
    readControls("<picture_box><image><content>YWJj</content></image></picture_box>");
    EXPECT_EQ(callsOf("factory"), QStringList(u"create 1000c"_s));
    EXPECT_EQ(logText(), QString());
}

TEST_F(Document, UnknownObjectsAreLoggedAndLeaveNoTrace)
{
    EXPECT_TRUE(import("<qmtx><controls>text<barcode/><!-- none --><foo><barcode/></foo>"
                       "<transparent_label/></controls></qmtx>"));
    EXPECT_EQ(callsOf("factory"), QStringList({u"create 1001d"_s, u"create 10016"_s}));
    EXPECT_EQ(logText(), u"Not processing: \"foo\""_s);
    EXPECT_EQ(log.records().first().function, u"void LegacyOrvanta::readControls(QDomElement)"_s);
}

TEST_F(Document, NamesOfObjectsAreExact)
{
    readControls("<Barcode/><combobox/><x:barcode xmlns:x='y'/><transparent_labels/>");
    EXPECT_TRUE(callsOf("factory").isEmpty());
    EXPECT_EQ(logText(), u"Not processing: \"Barcode\"\n"
                         "Not processing: \"combobox\"\n"
                         "Not processing: \"x:barcode\"\n"
                         "Not processing: \"transparent_labels\""_s);
}

TEST_F(Document, AFileThatIsNotThereIsLogged)
{
    const QString path = filePath() + u".none"_s;
    EXPECT_FALSE(reader->importLabelFromFile(path));
    EXPECT_EQ(logText(), u"Error opening file: "_s + path);
    EXPECT_EQ(log.records().first().function, QString::fromLatin1(ImportFunction));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(Document, AFolderOrAnEmptyNameIsNotAFile)
{
    EXPECT_FALSE(reader->importLabelFromFile(u"/"_s));
    EXPECT_FALSE(reader->importLabelFromFile(QString()));
    EXPECT_EQ(logText(), u"Error opening file: /\nError opening file: "_s);
}

TEST_F(Document, AMalformedFileIsLoggedWithItsPlace)
{
    EXPECT_FALSE(import("<qmtx>\n  <controls></qmtx>"));
    const QString start = u"Error parsing file: %1 at line 2, column "_s.arg(filePath());
    ASSERT_EQ(log.records().size(), 1);
    EXPECT_TRUE(log.records().first().message.startsWith(start))
        << log.records().first().message.toStdString();
    EXPECT_TRUE(log.records().first().message.contains(u":\n"_s));
    EXPECT_FALSE(log.records().first().message.endsWith(QLatin1Char('\n')))
        << "the parser's own message is the second line";
    EXPECT_EQ(log.records().first().function, QString::fromLatin1(ImportFunction));
    EXPECT_EQ(logText().count(QLatin1Char('\n')), 1);
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(Document, AnotherRootIsRefusedBeforeTheCanvasIsTouched)
{
    for (const char* xml :
         {"<QMTX/>", "<label/>", "<x:qmtx xmlns:x='y'/>", "<qmtx2/>", "<a><qmtx/></a>"}) {
        SCOPED_TRACE(xml);
        log.clear();
        EXPECT_FALSE(import(xml));
        EXPECT_EQ(logText(), u"Error: the file is not a orvanta doc"_s);
        EXPECT_EQ(log.records().first().function, QString::fromLatin1(ImportFunction));
        EXPECT_EQ(takeCalls(), QStringList());
    }
}

TEST_F(Document, IsReadInTheEncodingThatItHas)
{
    const QString text = u"setText 'Käse\u20AC'"_s;
    const struct
    {
        const char* why;
        QByteArray bytes;
    } rows[] = {
        {"UTF-8, undeclared", labelText(QString()).toUtf8()},
        {"UTF-8, declared", labelText(u"<?xml version=\"1.0\" encoding=\"utf-8\"?>"_s).toUtf8()},
        {"UTF-8 with a byte-order mark", encodedAs(QStringConverter::Utf8, labelText(QString()))},
        {"UTF-16 LE, undeclared", encodedAs(QStringConverter::Utf16LE, labelText(QString()))},
        {"UTF-16 BE, undeclared", encodedAs(QStringConverter::Utf16BE, labelText(QString()))},
        {"UTF-16 LE, declared",
         encodedAs(QStringConverter::Utf16LE,
                   labelText(u"<?xml version=\"1.0\" encoding=\"utf-16\"?>"_s))},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.why);
        host.forgetCalls();
        EXPECT_TRUE(import(row.bytes));
        EXPECT_FALSE(host.calls().filter(text).isEmpty());
    }
}

TEST_F(Document, Latin1NeedsItsDeclaration)
{
    const QByteArray label = "<qmtx><controls><transparent_label><printable_control><text>K\xE4se"
                             "</text></printable_control></transparent_label></controls></qmtx>";
    EXPECT_TRUE(import("<?xml version=\"1.0\" encoding=\"iso-8859-1\"?>" + label));
    EXPECT_FALSE(host.calls().filter(u"setText 'Käse'"_s).isEmpty());
    host.forgetCalls();
    EXPECT_FALSE(import(label));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(Document, LineEndsOfWindowsAreLineFeeds)
{
    EXPECT_TRUE(import("<qmtx>\r\n<controls>\r\n<transparent_label><printable_control><text>a\r\nb"
                       "</text></printable_control></transparent_label></controls></qmtx>\r\n"));
    EXPECT_FALSE(host.calls().filter(u"setText 'a\nb'"_s).isEmpty());
}

TEST_F(Document, TextModeTakesCarriageReturnsOutOfEveryEncoding)
{
    // In two-byte encodings this removes half of a character, and the rest no longer parses.
    // Labels have always been read this way, directly from a device in text mode.
    const QString text = labelText(u"<?xml version=\"1.0\"?>\r\n"_s);
    for (const auto encoding : {QStringConverter::Utf8, QStringConverter::Utf16LE,
                                QStringConverter::Utf16BE, QStringConverter::Utf32LE}) {
        SCOPED_TRACE(int(encoding));
        const bool imported = import(encodedAs(encoding, text));
        EXPECT_EQ(imported, parsesFromTextDevice(filePath()));
        EXPECT_EQ(imported, encoding == QStringConverter::Utf8);
    }
}

TEST_F(Document, AFileOfCarriageReturnsIsReadToItsEnd)
{
    const QByteArray returns(3 * 1024 * 1024, '\r');
    EXPECT_TRUE(import("<qmtx>" + returns + "</qmtx>"));
}

TEST_F(Document, NothingOfAFileStaysInTheReader)
{
    const QByteArray label =
        "<qmtx><printable_control><bounds><w>400</w><h>600</h></bounds></printable_control>"
        "<controls><transparent_shape><rotation>30</rotation><line_width>5</line_width>"
        "</transparent_shape><numeric_up_down/></controls></qmtx>";
    EXPECT_TRUE(import(label));
    const QString first = takeCalls().join(QLatin1Char('\n'));
    EXPECT_FALSE(import("<qmtx><controls><barcode/>"));
    EXPECT_EQ(takeCalls(), QStringList());
    EXPECT_FALSE(import("<label/>"));
    EXPECT_TRUE(import(label));
    QString second = takeCalls().join(QLatin1Char('\n'));
    second.replace(u"item:3"_s, u"item:1"_s)
        .replace(u"item:4"_s, u"item:2"_s)
        .replace(u"datasource:2"_s, u"datasource:1"_s)
        .replace(u"getDatasource 2"_s, u"getDatasource 1"_s)
        .replace(u"setDatasourceId 2"_s, u"setDatasourceId 1"_s);
    EXPECT_EQ(second, first);
    EXPECT_TRUE(import("<qmtx/>"));
    EXPECT_EQ(takeCalls().first(), u"canvas importCanvasParameters 432 288 false false"_s);
}
