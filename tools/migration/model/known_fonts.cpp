#include "migration/model/known_fonts.h"

#include "workbench/items/font_families.h"

#include <QFont>
#include <QFontDatabase>
#include <QFontInfo>
#include <QHash>

namespace migration {

namespace {

// Asking the system for a family takes longer than importing a label. The answers of one
// run are kept; hostile files may name ever new ones.
constexpr qsizetype MaximumKept = 1'000;

bool isInstalled(const QString& family)
{
    static QHash<QString, bool> known;
    const auto found = known.constFind(family);
    if (found != known.constEnd()) {
        return *found;
    }
    if (known.size() >= MaximumKept) {
        known.clear();
    }
    return *known.insert(family, QFontDatabase::hasFamily(family));
}

} // namespace

bool isFontThere(const QString& family)
{
    if (isInstalled(family)) {
        return true;
    }
    const QString substitute = workbench::substituteFamily(family);
    return !substitute.isEmpty() && isInstalled(substitute);
}

QString familySeen(const QString& family)
{
    for (const QString& candidate : workbench::familiesFor(family)) {
        if (isInstalled(candidate)) {
            return candidate;
        }
    }
    return workbench::fallbackFamily();
}

QString familySeenInFormats(const QString& family)
{
    return isFontThere(family) ? familySeen(family) : QFontInfo(QFont(family)).family();
}

} // namespace migration
