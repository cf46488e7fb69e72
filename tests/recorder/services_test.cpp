// The recording host's answers of the services that the importer's library uses from the
// program.

#include "host/services/basic_conversions.h"
#include "host/services/common_lists.h"
#include "host/services/file_controller_tools.h"
#include "host/services/symbol_creator.h"
#include "host/services/symbol_database_model.h"
#include "host/services/tal_message_box.h"
#include "host/services/white_space.h"
#include "host/tal_datasource.h"
#include "recorder_fixture.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>

#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

using Services = RecorderTest;

// --- lists ---

TEST_F(Services, FamiliesAreAFixedList)
{
    for (const char* family : {"Arial", "Courier New", "Times New Roman", "Liberation Sans",
                               "Liberation Serif", "Liberation Mono", "DejaVu Sans"}) {
        EXPECT_TRUE(CommonLists::isValidFamily(QString::fromLatin1(family))) << family;
    }
    for (const char* family : {"", "arial", "Arial Black", "DejaVu Serif", "Helvetica"}) {
        EXPECT_FALSE(CommonLists::isValidFamily(QString::fromLatin1(family))) << family;
    }
    EXPECT_EQ(newLines().first(),
              uR"({"on":"lists","call":"isValidFamily","args":["Arial"],"returns":true})"_s);
}

TEST_F(Services, SymbologiesOfLargeNumbersAreUnknown)
{
    EXPECT_FALSE(CommonLists::isValidBarcode1D(65535));
    EXPECT_FALSE(CommonLists::isValidBarcode2D(65535));
}

TEST_F(Services, SymbologiesAreFixedLists)
{
    const QSet<int> linear{1,  2,  3,  4,  6,  7,  8,  9,  13, 14, 16, 18, 20, 21, 22,
                           23, 24, 25, 28, 29, 30, 31, 32, 33, 34, 37, 40, 47, 49, 50,
                           51, 52, 53, 60, 63, 66, 67, 68, 69, 70, 72, 75, 76, 77};
    const QSet<int> twoDimensional{55, 56, 57, 58, 71, 74, 84, 92, 97, 104, 115, 116, 142};
    for (int code = 0; code <= 1000; ++code) {
        const auto number = static_cast<unsigned short>(code);
        ASSERT_EQ(CommonLists::isValidBarcode1D(number), linear.contains(code)) << code;
        ASSERT_EQ(CommonLists::isValidBarcode2D(number), twoDimensional.contains(code)) << code;
        if (code == 20) {
            const QStringList lines = newLines();
            EXPECT_EQ(lines.at(lines.size() - 2),
                      uR"({"on":"lists","call":"isValidBarcode1D","args":[20],"returns":true})"_s);
            EXPECT_EQ(lines.last(),
                      uR"({"on":"lists","call":"isValidBarcode2D","args":[20],"returns":false})"_s);
        }
    }
}

// --- symbols ---

const QByteArray Drawing = "<svg xmlns='http://www.w3.org/2000/svg' width='40' height='30'/>";

