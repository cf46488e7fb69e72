// Complete files: the order of the records, the reported issues and the imported content.

#include "supply/legacy_supply_info.h"
#include "tests/tavrel/reader_fixture.h"

using namespace Qt::Literals::StringLiterals;

using namespace tavrel_test;

namespace {

const QString LoadError = u"Load Error"_s;
const QString Warning = u"Warning: Import issues."_s;
const QString SymbolErrors = u"Errors reading symbol items.\nPlease update legacy "
                             "Tavrel to its latest version and re-save file."_s;
const QString BarcodeErrors = u"Unsupported barcode symbols."_s;
const QString NotConnected = u"Datasource not connected."_s;
const QString Oval = u"Oval"_s;

class Reader : public ReaderTest
{};

// The file

TEST_F(Reader, FileThatCannotBeOpenedIsRefusedSilently)
{
    EXPECT_FALSE(reader.importLabelFromFile(folder.filePath(u"none.cnv"_s)));
    EXPECT_FALSE(reader.importLabelFromFile(folder.path())) << "a folder";
    EXPECT_FALSE(reader.importLabelFromFile(QString()));
    EXPECT_TRUE(log.records().isEmpty());
    EXPECT_TRUE(host.calls().isEmpty());
    EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Reader, DeviceThatNeverEndsIsRefused)
{
    EXPECT_FALSE(reader.importLabelFromFile(u"/dev/zero"_s));
    EXPECT_EQ(errors().size(), 1);
    EXPECT_TRUE(host.calls().isEmpty());
}

TEST_F(Reader, FileThatIsTooLargeIsRefused)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(64 * 1024 * 1024 + 1)); // a sparse file, which uses no disk space
    EXPECT_FALSE(reader.importLabelFromFile(path));
    EXPECT_EQ(errors().size(), 1);
    EXPECT_TRUE(host.calls().isEmpty());
}

TEST_F(Reader, OldVersionIsRefusedWithALogLine)
{
    EXPECT_FALSE(import(hex("00000000 001E848F"))); // 2000015
    ASSERT_EQ(log.records().size(), 1);
    const CapturedLog::Record& record = log.records().first();
    EXPECT_EQ(record.level, Logger::Error);
    EXPECT_EQ(record.source, u"legacy_tavrel"_s);
    EXPECT_EQ(record.function, u"bool LegacyTavrel::importLabelFromFile(const QString&)"_s);
    EXPECT_EQ(record.message, u"Invalid canvas file version (2000015 != 2000024) in "_s + path);
    EXPECT_TRUE(host.calls().isEmpty()) << "the canvas is not touched";
    EXPECT_TRUE(boxes.isEmpty());
}

TEST_F(Reader, PathIsLoggedAsGiven)
{
    path = folder.filePath(u"100%1 %s.cnv"_s);
    EXPECT_FALSE(import(QByteArray()));
    EXPECT_EQ(errors(), QStringList(u"Invalid canvas file version (0 != 2000024) in "_s + path));
}

class EveryVersion : public ReaderTest, public testing::WithParamInterface<quint32>
{
protected:
    // The same label in every version: one item of each kind.
    static LabelFile label(quint32 version)
    {
        LabelFile file(version);
        file.shape(Oval)
            .shape(u"VerticalLine"_s)
            .text(u"Asset"_s, u"1"_s, u"_SEQUENCE"_s)
            .picture(pngOf(4, 3))
            .barcode(true, 20)
            .barcode(false, 55)
            .symbol(u"arrow.svg"_s)
            .empty()
            .shape(u"HorizontalLine"_s);
        return file;
    }
};

