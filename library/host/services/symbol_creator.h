#pragma once

#include "host/services/visibility.h"

#include <QByteArray>
#include <QRectF>

#include <memory>

class QWidget;

/// Turns an SVG document into the host's symbol data.
///
/// Importers make one and use it for many symbols in turn. An SVG document comes from a
/// file that nobody vouches for: never open what it refers to.
class LABELPORT_HOST_SERVICE SymbolCreator
{
public:
    explicit SymbolCreator(QWidget* parent); ///< The parent may be null.
    ~SymbolCreator();
    SymbolCreator(const SymbolCreator&) = delete;
    SymbolCreator& operator=(const SymbolCreator&) = delete;

    /// Loads a document in place of the last one.
    void loadImportedSvg(const QByteArray& svg);
    /// Converts the loaded document. The rectangle, in points, is the target; one without
    /// width or height keeps the document's own size.
    /// @return false when the document is no SVG or cannot be converted
    [[nodiscard]] bool convertSvgToSymbol(const QRectF& target);
    /// The symbol of the last successful conversion, empty when there was none, in the
    /// form that SymbolItem::loadItemFromData() takes.
    [[nodiscard]] QByteArray getSymbolData();

private:
    class Private;
    std::unique_ptr<Private> d;
};
