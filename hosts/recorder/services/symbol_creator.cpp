#include "host/services/symbol_creator.h"

#include "recorder/recording.h"
#include "recorder/svg_document.h"

namespace {

const QString Target = QStringLiteral("symbolcreator");

} // namespace

class SymbolCreator::Private
{
public:
    QByteArray loaded;
};

SymbolCreator::SymbolCreator(QWidget* /*parent*/)
    : d(std::make_unique<Private>())
{}

SymbolCreator::~SymbolCreator() = default;

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    if (const auto recording = recorder::Recording::current()) {
        recording->trace().call(Target, "loadImportedSvg", {svg});
    }
    d->loaded = svg;
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& target)
{
    const bool converted = recorder::SvgDocument(d->loaded).isValid();
    if (const auto recording = recorder::Recording::current()) {
        recording->trace().call(Target, "convertSvgToSymbol", {target}, converted);
    }
    return converted;
}

QByteArray SymbolCreator::getSymbolData()
{
    // What was loaded, convertible or not, so that a trace shows what an importer does with
    // a drawing that is none.
    if (const auto recording = recorder::Recording::current()) {
        recording->trace().call(Target, "getSymbolData", {}, d->loaded);
    }
    return d->loaded;
}
