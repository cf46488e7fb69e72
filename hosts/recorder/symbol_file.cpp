#include "recorder/symbol_file.h"

#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QVariant>

using namespace Qt::StringLiterals;

namespace recorder {

namespace {

const QString ConnectionName = u"labelport-recorder-symbols"_s;

QByteArray queryIn(const QString& path, const QString& name)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, ConnectionName);
    database.setDatabaseName(path);
    database.setConnectOptions(u"QSQLITE_OPEN_READONLY"_s);
    if (!database.open()) {
        return {};
    }
    QSqlQuery query(database);
    query.prepare(u"SELECT svg FROM symbols WHERE name = ?"_s);
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
