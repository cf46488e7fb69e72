#include "host/services/symbol_creator.h"

#include "recorder/recording.h"
#include "recorder/svg_document.h"

using namespace Qt::StringLiterals;

namespace {

using Conversion = recorder::Behavior::Conversion;

const QString Target = u"symbolcreator"_s;

} // namespace

class SymbolCreator::Private
{
public:
    QByteArray loaded;
    std::shared_ptr<recorder::Recording> countedBy = recorder::Recording::current();
};

SymbolCreator::SymbolCreator(QWidget* /*parent*/)
    : d(std::make_unique<Private>())
{
    if (d->countedBy) {
        ++d->countedBy->symbolCreatorsMade;
        ++d->countedBy->symbolCreators;
    }
}

SymbolCreator::~SymbolCreator()
{
    if (d->countedBy) {
        --d->countedBy->symbolCreators;
    }
}

void SymbolCreator::loadImportedSvg(const QByteArray& svg)
{
    if (const auto recording = recorder::Recording::current()) {
        recording->call(Target, "loadImportedSvg", svg);
    }
    d->loaded = svg;
}

bool SymbolCreator::convertSvgToSymbol(const QRectF& target)
{
    const auto recording = recorder::Recording::current();
    const Conversion conversion = recording ? recording->behavior().conversion : Conversion::OfSvg;
    const bool converted = conversion == Conversion::OfSvg
                               ? recorder::SvgDocument(d->loaded).isValid()
                               : conversion != Conversion::Fails;
    if (recording) {
        recording->answer(converted, Target, "convertSvgToSymbol", target);
    }
    if (conversion == Conversion::OfAnything) {
        d->loaded.prepend("symbol of ");
    }
    if (conversion == Conversion::Fails || conversion == Conversion::StaysEmpty) {
        d->loaded.clear();
    }
    return converted;
}

QByteArray SymbolCreator::getSymbolData()
{
    // The loaded data, convertible or not, so that a trace shows what an importer does with
    // an invalid drawing.
    if (const auto recording = recorder::Recording::current()) {
        recording->answer(d->loaded, Target, "getSymbolData");
    }
    return d->loaded;
}
