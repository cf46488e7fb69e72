#include "tests/repair/documents.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <private/qzipwriter_p.h>

using namespace Qt::StringLiterals;

QByteArray drawingContent(const QByteArray& shapes, const QByteArray& styles)
{
    return "<office:document-content><office:automatic-styles>" + styles +
           "</office:automatic-styles><office:body><office:drawing>"
           "<draw:page draw:master-page-name=\"M\">" +
           shapes + "</draw:page></office:drawing></office:body></office:document-content>";
}

QByteArray drawingStyles(const QByteArray& common, const QByteArray& automatic,
                         const QByteArray& masters)
{
    return "<office:document-styles><office:styles>" + common +
           "</office:styles><office:automatic-styles>"
           "<style:page-layout style:name=\"L\"><style:page-layout-properties "
           "fo:page-width=\"10cm\" fo:page-height=\"5cm\" fo:margin=\"0cm\"/></style:page-layout>" +
           automatic +
           "</office:automatic-styles><office:master-styles>"
           "<style:master-page style:name=\"M\" style:page-layout-name=\"L\">" +
           masters + "</style:master-page></office:master-styles></office:document-styles>";
}

repair::Document drawing(const QByteArray& shapes, const QByteArray& styles,
                         const QByteArray& common)
{
    constexpr qint64 Bytes = 1 << 24;
    return {repair::parseTree(drawingStyles(common), Bytes),
            repair::parseTree(drawingContent(shapes, styles), Bytes),
            [](const QString&) { return QByteArray(); }};
}

repair::Node& object(const repair::Document& document, const QString& tag)
{
    repair::Node* const found = document.page()->child(tag);
    if (found == nullptr) {
        ADD_FAILURE() << "no " << tag.toStdString() << " but " << tags(document).toStdString();
        static repair::Node none;
        return none;
    }
    return *found;
}

QString tags(const repair::Document& document)
{
    QStringList names;
    for (const auto& child : document.page()->children) {
        names << child->name;
    }
    return names.join(u' ');
}

QString drawingOf(const repair::Document& document)
{
    const repair::Node* const image = object(document, u"draw:frame"_s).child(u"draw:image");
    return image == nullptr
               ? QString()
               : QString::fromUtf8(document.newMembers.value(image->attribute(u"xlink:href")));
}

QString writePackage(const QString& folder, const QByteArray& content, const QByteArray& styles,
                     const QHash<QString, QByteArray>& members)
{
    const QString name = folder + "/drawing.odg"_L1;
    QZipWriter zip(name);
    zip.addFile(u"styles.xml"_s, styles);
    zip.addFile(u"content.xml"_s, content);
    for (auto it = members.begin(); it != members.end(); ++it) {
        zip.addFile(it.key(), it.value());
    }
    zip.close();
    return name;
}
