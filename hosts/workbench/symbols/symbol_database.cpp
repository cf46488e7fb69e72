#include "workbench/symbols/symbol_database.h"

#include "limits/svg/svg_limits.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QUuid>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace workbench::symbols {

namespace {

struct SymbolDatabaseTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::SymbolDatabase)
};

/// A view or a computed column could run forever; only tables have root pages.
constexpr QLatin1String TableQuery("SELECT count(*) FROM sqlite_master"
                                   " WHERE type = 'table' AND name = 'symbols' AND rootpage > 0");
constexpr QLatin1String ColumnsQuery("SELECT count(*) FROM pragma_table_xinfo('symbols')"
                                     " WHERE name IN ('name', 'svg') AND hidden = 0");
constexpr QLatin1String SymbolQuery("SELECT svg FROM symbols WHERE name = ? AND length(svg) <= ?");

[[nodiscard]] std::optional<int> count(QSqlQuery& query, QLatin1String text)
{
    if (!query.exec(text) || !query.next()) {
        return std::nullopt;
    }
    return query.value(0).toInt();
}

} // namespace

SymbolDatabase::SymbolDatabase(const QString& path)
    : m_connection(u"symbols-"_s + QUuid::createUuid().toString(QUuid::WithoutBraces))
{
    if (QFileInfo(path).isFile()) {
        open(path);
    } else {
        fail(SymbolDatabaseTr::tr("the file does not exist"));
    }
}

SymbolDatabase::~SymbolDatabase()
{
    close();
}

void SymbolDatabase::open(const QString& path)
{
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, m_connection);
        database.setDatabaseName(path);
        database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
        m_open = database.open();
        if (m_open) {
            QSqlQuery settings(database);
            settings.exec(u"PRAGMA trusted_schema = OFF"_s);
            settings.exec(u"PRAGMA cell_size_check = ON"_s);
        } else {
            fail(database.lastError().databaseText());
        }
    }
    if (m_open && !hasSymbolTable()) {
        m_open = false;
    }
    if (!m_open) {
        close();
    }
}

void SymbolDatabase::close()
{
    m_open = false;
    if (QSqlDatabase::contains(m_connection)) {
        QSqlDatabase::removeDatabase(m_connection);
    }
}

bool SymbolDatabase::hasSymbolTable()
{
    QSqlQuery query(QSqlDatabase::database(m_connection));
    const std::optional<int> tables = count(query, TableQuery);
    if (!tables) {
        fail(query.lastError().databaseText());
        return false;
    }
    if (*tables != 1 || count(query, ColumnsQuery) != 2) {
        fail(SymbolDatabaseTr::tr("it has no table of symbols"));
        return false;
    }
    return true;
}

QByteArray SymbolDatabase::svg(const QString& name)
{
    if (!m_open) {
        return {};
    }
    m_error.clear();
    QSqlQuery query(QSqlDatabase::database(m_connection));
    query.setForwardOnly(true);
    query.prepare(SymbolQuery);
    query.addBindValue(name);
    query.addBindValue(static_cast<qint64>(svglimits::DocumentBytes));
    if (!query.exec()) {
        fail(query.lastError().databaseText());
        return {};
    }
    if (query.next()) {
        return query.value(0).toByteArray();
    }
    if (query.lastError().isValid()) {
        fail(query.lastError().databaseText());
    }
    return {};
}

void SymbolDatabase::fail(const QString& error)
{
    m_error = error.isEmpty() ? SymbolDatabaseTr::tr("it cannot be read") : error;
}

} // namespace workbench::symbols
