#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

class SymbolCreator;
class SymbolDatabaseModel;

namespace tavrel {

/// Where the drawings of symbols come from: two databases beside the program, or an SVG
/// document of the label's own. Each service is made at first need and kept.
class SymbolSource
{
public:
    SymbolSource();
    ~SymbolSource();
    SymbolSource(const SymbolSource&) = delete;
    SymbolSource& operator=(const SymbolSource&) = delete;

    /// The symbol of this file name, whatever folder it is given with; empty when neither
    /// database knows it.
    [[nodiscard]] QByteArray getSymbolData(const QString& name);
    /// Puts the host's symbol data in the place of an SVG document.
    void convertSvgSymbol(QByteArray& data);

private:
    std::unique_ptr<SymbolCreator> m_symbolCreator;
    std::unique_ptr<SymbolDatabaseModel> m_symbols;
    std::unique_ptr<SymbolDatabaseModel> m_legacySymbols;
};

} // namespace tavrel
