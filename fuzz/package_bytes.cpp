#include "fuzz/package_bytes.h"

#include <QBuffer>

#include <private/qzipwriter_p.h>

QByteArray packageBytes(const QByteArray& styles, const QByteArray& content)
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