TEST_P(EveryVersion, IsReadToTheLastItem)
{
    EXPECT_TRUE(import(label(GetParam())));
    EXPECT_TRUE(errors().isEmpty());
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_EQ(host.callsWith("factory create"),
              lines({"factory create 1002c", "factory create 1001f", "factory create 10015",
                     "factory create 1000c", "factory create 1001d", "factory create 1001d",
                     "factory create 1000d", "factory create 1001f"}));
    EXPECT_EQ(host.itemCount(), 8);
    EXPECT_EQ(host.callsWith("canvas importCanvasParameters"),
              lines({"canvas importCanvasParameters 288 144 true true"}));
    EXPECT_EQ(host.callsWith("'Prefix'"),
              lines({"datasource:1 setDatasourceProperty 'Prefix' 'No'"}));
    EXPECT_EQ(host.calls().last(), u"canvas completeCanvasLoading"_s);
}

TEST_P(EveryVersion, PositionsAreInDotsAtFirstAndThenInInches)
{
    EXPECT_TRUE(import(label(GetParam())));
    const QPointF expected = GetParam() <= 2000016 ? QPointF(1.0 / 300.0 * 72.0, 0.5 / 305.0 * 72.0)
                                                   : QPointF(72.0, 36.0);
    EXPECT_EQ(host.item(1)->pos(), expected);
}

INSTANTIATE_TEST_SUITE_P(Versions, EveryVersion,
                         testing::Values(2000016U, 2000017U, 2000018U, 2000019U, 2000020U, 2000021U,
                                         2000022U, 2000023U, 2000024U, 2000025U, 4294967295U));

TEST_F(Reader, PageIsSetBeforeTheColorsAndTheItems)
{
    EXPECT_TRUE(import(LabelFile().shape(Oval)));
    EXPECT_EQ(host.calls().mid(0, 4),
              lines({"canvas importCanvasParameters 288 144 true true",
                     "canvas setCanvasBackgroundColor '#ffffffff'",
                     "canvas setCanvasDefaultPenColor '#ff000000'", "factory create 1002c"}));
}

TEST_F(Reader, FlagsAndColorsAreThoseOfThePage)
{
    // Label and ribbon types of different colors, a row of each table.
    LegacySupplyInfo supplies;
    const QColor label = supplies.getLabelColor(7);
    const QColor ribbon = supplies.getRibbonColor(3);
    ASSERT_NE(label, supplies.getLabelColor(3));
    ASSERT_NE(ribbon, supplies.getRibbonColor(7));
    LabelPage page;
    page.labelType = 7;
    page.ribbonType = 3;
    EXPECT_TRUE(import(LabelFile(2000024, {}, page).shape(Oval)));
    EXPECT_EQ(host.canvas()->canvasBackgroundColor(), label);
    EXPECT_EQ(host.canvas()->canvasDefaultPenColor(), ribbon);

    page.orientationCode = 1;
    EXPECT_TRUE(import(LabelFile(2000024, {}, page).shape(Oval)));
    page.canvasFlag = false;
    page.orientationCode = 2;
    EXPECT_TRUE(import(LabelFile(2000024, {}, page).shape(Oval)));
    EXPECT_EQ(host.callsWith("importCanvasParameters"),
              lines({"canvas importCanvasParameters 288 144 true true",
                     "canvas importCanvasParameters 288 144 true false",
                     "canvas importCanvasParameters 288 144 false true"}));
}

TEST_F(Reader, PictureAndSymbolAreScaledByTheResolutionOfTheFile)
{
    // 25/6 inches are 300 points, one for each dot of the printer's width.
    EXPECT_TRUE(import(LabelFile(2000023).picture(pngOf(40, 61))));
    EXPECT_EQ(host.callsWith("item:1 setItemSize"), lines({"item:1 setItemSize 40 60"}));
}

TEST_F(Reader, LaterItemsOfALayerAreInFront)
{
    EXPECT_TRUE(import(LabelFile().shape(Oval, 1.0).shape(Oval, 1.0).shape(Oval, 2.0)));
    const double first = host.item(1)->zValue();
    EXPECT_EQ(host.item(2)->zValue(), first + 1.0);
    EXPECT_EQ(host.item(3)->zValue(), first + 1002.0);
    EXPECT_TRUE(import(LabelFile().shape(Oval, 1.0)));
    EXPECT_EQ(host.item(4)->zValue(), first + 3.0) << "the number is never reset";
}

