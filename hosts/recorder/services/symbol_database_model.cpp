#include "host/services/symbol_database_model.h"

#include "recorder/recording.h"
#include "recorder/symbol_file.h"

#include <QFileInfo>

class SymbolDatabaseModel::Private
{
public:
    template <typename... Returned>
    void record(const char* call, const QString& argument, const Returned&... returned) const
    {
        if (const auto recording = recorder::Recording::current()) {
            recording->trace().call(target, call, {argument}, returned...);
        }
    }

    QString target;
    QString path;
};

SymbolDatabaseModel::SymbolDatabaseModel(QObject* parent)
    : QObject(parent)
    , d(std::make_unique<Private>())
{
    if (const auto recording = recorder::Recording::current()) {
        d->target = QStringLiteral("symboldb:%1").arg(recording->addSymbolDatabase());
    }
}

SymbolDatabaseModel::~SymbolDatabaseModel() = default;

void SymbolDatabaseModel::setDatabasePath(const QString& path)
{
    d->record("setDatabasePath", QFileInfo(path).fileName());
    d->path = path;
}

QByteArray SymbolDatabaseModel::getDataFromSymbolName(QString name)
{
    const QByteArray data = recorder::symbolFromFile(d->path, name);
    d->record("getDataFromSymbolName", name, data);
    return data;
}
