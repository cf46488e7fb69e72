#pragma once

#include "host/services/visibility.h"

#include <QByteArray>
#include <QRectF>

#include <memory>

class QWidget;

/// Converts an SVG document to the host's symbol data.
///
/// Importers create one and use it for many symbols. SVG documents come from untrusted files: never
/// open what they refer to.
class LABELPORT_HOST_SERVICE SymbolCreator
{
public:
    explicit SymbolCreator(QWidget* parent); ///< The parent may be null.
    ~SymbolCreator();
    SymbolCreator(const SymbolCreator&) = delete;
    SymbolCreator& operator=(const SymbolCreator&) = delete;

    /// Loads a document and discards the last one.
    void loadImportedSvg(const QByteArray& svg);
    /// Converts the loaded document. The rectangle, in points, is the target; without width or
    /// height, the document keeps its own size.
    /// @return false if the document is not SVG or cannot be converted
    [[nodiscard]] bool convertSvgToSymbol(const QRectF& target);
    /// The result of the last successful conversion, empty without one, in the format of
    /// SymbolItem::loadItemFromData().
    [[nodiscard]] QByteArray getSymbolData();

private:
    class Private;
    std::unique_ptr<Private> d;
};
