#pragma once

#include <QString>

class TalDatasource;

/// Owns the data sources of a label.
class DatasourceController
{
public:
    virtual ~DatasourceController() = default;

    /// Creates a data source of a kind that TalDatasource names and returns its identifier.
    [[nodiscard]] virtual int createDatasource(const QString& kind) = 0;
    /// The source with this identifier, owned by the controller; null for an unknown one.
    [[nodiscard]] virtual TalDatasource* getDatasource(int id) = 0;
};
