#include "host/services/symbol_database_model.h"

#include "workbench/symbols/symbol_data.h"
#include "workbench/symbols/symbol_database.h"

#include <Logger.h>

#include <optional>

using workbench::symbols::SymbolDatabase;

class SymbolDatabaseModel::Private
{
public:
    std::unique_ptr<SymbolDatabase> database;
    QString path;
    /// The file that was last complained about: readers set the same path again and again.
    QString reportedPath;

    void reportFailure();
};

void SymbolDatabaseModel::Private::reportFailure()
{
    if (path == reportedPath || database->error().isEmpty()) {
        return;
    }
    reportedPath = path;
    CuteMessageLogger(loggerInstance(), Logger::Error, "symbol_database_model", __LINE__,
                      Q_FUNC_INFO)
        .write("The symbol database %s cannot be used: %s.", path.toLocal8Bit().constData(),
               database->error().toLocal8Bit().constData());
}

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{}

SymbolDatabaseModel::~SymbolDatabaseModel() = default;

void SymbolDatabaseModel::setDatabasePath(const QString& path)
{
    if (path == d->path && d->database && d->database->isOpen()) {
        return;
    }
    d->path = path;
    d->database = std::make_unique<SymbolDatabase>(path);
    d->reportFailure();
}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString name)
{
    if (!d->database) {
        return {};
    }
    const QByteArray svg = d->database->svg(name);
    d->reportFailure();
    // The content of a database is as untrusted as any other drawing.
    return workbench::symbols::makeSymbolData(svg).value_or(QByteArray());
}
