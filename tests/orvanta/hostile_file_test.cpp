#include "tests/orvanta/reader_fixture.h"

#include "orvanta/file_limits.h"

#include <QFile>
#include <QTemporaryFile>

#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using HostileFile = ReaderFixture;

/// A label with every kind of content, for the tests to damage.
QByteArray sampleLabel()
{
    return "<?xml version=\"1.0\" encoding=\"utf-8\"?>\n"
           "<qmtx><printable_control><bounds><x>0</x><y>0</y><w>384</w><h>192</h></bounds>"
           "</printable_control><pre_printed_image><content>YWJj</content></pre_printed_image>"
           "<controls><barcode><printable_control><text>123</text></printable_control>"
           "<ArrayOfString><string>1</string></ArrayOfString></barcode>"
           "<picture_box><image><content>PHN2Zy8+</content></image></picture_box>"
           "<date_time_picker><format>2</format></date_time_picker>"
           "<transparent_shape><sides>6</sides></transparent_shape></controls></qmtx>";
}

QByteArray textLabel(const QByteArray& doctype, const QByteArray& text)
{
    return doctype + "<qmtx><controls><transparent_label><printable_control><text>" + text +
           "</text></printable_control></transparent_label></controls></qmtx>";
}

QByteArray repeated(const QByteArray& piece, int count)
{
    return piece.repeated(count);
}

} // namespace

TEST_F(HostileFile, ALabelTruncatedAtAnyByteIsRefusedCompletely)
{
    const QByteArray whole = sampleLabel();
    for (qsizetype length = 0; length < whole.size(); ++length) {
        log.clear();
        EXPECT_FALSE(import(whole.left(length))) << length;
        ASSERT_EQ(log.records().size(), 1) << length;
        EXPECT_TRUE(log.records().first().message.startsWith(u"Error parsing file: "_s));
    }
    EXPECT_EQ(takeCalls(), QStringList());
    EXPECT_TRUE(import(whole));
    EXPECT_EQ(host.itemCount(), 5);
}

TEST_F(HostileFile, AnyByteMayBeWrong)
{
    const QByteArray whole = sampleLabel();
    for (qsizetype place = 0; place < whole.size(); ++place) {
        for (const char byte : {'\0', '<', '&', '9', '\xFF'}) {
            QByteArray damaged = whole;
            damaged[place] = byte;
            host.forgetCalls();
            host.recorder().reset();
            const bool imported = import(damaged);
            const QStringList calls = callsOf("canvas");
            EXPECT_EQ(imported, !calls.isEmpty()) << place;
            EXPECT_EQ(calls.filter(u"completeCanvasLoading"_s).size(), imported ? 1 : 0);
        }
    }
}

