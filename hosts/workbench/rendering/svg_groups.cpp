#include "workbench/rendering/svg_groups.h"

#include <QPainter>
#include <QPainterPath>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace workbench {
namespace {

// A mark is a path without pen and brush, far outside any page: "M-900000,7 L-900000,7". The
// generator writes numbers with six digits.
constexpr int MarkX = -900'000;
constexpr int LargestNumber = 999'999;

// svg, the generator's outer group, and the group of a state.
constexpr int StateDepth = 3;

std::optional<int> markedNumber(const QXmlStreamReader& reader)
{
    const QStringView path = reader.attributes().value("d"_L1);
    const QString start = u"M%1,"_s.arg(MarkX);
    if (!path.startsWith(start)) {
        return std::nullopt;
    }
    const QStringView rest = path.mid(start.size());
    bool isNumber = false;
    const int number = rest.left(rest.indexOf(u' ')).toInt(&isNumber);
    return isNumber ? std::optional(number) : std::nullopt;
}

class GroupWriter
{
public:
    explicit GroupWriter(const QByteArray& svg)
        : m_reader(svg)
        , m_writer(&m_output)
    {
        m_reader.setNamespaceProcessing(false);
        m_writer.setAutoFormatting(true);
        m_writer.setAutoFormattingIndent(1);
    }

    /// Empty if the document is not well-formed.
    QByteArray run()
    {
        while (!m_reader.atEnd()) {
            copyToken(m_reader.readNext());
        }
        return m_reader.hasError() ? QByteArray() : m_output;
    }

private:
    void copyToken(QXmlStreamReader::TokenType token)
    {
        switch (token) {
        case QXmlStreamReader::StartDocument:
            m_writer.writeStartDocument(u"1.0"_s);
            break;
        case QXmlStreamReader::EndDocument:
            m_writer.writeEndDocument();
            break;
        case QXmlStreamReader::StartElement:
            startElement();
            break;
        case QXmlStreamReader::EndElement:
            endElement();
            break;
        case QXmlStreamReader::Characters:
            if (!m_reader.isWhitespace() || m_isText) {
                m_writer.writeCharacters(m_reader.text().toString());
            }
            break;
        default:
            break;
        }
    }

    void startElement()
    {
        ++m_depth;
        m_isText = m_reader.name() == "text"_L1;
        if (m_depth == StateDepth && m_reader.name() == "g"_L1) {
            m_state = m_reader.attributes(); // start tag, written with the first content
            return;
        }
        if (const std::optional<int> number = markedNumber(m_reader)) {
            endItem();
            m_pendingItem = number;
            m_state.reset();
            m_reader.skipCurrentElement();
            --m_depth;
            m_isMark = true;
            return;
        }
        if (m_state) {
            startItem();
            writeStart(u"g"_s, *m_state);
            m_state.reset();
        }
        writeStart(m_reader.qualifiedName().toString(), m_reader.attributes());
    }

    void endElement()
    {
        m_isText = false;
        if (m_depth == StateDepth && (m_state || m_isMark)) {
            m_state.reset(); // an empty group
            m_isMark = false;
        } else {
            if (m_depth == StateDepth - 1) {
                endItem();
            }
            m_writer.writeEndElement();
        }
        --m_depth;
    }

    void startItem()
    {
        if (m_pendingItem) {
            m_writer.writeStartElement(u"g"_s);
            m_writer.writeAttribute(u"id"_s, u"item-%1"_s.arg(*m_pendingItem));
            m_pendingItem.reset();
            m_isInItem = true;
        }
    }

    void endItem()
    {
        if (m_isInItem) {
            m_writer.writeEndElement();
            m_isInItem = false;
        }
    }

    void writeStart(const QString& name, const QXmlStreamAttributes& attributes)
    {
        m_writer.writeStartElement(name);
        for (const QXmlStreamAttribute& attribute : attributes) {
            m_writer.writeAttribute(attribute.qualifiedName().toString(),
                                    attribute.value().toString());
        }
    }

    QByteArray m_output;
    QXmlStreamReader m_reader;
    QXmlStreamWriter m_writer;
    int m_depth = 0;
    bool m_isText = false;
    bool m_isMark = false;   // the current state group contained only a mark
    bool m_isInItem = false; // the group of an item is open
    std::optional<int> m_pendingItem;
    std::optional<QXmlStreamAttributes> m_state;
};

} // namespace

void markSvgItem(QPainter& painter, int number)
{
    if (number > LargestNumber) {
        return; // its content is appended to the last item's group
    }
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::NoBrush);
    painter.setTransform(QTransform());
    QPainterPath mark(QPointF(MarkX, number));
    mark.lineTo(MarkX, number);
    painter.drawPath(mark);
    painter.restore();
}

QByteArray withNamedItems(const QByteArray& svg)
{
    const QByteArray named = GroupWriter(svg).run();
    return named.isEmpty() ? svg : named;
}

} // namespace workbench
