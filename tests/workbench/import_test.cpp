// Imports from a file to a canvas without a window.

#include "workbench/document/label_file.h"
#include "workbench/document/label_json.h"
#include "workbench/import/file_check.h"
#include "workbench/import/label_import.h"

#include <private/qzipwriter_p.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using workbench::fileAccessError;
using workbench::ImportIssue;
using workbench::importLabel;
using workbench::ImportResult;

namespace {

const char QmtxLabel[] = R"(<qmtx>
  <controls>
    <transparent_shape>
      <printable_control>
        <bounds><x>240</x><y>240</y><w>160</w><h>80</h></bounds>
        <transparency>false</transparency>
        <back_color>255</back_color>
      </printable_control>
      <shape_index>1</shape_index>
      <line_width>1</line_width>
      <sides>0</sides>
    </transparent_shape>
    <swap_text_box>
      <printable_control>
        <bounds><x>240</x><y>400</y><w>160</w><h>80</h></bounds>
        <text>own</text>
      </printable_control>
      <items><string>first</string><string>second</string></items>
    </swap_text_box>
    <teapot/>
  </controls>
</qmtx>)";

class Folder
{
public:
    [[nodiscard]] QString write(const char* name, const QByteArray& content) const
    {
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return file.fileName();
    }

    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

private:
    QTemporaryDir m_folder;
};

QString errorOf(const QString& fileName)
{
    const ImportResult result = importLabel(fileName);
    EXPECT_FALSE(result.isImported());
    EXPECT_EQ(result.datasources, nullptr);
    EXPECT_FALSE(result.error.isEmpty());
    return result.error;
}

QStringList textsOf(const QList<ImportIssue>& issues)
{
    QStringList texts;
    for (const ImportIssue& issue : issues) {
        texts << issue.text;
    }
    return texts;
}

// A package with this manifest; its members do not parse, as if they were encrypted.
QByteArray packageWithManifest(const QByteArray& manifest)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QZipWriter package(&buffer);
    package.addFile(u"META-INF/manifest.xml"_s, manifest);
    package.addFile(u"styles.xml"_s, QByteArrayLiteral("\x8f\x02\xe1 not XML"));
    package.addFile(u"content.xml"_s, QByteArrayLiteral("\x8f\x02\xe1 not XML"));
    package.close();
    return bytes;
}

} // namespace

TEST(LabelImport, SaysThatADocumentIsProtectedByAPassword)
{
    const Folder folder;
    const QString encrypted = folder.write(
        "encrypted.odt", packageWithManifest("<manifest:manifest><manifest:file-entry>"
                                             "<manifest:encryption-data/></manifest:file-entry>"
                                             "</manifest:manifest>"));
    EXPECT_EQ(importLabel(encrypted).error.toStdString(),
              "The document is protected by a password. Open it in an office program, save it "
              "without a password, and import it again.");

    const QString damaged =
        folder.write("damaged.odt", packageWithManifest("<manifest:manifest/>"));
    EXPECT_FALSE(importLabel(damaged).error.isEmpty());
    EXPECT_FALSE(importLabel(damaged).error.contains(u"password"_s));
}

TEST(Import, BringsTheItemsOfAFileOntoACanvas)
{
    const Folder folder;
    const ImportResult result = importLabel(folder.write("shelf.qmtx", QmtxLabel));

    ASSERT_TRUE(result.isImported()) << qPrintable(result.error);
    EXPECT_EQ(result.error, QString());
    EXPECT_TRUE(result.canvas->isComplete());
    ASSERT_EQ(result.canvas->items().size(), 2);
    const workbench::ItemValues shape = result.canvas->items().at(0)->values();
    EXPECT_EQ(shape.type, KestTypes::Rectangle);
    EXPECT_EQ(shape.placement.position, QPointF(30.0, 30.0));
    EXPECT_EQ(shape.box.size, QSizeF(120.0, 60.0));
    EXPECT_EQ(shape.fill->color, QColor(Qt::blue));
}

TEST(Import, RendersADrawingThatIsARasterPicture)
{
    const QByteArray svg = "<!-- logo --><svg xmlns='http://www.w3.org/2000/svg' width='4' "
                           "height='4'><rect width='4' height='4' fill='lime'/></svg>";
    const Folder folder;
    const ImportResult result = importLabel(
        folder.write("logo.qmtx", "<qmtx><controls><picture_box><image><content>" + svg.toBase64() +
                                      "</content></image></picture_box></controls></qmtx>"));
    ASSERT_TRUE(result.isImported()) << qPrintable(result.error);
    ASSERT_EQ(result.canvas->items().size(), 1);
    const QImage image = result.canvas->items().at(0)->values().picture->image;
    EXPECT_EQ(image.size(), QSize(4, 4));
    EXPECT_EQ(image.pixelColor(2, 2), QColor(Qt::green));
}

