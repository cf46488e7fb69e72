// Converts the text of a shape to a rich-text item. Input: the styles of a content member, a
// zero byte, the shape's content. Text must stay text: the result must not have pictures, tables
// or links, because they refer to files.

#include "fuzz/harness.h"
#include "fuzz/package_bytes.h"
#include "opendocument/open_office_reader.h"
#include "recorder/recording_host.h"

#include <QGraphicsTextItem>
#include <QTextDocument>
#include <QTextFormat>

#include <algorithm>

namespace {

const QByteArray Styles = "<office:document-styles/>";

QByteArray contentOf(const QByteArray& styles, const QByteArray& shape)
{
    return "<office:document-content><office:automatic-styles>" + styles +
           "</office:automatic-styles><office:body><office:drawing><draw:page><draw:rect "
           "svg:width=\"2in\" svg:height=\"1in\">" +
           shape +
           "</draw:rect></draw:page></office:drawing></office:body>"
           "</office:document-content>";
}

void checkDocument(const QTextDocument& document)
{
    const auto formats = document.allFormats();
    for (const QTextFormat& format : formats) {
        if (format.isImageFormat() || format.isTableFormat() || format.isListFormat() ||
            format.boolProperty(QTextFormat::IsAnchor)) {
            qFatal("a text became markup");
        }
    }
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    const qsizetype border = input.indexOf('\0');
    const QByteArray content =
        contentOf(input.left(std::max<qsizetype>(border, 0)), input.mid(border + 1));
    const MemoryFile file(packageBytes(Styles, content));
    recorder::RecordingHost host;
    OpenOfficeReader reader(host.canvasModel(), host.datasourceController());
    (void)reader.importLabelFromFile(file.path());
    for (int number = 1; number <= host.createdCount(); ++number) {
        if (auto* text = dynamic_cast<QGraphicsTextItem*>(host.item(number))) {
            checkDocument(*text->document());
        }
    }
}
