#pragma once

#include "limits/zip/zip_directory.h"
#include "opendocument/element_geometry.h"
#include "opendocument/graphic_style.h"
#include "opendocument/picture_store.h"
#include "opendocument/rich_text.h"
#include "opendocument/text_flow.h"
#include "opendocument/text_style.h"

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
/// One reader serves one canvas for any number of files. Page size, unit and styles of one
/// file are kept for the next one, which may omit its own: old labels depend on it.
/// The styles are cleared only when those of all files together exceed the size of any
/// real ones.
class OpenOfficeReader
{
public:
    using OOTextStyle = opendocument::OOTextStyle;
    using OOGraphicStyle = opendocument::OOGraphicStyle;

    /// @param canvasModel          receives the page and the items; must outlive the reader
    /// @param datasourceController stored only; these formats bind no data
    OpenOfficeReader(TalCanvasModel* canvasModel, DatasourceController* datasourceController);
    ~OpenOfficeReader();
    OpenOfficeReader(const OpenOfficeReader&) = delete;
    OpenOfficeReader& operator=(const OpenOfficeReader&) = delete;

    /// Reads the package at this path onto the canvas.
    /// @return false if the package or its XML cannot be read. The canvas is then
    ///         unchanged, and the log gives the cause.
    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

    /// Closes the package of the last import, which otherwise stays open until the next.
    void closePackage();

private:
    // The package.
    void openPackage(const QString& fileName);
    [[nodiscard]] QByteArray readDocument(const QString& name, qint64 largest);
    [[nodiscard]] QByteArray readMember(const QString& name, qint64 largest);

    // Page and styles.
    void dropTooManyStyles();
    void importPageLayout(const xmllimits::Element& stylesRoot);
    void readDefaultStyles(const xmllimits::Element& officeStyles);
    void readStyles(const xmllimits::Element& container);
    void readTextStyle(const xmllimits::Element& element);
    void readGraphicStyle(const xmllimits::Element& element);
    [[nodiscard]] opendocument::LengthUnit unit() const { return {m_unitSuffix, m_unitFactor}; }

    // The body.
    void readBody(const xmllimits::Element& body);
    void readTextBody(const xmllimits::Element& text);
    void readDrawingBody(const xmllimits::Element& drawing);
    void readDrawingElement(const xmllimits::Element& element);

    // Text.
    void readParagraph(const xmllimits::Element& paragraph);
    void readParagraphFrames(const xmllimits::Element& paragraph,
                             opendocument::ParagraphFlow& flow);
    void readParagraphNode(const xmllimits::Element& element, const QString& text,
                           const OOTextStyle& style, opendocument::ParagraphFlow& flow);
    void readRun(const QString& text, const OOTextStyle& style, opendocument::ParagraphFlow& flow);
    [[nodiscard]] QSizeF placeTextRun(const QString& text, const OOTextStyle& style,
                                      double availableWidth, double cursor, double z);
    void buildRichText(const xmllimits::Element& shape, const opendocument::Geometry& geometry);
    [[nodiscard]] opendocument::TextStyling styling() const;

    // Shapes.
    void readLine(const xmllimits::Element& element);
    void readRectangle(const xmllimits::Element& element, bool rounded);
    void readEllipse(const xmllimits::Element& element, bool pie);
    void readPolygon(const xmllimits::Element& element, KestTypes::ShapeType type);
    void readCustomShape(const xmllimits::Element& element);
    void placeShape(const xmllimits::Element& element, opendocument::NewShape shape);
    [[nodiscard]] opendocument::NewShape makeRectangle(const xmllimits::Element& element,
                                                       bool rounded);
    [[nodiscard]] OOGraphicStyle graphicStyleOf(const xmllimits::Element& element) const;

    // Frames.
    opendocument::FramePlacement readFrame(const xmllimits::Element& element);
    [[nodiscard]] bool readTextBox(const xmllimits::Element& frame, OOGraphicStyle style,
                                   opendocument::Geometry& geometry);
    [[nodiscard]] bool readImage(const xmllimits::Element& frame, opendocument::Geometry& geometry);
    [[nodiscard]] bool importSymbol(const QString& name, opendocument::Geometry& geometry);
    [[nodiscard]] bool importPicture(const QString& name, opendocument::Geometry& geometry);
    void placeImage(std::unique_ptr<Item> owned, QGraphicsItem& graphics,
                    opendocument::Geometry& geometry);
    [[nodiscard]] QPointF textBoxPosition(const xmllimits::Element& frame,
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
    double m_flowOffsetY = 0;    // points; start of the next paragraph of a text
    QString m_unitSuffix = QLatin1String("in");
    double m_unitFactor = 72.0; // points per unit
    double m_pointsPerPixel = 1.0;
    OOTextStyle m_defaultTextStyle;
    OOGraphicStyle m_defaultGraphicStyle;
    QMap<QString, OOTextStyle> m_textStyles;
    QMap<QString, OOGraphicStyle> m_graphicStyles;

    ziplimits::ZipDirectory m_zipDirectory;
    std::unique_ptr<opendocument::PictureStore> m_pictures;
    std::unique_ptr<SymbolCreator> m_symbolCreator; // created for the first symbol
};
