// A label that was imported, saved and opened again is the label that was imported.

#include "host/items/rich_text_item.h"
#include "repair/repaired_import.h"
#include "workbench/document/label_file.h"
#include "workbench/rendering/page_image.h"

#include <QDirIterator>
#include <QTemporaryDir>
#include <QTextDocument>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr double Dpi = 100.0;

workbench::ImportResult importSample(const QString& fileName)
{
    return fileName.contains("/opendocument/"_L1)
               ? std::move(repair::importRepaired(fileName).result)
               : workbench::importLabel(fileName);
}

QStringList samples()
{
    QStringList files;
    QDirIterator folder(QStringLiteral(LABELPORT_SAMPLES),
                        {u"*.cnv"_s, u"*.roc"_s, u"*.qmtx"_s, u"*.odt"_s, u"*.odg"_s}, QDir::Files,
                        QDirIterator::Subdirectories);
    while (folder.hasNext()) {
        files.append(folder.next());
    }
    return files;
}

} // namespace

TEST(SavedSample, IsTheSameWhenItIsOpenedAgain)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"saved.label"_s);
    const QStringList files = samples();
    EXPECT_GE(files.size(), 25);
    for (const QString& file : files) {
        SCOPED_TRACE(file.toStdString());
        const workbench::ImportResult imported = importSample(file);
        ASSERT_TRUE(imported.isImported());
        ASSERT_EQ(workbench::document::saveLabel(path, *imported.canvas, *imported.datasources),
                  QString());
        workbench::Canvas canvas;
        workbench::datasources::DatasourceController datasources;
        ASSERT_EQ(workbench::document::openLabel(path, canvas, datasources), QString());
        const auto before = workbench::document::snapshot(*imported.canvas, *imported.datasources);
        const auto after = workbench::document::snapshot(canvas, datasources);
        EXPECT_EQ(workbench::document::toJson(before), workbench::document::toJson(after));
        // A clock may have moved on.
        const bool hasClock =
            std::any_of(before.datasources.begin(), before.datasources.end(),
                        [](const auto& source) { return source.kind == "SystemDatasource"_L1; });
        if (!hasClock) {
            EXPECT_EQ(workbench::renderPage(*imported.canvas, Dpi).image,
                      workbench::renderPage(canvas, Dpi).image);
        }
    }
}

TEST(SavedText, KeepsTheNumberOfItsEmptyLines)
{
    const QString empty = u"<p style=\"-qt-paragraph-type:empty;\"><br /></p>"_s;
    const QString page = u"<table border=\"1\" style=\"-qt-table-type: root; margin-top:4px;\"><tr>"
                         "<td>%1</td></tr></table>"_s;
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"saved.label"_s);
    for (const QString& html :
         {u"<p>one</p>"_s, empty + "<p>one</p>"_L1, empty + empty + "<p>one</p>"_L1,
          page.arg(u"<p>one</p>"_s), page.arg(empty + "<p>one</p>"_L1)}) {
        workbench::Canvas canvas;
        workbench::datasources::DatasourceController datasources;
        Item* const item = canvas.getClassFactory()->create(KestTypes::RichText);
        canvas.importItem(item);
        dynamic_cast<RichTextItem*>(item)->setHtml(html);
        const int lines = dynamic_cast<RichTextItem*>(item)->document()->blockCount();
        for (int round = 0; round < 3; ++round) {
            ASSERT_EQ(workbench::document::saveLabel(path, canvas, datasources), QString());
            ASSERT_EQ(workbench::document::openLabel(path, canvas, datasources), QString());
            auto* const text =
                dynamic_cast<RichTextItem*>(canvas.items().constFirst()->contractItem());
            ASSERT_NE(text, nullptr);
            EXPECT_EQ(text->document()->blockCount(), lines) << html.toStdString();
        }
    }
}
