#include "tavrel/datasource_keys.h"

#include <QObject>

#include <algorithm>
#include <array>

namespace tavrel {
namespace {

using Kind = DatasourceKind;

const QString EmbeddedKey = QStringLiteral("_SPECIAL");

// Made when the library is loaded, so in the language of that moment, and in the order in
// which a text is searched. Old labels depend on the order: a text with two keys is bound
// to the first of this list.
const std::array<DatasourceRule, 8> Rules{{
    {QStringLiteral("_SEQUENCE"), Kind::Sequence, {}, {}},
    {QStringLiteral("_ROW"), Kind::None, {}, {}},
    {QStringLiteral("_DATE"), Kind::System, QLatin1String("ddd MMM d yyyy"), {}},
    {QStringLiteral("_DATES"), Kind::System, QLatin1String("d/MM/yyyy"), {}},
    {QStringLiteral("_DATEX"), Kind::System, QLatin1String("MMMM-d-yy"), {}},
    {QStringLiteral("_TIME"), Kind::System, {}, QLatin1String("hh:mm:ss")},
    {QObject::tr("Record", "Datasource key"), Kind::Database, {}, {}},
    {QObject::tr("Value", "Datasource key"), Kind::Database, {}, {}},
}};

template <typename Matches>
const DatasourceRule* firstRule(Matches matches)
{
    const auto* found = std::find_if(Rules.begin(), Rules.end(), matches);
    return found != Rules.end() ? found : nullptr;
}

} // namespace

bool isEmbeddedKey(const QString& key)
{
    return key == EmbeddedKey;
}

const DatasourceRule* ruleOfKey(const QString& key)
{
    return firstRule([&key](const DatasourceRule& rule) { return rule.key == key; });
}

const DatasourceRule* ruleOfKeyIn(const QString& text)
{
    const QLatin1Char percent('%');
    return firstRule(
        [&](const DatasourceRule& rule) { return text.contains(percent + rule.key + percent); });
}

} // namespace tavrel
