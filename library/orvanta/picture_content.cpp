#include "orvanta/picture_content.h"

using namespace Qt::Literals::StringLiterals;

namespace orvanta {

namespace {

constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";
constexpr qsizetype ByteOrderMarkLength = 3;

// In the order of removal: a prefix before a name, then one after a colon.
constexpr const char* SerializerLeftovers[] = {"d1p1:", ":d1p1", "viewBox=\"0, 0, 0, 0\""};

} // namespace

QByteArray readPictureContent(const Element& parent)
{
    const QString text = parent.firstChildElement(u"content"_s).text();
    return QByteArray::fromBase64(text.toUtf8());
}

QByteArray withoutByteOrderMark(QByteArray bytes)
{
    if (bytes.startsWith(ByteOrderMark)) {
        bytes.remove(0, ByteOrderMarkLength);
    }
    return bytes;
}

bool isSvg(const QByteArray& bytes)
{
    return bytes.startsWith("<svg");
}

QByteArray cleanedSvg(QByteArray svg)
{
    for (const char* leftover : SerializerLeftovers) {
        svg.replace(leftover, "");
    }
    return svg;
}

} // namespace orvanta
