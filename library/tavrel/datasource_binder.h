#pragma once

#include "tavrel/sequence_settings.h"

#include <QString>

class DatasourceController;
class IDatasourceItem;

namespace tavrel {

/// Binds items to data sources that it has the host make, one for each item.
///
/// A result of false says that the key is a database field, which is not carried over;
/// the items stay as they are and their callers go on.
class DatasourceBinder
{
public:
    /// Both must outlive the binder.
    DatasourceBinder(DatasourceController* controller, const SequenceSettings& sequence);

    /// @param key  the stored key; empty binds nothing
    /// @param text the text that is searched where the key says that it stands in there
    bool bindDatasource(IDatasourceItem& item, const QString& key, const QString& text) const;
    bool bindDatasourceKey(IDatasourceItem& item, const QString& key) const;

private:
    void createSequenceDatasource(IDatasourceItem& item) const;
    void createSystemDatasource(IDatasourceItem& item, const QString& dateFormat,
                                const QString& timeFormat) const;

    DatasourceController* m_controller;
    const SequenceSettings& m_sequence;
};

} // namespace tavrel