TEST_F(Services, SymbolCreatorGivesTheDrawingBack)
{
    SymbolCreator creator(nullptr);
    creator.loadImportedSvg(Drawing);
    EXPECT_TRUE(creator.convertSvgToSymbol(QRectF()));
    EXPECT_EQ(creator.getSymbolData(), Drawing);

    const QStringList lines = newLines();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_TRUE(lines.at(0).startsWith(
        uR"({"on":"symbolcreator","call":"loadImportedSvg","args":[{"bytes":64,"sha1":")"_s));
    EXPECT_EQ(lines.at(1), uR"({"on":"symbolcreator","call":"convertSvgToSymbol",)"
                           R"("args":[[0,0,0,0]],"returns":true})"_s);
    EXPECT_TRUE(lines.at(2).startsWith(
        uR"({"on":"symbolcreator","call":"getSymbolData","args":[],"returns":{"bytes":64,)"_s));
}

TEST_F(Services, SymbolCreatorReportsInvalidDrawings)
{
    SymbolCreator creator(nullptr);
    EXPECT_FALSE(creator.convertSvgToSymbol(QRectF()));
    EXPECT_EQ(creator.getSymbolData(), QByteArray());

    creator.loadImportedSvg(Drawing);
    creator.loadImportedSvg("<svg");
    EXPECT_FALSE(creator.convertSvgToSymbol(QRectF(1, 2, 3, 4)));
    // Not the previous drawing: an importer that does not check must not show the wrong one.
    EXPECT_EQ(creator.getSymbolData(), QByteArray("<svg"));
}

class SymbolDatabases : public RecorderTest
{
protected:
    [[nodiscard]] QString database(const QString& name, const QStringList& statements)
    {
        const QString path = m_folder.filePath(name);
        {
            QSqlDatabase made = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"maker"_s);
            made.setDatabaseName(path);
            EXPECT_TRUE(made.open());
            for (const QString& statement : statements) {
                QSqlQuery query(made);
                EXPECT_TRUE(query.exec(statement));
            }
        }
        QSqlDatabase::removeDatabase(u"maker"_s);
        return path;
    }

    QTemporaryDir m_folder;
};

const QString MakeTable = u"CREATE TABLE symbols(name TEXT PRIMARY KEY, svg BLOB)"_s;

TEST_F(SymbolDatabases, AreReadByName)
{
    const QString path = database(u"symbols.db"_s, {MakeTable, u"INSERT INTO symbols VALUES"
                                                               "('arrow', x'3C7376672F3E')"_s});
    SymbolDatabaseModel model(nullptr);
    model.setDatabasePath(path);
    EXPECT_EQ(newLine(), uR"({"on":"symboldb:1","call":"setDatabasePath",)"
                         R"("args":["symbols.db"]})"_s);
    EXPECT_EQ(model.getDataFromSymbolName(u"arrow"_s), QByteArray("<svg/>"));
    EXPECT_TRUE(newLine().startsWith(
        uR"({"on":"symboldb:1","call":"getDataFromSymbolName","args":["arrow"],)"
        R"("returns":{"bytes":6,"sha1":")"_s));
    EXPECT_EQ(model.getDataFromSymbolName(u"Arrow"_s), QByteArray());
    EXPECT_EQ(model.getDataFromSymbolName(u"' OR '1'='1"_s), QByteArray());
}

TEST_F(SymbolDatabases, AreNumberedAsTheyAreMade)
{
    SymbolDatabaseModel first(nullptr);
    SymbolDatabaseModel second(nullptr);
    second.setDatabasePath(u"/nowhere/legacy_symbols.db"_s);
    EXPECT_EQ(newLine(), uR"({"on":"symboldb:2","call":"setDatabasePath",)"
                         R"("args":["legacy_symbols.db"]})"_s);
}

TEST_F(SymbolDatabases, ThatAreMissingOrDamagedAreEmpty)
{
    const QString missing = m_folder.filePath(u"missing.db"_s);
    const QString damaged = m_folder.filePath(u"damaged.db"_s);
    QFile file(damaged);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("SQLite format 3\0", 16) + QByteArray(5000, 'x'));
    file.close();
    const QString other = database(u"other.db"_s, {u"CREATE TABLE things(name TEXT, svg BLOB)"_s});
    for (const QString& path : {missing, damaged, other, m_folder.path(), QString()}) {
        SymbolDatabaseModel model(nullptr);
        model.setDatabasePath(path);
        EXPECT_EQ(model.getDataFromSymbolName(u"arrow"_s), QByteArray()) << qPrintable(path);
    }
    EXPECT_FALSE(QFile::exists(missing)) << "looking for a database has made one";
}