TEST_F(Reader, EveryHeaderThatIsReadTakesANumber)
{
    EXPECT_TRUE(
        import(LabelFile().shape(Oval).barcode(true, 5).symbol(u"unknown"_s).empty().shape(Oval)));
    EXPECT_EQ(host.item(2)->zValue(), host.item(1)->zValue() + 3.0);
}

// What counts as a success, and what is reported

TEST_F(Reader, LabelWithoutItemsFails)
{
    EXPECT_FALSE(import(LabelFile()));
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_TRUE(host.callsWith("completeCanvasLoading").isEmpty());
    EXPECT_TRUE(errors().isEmpty());
}

TEST_F(Reader, LabelWithoutItemsStillReportsItsDatabase)
{
    EXPECT_FALSE(import(LabelFile(2000024, {u"C:\\data\\list.csv"_s})));
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes.first()->windowTitle(), Warning);
    EXPECT_EQ(boxText(), NotConnected);
}

TEST_F(Reader, EmptyRecordsAreNotItems)
{
    EXPECT_FALSE(import(LabelFile().empty().empty()));
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_TRUE(import(LabelFile().empty().shape(Oval).empty()));
}

TEST_F(Reader, UnknownCodeAtFirstIsALoadError)
{
    EXPECT_FALSE(import(LabelFile(2000024, {u"/list.csv"_s}).typeCode(65543)));
    ASSERT_EQ(log.records().size(), 1);
    const CapturedLog::Record& record = log.records().first();
    EXPECT_EQ(record.level, Logger::Error);
    EXPECT_EQ(record.source, u"legacy_tavrel"_s);
    EXPECT_EQ(record.function, u"bool LegacyTavrel::importCanvasAndItems("
                               "QDataStream&, quint32, bool)"_s);
    EXPECT_EQ(record.message, u"Invalid type: 65543"_s);
    ASSERT_EQ(boxes.size(), 1);
    EXPECT_EQ(boxes.first()->windowTitle(), LoadError);
    EXPECT_EQ(boxText(), u"Errors reading items."_s) << "and nothing else";
    EXPECT_TRUE(host.callsWith("completeCanvasLoading").isEmpty());
}

TEST_F(Reader, UnknownCodeAfterFailuresAloneIsALoadErrorToo)
{
    EXPECT_FALSE(import(LabelFile().barcode(true, 5).empty().typeCode(-1).shape(Oval)));
    EXPECT_EQ(errors(), lines({"Invalid type: -1"}));
    EXPECT_EQ(boxText(), u"Errors reading items."_s);
    EXPECT_EQ(host.itemCount(), 0);
}

TEST_F(Reader, UnknownCodeAfterAnItemEndsTheFile)
{
    EXPECT_TRUE(import(LabelFile().shape(Oval).typeCode(65535).shape(Oval)));
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_EQ(errors(), lines({"Invalid type: 65535"}));
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_EQ(host.callsWith("completeCanvasLoading").size(), 1);
}

TEST_F(Reader, UnknownCodeAfterAnItemStillReportsTheIssues)
{
    EXPECT_TRUE(import(LabelFile().shape(Oval).barcode(true, 5).typeCode(65535)));
    EXPECT_EQ(boxText(), BarcodeErrors);
}

TEST_F(Reader, FailuresAreSkippedAndReportedTogether)
{
    EXPECT_TRUE(
        import(LabelFile().barcode(true, 5).symbol(u"unknown"_s).barcode(false, 20).shape(Oval)));
    EXPECT_EQ(boxText(), SymbolErrors + QLatin1Char('\n') + BarcodeErrors);
    EXPECT_EQ(host.itemCount(), 1);
}

