#pragma once

#include "printing/sheet.h"
#include "workbench/items/item_values.h"

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QRectF>
#include <QString>
#include <QTransform>
#include <QXmlStreamWriter>

#include <utility>

namespace exporting {

/// Longest embedded drawing, in bytes: libxml2, with which gLabels reads the document, accepts
/// texts of up to ten million bytes.
inline constexpr qint64 MaximumEmbedded = 9'500'000;

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
    bool checksum = false;
    QString content;
    QString field; ///< of the records; if set, it replaces the content
    QColor color = Qt::black;
};

/// Writes a document of gLabels 3, one object after the other.
///
/// Each object has a rectangle in its own coordinates, and a transform to the page. Lengths are in
/// points.
class GlabelsDocument
{
public:
    /// @param isRotated the label's upper edge is at the right edge of its place
    GlabelsDocument(const printing::Sheet& sheet, bool isRotated);

    enum class Shape : quint8 { Box, Ellipse };
    void addShape(Shape shape, const QRectF& box, const QTransform& toPage,
                  const workbench::PenValues& pen, const QColor& fill);
    void addLine(const QPointF& from, const QPointF& to, const workbench::PenValues& pen);
    /// The characters begin at the left edge of the box, without the margin of gLabels.
    void addText(const QRectF& box, const QTransform& toPage, const GlabelsText& text);
    void addBarcode(const QRectF& box, const QTransform& toPage, const GlabelsBarcode& barcode);
    /// @param svg a drawing of up to MaximumEmbedded bytes, which fills the box
    void addDrawing(const QRectF& box, const QTransform& toPage, const QByteArray& svg);

    /// The bytes of the file. Nothing can be added afterwards.
    /// @param remark  a comment at the beginning
    /// @param records name of the file with the records; empty if there is none
    [[nodiscard]] QByteArray finish(const QString& remark, const QString& records);

private:
    using Attributes = QList<std::pair<const char*, QString>>;

    void start(const char* element, const Attributes& attributes);
    void writeAttributes(const Attributes& attributes);
    void startObject(const char* element, const QPointF& at, const QTransform& toPage,
                     const Attributes& attributes);
    void startBox(const char* element, const QRectF& box, const QTransform& toPage,
                  const Attributes& attributes);

    QByteArray m_bytes;
    QXmlStreamWriter m_xml;
    QList<QByteArray> m_drawings;
};

} // namespace exporting
