#pragma once

#include "opendocument/geometry.h"
#include "opendocument/graphic_style.h"
#include "opendocument/picture_store.h"
#include "opendocument/rich_text.h"
#include "opendocument/text_flow.h"
#include "opendocument/text_style.h"
#include "opendocument/zip_directory.h"

#include "host/kest_types.h"
#include "limits/xml/element_tree.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <memory>

class ClassFactory;
class DatasourceController;
class Item;
class QGraphicsItem;
class QZipReader;
class SymbolCreator;
class TalCanvasModel;

namespace opendocument {
struct NewShape;
struct PageLayout;
} // namespace opendocument

/// Reads OpenDocument texts and drawings (*.odt, *.odg) onto a canvas.
///
/// One reader serves one canvas for any number of files. Page size, unit and styles that one
/// file gives stay for the next one, which may not give its own: old labels depend on it.
/// Only when the styles of all files so far have become more than any real ones are they
/// forgotten.
class OpenOfficeReader
{
public:
    using OOTextStyle = opendocument::OOTextStyle;
    using OOGraphicStyle = opendocument::OOGraphicStyle;

    /// @param canvasModel          takes the page and the items; must outlive the reader
    /// @param datasourceController kept for the host, these formats bind no data
    OpenOfficeReader(TalCanvasModel* canvasModel, DatasourceController* datasourceController);
    ~OpenOfficeReader();
    OpenOfficeReader(const OpenOfficeReader&) = delete;
    OpenOfficeReader& operator=(const OpenOfficeReader&) = delete;

    /// Reads the package at this path onto the canvas.
    /// @return false when the package or its XML cannot be read. The canvas is untouched
    ///         then, and the log tells the cause.
    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

    /// Closes the package of the last import, which otherwise stays open until the next.
    void closePackage();

private:
    // The package.
    void openPackage(const QString& fileName);
    [[nodiscard]] QByteArray readDocument(const QString& name, qint64 largest);
    [[nodiscard]] QByteArray readMember(const QString& name, qint64 largest);

    // Page and styles.
    void forgetTooManyStyles();
    void importPageLayout(const xmlbounds::Element& stylesRoot);
    void readDefaultStyles(const xmlbounds::Element& officeStyles);
    void readStyles(const xmlbounds::Element& container);
    void readTextStyle(const xmlbounds::Element& element);
    void readGraphicStyle(const xmlbounds::Element& element);
    [[nodiscard]] opendocument::LengthUnit unit() const { return {m_unitSuffix, m_unitFactor}; }

    // The body.
    void readBody(const xmlbounds::Element& body);
    void readTextBody(const xmlbounds::Element& text);
    void readDrawingBody(const xmlbounds::Element& drawing);
    void readDrawingElement(const xmlbounds::Element& element);

    // Text.
    void readParagraph(const xmlbounds::Element& paragraph);
    void readParagraphFrames(const xmlbounds::Element& paragraph,
                             opendocument::ParagraphFlow& flow);
    void readParagraphNode(const xmlbounds::Element& element, const QString& text,
                           const OOTextStyle& style, opendocument::ParagraphFlow& flow);
    void readRun(const QString& text, const OOTextStyle& style, opendocument::ParagraphFlow& flow);
    [[nodiscard]] QSizeF placeTextRun(const QString& text, const OOTextStyle& style,
                                      double availableWidth, double cursor, double z);
    void buildRichText(const xmlbounds::Element& shape, const opendocument::Geometry& geometry);
    [[nodiscard]] opendocument::TextStyling styling() const;

    // Shapes.
    void readLine(const xmlbounds::Element& element);
    void readRectangle(const xmlbounds::Element& element, bool rounded);
    void readEllipse(const xmlbounds::Element& element, bool pie);
    void readPolygon(const xmlbounds::Element& element, KestTypes::ShapeType type);
    void readCustomShape(const xmlbounds::Element& element);
    void placeShape(const xmlbounds::Element& element, opendocument::NewShape shape);
    [[nodiscard]] opendocument::NewShape makeRectangle(const xmlbounds::Element& element,
                                                       bool rounded);
    [[nodiscard]] OOGraphicStyle graphicStyleOf(const xmlbounds::Element& element) const;

    // Frames.
    opendocument::FramePlacement readFrame(const xmlbounds::Element& element);
    [[nodiscard]] bool readTextBox(const xmlbounds::Element& frame, OOGraphicStyle style,
                                   opendocument::Geometry& geometry);
    [[nodiscard]] bool readImage(const xmlbounds::Element& frame, opendocument::Geometry& geometry);
    [[nodiscard]] bool importSymbol(const QString& name, opendocument::Geometry& geometry);
    [[nodiscard]] bool importPicture(const QString& name, opendocument::Geometry& geometry);
    void placeImage(std::unique_ptr<Item> owned, QGraphicsItem& graphics,
                    opendocument::Geometry& geometry);
    [[nodiscard]] QPointF textBoxPosition(const xmlbounds::Element& frame,
                                          const OOGraphicStyle& style,
                                          const opendocument::Geometry& geometry) const;

    // Moves the text flow down.
    void advanceFlow(double height);

    std::unique_ptr<QZipReader> m_zipReader;
    TalCanvasModel* m_canvasModel = nullptr;
    ClassFactory* m_classFactory = nullptr;
    [[maybe_unused]] DatasourceController* m_controller = nullptr;
    double m_pageWidth = 612.0;  // points; US letter until a file says otherwise
    double m_pageHeight = 792.0; // points
    double m_flowOffsetY = 0;    // points; where the next paragraph of a text begins
    QString m_unitSuffix = QStringLiteral("in");
    double m_unitFactor = 72.0; // points per unit
    double m_pointsPerPixel = 1.0;
    OOTextStyle m_defaultTextStyle;
    OOGraphicStyle m_defaultGraphicStyle;
    QMap<QString, OOTextStyle> m_textStyles;
    QMap<QString, OOGraphicStyle> m_graphicStyles;

    opendocument::ZipDirectory m_zipDirectory;
    std::unique_ptr<opendocument::PictureStore> m_pictures;
    std::unique_ptr<SymbolCreator> m_symbolCreator; // made for the first symbol
};
