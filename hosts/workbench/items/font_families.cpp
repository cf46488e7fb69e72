#include "workbench/items/font_families.h"

#include "host/facets/i_font_item.h"

#include <QFont>
#include <QFontDatabase>
#include <QLatin1String>

#include <array>

using namespace Qt::StringLiterals;

namespace workbench {

namespace {

struct Substitute
{
    QLatin1String family;
    QLatin1String substitute;
};

constexpr std::array Substitutes{
    Substitute{QLatin1String("Arial"), QLatin1String("Liberation Sans")},
    Substitute{QLatin1String("Helvetica"), QLatin1String("Liberation Sans")},
    Substitute{QLatin1String("Times New Roman"), QLatin1String("Liberation Serif")},
    Substitute{QLatin1String("Times"), QLatin1String("Liberation Serif")},
    Substitute{QLatin1String("Courier New"), QLatin1String("Liberation Mono")},
    Substitute{QLatin1String("Courier"), QLatin1String("Liberation Mono")},
};

// Of the numbered names that documents know; a replacement must exist before a text is laid out.
constexpr int LastNumber = 9;

// Office suites number the declarations of a font: "Arial1". Empty for a name without a number of
// one or two digits.
QString withoutNumber(const QString& family)
{
    constexpr qsizetype mostDigits = 2;
    qsizetype end = family.size();
    while (end > 0 && family.at(end - 1) >= u'0' && family.at(end - 1) <= u'9') {
        --end;
    }
    const qsizetype digits = family.size() - end;
    return digits > 0 && digits <= mostDigits ? family.left(end).trimmed() : QString();
}

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

QString substituteFamily(const QString& family)
{
    for (const Substitute& row : Substitutes) {
        if (row.family == family) {
            return row.substitute;
        }
    }
    return {};
}

QStringList familiesFor(const QString& family)
{
    const QString plain = withoutNumber(family);
    QStringList families{family, substituteFamily(family), plain, substituteFamily(plain),
                         fallbackFamily()};
    families.removeAll(QString());
    return families;
}

void installSubstitutes()
{
    static const bool installed = [] {
        for (const Substitute& row : Substitutes) {
            QFont::insertSubstitution(row.family, row.substitute);
            for (int number = 1; number <= LastNumber; ++number) {
                QFont::insertSubstitution(row.family + QString::number(number), row.substitute);
                QFont::insertSubstitution(row.substitute + QString::number(number), row.substitute);
            }
        }
        QFont::insertSubstitution(FallbackFontFamily, fallbackFamily());
        return true;
    }();
    Q_UNUSED(installed)
}

} // namespace workbench
