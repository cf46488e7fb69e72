#include "tavrel/datasource_binder.h"

#include "host/datasource_controller.h"
#include "host/facets/i_datasource_item.h"
#include "host/tal_datasource.h"
#include "messages/refusals.h"
#include "tavrel/datasource_keys.h"

#include <Logger.h>

#include <QVariant>

#include <initializer_list>
#include <utility>

namespace tavrel {
namespace {

using Property = std::pair<QString, QVariant>;

void setProperties(TalDatasource* datasource, std::initializer_list<Property> properties)
{
    if (datasource == nullptr) {
        // The item stays bound to the number that the host gave. Logs of this room go by the
        // reader's name, which hosts know.
        CuteMessageLogger(loggerInstance(), Logger::Error, "legacy_tavrel.cpp", __LINE__,
                          Q_FUNC_INFO, refusals::category(refusals::DatasourceRefused))
            .write("The host does not have the data source that it has just made");
        return;
    }
    for (const Property& property : properties) {
        datasource->setDatasourceProperty(property.first, property.second);
    }
}

} // namespace

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
    const int id = m_controller->createDatasource(QStringLiteral("SequenceDatasource"));
    item.setDatasourceId(id);
    setProperties(m_controller->getDatasource(id),
                  {{QStringLiteral("Prefix"), m_sequence.sequencePrefix},
                   {QStringLiteral("Suffix"), m_sequence.sequenceSuffix},
                   {QStringLiteral("Start"), m_sequence.sequenceStart},
                   {QStringLiteral("End"), m_sequence.sequenceEnd},
                   {QStringLiteral("Step"), m_sequence.sequenceStep},
                   {QStringLiteral("ZeroPad"), m_sequence.sequenceZeroPad}});
}

void DatasourceBinder::createSystemDatasource(IDatasourceItem& item, const QString& dateFormat,
                                              const QString& timeFormat) const
{
    const int id = m_controller->createDatasource(QStringLiteral("SystemDatasource"));
    item.setDatasourceId(id);
    setProperties(m_controller->getDatasource(id), {{QStringLiteral("DateFormat"), dateFormat},
                                                    {QStringLiteral("TimeFormat"), timeFormat}});
}

} // namespace tavrel
