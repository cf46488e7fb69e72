#include "tests/migration/documents.h"

#include "tests/support/encoded_picture.h"
#include "workbench/document/label_file.h"

#include <QBuffer>
#include <QFile>
#include <QImage>

#include <private/qzipwriter_p.h>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray namespaces()
{
    const QList<std::pair<QByteArray, QByteArray>> names = {
        {"office", "office:1.0"},
        {"style", "style:1.0"},
        {"text", "text:1.0"},
        {"table", "table:1.0"},
        {"draw", "drawing:1.0"},
        {"dr3d", "dr3d:1.0"},
        {"form", "form:1.0"},
        {"anim", "animation:1.0"},
        {"presentation", "presentation:1.0"},
        {"svg", "svg-compatible:1.0"},
        {"fo", "xsl-fo-compatible:1.0"},
    };
    QByteArray declarations = " xmlns:xlink=\"http://www.w3.org/1999/xlink\"";
    for (const auto& [prefix, end] : names) {
        declarations +=
            " xmlns:" + prefix + "=\"urn:oasis:names:tc:opendocument:xmlns:" + end + '"';
    }
    return declarations;
}

} // namespace

QByteArray packageOf(const QByteArray& body, const DocumentParts& parts)
{
    const QByteArray styles =
        "<office:document-styles" + namespaces() + "><office:styles>" + parts.commonStyles +
        "</office:styles><office:automatic-styles><style:page-layout style:name=\"L\">"
        "<style:page-layout-properties " +
        parts.pageLayout +
        "/></style:page-layout></office:automatic-styles><office:master-styles>" +
        parts.masterPages + "</office:master-styles></office:document-styles>";
    const QByteArray content = "<office:document-content" + namespaces() +
                               "><office:automatic-styles>" + parts.automaticStyles +
                               "</office:automatic-styles><office:body>" + body +
                               "</office:body></office:document-content>";
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter zip(&buffer);
    zip.addFile(u"styles.xml"_s, styles);
    zip.addFile(u"content.xml"_s, content);
    zip.addFile(u"Pictures/good.png"_s, pngOf());
    if (!parts.embeddedObject.isEmpty()) {
        zip.addFile(u"Object 1/content.xml"_s, "<office:document-content" + namespaces() +
                                                   "><office:body>" + parts.embeddedObject +
                                                   "</office:body></office:document-content>");
    }
    zip.close();
    return buffer.data();
}

QByteArray drawingOf(const QByteArray& shapes, const DocumentParts& parts)
{
    return packageOf("<office:drawing><draw:page draw:name=\"page1\" draw:master-page-name=\"M\">" +
                         shapes + "</draw:page></office:drawing>",
                     parts);
}

QByteArray textOf(const QByteArray& elements, const DocumentParts& parts)
{
    return packageOf("<office:text>" + elements + "</office:text>", parts);
}

QByteArray controlsOf(const QByteArray& controls)
{
    return "<qmtx><printable_control><bounds><x>0</x><y>0</y><w>400</w><h>300</h></bounds>"
           "</printable_control><controls>" +
           controls + "</controls></qmtx>";
}

migration::FileReport reportOn(const Document& document, const Tamper& tamper,
                               const migration::ReportOptions& options)
{
    const QTemporaryDir folder;
    const QString fileName = folder.filePath(document.name);
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        return {};
    }
    file.write(document.bytes);
    file.close();
    workbench::ImportResult result = workbench::importLabel(fileName);
    if (tamper) {
        tamper(result);
    }
    return migration::makeFileReport(fileName, document.name, readerForFile(fileName), result,
                                     options);
}

void dropItem(workbench::ImportResult& result, qsizetype index)
{
    workbench::document::SavedLabel label =
        workbench::document::snapshot(*result.canvas, *result.datasources);
    label.items.removeAt(index);
    if (!workbench::document::restore(label, *result.canvas, *result.datasources)) {
        result.canvas.reset();
    }
}

const migration::Finding* findingOf(const migration::FileReport& report, const QString& code)
{
    for (const QList<migration::Finding>* list : {&report.lost, &report.changed}) {
        for (const migration::Finding& finding : *list) {
            if (finding.code == code) {
                return &finding;
            }
        }
    }
    return nullptr;
}

QString codesOf(const migration::FileReport& report)
{
    QStringList codes;
    for (const QList<migration::Finding>* list : {&report.lost, &report.changed}) {
        for (const migration::Finding& finding : *list) {
            codes.append(u"%1 ×%2 [%3]"_s.arg(finding.code)
                             .arg(finding.count)
                             .arg(finding.details.join(u", "_s)));
        }
    }
    return codes.join(u"; "_s);
}

QByteArray pngOf(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    return encoded(image);
}
