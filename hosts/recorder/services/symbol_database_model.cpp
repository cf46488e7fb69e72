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
};

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    if (const auto recording = recorder::Recording::current()) {
        d->target = u"symboldb:%1"_s.arg(recording->addSymbolDatabase());
    }
}

SymbolDatabaseModel::~SymbolDatabaseModel() = default;

void SymbolDatabaseModel::setDatabasePath(const QString& path)
{
    if (const auto recording = recorder::Recording::current()) {
        recording->call(d->target, "setDatabasePath", QFileInfo(path).fileName());
    }
    d->path = path;
}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString name)
{
    const QByteArray data = recorder::symbolFromFile(d->path, name);
    if (const auto recording = recorder::Recording::current()) {
        recording->answer(data, d->target, "getDataFromSymbolName", name);
    }
    return data;
}
