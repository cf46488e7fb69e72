#include "recorder/symbol_file.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

namespace recorder {

namespace {

const QString ConnectionName = QStringLiteral("labelport-recorder-symbols");

QByteArray queryIn(const QString& path, const QString& name)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), ConnectionName);
    database.setDatabaseName(path);
    database.setConnectOptions(QStringLiteral("QSQLITE_OPEN_READONLY"));
    if (!database.open()) {
        return {};
    }
    QSqlQuery query(database);
    query.prepare(QStringLiteral("SELECT svg FROM symbols WHERE name = ?"));
    query.addBindValue(name);
    return query.exec() && query.next() ? query.value(0).toByteArray() : QByteArray();
}

} // namespace

QByteArray symbolFromFile(const QString& path, const QString& name)
{
    if (!QFileInfo(path).isFile()) {
        return {};
    }
    const QByteArray svg = queryIn(path, name);
    QSqlDatabase::removeDatabase(ConnectionName);
    return svg;
}

} // namespace recorder
