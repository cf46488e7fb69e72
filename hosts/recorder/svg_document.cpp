#include "recorder/svg_document.h"

#include "limits/image/bounded_picture.h"

#include <QBuffer>
#include <QImage>
#include <QImageReader>
#include <QStringView>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace recorder {

namespace {

// Bounds that no drawing of a label comes near, and within which the renderer stays quick.
constexpr qsizetype MaximumBytes = 16 * 1024 * 1024;
constexpr int MaximumElements = 100'000;
constexpr int MaximumDepth = 256;
/// The parser compares every attribute of an element with every other.
constexpr qsizetype MaximumAttributes = 1000;
/// Text of all style sheets together: the renderer tries every rule on every element.
constexpr qsizetype MaximumStyleText = 32 * 1024;
/// Most copies ("use") in a document that does not tell its size, because the renderer
/// then walks through every copy of every copy: n of them can stand for 3^(n/3) elements.
constexpr int MaximumCopiesWithoutSize = 30;
/// Pixels of all pictures inside a document.
constexpr qint64 MaximumPixels = 32 * 1024 * 1024;

QStringView localName(QStringView qualifiedName)
{
    return qualifiedName.mid(qualifiedName.lastIndexOf(u':') + 1);
}

/// A picture inside a document.
struct InlinePicture
{
    QString reference; ///< what the document may say; empty for none
    qint64 pixels = 0;
};

qint64 pixelsClaimedBy(QByteArray picture)
{
    QBuffer buffer(&picture);
    const QSize size = QImageReader(&buffer).size();
    return qint64(size.width()) * size.height();
}

// A picture that does not decode is none: the renderer would take it for the name of a file.
InlinePicture inlinePicture(QStringView reference, qint64 pixelsLeft)
{
    const QStringView trimmed = reference.trimmed();
    const qsizetype data = trimmed.lastIndexOf(u"base64,");
    if (!trimmed.startsWith(u"data:") || data < 0) {
        return {};
    }
    const QByteArray stored = QByteArray::fromBase64(trimmed.mid(data + 7).toLatin1());
    const QByteArray bytes = imagebounds::boundedPicture(stored);
    const qint64 pixels = pixelsClaimedBy(bytes);
    if (pixels > pixelsLeft || QImage::fromData(bytes).isNull()) {
        return {};
    }
    return {bytes == stored
                ? reference.toString()
                : trimmed.left(data + 7).toString() + QString::fromLatin1(bytes.toBase64()),
            pixels};
}

/// Copies a document token by token and leaves out what leads out of it.
class Copier
{
public:
    explicit Copier(const QByteArray& bytes)
        : m_in(bytes)
        , m_out(&m_copy)
    {
        // Prefixes are copied as they stand.
        m_in.setNamespaceProcessing(false);
    }

    QByteArray copy()
    {
        while (!m_in.atEnd() && isBounded()) {
            copyToken(m_in.readNext());
        }
        const bool complete = m_in.atEnd() && !m_in.hasError();
        return complete && isBounded() ? m_copy : QByteArray();
    }

private:
    [[nodiscard]] bool isBounded() const
    {
        return m_depth <= MaximumDepth && m_elements <= MaximumElements &&
               m_attributes <= MaximumAttributes && m_styleText <= MaximumStyleText &&
               (m_knowsSize || m_copies <= MaximumCopiesWithoutSize);
    }

    void copyToken(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartElement:
            copyStart();
            break;
        case QXmlStreamReader::EndElement:
            --m_depth;
            m_inStyle = false;
            m_out.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            m_styleText += m_inStyle ? m_in.text().size() : 0;
            m_out.writeCharacters(m_in.text().toString());
            break;
        default:
            break;
        }
    }

    void copyStart()
    {
        const QStringView name = localName(m_in.qualifiedName());
        ++m_depth;
        ++m_elements;
        m_inStyle = name == u"style";
        m_copies += name == u"use" ? 1 : 0;
        m_out.writeStartElement(m_in.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_in.attributes();
        m_attributes = attributes.size();
        if (m_depth == 1) {
            m_knowsSize = tellsViewBox(attributes);
        }
        for (const QXmlStreamAttribute& attribute : attributes) {
            copyAttribute(name, attribute);
        }
    }

    void copyAttribute(QStringView element, const QXmlStreamAttribute& attribute)
    {
        QString value = attribute.value().toString();
        if (element == u"image" && localName(attribute.qualifiedName()) == u"href") {
            const InlinePicture picture = inlinePicture(value, m_pixelsLeft);
            if (picture.reference.isEmpty()) {
                return;
            }
            m_pixelsLeft -= picture.pixels;
            value = picture.reference;
        }
        m_out.writeAttribute(attribute.qualifiedName().toString(), value);
    }

    static bool tellsViewBox(const QXmlStreamAttributes& attributes)
    {
        const QString box = attributes.value(QStringLiteral("viewBox")).toString();
        const QStringList numbers = QString(box).replace(u',', u' ').simplified().split(u' ');
        return numbers.size() == 4 && numbers[2].toDouble() > 0 && numbers[3].toDouble() > 0;
    }

    QXmlStreamReader m_in;
    QByteArray m_copy;
    QXmlStreamWriter m_out;
    int m_depth = 0;
    int m_elements = 0;
    qsizetype m_attributes = 0; ///< of the last element
    bool m_inStyle = false;
    qsizetype m_styleText = 0;
    int m_copies = 0;
    qint64 m_pixelsLeft = MaximumPixels;
    bool m_knowsSize = false;
};

} // namespace

SvgDocument::SvgDocument(const QByteArray& bytes)
{
    const QByteArray document = selfContainedSvg(bytes);
    QSvgRenderer renderer;
    m_valid = !document.isEmpty() && renderer.load(document);
    if (m_valid) {
        m_size = renderer.defaultSize();
    }
}

QByteArray selfContainedSvg(const QByteArray& bytes)
{
    return bytes.size() <= MaximumBytes ? Copier(bytes).copy() : QByteArray();
}

} // namespace recorder
