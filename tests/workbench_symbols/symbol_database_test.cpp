#include "workbench/symbols/symbol_database.h"

#include "host/services/symbol_database_model.h"
#include "limits/svg/svg_limits.h"
#include "tests/support/captured_log.h"
#include "workbench/symbols/symbol_data.h"

#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QVariant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using workbench::symbols::naturalSize;
using workbench::symbols::SymbolDatabase;

namespace {

const QByteArray Arrow = R"(<svg xmlns="http://www.w3.org/2000/svg" width="72pt" height="36pt">)"
                         R"(<path d="M0 0L96 48"/></svg>)";
const QString TableText =
    u"CREATE TABLE symbols(name TEXT PRIMARY KEY NOT NULL, svg BLOB NOT NULL)"_s;

void execute(const QString& path, const QStringList& statements, const QByteArray& blob = Arrow)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"writer"_s);
        database.setDatabaseName(path);
        ASSERT_TRUE(database.open());
        for (const QString& statement : statements) {
            QSqlQuery query(database);
            ASSERT_TRUE(query.prepare(statement)) << statement.toStdString();
            if (statement.contains(u'?')) {
                query.addBindValue(blob);
            }
            ASSERT_TRUE(query.exec()) << statement.toStdString();
        }
    }
    QSqlDatabase::removeDatabase(u"writer"_s);
}

class SymbolDatabaseTest : public testing::Test
{
protected:
    QString path(const char* name = "symbols.db") const
    {
        return folder.filePath(QString::fromUtf8(name));
    }
    QString goodDatabase()
    {
        execute(path(), {TableText, u"INSERT INTO symbols VALUES('arrow.svg', ?)"_s,
                         u"INSERT INTO symbols VALUES('o''clock', ?)"_s,
                         u"INSERT INTO symbols VALUES('rubbish', 'no svg')"_s});
        return path();
    }
    QString fileOf(const QByteArray& bytes)
    {
        QFile file(path("broken.db"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    QTemporaryDir folder;
    CapturedLog log;
};

} // namespace

TEST_F(SymbolDatabaseTest, GivesSymbolsByName)
{
    SymbolDatabaseModel model(nullptr);
    EXPECT_TRUE(model.getDataFromSymbolName(u"arrow.svg"_s).isEmpty());
    model.setDatabasePath(goodDatabase());
    EXPECT_EQ(naturalSize(model.getDataFromSymbolName(u"arrow.svg"_s)), QSizeF(72, 36));
    EXPECT_FALSE(model.getDataFromSymbolName(u"o'clock"_s).isEmpty());
    for (const char* unknown : {"", "ARROW.SVG", "rubbish", "' OR 1=1 --"}) {
        EXPECT_TRUE(model.getDataFromSymbolName(QString::fromUtf8(unknown)).isEmpty()) << unknown;
    }
    EXPECT_TRUE(log.records().isEmpty());
}

TEST_F(SymbolDatabaseTest, MakesStoredDrawingsSafe)
{
    execute(
        path(), {TableText, u"INSERT INTO symbols VALUES('bad', ?)"_s},
        R"(<svg xmlns="http://www.w3.org/2000/svg" width="9" height="9"><image href="secret"/></svg>)");
    SymbolDatabaseModel model(nullptr);
    model.setDatabasePath(path());
    const QByteArray data = model.getDataFromSymbolName(u"bad"_s);
    EXPECT_FALSE(data.isEmpty());
    EXPECT_FALSE(data.contains("secret"));
}

TEST_F(SymbolDatabaseTest, IsEmptyAndLogsOneLineForAnInvalidDatabase)
{
    const QByteArray half = [this] {
        QFile file(goodDatabase());
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.read(1000);
    }();
    const QString rows[] = {path("missing.db"), folder.path(), fileOf("no database at all")};
    for (const QString& row : rows) {
        SCOPED_TRACE(row.toStdString());
        log.clear();
        SymbolDatabaseModel model(nullptr);
        model.setDatabasePath(row);
        model.setDatabasePath(row);
        EXPECT_TRUE(model.getDataFromSymbolName(u"arrow.svg"_s).isEmpty());
        ASSERT_EQ(log.records().size(), 1);
        const CapturedLog::Record& record = log.records().first();
        EXPECT_EQ(record.level, Logger::Error);
        EXPECT_EQ(record.source, u"symbol_database_model"_s);
        EXPECT_TRUE(record.message.startsWith(u"The symbol database "_s));
        EXPECT_TRUE(record.message.contains(row));
    }
    SymbolDatabase empty(fileOf(""));
    EXPECT_FALSE(empty.isOpen());
    EXPECT_EQ(empty.error(), u"it has no table of symbols"_s);
    SymbolDatabase truncated(fileOf(half));
    EXPECT_TRUE(truncated.svg(u"arrow.svg"_s).isEmpty());
    EXPECT_FALSE(truncated.error().isEmpty());
}

TEST_F(SymbolDatabaseTest, RefusesTablesThatAreComputed)
{
    const QStringList rows[] = {
        {u"CREATE VIEW symbols AS WITH RECURSIVE n(name) AS (SELECT 1 UNION ALL"
         " SELECT name + 1 FROM n) SELECT name, x'00' AS svg FROM n"_s},
        {u"CREATE TABLE symbols(name TEXT, svg BLOB AS (zeroblob(1000000000)))"_s},
        {u"CREATE TABLE symbols(name TEXT PRIMARY KEY)"_s},
        {u"CREATE TABLE other(name TEXT, svg BLOB)"_s},
    };
    for (const QStringList& row : rows) {
        SCOPED_TRACE(row.join(u';').toStdString());
        QFile::remove(path());
        execute(path(), row);
        SymbolDatabase database(path());
        EXPECT_FALSE(database.isOpen());
        EXPECT_EQ(database.error(), u"it has no table of symbols"_s);
    }
}

TEST_F(SymbolDatabaseTest, LeavesADrawingThatIsTooLongAlone)
{
    execute(path(), {TableText, u"INSERT INTO symbols VALUES('long', ?)"_s},
            QByteArray(svglimits::DocumentBytes + 1, ' '));
    SymbolDatabase database(path());
    EXPECT_TRUE(database.isOpen());
    EXPECT_TRUE(database.svg(u"long"_s).isEmpty());
}

TEST_F(SymbolDatabaseTest, SurvivesDamageAnywhereInTheFile)
{
    QFile whole(goodDatabase());
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    const QByteArray bytes = whole.readAll();
    for (qsizetype at = 0; at < bytes.size(); at += 61) {
        QByteArray damaged = bytes;
        damaged[at] = static_cast<char>(~damaged[at]);
        SymbolDatabase database(fileOf(damaged));
        const QByteArray svg = database.svg(u"arrow.svg"_s);
        EXPECT_LE(svg.size(), bytes.size()) << at;
    }
}

TEST_F(SymbolDatabaseTest, NeitherWritesNorKeepsConnections)
{
    const QString file = goodDatabase();
    {
        SymbolDatabaseModel one(nullptr);
        SymbolDatabaseModel two(nullptr);
        one.setDatabasePath(file);
        two.setDatabasePath(file);
        EXPECT_FALSE(one.getDataFromSymbolName(u"arrow.svg"_s).isEmpty());
        one.setDatabasePath(path("missing.db"));
        EXPECT_TRUE(one.getDataFromSymbolName(u"arrow.svg"_s).isEmpty());
    }
    EXPECT_TRUE(QSqlDatabase::connectionNames().isEmpty());
    EXPECT_FALSE(QFile::exists(path("missing.db")));
}
