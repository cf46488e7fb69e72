// Minimal versions of the services that a host supplies.

#include "fake_host.h"

#include "host/services/basic_conversions.h"
#include "host/services/common_lists.h"
#include "host/services/symbol_creator.h"

#include <cmath>

QStringList& serviceCalls()
{
    static QStringList calls;
    return calls;
}

bool BasicConversions::almostEqual(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

double BasicConversions::normalizeAngle(double degrees)
{
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0 ? rest + 360.0 : rest;
}

bool CommonLists::isValidFamily(QString family)
{
    return family == QStringLiteral("Arial") || family == QStringLiteral("Liberation Sans");
}

class SymbolCreator::Private
{
public:
    QByteArray loaded;
};

SymbolCreator::SymbolCreator(QWidget*)
    : d(std::make_unique<Private>())
{
    serviceCalls().append(QStringLiteral("new SymbolCreator"));
}

SymbolCreator::~SymbolCreator() = default;

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    serviceCalls().append(QStringLiteral("loadImportedSvg"));
    d->loaded = svg;
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& target)
{
    serviceCalls().append(QStringLiteral("convertSvgToSymbol %1 %2 %3 %4")
                              .arg(target.x())
                              .arg(target.y())
                              .arg(target.width())
                              .arg(target.height()));
    return d->loaded.startsWith("<svg");
}

QByteArray SymbolCreator::getSymbolData()
{
    return "symbol of " + d->loaded;
}
