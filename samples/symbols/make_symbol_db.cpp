// Builds a symbol database from SVG files: make_symbol_db DATABASE FILE...
//
// A symbol is known by the name of its file. The database is made anew and appears only when it
// is complete, so that a failed run leaves none behind that looks whole.

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QSvgRenderer>
#include <QTextStream>

#include <optional>

namespace {

bool complain(const QString& message)
{
    QTextStream(stderr) << QStringLiteral("make_symbol_db: ") << message << Qt::endl;
    return false;
}

std::optional<QByteArray> readSvg(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        complain(path + QStringLiteral(": ") + file.errorString());
        return std::nullopt;
    }
    QByteArray svg = file.readAll();
    if (!QSvgRenderer(svg).isValid()) {
        complain(path + QStringLiteral(": not a drawing in SVG"));
        return std::nullopt;
    }
    return svg;
}

bool addSymbol(QSqlQuery& insertion, const QString& path)
{
    const std::optional<QByteArray> svg = readSvg(path);
    if (!svg) {
        return false;
    }
    insertion.bindValue(0, QFileInfo(path).fileName());
    insertion.bindValue(1, *svg);
    return insertion.exec() || complain(path + QStringLiteral(": ") + insertion.lastError().text());
}

bool fill(QSqlDatabase& database, const QStringList& paths)
{
    QSqlQuery query(database);
    if (!database.transaction() ||
        !query.exec(QStringLiteral(
            "CREATE TABLE symbols (name TEXT PRIMARY KEY NOT NULL, svg BLOB NOT NULL)")) ||
        !query.prepare(QStringLiteral("INSERT INTO symbols (name, svg) VALUES (?, ?)"))) {
        return complain(query.lastError().text());
    }
    for (const QString& path : paths) {
        if (!addSymbol(query, path)) {
            return false;
        }
    }
    return database.commit() || complain(database.lastError().text());
}

bool make(const QString& file, const QStringList& paths)
{
    QSqlDatabase database = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    database.setDatabaseName(file);
    if (!database.open()) {
        return complain(file + QStringLiteral(": ") + database.lastError().text());
    }
    const bool filled = fill(database, paths);
    database.close();
    return filled;
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    QStringList paths = QCoreApplication::arguments().mid(1);
    if (paths.size() < 2) {
        complain(QStringLiteral("usage: make_symbol_db DATABASE FILE..."));
        return 2;
    }
    const QString target = paths.takeFirst();
    const QString unfinished = target + QStringLiteral(".unfinished");
    QFile::remove(unfinished);
    if (!make(unfinished, paths)) {
        QFile::remove(unfinished);
        return 1;
    }
    QFile::remove(target);
    if (!QFile::rename(unfinished, target)) {
        complain(target + QStringLiteral(": cannot be written"));
        return 1;
    }
    return 0;
}
