#pragma once

#include <QStringList>

/// The binding of an item's content to a data source.
class IDatasourceItem
{
public:
    virtual ~IDatasourceItem() = default;

    /// Binds the item to a source that DatasourceController::createDatasource() made.
    virtual void setDatasourceId(int id) = 0;
    /// The fields of the source that the item shows, by name.
    virtual void setDatasourceFields(const QStringList& fields) = 0;
};
