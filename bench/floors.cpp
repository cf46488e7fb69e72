#include "bench/floors.h"

#include <QDataStream>
#include <QDomDocument>
#include <QFile>
#include <QPixmap>
#include <QSizeF>

#include <tuple>

#include <private/qzipreader_p.h>

namespace bench {

namespace {

using namespace Qt::StringLiterals;

enum TypeCode : qint32 { Text = 0x10000, Shape = 0x10002 };

template <class... Field>
void read(QDataStream& stream)
{
    std::tuple<Field...> fields;
    std::apply([&stream](Field&... field) { (stream >> ... >> field); }, fields);
}

void readHead(QDataStream& stream)
{
    read<qint32, quint32, QImage>(stream);
    read<bool, double, double, qint32, qint32, QString, QString, bool, qint32, qint32, bool, QSizeF,
         QSizeF, double, double>(stream);
    read<qint32, qint32, qint32, qint32, QString, QString, qint32>(stream);
    read<qint32, qint32, qint32, qint32>(stream);
}

void readItem(QDataStream& stream)
{
    qint32 type = 0;
    stream >> type;
    read<bool, double, double, double, double, QString, QString>(stream);
    if (type == Shape) {
        read<qint32, qint32, qint32, QString>(stream);
    } else if (type == Text) {
        read<QString, QString, QString, double, double>(stream);
        read<qint32, qint32, QString, qint32, bool, bool, bool>(stream);
        read<qint32, bool, bool, bool, bool, bool, qint32, qint32, qint32>(stream);
    } else {
        read<QString, QString, QString, qint32>(stream);
        read<bool, QString, qint32, qint32, bool, bool, bool, bool, QString>(stream);
        read<qint32, qint32, qint32>(stream);
    }
}

QByteArray bytesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("%s cannot be read", qPrintable(path));
    }
    return file.readAll();
}

void parse(const QByteArray& xml)
{
    QDomDocument document;
    if (!document.setContent(xml)) {
        qFatal("a document that was made to be measured cannot be parsed");
    }
}

} // namespace

void walkCanvasFile(const QString& path)
{
    QDataStream stream(bytesOf(path));
    readHead(stream);
    while (!stream.atEnd()) {
        readItem(stream);
    }
    if (stream.status() != QDataStream::Ok) {
        qFatal("the walk missed the fields' layout");
    }
}

void parseXmlLabel(const QString& path)
{
    parse(bytesOf(path));
}

void parseDrawing(const QString& path)
{
    const QZipReader package(path);
    const QByteArray styles = package.fileData(u"styles.xml"_s);
    const QByteArray content = package.fileData(u"content.xml"_s);
    QDomDocument first;
    QDomDocument second;
    if (!first.setContent(styles) || !second.setContent(content)) {
        qFatal("a drawing that was made to be measured cannot be parsed");
    }
}

} // namespace bench