TEST_F(HostileFile, FilesThatAreNotXmlAreRefused)
{
    for (const QByteArray& bytes :
         {QByteArray(), QByteArray("\0\0\0\0", 4), QByteArray("PK\x03\x04"), QByteArray("qmtx"),
          QByteArray(100000, '\xFF'), QByteArray(100000, '<'), QByteArray("\xFF\xFE"),
          QByteArray("<?xml version=\"1.0\" encoding=\"none\"?><qmtx/>")}) {
        EXPECT_FALSE(import(bytes));
    }
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(HostileFile, EntitiesOfTheDocumentItselfAreText)
{
    EXPECT_TRUE(
        import(textLabel("<!DOCTYPE qmtx [<!ENTITY shop 'Corner &#38;#38; Co'>]>", "&shop;!")));
    EXPECT_FALSE(host.calls().filter(u"setText 'Corner & Co!'"_s).isEmpty());
}

TEST_F(HostileFile, ExternalEntitiesAreNeverOpened)
{
    QTemporaryFile secret;
    ASSERT_TRUE(secret.open());
    secret.write("the secret");
    secret.close();
    const QByteArray url = "file://" + secret.fileName().toUtf8();
    for (const QByteArray& doctype :
         {QByteArray("<!DOCTYPE qmtx [<!ENTITY x SYSTEM '" + url + "'>]>"),
          QByteArray("<!DOCTYPE qmtx [<!ENTITY x PUBLIC 'a' '" + url + "'>]>"),
          QByteArray("<!DOCTYPE qmtx [<!ENTITY % p SYSTEM '" + url + "'> %p;]>"),
          QByteArray("<!DOCTYPE qmtx SYSTEM '" + url + "'>")}) {
        SCOPED_TRACE(doctype.constData());
        static_cast<void>(import(textLabel(doctype, "a&x;b")));
        EXPECT_TRUE(host.calls().filter(u"secret"_s).isEmpty());
        EXPECT_FALSE(logText().contains(u"the secret"_s));
    }
}

TEST_F(HostileFile, AnEntityThatGrowsIsRefused)
{
    QByteArray doctype = "<!DOCTYPE qmtx [<!ENTITY a0 'ha'>";
    for (int level = 1; level < 40; ++level) {
        const QByteArray lower = "&a" + QByteArray::number(level - 1) + ";";
        doctype += "<!ENTITY a" + QByteArray::number(level) + " '" + repeated(lower, 10) + "'>";
    }
    EXPECT_FALSE(import(textLabel(doctype + "]>", "&a39;")));
    EXPECT_FALSE(import(textLabel("<!DOCTYPE qmtx [<!ENTITY a '&b;'><!ENTITY b '&a;'>]>", "&a;")));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(HostileFile, ManyReferencesToALongEntityAreRefused)
{
    const QByteArray doctype = "<!DOCTYPE qmtx [<!ENTITY a '" + QByteArray(4000, 'x') + "'>]>";
    const int many = 1'000'000; // four gigabytes of text
    EXPECT_FALSE(import(textLabel(doctype, repeated("&a;", many))));
    EXPECT_EQ(takeCalls(), QStringList());
    EXPECT_TRUE(import(textLabel("", repeated("&amp;", many)))) << "without a declaration";
}

TEST_F(HostileFile, DeepNestingIsRefused)
{
    const int deep = 300'000;
    EXPECT_FALSE(import("<qmtx><controls>" + repeated("<a>", deep) + repeated("</a>", deep) +
                        "</controls></qmtx>"));
    EXPECT_FALSE(import("<qmtx>" + repeated("<controls>", deep)));
    EXPECT_EQ(takeCalls(), QStringList());
    EXPECT_EQ(log.records().size(), 2);
}

TEST_F(HostileFile, NumbersOutOfRangeReachTheHostAsTheyAre)
{
    EXPECT_TRUE(import(
        "<qmtx><printable_control><bounds><w>1e300</w><h>-5</h></bounds></printable_control>"
        "<controls><transparent_shape><printable_control><bounds><x>inf</x><y>nan</y><w>nan</w>"
        "<h>1e308</h></bounds></printable_control><rotation>2147483647</rotation>"
        "<sides>-2147483648</sides><shape_index>-2147483648</shape_index></transparent_shape>"
        "<transparent_label><printable_control><font><size>nan</size></font></printable_control>"
        "</transparent_label></controls></qmtx>"));
    EXPECT_EQ(host.itemCount(), 2);
    EXPECT_TRUE(callsOf("item:1").contains(u"setItemRotation 2147483647"_s));
    EXPECT_TRUE(callsOf("item:2").contains(u"setFontPointSize 0"_s));
}

TEST_F(HostileFile, HundredThousandCompleteObjectsAreImported)
{
    const int count = 100'000;
    const QByteArray whole =
        "<transparent_shape><printable_control><text>a</text><transparency>false</transparency>"
        "<negative>true</negative><fore_color>-1</fore_color><back_color>-65536</back_color>"
        "<bounds><x>300</x><y>300</y><w>10</w><h>10</h></bounds>"
        "<font><family>Arial</family><size>10</size><style>1</style></font></printable_control>"
        "<rotation>1</rotation><flip_horizontally>true</flip_horizontally>"
        "<flip_vertically>true</flip_vertically><sides>3</sides><shape_index>1</shape_index>"
        "<line_width>1</line_width></transparent_shape>";
    EXPECT_TRUE(import("<qmtx><controls>" + repeated(whole, count) + "</controls></qmtx>"));
    EXPECT_EQ(host.itemCount(), std::size_t(count));
}

TEST_F(HostileFile, TooManyObjectsAreRefusedBeforeTheCanvasIsTouched)
{
    EXPECT_FALSE(import("<qmtx><controls>" + repeated("<foo/>", orvanta::MaximumControls + 1) +
                        "</controls></qmtx>"));
    EXPECT_EQ(logText(), u"Error reading file: %1 is too large: it has more than "
                         "250000 objects"_s.arg(filePath()));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(HostileFile, ATreeThatWouldFillTheMemoryIsRefused)
{
    EXPECT_FALSE(import("<qmtx>" + repeated("<a/>", 8'000'000) + "</qmtx>"));
    EXPECT_TRUE(logText().startsWith(u"Error parsing file: "_s));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(HostileFile, AFileThatIsTooLongIsNotRead)
{
    QFile file(filePath());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(orvanta::MaximumFileSize + 1)); // a sparse file: uses no disk space
    file.close();
    EXPECT_FALSE(reader->importLabelFromFile(filePath()));
    EXPECT_EQ(logText(), u"Error reading file: %1 is too large: it has more than "
                         "134217728 bytes"_s.arg(filePath()));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(HostileFile, ADeviceWithoutEndIsNotReadToItsEnd)
{
    EXPECT_FALSE(reader->importLabelFromFile(u"/dev/zero"_s));
    EXPECT_EQ(takeCalls(), QStringList());
}

TEST_F(HostileFile, APipeWithoutAWriterDoesNotBlock)
{
    const QString pipe = filePath() + u".pipe"_s;
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_FALSE(reader->importLabelFromFile(pipe));
    EXPECT_EQ(logText(), u"Error opening file: %1"_s.arg(pipe));
    EXPECT_EQ(takeCalls(), QStringList());
    QFile::remove(pipe);
}

TEST_F(HostileFile, ManyAttributesAndLongNamesAreHarmless)
{
    QByteArray attributes;
    for (int number = 0; number < 500; ++number) {
        attributes += " a" + QByteArray::number(number) + "='x'";
    }
    const QByteArray name(4000, 'n');
    EXPECT_TRUE(import("<qmtx" + attributes + "><controls><" + name + "/></controls></qmtx>"));
    EXPECT_EQ(logText(), u"Not processing: \"%1\""_s.arg(QString::fromLatin1(name)));
}
