#include "tests/tavrel/label_file.h"
#include "tests/support/encoded_picture.h"

using namespace Qt::Literals::StringLiterals;

namespace tavrel_test {

LabelFile::LabelFile(quint32 version, const QStringList& databases, const LabelPage& page)
    : m_version(version)
{
    m_bytes.word(0x1234).word(version).word(1).raw(pngOf(3, 2));
    canvasRecord(page);
    m_bytes.number(page.sequenceStart).number(99).number(1).number(4);
    m_bytes.text(u"No"_s).text(u"!"_s);
    if (m_version >= 2000020) {
        m_bytes.number(5);
    }
    m_bytes.number(0).number(0).number(0).number(qint32(databases.size()));
    for (const QString& path : databases) {
        m_bytes.text(path).number(0);
    }
}

void LabelFile::canvasRecord(const LabelPage& page)
{
    m_bytes.flag(false);
    if (m_version <= 2000018) {
        m_bytes.number(600).number(1220);
    } else {
        m_bytes.real(2.0).real(4.0);
    }
    m_bytes.number(page.labelType).number(page.ribbonType).text(u"unused"_s).text({});
    m_bytes.flag(page.canvasFlag)
        .number(page.orientationCode)
        .number(0)
        .flag(false)
        .real(1)
        .real(1)
        .real(1)
        .real(1);
    if (m_version >= 2000024) {
        m_bytes.real(page.resolutionX).real(page.resolutionY);
    }
}

void LabelFile::itemHeader(double layer, const QString& width, const QString& height)
{
    m_bytes.flag(false).real(1.0).real(0.5).real(layer).real(0.0).text(width).text(height);
}

LabelFile& LabelFile::recordEnd()
{
    m_recordEnds.append(m_bytes.bytes().size());
    return *this;
}

LabelFile& LabelFile::shape(const QString& name, double layer)
{
    m_bytes.number(0x10002);
    itemHeader(layer);
    m_bytes.number(10).number(1).number(1).text(name);
    return recordEnd();
}

LabelFile& LabelFile::picture(const QByteArray& png, const QString& width, const QString& height)
{
    m_bytes.number(0x10004);
    itemHeader(1.0, width, height);
    m_bytes.number(1).raw(png);
    return recordEnd();
}

void LabelFile::textLook()
{
    m_bytes.number(5).number(1).text({}).number(50).flag(true).flag(false).flag(false);
}

LabelFile& LabelFile::text(const QString& content, const QString& scale, const QString& key,
                           const QString& sourceText)
{
    m_bytes.number(0x10000);
    itemHeader(1.0, scale, scale);
    if (m_version >= 2000022) {
        m_bytes.text(content).text(sourceText).text(key).real(-1.0).real(-1.0);
        textLook();
    } else {
        if (m_version >= 2000018) {
            m_bytes.real(-1.0).real(-1.0);
        }
        m_bytes.text(key);
        textLook();
        m_bytes.text(content);
    }
    m_bytes.number(1).flag(false).flag(false);
    if (m_version >= 2000020) {
        m_bytes.flag(false).flag(true).flag(false);
    }
    if (m_version >= 2000021) {
        m_bytes.number(50);
    }
    if (m_version >= 2000023) {
        m_bytes.number(0).number(0);
    }
    return recordEnd();
}

LabelFile& LabelFile::barcode(bool linear, qint32 symbology, const QString& key)
{
    const QString content = u"4711"_s;
    m_bytes.number(linear ? 0x10003 : 0x10006);
    itemHeader();
    if (m_version >= 2000022) {
        m_bytes.text(content).text({}).text(key).number(symbology);
    } else {
        m_bytes.text(key).number(symbology).text(content);
    }
    m_bytes.flag(false).text({}).number(7).number(1).flag(true).flag(false).flag(true).flag(true);
    m_bytes.text(u"3"_s).number(4).number(5).number(6);
    if (m_version <= 2000021) {
        m_bytes.text({});
    }
    return recordEnd();
}

LabelFile& LabelFile::symbol(const QString& name, const QByteArray& svg)
{
    m_bytes.number(0x10001);
    itemHeader();
    m_bytes.text(name);
    if (m_version >= 2000023) {
        m_bytes.data(svg);
    }
    return recordEnd();
}

LabelFile& LabelFile::empty()
{
    return typeCode(0x10005).recordEnd();
}

LabelFile& LabelFile::typeCode(qint32 code)
{
    m_bytes.number(code);
    return *this;
}

LabelFile& LabelFile::raw(const QByteArray& bytes)
{
    m_bytes.raw(bytes);
    return *this;
}

QByteArray pngOf(int width, int height, QImage::Format format)
{
    QImage image(width, height, format);
    image.fill(Qt::darkGreen);
    return encoded(image);
}

} // namespace tavrel_test
