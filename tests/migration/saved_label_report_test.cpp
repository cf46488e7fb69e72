// Reports on labels that were saved by the workbench.

#include "tests/migration/documents.h"
#include "workbench/document/label_file.h"

#include <gtest/gtest.h>

#include <QDirIterator>

using namespace migration;
using namespace Qt::StringLiterals;

namespace {

// Saves the label and opens it again.
FileReport reportOnSaved(const workbench::ImportResult& imported, const QString& fileName)
{
    EXPECT_EQ(workbench::document::saveLabel(fileName, *imported.canvas, *imported.datasources),
              QString());
    workbench::ImportResult opened;
    opened.canvas = std::make_unique<workbench::Canvas>();
    opened.datasources = std::make_unique<workbench::datasources::DatasourceController>();
    opened.error = workbench::document::openLabel(fileName, *opened.canvas, *opened.datasources);
    return makeSavedLabelReport(fileName, fileName, opened);
}

} // namespace

TEST(SavedLabelReport, FindsEveryItemOfEverySample)
{
    const QTemporaryDir folder;
    QDirIterator samples(QStringLiteral(LABELPORT_SOURCE_DIR "/samples"),
                         {u"*.odg"_s, u"*.odt"_s, u"*.qmtx"_s, u"*.cnv"_s}, QDir::Files,
                         QDirIterator::Subdirectories);
    int labels = 0;
    while (samples.hasNext()) {
        SCOPED_TRACE(samples.next().toStdString());
        const workbench::ImportResult imported = workbench::importLabel(samples.filePath());
        ASSERT_TRUE(imported.isImported());
        const FileReport report = reportOnSaved(imported, folder.filePath(u"x.label"_s));
        EXPECT_EQ(report.objects.inFile, imported.canvas->items().size());
        EXPECT_TRUE(report.lost.isEmpty()) << codesOf(report).toStdString();
        EXPECT_NE(summaryOf(report).indexOf(
                      u"Imported %1 of %1 objects."_s.arg(imported.canvas->items().size())),
                  -1)
            << summaryOf(report).toStdString();
        ++labels;
    }
    EXPECT_GT(labels, 15);
}

TEST(SavedLabelReport, IsCompleteForAPlainLabel)
{
    const QTemporaryDir folder;
    const QString original = folder.filePath(u"plain.qmtx"_s);
    QFile file(original);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(controlsOf(PlainLabel));
    file.close();
    const FileReport report =
        reportOnSaved(workbench::importLabel(original), folder.filePath(u"plain.label"_s));
    EXPECT_EQ(verdictOf(report), Verdict::Complete) << codesOf(report).toStdString();
}
