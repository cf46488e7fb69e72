#pragma once

#include <QLatin1String>
#include <QString>

namespace tavrel {

/// What a data-source key stands for.
enum class DatasourceKind {
    None,     ///< there is no such source here; the text stays as it is
    Sequence, ///< the label's counter
    System,   ///< the clock
    Database, ///< a field of a database, which is not carried over
};

struct DatasourceRule
{
    QString key;
    DatasourceKind kind = DatasourceKind::None;
    QLatin1String dateFormat; ///< of the clock, empty for none
    QLatin1String timeFormat;
};

/// Says that the key stands in the item's text, between two percent signs.
[[nodiscard]] bool isEmbeddedKey(const QString& key);
/// The rule of a key, exact to the letter; null for a key that means nothing.
[[nodiscard]] const DatasourceRule* ruleOfKey(const QString& key);
/// The rule of the key that stands in a text. Of several, the first of the list of keys
/// counts, wherever it stands; null where there is none.
[[nodiscard]] const DatasourceRule* ruleOfKeyIn(const QString& text);

} // namespace tavrel
