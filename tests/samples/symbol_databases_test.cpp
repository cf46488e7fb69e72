#include <QDir>
#include <QFile>
#include <QMap>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSvgRenderer>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

using Drawings = QMap<QString, QByteArray>;

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

Drawings drawingsIn(const QString& folder)
{
    const QDir dir(QStringLiteral(DRAWINGS) + u'/' + folder);
    Drawings drawings;
    for (const QString& name : dir.entryList({u"*.svg"_s}, QDir::Files)) {
        drawings.insert(name, contentOf(dir.filePath(name)));
    }
    return drawings;
}

Drawings symbolsIn(const QString& path)
{
    const QString connection = u"reading"_s;
    Drawings symbols;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, connection);
        database.setDatabaseName(path);
        database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
        EXPECT_TRUE(database.open()) << path.toStdString();
        QSqlQuery query(u"SELECT name, svg FROM symbols"_s, database);
        while (query.next()) {
            symbols.insert(query.value(0).toString(), query.value(1).toByteArray());
        }
    }
    QSqlDatabase::removeDatabase(connection);
    return symbols;
}

struct DatabaseCase
{
    const char* file;
    const char* folder;
    int atLeast;
};

constexpr DatabaseCase databases[] = {{"symbols.db", "symbols", 12},
                                      {"legacy_symbols.db", "legacy", 3}};

TEST(SymbolDatabases, HoldTheDrawingsByFileName)
{
    for (const DatabaseCase& row : databases) {
        const Drawings drawings = drawingsIn(QLatin1String(row.folder));
        EXPECT_GE(drawings.size(), row.atLeast);
        for (const char* place : {PROGRAMS, TESTS}) {
            const QString path = QDir(QString::fromUtf8(place)).filePath(QLatin1String(row.file));
            SCOPED_TRACE(path.toStdString());
            EXPECT_TRUE(symbolsIn(path) == drawings);
        }
    }
}

TEST(SymbolDatabases, HaveNoSymbolInCommon)
{
    const Drawings second = drawingsIn(u"legacy"_s);
    for (const QString& name : drawingsIn(u"symbols"_s).keys()) {
        EXPECT_FALSE(second.contains(name)) << name.toStdString();
    }
}

TEST(SymbolDatabases, HoldDrawingsOfOneInch)
{
    for (const DatabaseCase& row : databases) {
        const Drawings drawings = drawingsIn(QLatin1String(row.folder));
        for (auto drawing = drawings.cbegin(); drawing != drawings.cend(); ++drawing) {
            const QSvgRenderer renderer(drawing.value());
            EXPECT_TRUE(renderer.isValid()) << drawing.key().toStdString();
            EXPECT_EQ(renderer.defaultSize(), QSize(96, 96)) << drawing.key().toStdString();
        }
    }
}

class MakeSymbolDb : public testing::Test
{
protected:
    int run(const QStringList& arguments)
    {
        QProcess process;
        process.start(QStringLiteral(MAKE_SYMBOL_DB), arguments);
        EXPECT_TRUE(process.waitForFinished());
        m_errors = process.readAllStandardError();
        return process.exitCode();
    }

    QString file(const char* name, const QByteArray& content)
    {
        QFile file(m_folder.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    QTemporaryDir m_folder;
    QByteArray m_errors;
};

const QByteArray someSvg = "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"9\" height=\"9\"/>";

TEST_F(MakeSymbolDb, ReplacesAnOlderDatabase)
{
    const QString database = file("all.db", "not a database at all");
    ASSERT_EQ(run({database, file("a.svg", someSvg), file("b.svg", someSvg)}), 0)
        << m_errors.toStdString();
    EXPECT_EQ(symbolsIn(database).keys(), QStringList({u"a.svg"_s, u"b.svg"_s}));
}

TEST_F(MakeSymbolDb, LeavesNothingHalfDone)
{
    const QString database = m_folder.filePath(u"all.db"_s);
    const QString broken = file("broken.svg", "<svg");
    EXPECT_EQ(run({database, file("a.svg", someSvg), broken}), 1);
    EXPECT_TRUE(m_errors.contains("broken.svg: not a drawing in SVG")) << m_errors.toStdString();
    EXPECT_EQ(QDir(m_folder.path()).entryList({u"all*"_s}), QStringList());
}

TEST_F(MakeSymbolDb, SaysWhatIsWrong)
{
    const QString database = m_folder.filePath(u"all.db"_s);
    EXPECT_EQ(run({}), 2);
    EXPECT_TRUE(m_errors.contains("usage:"));
    EXPECT_EQ(run({database, m_folder.filePath(u"missing.svg"_s)}), 1);
    EXPECT_TRUE(m_errors.contains("missing.svg: No such file")) << m_errors.toStdString();
    const QString svg = file("a.svg", someSvg);
    EXPECT_EQ(run({database, svg, svg}), 1);
    EXPECT_TRUE(m_errors.contains("a.svg: ")) << m_errors.toStdString();
    EXPECT_EQ(run({m_folder.filePath(u"nowhere/all.db"_s), svg}), 1);
    EXPECT_TRUE(m_errors.contains("nowhere/all.db")) << m_errors.toStdString();
}

} // namespace
