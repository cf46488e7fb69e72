#pragma once

#include <QByteArray>
#include <QColor>
#include <QImage>
#include <QList>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QXmlStreamWriter>

namespace exporting {

/// Labels on a sheet. Points.
struct GlabelsSheet
{
    QString brand;
    QString part;
    QSizeF paper;
    QSizeF label;
    double cornerRadius = 0.0;
    int columns = 1;
    int rows = 1;
    QPointF first;          ///< upper left corner of the first label
    QSizeF distances;       ///< from one label to the next
    bool isRotated = false; ///< the label's upper edge is at the right edge of its place
};

/// The outline of a box, an ellipse or a line.
struct GlabelsPen
{
    QColor color = Qt::black;
    double width = 0.0; ///< 0: no outline
};

/// A text in one format.
struct GlabelsText
{
    QStringList lines;
    QString field; ///< of the records; if set, it replaces the lines
    QString family;
    double size = 12.0;   ///< points
    double lineGap = 0.0; ///< points between the lines, in addition to the font's own height
    bool bold = false;
    bool italic = false;
    QColor color = Qt::black;
    Qt::Alignment alignment;
};

struct GlabelsBarcode
{
    QString backend;
    QString style;
    QString content;
    QString field; ///< of the records; if set, it replaces the content
    bool checksum = false;
    QColor color = Qt::black;
};

/// Writes a document of gLabels 3, one object after the other.
///
/// Each object has a rectangle in its own coordinates, and a transform to the page. Lengths are in
/// points.
class GlabelsDocument
{
public:
    explicit GlabelsDocument(const GlabelsSheet& sheet);

    void addBox(const QRectF& box, const QTransform& toPage, const GlabelsPen& pen,
                const QColor& fill);
    void addEllipse(const QRectF& box, const QTransform& toPage, const GlabelsPen& pen,
                    const QColor& fill);
    void addLine(const QPointF& from, const QPointF& to, const GlabelsPen& pen);
    /// The characters begin at the left edge of the box, without the margin of gLabels.
    void addText(const QRectF& box, const QTransform& toPage, const GlabelsText& text);
    void addBarcode(const QRectF& box, const QTransform& toPage, const GlabelsBarcode& barcode);
    /// Returns false and adds nothing if the drawing is too large.
    [[nodiscard]] bool addDrawing(const QRectF& box, const QTransform& toPage,
                                  const QByteArray& svg);
    /// Returns false if the picture had too many pixels and was scaled down.
    bool addPicture(const QRectF& box, const QTransform& toPage, const QImage& picture);

    /// The bytes of the file. Nothing can be added afterwards.
    /// @param remark  a comment at the beginning
    /// @param records name of the file with the records; empty if there is none
    [[nodiscard]] QByteArray finish(const QString& remark, const QString& records);

private:
    struct Embedded
    {
        QString name;
        QByteArray bytes;
        bool isDrawing = false;
    };

    void writeSheet(const GlabelsSheet& sheet);
    void startObject(const QString& name, const QRectF& box, const QTransform& toPage);
    void endObject(const QTransform& toPage);
    void writeOutlined(const QString& name, const QRectF& box, const QTransform& toPage,
                       const GlabelsPen& pen, const QColor& fill);
    void writeImage(const QRectF& box, const QTransform& toPage, const QString& source);
    void writeEmbedded();

    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
    QList<Embedded> m_embedded;
};

} // namespace exporting
