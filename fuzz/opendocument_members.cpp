// The two XML members of an OpenDocument package, without the zip around them: the input is
// the styles member, a zero byte, and the content member.

#include "fuzz/harness.h"
#include "opendocument/open_office_reader.h"
#include "tests/support/silent_host/silent_host.h"

#include <QBuffer>

#include <private/qzipwriter_p.h>

namespace {

QByteArray packageOf(const QByteArray& styles, const QByteArray& content)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter writer(&buffer);
    writer.setCompressionPolicy(QZipWriter::NeverCompress);
    writer.addFile(QStringLiteral("styles.xml"), styles);
    writer.addFile(QStringLiteral("content.xml"), content);
    writer.close();
    return buffer.data();
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    const qsizetype border = input.indexOf('\0');
    if (border < 0) {
        return;
    }
    const MemoryFile file(packageOf(input.left(border), input.mid(border + 1)));
    silent::Canvas canvas;
    silent::Datasources datasources;
    OpenOfficeReader reader(&canvas, &datasources);
    (void)reader.importLabelFromFile(file.path());
}
