#pragma once

#include <QByteArray>
#include <QDomElement>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

class BarcodeItem;
class ClassFactory;
class DatasourceController;
class FillableItem;
class IDatasourceItem;
class QGraphicsItem;
class SymbolCreator;
class TalCanvasModel;
class TextItem;

namespace orvanta {
struct ControlProperties;
struct LabelPage;
} // namespace orvanta

namespace xmllimits {
class Element;
} // namespace xmllimits

/// Reads labels of the XML format (*.qmtx) into the host's canvas.
///
/// A reader can import any number of files, one after the other, and keeps nothing of a file. It
/// shows nothing to the user; problems are logged at debug level.
class LegacyOrvanta
{
public:
    /// Both belong to the host and must outlive the reader.
    LegacyOrvanta(TalCanvasModel* canvasModel, DatasourceController* datasourceController);
    ~LegacyOrvanta();
    LegacyOrvanta(const LegacyOrvanta&) = delete;
    LegacyOrvanta& operator=(const LegacyOrvanta&) = delete;

    /// Reads a file into the canvas.
    ///
    /// @return true if the file is a label of the format, even without objects. If false, the
    ///         canvas is unchanged.
    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

    /// Builds the objects in a `controls` element, in document order. An unknown kind is logged
    /// and skipped.
    void readControls(QDomElement controls);

private:
    /// A property of a data source and its value.
    struct DatasourceProperty
    {
        QString name;
        QVariant value;
    };

    void readLabel(const xmllimits::Element& root);
    void buildControls(const xmllimits::Element& controls);
    void readPrePrintedImage(const xmllimits::Element& image, const orvanta::LabelPage& page);

    void readBarcode(const xmllimits::Element& element);
    void readList(const xmllimits::Element& element);
    void readDateTime(const xmllimits::Element& element);
    void readNumeric(const xmllimits::Element& element);
    void readPicture(const xmllimits::Element& element);
    void readText(const xmllimits::Element& element);
    void readShape(const xmllimits::Element& element);

    // Each creates an item, gives it to the canvas, which then owns it, and sets it up. Null if
    // there is no item.
    TextItem* buildText(bool scalable, const orvanta::ControlProperties& properties);
    FillableItem* buildShape(int shapeIndex, quint16 lineWidth, int sides,
                             const orvanta::ControlProperties& properties);
    BarcodeItem* buildBarcode(int hostType, const orvanta::ControlProperties& properties);
    QGraphicsItem* buildImage(const orvanta::ControlProperties& properties,
                              const QByteArray& bytes);
    QGraphicsItem* buildSymbol(const orvanta::ControlProperties& properties, const QByteArray& svg);
    QGraphicsItem* buildPixmap(const orvanta::ControlProperties& properties,
                               const QByteArray& bytes);

    // Without an item, that is, if it was left out, these do nothing.
    void bindDatasource(IDatasourceItem* item, const QString& kind,
                        const QList<DatasourceProperty>& properties);
    void bindTextList(IDatasourceItem* item, const QStringList& texts);

    void logRefusal(const char* code, const QString& reason) const;

    TalCanvasModel* m_canvasModel;
    ClassFactory* m_classFactory;
    DatasourceController* m_datasourceController;
    std::unique_ptr<SymbolCreator> m_symbolCreator; ///< created for the first SVG picture
    qint64 m_pixelsLeft; ///< that the pictures of the current file may still have
};