TEST_F(SymbolDatabases, ChangeWithThePath)
{
    const QString one =
        database(u"one.db"_s, {MakeTable, u"INSERT INTO symbols VALUES('a', x'31')"_s});
    const QString two =
        database(u"two.db"_s, {MakeTable, u"INSERT INTO symbols VALUES('a', x'32')"_s});
    SymbolDatabaseModel model(nullptr);
    model.setDatabasePath(one);
    EXPECT_EQ(model.getDataFromSymbolName(u"a"_s), QByteArray("1"));
    model.setDatabasePath(two);
    EXPECT_EQ(model.getDataFromSymbolName(u"a"_s), QByteArray("2"));
}

// --- message box ---

TEST_F(Services, MessageBoxesAreWrittenDownAndNeverShown)
{
    TalMessageBox box(u"Import Error"_s, u"one\ntwo\n"_s, QMessageBox::Ok, QMessageBox::Ok,
                      QString(), {});
    EXPECT_EQ(newLine(), uR"({"on":"messagebox","call":"create",)"
                         R"("args":["Import Error","one\ntwo\n"]})"_s);
    EXPECT_FALSE(box.isVisible());
}

TEST_F(Services, MessageBoxesAreClosedOnceAfterTheImport)
{
    TalMessageBox box(QString(), QString(), QMessageBox::Ok, QMessageBox::Ok, QString(), {});
    int closed = 0;
    QObject::connect(&box, &TalMessageBox::popupHideSignal, &box, [&closed] { ++closed; });
    EXPECT_EQ(closed, 0);
    m_host->hideMessageBoxes();
    m_host->hideMessageBoxes();
    EXPECT_EQ(closed, 1);
}

TEST_F(Services, MessageBoxesMayBeDeletedBeforeTheyAreClosedOrWhileTheyAre)
{
    std::make_unique<TalMessageBox>(QString(), QString(), QMessageBox::Ok, QMessageBox::Ok,
                                    QString(), QMap<QMessageBox::StandardButton, QString>{})
        .reset();
    auto* box =
        new TalMessageBox(QString(), QString(), QMessageBox::Ok, QMessageBox::Ok, QString(), {});
    bool closed = false;
    QObject::connect(box, &TalMessageBox::popupHideSignal, qApp, [box, &closed] {
        closed = true;
        delete box;
    });
    m_host->hideMessageBoxes();
    EXPECT_TRUE(closed);
}

// --- data sources ---

TEST_F(Services, DataSourcesAreNumberedFromOne)
{
    DatasourceController* sources = m_host->datasourceController();
    EXPECT_EQ(sources->createDatasource(u"SequenceDatasource"_s), 1);
    EXPECT_EQ(newLine(), uR"({"on":"datasources","call":"createDatasource",)"
                         R"("args":["SequenceDatasource"],"returns":1})"_s);
    EXPECT_EQ(sources->createDatasource(QString()), 2);
    (void)newLines();
    TalDatasource* source = sources->getDatasource(2);
    ASSERT_NE(source, nullptr);
    EXPECT_EQ(newLine(), uR"({"on":"datasources","call":"getDatasource",)"
                         R"("args":[2],"returns":2})"_s);
    EXPECT_NE(source, sources->getDatasource(1));
}

