#include "workbench/items/font_families.h"

#include "host/facets/i_font_item.h"

#include <QFont>
#include <QFontDatabase>
#include <QLatin1String>

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

struct StandIn
{
    QLatin1String family;
    QLatin1String standIn;
};

constexpr std::array StandIns{
    StandIn{QLatin1String("Arial"), QLatin1String("Liberation Sans")},
    StandIn{QLatin1String("Helvetica"), QLatin1String("Liberation Sans")},
    StandIn{QLatin1String("Times New Roman"), QLatin1String("Liberation Serif")},
    StandIn{QLatin1String("Times"), QLatin1String("Liberation Serif")},
    StandIn{QLatin1String("Courier New"), QLatin1String("Liberation Mono")},
    StandIn{QLatin1String("Courier"), QLatin1String("Liberation Mono")},
};

} // namespace

QString fallbackFamily()
{
    static const QString family = [] {
        const QString preferred = u"Liberation Sans"_s;
        return QFontDatabase::hasFamily(preferred)
                   ? preferred
                   : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
    }();
    return family;
}

QString standInFamily(const QString& family)
{
    for (const StandIn& row : StandIns) {
        if (row.family == family) {
            return row.standIn;
        }
    }
    return {};
}

QStringList familiesFor(const QString& family)
{
    QStringList families{family, standInFamily(family), fallbackFamily()};
    families.removeAll(QString());
    return families;
}

void installStandIns()
{
    static const bool installed = [] {
        for (const StandIn& row : StandIns) {
            QFont::insertSubstitution(row.family, row.standIn);
        }
        QFont::insertSubstitution(FallbackFontFamily, fallbackFamily());
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace workbench