TEST_F(Reader, FailuresAloneAreNotASuccess)
{
    EXPECT_FALSE(import(LabelFile().barcode(true, 5).symbol(u"unknown"_s)));
    EXPECT_EQ(boxes.first()->windowTitle(), Warning);
    EXPECT_EQ(boxText(), SymbolErrors + QLatin1Char('\n') + BarcodeErrors);
}

TEST_F(Reader, NotesOfStretchedTextsAreListed)
{
    EXPECT_TRUE(import(LabelFile(2000024, {u"/list.csv"_s})
                           .text(u"Net  weight"_s, u"2"_s)
                           .text(u"plain"_s)
                           .text(u"Lot"_s, u"1/2"_s)));
    EXPECT_EQ(boxText(), u"\"Net weight\":\n\tOriginal font size: 12.\n"
                         "\"Lot\":\n\tOriginal font size: 12.\n"_s +
                             NotConnected);
}

TEST_F(Reader, TextBindsItsKey)
{
    EXPECT_TRUE(import(LabelFile().text(u"x"_s, u"1"_s, u"_SPECIAL"_s, u"%_TIME%"_s)));
    EXPECT_EQ(host.callsWith("createDatasource").size(), 1);
    EXPECT_EQ(host.callsWith("hh:mm:ss").size(), 1);
}

TEST_F(Reader, OlderTextHasNoTextToSearchForAKey)
{
    EXPECT_TRUE(import(LabelFile(2000021).text(u"%_TIME%"_s, u"1"_s, u"_SPECIAL"_s)));
    EXPECT_TRUE(host.callsWith("createDatasource").isEmpty());
}

TEST_F(Reader, DatabaseKeyIsReadOver)
{
    EXPECT_TRUE(import(LabelFile().text(u"x"_s, u"1"_s, u"Record"_s)));
    EXPECT_TRUE(boxes.isEmpty());
    EXPECT_EQ(host.itemCount(), 1);
}

// Symbols

TEST_F(Reader, EmbeddedSymbolNeverAsksTheDatabases)
{
    EXPECT_TRUE(import(LabelFile().symbol(u"arrow.svg"_s, "<svg/>")));
    EXPECT_TRUE(lookUps().isEmpty());
    EXPECT_EQ(host.lastCall(1, u"loadItemFromData"_s), TestHost::shown("symbol of <svg/>"));
}

TEST_F(Reader, SymbolWithoutDataIsLookedUp)
{
    EXPECT_TRUE(import(LabelFile(2000024).symbol(u"/old/arrow.svg"_s)));
    EXPECT_EQ(lookUps(), lines({"symboldb:1 getDataFromSymbolName 'arrow.svg'"}));
    EXPECT_EQ(host.recorder().symbolCreatorsMade(), 0);
}

TEST_F(Reader, SymbolThatDrawsNothingIsAnError)
{
    host.behavior().symbolSize = QSizeF(0, 8);
    EXPECT_FALSE(import(LabelFile().symbol(u"a"_s, "<svg/>")));
    EXPECT_EQ(boxText(), SymbolErrors);
    EXPECT_EQ(host.livingItems(), 0);
}

TEST_F(Reader, SymbolThatCannotBeConvertedIsAnError)
{
    host.behavior().conversion = recorder::Behavior::Conversion::Fails;
    EXPECT_FALSE(import(LabelFile().symbol(u"arrow.svg"_s, "no svg")));
    EXPECT_EQ(boxText(), SymbolErrors);
    EXPECT_TRUE(host.callsWith("factory create").isEmpty());
}

