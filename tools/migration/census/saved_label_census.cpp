// The items of a saved label.

#include "limits/json/tree_size.h"
#include "migration/census/counting.h"
#include "migration/model/item_class.h"

#include <QCoreApplication>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace migration {

Census countSavedLabel(const QByteArray& file)
{
    using namespace Qt::StringLiterals;
    Census census;
    if (jsonlimits::isLargerThan(file, MaximumSavedTree)) {
        census.unknown = tooLargeToCount();
        return census;
    }
    const QJsonValue items = QJsonDocument::fromJson(file).object()[u"label"_s][u"items"_s];
    if (!items.isArray()) {
        census.unknown =
            QCoreApplication::translate("migration::Census", "The file has no list of items.");
        return census;
    }
    for (const QJsonValue& item : items.toArray()) {
        const auto type = static_cast<KestTypes::ShapeType>(item[u"type"_s].toInt());
        census.objects.append({.objectClass = classOfItem(type)});
    }
    return census;
}

} // namespace migration
