#include "fuzz/package_bytes.h"

#include <QBuffer>

#include <private/qzipwriter_p.h>

using namespace Qt::Literals::StringLiterals;

QByteArray packageBytes(const QByteArray& styles, const QByteArray& content)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter writer(&buffer);
    writer.setCompressionPolicy(QZipWriter::NeverCompress);
    writer.addFile(u"styles.xml"_s, styles);
    writer.addFile(u"content.xml"_s, content);
    writer.close();
    return buffer.data();
}
