#pragma once

#include "tavrel/item_building.h"

#include <QByteArray>
#include <QString>

#include <memory>

class SymbolCreator;
class SymbolDatabaseModel;

/// Symbol items.
namespace tavrel {

/// A symbol item as the file stores it.
struct SymbolRecord
{
    ItemHeader header;
    QString name;    ///< a file name or path
    QByteArray data; ///< an SVG document; empty if the label only names its symbol
};

/// Reads a record after its type code. Values beyond the end of the stream are zero or empty.
[[nodiscard]] SymbolRecord readSymbolRecord(QDataStream& stream, const FileContext& file,
                                            qint64 itemNumber);

/// Provides the drawings of symbols: from two databases next to the program, or converted from an
/// SVG document in the label. Each of the host's services is created on first use and kept.
class SymbolSource
{
public:
    SymbolSource();
    ~SymbolSource();
    SymbolSource(const SymbolSource&) = delete;
    SymbolSource& operator=(const SymbolSource&) = delete;

    /// Data of the symbol that has the file name of this path; empty if neither database
    /// contains it.
    [[nodiscard]] QByteArray getSymbolData(const QString& name);
    /// Replaces an SVG document by the host's symbol data.
    void convertSvgSymbol(QByteArray& data);

private:
    std::unique_ptr<SymbolCreator> m_symbolCreator;
    std::unique_ptr<SymbolDatabaseModel> m_symbols;
    std::unique_ptr<SymbolDatabaseModel> m_legacySymbols;
};

/// @param data the symbol in the host's format
BuildResult buildSymbol(const HostCanvas& host, const ItemHeader& header,
                        const Resolution& resolution, const QByteArray& data);

} // namespace tavrel
