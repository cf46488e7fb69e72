#pragma once

#include "host/services/visibility.h"

#include <QByteArray>
#include <QObject>
#include <QString>

#include <memory>

/// A database of symbols, read by name.
class LABELPORT_HOST_SERVICE SymbolDatabaseModel : public QObject
{
public:
    explicit SymbolDatabaseModel(QObject* parent); ///< The parent, if any, owns it.
    ~SymbolDatabaseModel() override;

    /// Opens the database at this path in place of the last one. A file that is missing
    /// or no symbol database leaves the model empty.
    void setDatabasePath(const QString& path);
    /// The data of a symbol, in the form that SymbolItem::loadItemFromData() takes; empty
    /// when the database does not know the name.
    [[nodiscard]] QByteArray getDataFromSymbolName(QString name);

private:
    class Private;
    std::unique_ptr<Private> d;
};
