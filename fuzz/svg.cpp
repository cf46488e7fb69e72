// Converts drawings to symbols: the result must have no external references, must convert to
// itself, and must be drawable.

#include "fuzz/harness.h"
#include "workbench/symbols/symbol_data.h"

#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

namespace symbols = workbench::symbols;

namespace {

bool pointsInside(QStringView href)
{
    return href.startsWith(u'#') || href.startsWith(u"data:image/");
}

void checkReferences(const QByteArray& data)
{
    QXmlStreamReader reader(data);
    while (!reader.atEnd()) {
        reader.readNext();
        for (const QXmlStreamAttribute& attribute : reader.attributes()) {
            if (attribute.name() == u"href" && !pointsInside(attribute.value())) {
                qFatal("a symbol names something outside itself: %s", data.constData());
            }
        }
    }
    if (reader.hasError()) {
        qFatal("a symbol is not well-formed: %s", data.constData());
    }
}

void draw(const QByteArray& data)
{
    QSvgRenderer renderer(data);
    QImage image(64, 64, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    renderer.render(&painter, QRectF(image.rect()));
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    const auto data = symbols::makeSymbolData(input);
    if (!data) {
        return;
    }
    checkReferences(*data);
    const auto again = symbols::makeSymbolData(*data);
    if (!again || symbols::naturalSize(*again) != symbols::naturalSize(*data)) {
        qFatal("a symbol is not a drawing of its own size: %s", data->constData());
    }
    draw(*data);
}
