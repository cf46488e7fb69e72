#include "recorder/svg_document.h"

#include <QImage>
#include <QStringView>
#include <QSvgRenderer>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

namespace recorder {

namespace {

/// Deepest nesting of elements. Drawing programs stay below 30.
constexpr int MaximumDepth = 256;
/// Most copies ("use") in a document that does not tell its size, because the renderer
/// then walks through every copy of every copy: n of them can stand for 3^(n/3) elements.
constexpr int MaximumCopiesWithoutSize = 30;

QStringView localName(QStringView qualifiedName)
{
    return qualifiedName.mid(qualifiedName.lastIndexOf(u':') + 1);
}

bool isInlinePicture(QStringView reference)
{
    // The renderer takes a picture that does not decode for the name of a file.
    const QStringView trimmed = reference.trimmed();
    const qsizetype data = trimmed.lastIndexOf(u"base64,");
    if (!trimmed.startsWith(u"data:") || data < 0) {
        return false;
    }
    const QByteArray bytes = QByteArray::fromBase64(trimmed.mid(data + 7).toLatin1());
    return !QImage::fromData(bytes).isNull();
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
        while (!m_in.atEnd() && m_depth <= MaximumDepth) {
            copyToken(m_in.readNext());
        }
        const bool complete = m_in.atEnd() && !m_in.hasError();
        const bool bounded = m_knowsSize || m_copies <= MaximumCopiesWithoutSize;
        return complete && bounded ? m_copy : QByteArray();
    }

private:
    void copyToken(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartElement:
            copyStart();
            break;
        case QXmlStreamReader::EndElement:
            --m_depth;
            m_out.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
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
        m_copies += name == u"use" ? 1 : 0;
        m_out.writeStartElement(m_in.qualifiedName().toString());
        const QXmlStreamAttributes attributes = m_in.attributes();
        if (m_depth == 1) {
            m_knowsSize = tellsViewBox(attributes);
        }
        for (const QXmlStreamAttribute& attribute : attributes) {
            copyAttribute(name, attribute);
        }
    }

    void copyAttribute(QStringView element, const QXmlStreamAttribute& attribute)
    {
        const bool reference = localName(attribute.qualifiedName()) == u"href";
        if (element == u"image" && reference && !isInlinePicture(attribute.value())) {
            return;
        }
        m_out.writeAttribute(attribute.qualifiedName().toString(), attribute.value().toString());
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
    int m_copies = 0;
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
    return Copier(bytes).copy();
}

} // namespace recorder