TEST_F(Services, UnknownDataSourcesAreNull)
{
    for (const int id : {0, -1, 1, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(m_host->datasourceController()->getDatasource(id), nullptr) << id;
    }
    EXPECT_TRUE(newLines().first().endsWith(uR"("args":[0],"returns":null})"_s));
}

TEST_F(Services, DataSourcesHaveOneField)
{
    DatasourceController* sources = m_host->datasourceController();
    TalDatasource* source = sources->getDatasource(sources->createDatasource(QString()));
    (void)newLines();
    EXPECT_EQ(source->fields(), QStringList{u"Value"_s});
    EXPECT_EQ(newLine(), uR"({"on":"datasource:1","call":"fields","args":[],)"
                         R"("returns":["Value"]})"_s);
    source->setSelectedFields({u"Value"_s});
    EXPECT_EQ(newLine(), uR"({"on":"datasource:1","call":"setSelectedFields",)"
                         R"("args":[["Value"]]})"_s);
    source->setDatasourceProperty(u"Start"_s, 5);
    EXPECT_EQ(newLine(), uR"({"on":"datasource:1","call":"setDatasourceProperty",)"
                         R"("args":["Start",5]})"_s);
    source->setDatasourceProperty(u"TextList"_s, QStringList{u"a"_s});
    EXPECT_TRUE(newLine().endsWith(uR"("args":["TextList",["a"]]})"_s));
}

// --- small helpers ---

TEST_F(Services, WhiteSpaceIsAnyRunOfIt)
{
    const QStringList parts = u"a \t b\nc\u00a0d"_s.split(WhiteSpace::getWhiteSpacesSplitRegex());
    EXPECT_EQ(WhiteSpace::getWhiteSpacesSplitRegex().pattern(), u"\\s+"_s);
    EXPECT_EQ(parts.mid(0, 2), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(Services, AlmostEqualIsWithinTheTolerance)
{
    EXPECT_TRUE(BasicConversions::almostEqual(1, 1, 0));
    EXPECT_TRUE(BasicConversions::almostEqual(1, 1.5, 0.5));
    EXPECT_TRUE(BasicConversions::almostEqual(1.5, 1, 0.5));
    EXPECT_FALSE(BasicConversions::almostEqual(1, 1.5000001, 0.5));
    EXPECT_FALSE(BasicConversions::almostEqual(1, -1, 0.5));
    const double nan = std::nan("");
    const double infinite = std::numeric_limits<double>::infinity();
    EXPECT_FALSE(BasicConversions::almostEqual(nan, nan, 1));
    EXPECT_FALSE(BasicConversions::almostEqual(0, nan, infinite));
    EXPECT_TRUE(BasicConversions::almostEqual(infinite, infinite, 0.5));
    EXPECT_FALSE(BasicConversions::almostEqual(infinite, 0, 0.5));
}

struct AngleRow
{
    double degrees;
    double normal;
};

const AngleRow Angles[] = {
    {0, 0},    {90, 90},    {359.5, 359.5}, {360, 0},    {720, 0},   {450, 90},       {-90, 270},
    {-360, 0}, {-450, 270}, {-0.0, 0},      {-1e-20, 0}, {3.6e9, 0}, {1e308 * 10, 0},
};

TEST_F(Services, AnglesAreNormalisedToOneTurn)
{
    for (const AngleRow& row : Angles) {
        const double normal = BasicConversions::normalizeAngle(row.degrees);
        EXPECT_EQ(normal, row.normal) << row.degrees;
        EXPECT_FALSE(std::signbit(normal)) << row.degrees;
    }
    EXPECT_EQ(BasicConversions::normalizeAngle(std::nan("")), 0);
    for (const double degrees : {1e308, -1e308, 1e17, -7.25e9}) {
        const double normal = BasicConversions::normalizeAngle(degrees);
        EXPECT_TRUE(normal >= 0 && normal < 360) << degrees;
    }
}

TEST_F(Services, TheImportFolderExists)
{
    EXPECT_TRUE(QDir(FileControllerTools::getDefaultImportFolder()).exists());
}

TEST_F(Services, AnswerWithoutAHostToo)
{
    m_host.reset();
    EXPECT_TRUE(CommonLists::isValidFamily(u"Arial"_s));
    SymbolCreator creator(nullptr);
    creator.loadImportedSvg(Drawing);
    EXPECT_TRUE(creator.convertSvgToSymbol(QRectF()));
    SymbolDatabaseModel model(nullptr);
    model.setDatabasePath(u"/nowhere.db"_s);
    EXPECT_EQ(model.getDataFromSymbolName(QString()), QByteArray());
    const TalMessageBox box(QString(), QString(), QMessageBox::Ok, QMessageBox::Ok, QString(), {});
    EXPECT_EQ(newLines(), QStringList());
}

} // namespace
