#pragma once

#include "host/services/visibility.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

/// A database of symbols by name.
class LABELPORT_HOST_SERVICE SymbolDatabaseModel : public QObject
{
public:
    explicit SymbolDatabaseModel(QObject* parent); ///< The parent, if any, owns it.
    ~SymbolDatabaseModel() override;

    /// Opens the database at this path and closes the last one. If the file is missing or not a
    /// symbol database, the model is empty.
    void setDatabasePath(const QString& path);
    /// The data of a symbol, in the format of SymbolItem::loadItemFromData(); empty for an unknown
    /// name.
    [[nodiscard]] QByteArray getDataFromSymbolName(QString name);

private:
    class Private;
    std::unique_ptr<Private> d;
};
