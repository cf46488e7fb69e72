#include "tavrel/datasource_binder.h"

#include "host/datasource_controller.h"
#include "host/facets/i_datasource_item.h"
#include "host/tal_datasource.h"
#include "messages/refusals.h"

#include <Logger.h>

#include <QObject>
#include <QVariant>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tavrel {
namespace {

const QString EmbeddedKey = u"_SPECIAL"_s;

// Created when the library is loaded, so the translated keys are in the language of that moment.
// The order is that in which a text is searched. Old labels depend on it: a text with two keys is
// bound to the one that comes first here.
const std::array<DatasourceRule, 8> Rules{{
    {u"_SEQUENCE"_s, DatasourceKind::Sequence, {}, {}},
    {u"_ROW"_s, DatasourceKind::None, {}, {}},
    {u"_DATE"_s, DatasourceKind::System, "ddd MMM d yyyy"_L1, {}},
    {u"_DATES"_s, DatasourceKind::System, "d/MM/yyyy"_L1, {}},
    {u"_DATEX"_s, DatasourceKind::System, "MMMM-d-yy"_L1, {}},
    {u"_TIME"_s, DatasourceKind::System, {}, "hh:mm:ss"_L1},
    {QObject::tr("Record", "Datasource key"), DatasourceKind::Database, {}, {}},
    {QObject::tr("Value", "Datasource key"), DatasourceKind::Database, {}, {}},
}};

template <typename Matches>
const DatasourceRule* firstRule(Matches matches)
{
    const auto* found = std::find_if(Rules.begin(), Rules.end(), matches);
    return found != Rules.end() ? found : nullptr;
}

using Property = std::pair<QString, QVariant>;

void setProperties(TalDatasource* datasource, std::initializer_list<Property> properties)
{
    if (datasource == nullptr) {
        // The item stays bound to the identifier that the host returned.
        CuteMessageLogger(loggerInstance(), Logger::Error, "datasource_binder", __LINE__,
                          Q_FUNC_INFO, refusals::category(refusals::DatasourceRefused))
            .write("The host does not have the data source that it has just made");
        return;
    }
    for (const Property& property : properties) {
        datasource->setDatasourceProperty(property.first, property.second);
    }
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
    return firstRule(
        [&text](const DatasourceRule& rule) { return text.contains(u'%' + rule.key + u'%'); });
}

DatasourceBinder::DatasourceBinder(DatasourceController* controller,
                                   const SequenceSettings& sequence)
    : m_controller(controller)
    , m_sequence(sequence)
{}

bool DatasourceBinder::bindDatasource(IDatasourceItem& item, const QString& key,
                                      const QString& text) const
{
    if (key.isEmpty()) {
        return true;
    }
    if (!isEmbeddedKey(key)) {
        return bindDatasourceKey(item, key);
    }
    const DatasourceRule* const rule = ruleOfKeyIn(text);
    return rule == nullptr || bindDatasourceKey(item, rule->key);
}

bool DatasourceBinder::bindDatasourceKey(IDatasourceItem& item, const QString& key) const
{
    const DatasourceRule* const rule = ruleOfKey(key);
    const DatasourceKind kind = rule != nullptr ? rule->kind : DatasourceKind::None;
    switch (kind) {
    case DatasourceKind::Sequence:
        createSequenceDatasource(item);
        return true;
    case DatasourceKind::System:
        createSystemDatasource(item, rule->dateFormat, rule->timeFormat);
        return true;
    case DatasourceKind::Database:
        return false;
    case DatasourceKind::None:
        return true;
    }
    return true;
}

void DatasourceBinder::createSequenceDatasource(IDatasourceItem& item) const
{
    const int id = m_controller->createDatasource(u"SequenceDatasource"_s);
    item.setDatasourceId(id);
    setProperties(m_controller->getDatasource(id), {{u"Prefix"_s, m_sequence.sequencePrefix},
                                                    {u"Suffix"_s, m_sequence.sequenceSuffix},
                                                    {u"Start"_s, m_sequence.sequenceStart},
                                                    {u"End"_s, m_sequence.sequenceEnd},
                                                    {u"Step"_s, m_sequence.sequenceStep},
                                                    {u"ZeroPad"_s, m_sequence.sequenceZeroPad}});
}

void DatasourceBinder::createSystemDatasource(IDatasourceItem& item, const QString& dateFormat,
                                              const QString& timeFormat) const
{
    const int id = m_controller->createDatasource(u"SystemDatasource"_s);
    item.setDatasourceId(id);
    setProperties(m_controller->getDatasource(id),
                  {{u"DateFormat"_s, dateFormat}, {u"TimeFormat"_s, timeFormat}});
}

} // namespace tavrel
