#include "workbench/datasources/text_list_source.h"

using namespace Qt::StringLiterals;

namespace workbench::datasources {

namespace {

const QString TextListName = u"TextList"_s;

} // namespace

void TextListSource::setDatasourceProperty(const QString& name, const QVariant& value)
{
    if (name == TextListName) {
        m_texts = value.toStringList();
    }
}

QList<QString> TextListSource::fields() const
{
    return {u"Text"_s};
}

QVariantMap TextListSource::properties() const
{
    return {{TextListName, m_texts}};
}

QString TextListSource::fieldValue(qint64 record, const QString&) const
{
    return m_texts.at(record);
}

} // namespace workbench::datasources
