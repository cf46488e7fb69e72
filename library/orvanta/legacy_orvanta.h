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

/// Reads labels of the XML format (*.qmtx) into the host's canvas.
///
/// One reader serves any number of imports in turn. Nothing of a file stays in it. It shows
/// nothing to the user; what goes wrong is logged at the debug level.
class LegacyOrvanta
{
public:
    /// Neither the canvas nor the controller becomes the reader's; both must outlive it.
    LegacyOrvanta(TalCanvasModel* canvasModel, DatasourceController* datasourceController);
    ~LegacyOrvanta();
    LegacyOrvanta(const LegacyOrvanta&) = delete;
    LegacyOrvanta& operator=(const LegacyOrvanta&) = delete;

    /// Reads a file into the canvas.
    ///
    /// @return true when the file is a label of the format, even one without objects. After
    ///         false nothing has been asked of the canvas.
    [[nodiscard]] bool importLabelFromFile(const QString& fileName);

    /// Builds the objects under a `controls` element, in document order. A kind that is not
    /// known is logged and left out.
    void readControls(QDomElement controls);

private:
    /// A property of a data source and its value.
    struct DatasourceProperty
    {
        QString name;
        QVariant value;
    };

    void readLabel(const QDomElement& root);
    void readPrePrintedImage(const QDomElement& image, const orvanta::LabelPage& page);

    void readBarcode(const QDomElement& element);
    void readList(const QDomElement& element);
    void readDateTime(const QDomElement& element);
    void readNumeric(const QDomElement& element);
    void readPicture(const QDomElement& element);
    void readText(const QDomElement& element);
    void readShape(const QDomElement& element);

    // Each makes an item, hands it to the canvas and sets it up; null when there is none.
    // What comes back belongs to the canvas.
    TextItem* buildText(bool scalable, const orvanta::ControlProperties& properties);
    FillableItem* buildShape(int shapeIndex, quint16 lineWidth, int sides,
                             const orvanta::ControlProperties& properties);
    BarcodeItem* buildBarcode(int hostType, const orvanta::ControlProperties& properties);
    QGraphicsItem* buildImage(const orvanta::ControlProperties& properties,
                              const QByteArray& bytes);
    QGraphicsItem* buildSymbol(const orvanta::ControlProperties& properties, const QByteArray& svg);
    QGraphicsItem* buildPixmap(const orvanta::ControlProperties& properties,
                               const QByteArray& bytes);

    // Do nothing without an item: one that was left out has nothing to bind.
    void bindDatasource(IDatasourceItem* item, const QString& kind,
                        const QList<DatasourceProperty>& properties);
    void bindTextList(IDatasourceItem* item, const QStringList& texts);

    void logRefusal(const char* code, const QString& reason) const;

    TalCanvasModel* m_canvasModel;
    ClassFactory* m_classFactory;
    DatasourceController* m_datasourceController;
    std::unique_ptr<SymbolCreator> m_symbolCreator; ///< made for the first SVG picture
    qint64 m_pixelsLeft; ///< pixels that the pictures of the present file may still have
};
