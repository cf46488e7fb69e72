// The items of a saved label.

#include "limits/json/tree_size.h"
#include "migration/census/counting.h"
#include "migration/model/item_class.h"
#include "workbench/items/shape_kinds.h"

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
        const auto type = workbench::typeOfSavedName(item[u"type"_s].toString());
        CountedObject object;
        if (type) {
            object.objectClass = classOfItem(*type);
        } else {
            object.lost = LossKind::UnknownObject;
        }
        census.objects.append(object);
    }
    return census;
}

} // namespace migration
