#include "workbench/items/symbol_colors.h"

#include <QXmlStreamReader>

namespace workbench {

namespace {

bool statesProperty(const QXmlStreamAttributes& attributes, QLatin1String name)
{
    const QString declaration = name + QLatin1Char(':');
    const auto style = attributes.value(QLatin1String("style"));
    return attributes.hasAttribute(name) || style.contains(declaration);
}

QByteArray attribute(const char* name, const QColor& color)
{
    return ' ' + QByteArray(name) + "=\"" + color.name().toLatin1() + '"';
}

} // namespace

QByteArray withForeground(const QByteArray& svg, const QColor& color)
{
    QXmlStreamReader reader(svg);
    if (!reader.readNextStartElement()) {
        return svg;
    }
    QByteArray additions;
    if (!statesProperty(reader.attributes(), QLatin1String("fill"))) {
        additions += attribute("fill", color);
    }
    if (!statesProperty(reader.attributes(), QLatin1String("color"))) {
        additions += attribute("color", color);
    }
    // The root's name follows the first "<" before a name character: a declaration, a
    // comment or a document type has another character there. Documents in encodings of
    // two bytes per character are not changed.
    const QByteArray start = '<' + reader.qualifiedName().toUtf8();
    const qsizetype position = svg.indexOf(start);
    return position < 0 ? svg : QByteArray(svg).insert(position + start.size(), additions);
}

} // namespace workbench
