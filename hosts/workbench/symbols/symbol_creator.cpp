#include "host/services/symbol_creator.h"

#include "workbench/symbols/symbol_data.h"

class SymbolCreator::Private
{
public:
    QByteArray svg;
    QByteArray symbol;
};

// The conversion shows no dialog and therefore needs no parent.
SymbolCreator::SymbolCreator(QWidget*)
    : d(std::make_unique<Private>())
{}

SymbolCreator::~SymbolCreator() = default;

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    d->svg = svg;
    // After a failed conversion the creator must not return the previous symbol.
    d->symbol.clear();
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& target)
{
    const std::optional<QByteArray> symbol =
        workbench::symbols::makeSymbolData(d->svg, target.size());
    if (symbol) {
        d->symbol = *symbol;
    }
    return symbol.has_value();
}

QByteArray SymbolCreator::getSymbolData()
{
    return d->symbol;
}
