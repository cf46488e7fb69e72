#include "host/services/symbol_database_model.h"

#include "recorder/recording.h"
#include "recorder/symbol_file.h"

#include <QFileInfo>

using namespace Qt::StringLiterals;

class SymbolDatabaseModel::Private
{
public:
    QString target;
    QString path;
    std::shared_ptr<recorder::Recording> countedBy = recorder::Recording::current();
};

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    if (d->countedBy) {
        d->target = u"symboldb:%1"_s.arg(d->countedBy->addSymbolDatabase());
        ++d->countedBy->symbolDatabases;
    }
}

SymbolDatabaseModel::~SymbolDatabaseModel()
{
    if (d->countedBy) {
        --d->countedBy->symbolDatabases;
    }
}

void SymbolDatabaseModel::setDatabasePath(const QString& path)
{
    if (const auto recording = recorder::Recording::current()) {
        recording->call(d->target, "setDatabasePath", QFileInfo(path).fileName());
    }
    d->path = path;
}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString name)
{
    const auto recording = recorder::Recording::current();
    const bool isGiven = recording && recording->behavior().symbols;
    const QByteArray data = isGiven ? recording->behavior().symbols->value(d->path).value(name)
                                    : recorder::symbolFromFile(d->path, name);
    if (recording) {
        recording->answer(data, d->target, "getDataFromSymbolName", name);
    }
    return data;
}