TEST_F(Reader, IssuesAreReportedBeforeTheCanvasIsComplete)
{
    QObject::connect(&reader, &LegacyTavrel::popupShowSignal, &reader, [this] {
        EXPECT_EQ(host.itemCount(), 1);
        EXPECT_TRUE(host.callsWith("completeCanvasLoading").isEmpty());
    });
    const QSignalSpy shown(&reader, &LegacyTavrel::popupShowSignal);
    EXPECT_TRUE(import(LabelFile().shape(Oval).barcode(true, 5)));
    EXPECT_EQ(shown.count(), 1);
    EXPECT_EQ(host.calls().last(), u"canvas completeCanvasLoading"_s);
}

// A host that fails

TEST_F(Reader, ItemThatTheHostCannotMakeIsLeftOutAndLogged)
{
    host.behavior().refusedTypes = {KestTypes::Ellipse, KestTypes::Picture, KestTypes::SimpleText,
                                    KestTypes::Barcode, KestTypes::Symbol};
    EXPECT_TRUE(import(LabelFile()
                           .shape(Oval)
                           .picture(pngOf(2, 2))
                           .text(u"x"_s, u"2"_s)
                           .barcode(true, 20)
                           .symbol(u"arrow.svg"_s)
                           .shape(u"Square"_s)));
    EXPECT_EQ(errors().size(), 5);
    EXPECT_EQ(host.itemCount(), 1);
    EXPECT_EQ(boxText(), SymbolErrors);
}

// One reader, many files

TEST_F(Reader, FilesInTurnDoNotMixEvenWithAFailureBetween)
{
    EXPECT_TRUE(import(LabelFile(2000024, {u"/list.csv"_s}).text(u"a"_s, u"2"_s).barcode(true, 5)));
    const QString first = textOf(boxes.first());
    EXPECT_FALSE(import(hex("00000000 00000001")));
    EXPECT_FALSE(import(LabelFile(2000018).typeCode(1)));
    boxes.clear();
    host.forgetCalls();

    EXPECT_TRUE(import(LabelFile(2000016).shape(Oval)));
    EXPECT_TRUE(boxes.isEmpty()) << "issues are those of one file";
    EXPECT_EQ(host.callsWith("completeCanvasLoading").size(), 1);

    EXPECT_TRUE(import(LabelFile(2000024, {u"/list.csv"_s}).text(u"a"_s, u"2"_s).barcode(true, 5)));
    EXPECT_EQ(textOf(boxes.last()), first);
}

TEST_F(Reader, ResolutionAndCounterAreThoseOfTheFile)
{
    const auto label = [](quint32 version, const LabelPage& page) {
        LabelFile file(version, {}, page);
        file.picture(pngOf(40, 61)).text(u"x"_s, u"1"_s, u"_SEQUENCE"_s);
        return file;
    };
    LabelPage page;
    page.resolutionX = 600.0;
    page.resolutionY = 150.0;
    EXPECT_TRUE(import(label(2000024, page)));
    page.orientationCode = 1;
    page.sequenceStart = 11;
    EXPECT_TRUE(import(label(2000023, page)));
    EXPECT_TRUE(import(label(2000016, {})));
    // 25/6 inches are 300 points.
    EXPECT_EQ(host.callsWith("setItemSize "),
              lines({"item:1 setItemSize 20 122", "item:3 setItemSize 39.3442623 61",
                     "item:5 setItemSize 40 60"}));
    EXPECT_EQ(host.callsWith("'Start'"), lines({"datasource:1 setDatasourceProperty 'Start' 10",
                                                "datasource:2 setDatasourceProperty 'Start' 11",
                                                "datasource:3 setDatasourceProperty 'Start' 10"}));
}

TEST_F(Reader, ServicesAreMadeOnceForAllFiles)
{
    const LabelFile label = LabelFile().symbol(u"a"_s, "<svg/>").symbol(u"unknown"_s);
    EXPECT_TRUE(import(label));
    EXPECT_TRUE(import(label));
    EXPECT_EQ(host.recorder().symbolCreatorsMade(), 1);
    EXPECT_EQ(host.count(u"setDatabasePath"_s), 2);
}

} // namespace