// The z values of binary labels continue to count up over all imports of a process.
TEST(Import, SavesTheSameBytesEachTime)
{
    const QString label = QStringLiteral(LABELPORT_SAMPLES "/tavrel/address_2000016.cnv");
    const auto saved = [&label] {
        const ImportResult result = importLabel(label);
        return workbench::document::toJson(
            workbench::document::snapshot(*result.canvas, *result.datasources));
    };
    const QByteArray first = saved();
    EXPECT_TRUE(first.contains("\"z\": 1"));
    EXPECT_EQ(saved(), first);
}

TEST(Import, BindsListsAndShowsTheirFirstRecord)
{
    const Folder folder;
    const ImportResult result = importLabel(folder.write("shelf.qmtx", QmtxLabel));

    ASSERT_TRUE(result.isImported());
    const workbench::DatasourceValues source = result.canvas->items().at(1)->datasource();
    EXPECT_EQ(result.datasources->recordText(source.id, 0), u"first"_s);
    EXPECT_EQ(result.datasources->recordText(source.id, 1), u"second"_s);
}

TEST(Import, ReportsOmittedItems)
{
    const Folder folder;
    const ImportResult result = importLabel(folder.write("shelf.qmtx", QmtxLabel));
    EXPECT_EQ(textsOf(result.issues), QStringList{u"Left out an object of the unknown type "
                                                  "\"teapot\"."_s});
    EXPECT_FALSE(result.log.isEmpty());
}

TEST(Import, OpensNoWindow)
{
    const Folder folder;
    (void)importLabel(folder.write("shelf.qmtx", QmtxLabel));
    (void)importLabel(folder.write("bad.cnv", "no label"));
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(widget->isVisible());
    }
}

TEST(Import, SaysWhyAFileCannotBeRead)
{
    const Folder folder;
    EXPECT_EQ(errorOf(QString()), u"No file was named."_s);
    EXPECT_EQ(errorOf(folder.path("none.cnv")), u"The file does not exist."_s);
    EXPECT_EQ(errorOf(folder.path("")), u"This is a folder, not a file."_s);
    EXPECT_EQ(errorOf(folder.write("empty.odg", "")), u"The file is empty."_s);
    EXPECT_EQ(errorOf(u"/dev/null"_s), u"This is not a regular file."_s);
}

TEST(Import, SaysWhyAFileIsNotALabel)
{
    const Folder folder;
    EXPECT_TRUE(errorOf(folder.write("cut.qmtx", "<qmtx><controls>"))
                    .contains(QLatin1String("XML is not well-formed at line 1")));
    EXPECT_TRUE(errorOf(folder.write("other.qmtx", "<html/>"))
                    .contains(QLatin1String("root element is not \"qmtx\"")));
    EXPECT_TRUE(errorOf(folder.write("text.odg", "not a package"))
                    .contains(QLatin1String("Not an OpenDocument file")));
    EXPECT_TRUE(errorOf(folder.write("text.cnv", QByteArray("\0\0\0\0\0\0\0\7", 8)))
                    .contains(QLatin1String("unsupported version")));
}

TEST(Import, NamesTheReaderThatTheContentNeeds)
{
    const QTemporaryDir folder;
    const auto errorOf = [&folder](const char* name, const QByteArray& bytes) {
        const QString path = folder.filePath(QString::fromLatin1(name));
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return importLabel(path).error;
    };
    const QString package = errorOf("shelf.odg.cnv", "PK\x03\x04 and so on");
    EXPECT_TRUE(package.startsWith(u"The file is a zip package"_s));
    EXPECT_TRUE(package.contains(u"--reader opendocument"_s));
    const QString xml = errorOf("shelf.odt", "\xEF\xBB\xBF <qmtx/>");
    EXPECT_TRUE(xml.startsWith(u"The file is XML"_s));
    EXPECT_TRUE(xml.contains(u"--reader orvanta"_s));
    EXPECT_TRUE(
        errorOf("shelf.old.odg", "PK\x03\x04 and so on").startsWith(u"Not an OpenDocument file"_s))
        << "the last suffix selects the reader";
    EXPECT_TRUE(errorOf("shelf.cnv", QByteArray("\0\0\0\1\0\0\0\1", 8))
                    .startsWith(u"Not a binary label"_s));
}

TEST(Import, OneFileSaysNothingOfTheOneBefore)
{
    const Folder folder;
    (void)importLabel(folder.write("bad.qmtx", "<html/>"));
    const ImportResult result = importLabel(folder.write("shelf.qmtx", QmtxLabel));
    EXPECT_TRUE(result.isImported());
    EXPECT_EQ(result.issues.size(), 1);
}
