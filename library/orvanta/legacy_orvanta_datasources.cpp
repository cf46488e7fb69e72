#include "orvanta/legacy_orvanta.h"

#include "host/datasource_controller.h"
#include "host/facets/i_datasource_item.h"
#include "host/tal_datasource.h"
#include "messages/refusals.h"

void LegacyOrvanta::bindDatasource(IDatasourceItem* item, const QString& kind,
                                   const QList<DatasourceProperty>& properties)
{
    if (item == nullptr) {
        return;
    }
    const int id = m_datasourceController->createDatasource(kind);
    TalDatasource* datasource = m_datasourceController->getDatasource(id);
    if (datasource == nullptr) {
        logRefusal(
            refusals::DatasourceRefused,
            QStringLiteral("a data source of the kind %1, which the host did not make").arg(kind));
        return;
    }
    for (const DatasourceProperty& property : properties) {
        datasource->setDatasourceProperty(property.name, property.value);
    }
    item->setDatasourceId(id);
    item->setDatasourceFields(datasource->fields());
    datasource->setSelectedFields(datasource->fields());
}

void LegacyOrvanta::bindTextList(IDatasourceItem* item, const QStringList& texts)
{
    if (!texts.isEmpty()) {
        bindDatasource(item, QStringLiteral("TextListDatasource"),
                       {{QStringLiteral("TextList"), texts}});
    }
}
