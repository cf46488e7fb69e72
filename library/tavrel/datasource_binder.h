#pragma once

#include "tavrel/page_records.h"

#include <QLatin1String>
#include <QString>

class DatasourceController;
class IDatasourceItem;

/// Data sources of items.
namespace tavrel {

/// What a data-source key refers to.
enum class DatasourceKind {
    None,     ///< nothing that can be imported; the text stays as it is
    Sequence, ///< the label's counter
    System,   ///< the clock
    Database, ///< a field of a database, which is not imported
};

/// A data-source key with its kind, and the formats if it refers to the clock.
struct DatasourceRule
{
    QString key;
    DatasourceKind kind = DatasourceKind::None;
    QLatin1String dateFormat; ///< of the clock, empty for none
    QLatin1String timeFormat; ///< of the clock, empty for none
};

/// Whether the real key is in the item's text, between two percent signs.
[[nodiscard]] bool isEmbeddedKey(const QString& key);
/// The rule of a key, case-sensitive; null for an unknown key.
[[nodiscard]] const DatasourceRule* ruleOfKey(const QString& key);
/// The rule of the key in a text. With several keys, the first in the list of rules counts,
/// wherever it is in the text; null without a key.
[[nodiscard]] const DatasourceRule* ruleOfKeyIn(const QString& text);

/// Binds items to data sources of the host, a new one for each item.
///
/// A result of false means that the key is a database field, which is not imported: the item is
/// unchanged, and the import continues.
class DatasourceBinder
{
public:
    /// Both must outlive the binder.
    DatasourceBinder(DatasourceController* controller, const SequenceSettings& sequence);

    /// @param key  the stored key; an empty one binds nothing
    /// @param text the text to search if the key is embedded
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
