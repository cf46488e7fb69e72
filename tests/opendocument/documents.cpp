#include "documents.h"

#include <QBuffer>
#include <QFile>

#include <list>

#include <gtest/gtest.h>

#include <private/qzipwriter_p.h>

using namespace Qt::Literals::StringLiterals;

xmllimits::Element elementOf(const QByteArray& xml)
{
    // Elements are valid only during the lifetime of their document.
    static std::list<xmllimits::ElementTree> documents;
    EXPECT_FALSE(documents.emplace_back().parse(xml)) << xml.toStdString();
    return documents.back().documentElement();
}

QByteArray stylesXml(const QByteArray& pageAttributes, const QByteArray& styles)
{
    const QByteArray page = pageAttributes.isEmpty()
                                ? QByteArray("fo:page-width=\"8.5in\" fo:page-height=\"11in\"")
                                : pageAttributes;
    return "<office:document-styles><office:styles>" + styles +
           "</office:styles><office:automatic-styles><style:page-layout>"
           "<style:page-layout-properties " +
           page + "/></style:page-layout></office:automatic-styles></office:document-styles>";
}

QByteArray contentXml(const QByteArray& body, const QByteArray& styles)
{
    return "<office:document-content><office:automatic-styles>" + styles +
           "</office:automatic-styles><office:body>" + body +
           "</office:body></office:document-content>";
}

QByteArray drawingXml(const QByteArray& shapes, const QByteArray& styles)
{
    return contentXml("<office:drawing><draw:page>" + shapes + "</draw:page></office:drawing>",
                      styles);
}

QByteArray textXml(const QByteArray& text, const QByteArray& styles)
{
    return contentXml("<office:text>" + text + "</office:text>", styles);
}

Package::Package(const QByteArray& styles, const QByteArray& content)
{
    add(u"styles.xml"_s, styles);
    add(u"content.xml"_s, content);
}

Package& Package::add(const QString& name, const QByteArray& data)
{
    m_members.insert(name, data);
    return *this;
}

Package& Package::storeUncompressed()
{
    m_isUncompressed = true;
    return *this;
}

QByteArray Package::bytes()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter writer(&buffer);
    writer.setCompressionPolicy(m_isUncompressed ? QZipWriter::NeverCompress
                                                 : QZipWriter::AlwaysCompress);
    for (auto member = m_members.cbegin(); member != m_members.cend(); ++member) {
        writer.addFile(member.key(), member.value());
    }
    writer.close();
    return buffer.data();
}

QString Package::write()
{
    return writeRaw(bytes());
}

QString Package::writeRaw(const QByteArray& bytes)
{
    const QString path = m_folder.filePath(u"label%1.odg"_s.arg(++m_written));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path;
}
