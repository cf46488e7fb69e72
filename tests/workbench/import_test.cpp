// From a file to a canvas without a window, and the words for what goes wrong.

#include "workbench/import/failure_words.h"
#include "workbench/import/file_check.h"
#include "workbench/import/issue_words.h"
#include "workbench/import/label_import.h"

#include "host/items/simple_text_item.h"
#include "painted.h"

#include <Logger.h>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <QWidget>

#include <gtest/gtest.h>

using workbench::collectIssues;
using workbench::ImportIssue;
using workbench::importLabel;
using workbench::ImportResult;
using workbench::LogRecord;
using workbench::whyFileCannotBeRead;
using workbench::whyImportFailed;

namespace {

const char kLabel[] = R"(<qmtx>
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

LogRecord debugRecord(const char* message)
{
    return {false, QStringLiteral("x.cpp"), QString::fromLatin1(message)};
}

} // namespace

TEST(Import, BringsTheItemsOfAFileOntoACanvas)
{
    const Folder folder;
    const ImportResult result = importLabel(folder.write("shelf.qmtx", kLabel));

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

TEST(Import, BindsListsAndShowsTheirFirstRecord)
{
    const Folder folder;
    const ImportResult result = importLabel(folder.write("shelf.qmtx", kLabel));

    ASSERT_TRUE(result.isImported());
    const workbench::DatasourceValues source = result.canvas->items().at(1)->datasource();
    EXPECT_EQ(result.datasources->recordText(source.id, 0), QStringLiteral("first"));
    EXPECT_EQ(result.datasources->recordText(source.id, 1), QStringLiteral("second"));
}

TEST(Import, TellsWhatWasLeftOut)
{
    const Folder folder;
    const ImportResult result = importLabel(folder.write("shelf.qmtx", kLabel));
    EXPECT_EQ(textsOf(result.issues),
              QStringList{QStringLiteral("An object of the kind \"teapot\" was left out: the kind "
                                         "is not known.")});
    EXPECT_FALSE(result.log.isEmpty());
}

TEST(Import, OpensNoWindow)
{
    const Folder folder;
    (void)importLabel(folder.write("shelf.qmtx", kLabel));
    (void)importLabel(folder.write("bad.cnv", "no label"));
    for (const QWidget* widget : QApplication::topLevelWidgets()) {
        EXPECT_FALSE(widget->isVisible());
    }
}

TEST(Import, SaysWhyAFileCannotBeRead)
{
    const Folder folder;
    EXPECT_EQ(errorOf(QString()), QStringLiteral("No file was named."));
    EXPECT_EQ(errorOf(folder.path("none.cnv")), QStringLiteral("There is no such file."));
    EXPECT_EQ(errorOf(folder.path("")), QStringLiteral("This is a folder, not a file."));
    EXPECT_EQ(errorOf(folder.write("empty.odg", "")), QStringLiteral("The file is empty."));
    EXPECT_EQ(errorOf(QStringLiteral("/dev/null")), QStringLiteral("This is not a regular file."));
}

TEST(Import, SaysWhyAFileIsNoLabel)
{
    const Folder folder;
    EXPECT_TRUE(errorOf(folder.write("cut.qmtx", "<qmtx><controls>"))
                    .contains(QLatin1String("not well-formed XML at line 1")));
    EXPECT_TRUE(errorOf(folder.write("other.qmtx", "<html/>"))
                    .contains(QLatin1String("outermost element is not \"qmtx\"")));
    EXPECT_TRUE(errorOf(folder.write("text.odg", "this is no package"))
                    .contains(QLatin1String("no OpenDocument file")));
    EXPECT_TRUE(errorOf(folder.write("text.cnv", QByteArray("\0\0\0\0\0\0\0\7", 8)))
                    .contains(QLatin1String("version that cannot be read")));
}

// The name alone chooses the reader, and two dots lead to the wrong one: people need to know.
TEST(Import, SaysThatANameMisleads)
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
    EXPECT_TRUE(errorOf("shelf.old.odg", "PK\x03\x04 and so on")
                    .startsWith(QStringLiteral("The file is a zip package")));
    EXPECT_TRUE(errorOf("shelf.1.qmtx", "\xEF\xBB\xBF <qmtx/>")
                    .startsWith(QStringLiteral("The file is XML")));
    EXPECT_TRUE(errorOf("shelf.cnv", QByteArray("\0\0\0\1\0\0\0\1", 8))
                    .startsWith(QStringLiteral("The file is no binary label")));
}

TEST(Import, OneFileSaysNothingOfTheOneBefore)
{
    const Folder folder;
    (void)importLabel(folder.write("bad.qmtx", "<html/>"));
    const ImportResult result = importLabel(folder.write("shelf.qmtx", kLabel));
    EXPECT_TRUE(result.isImported());
    EXPECT_EQ(result.issues.size(), 1);
}

struct FailureRow
{
    const char* message;
    const char* words;
};

TEST(FailureWords, SayWhatALogRecordMeans)
{
    for (const FailureRow& row :
         {FailureRow{"Invalid canvas file version (2000015 != 2000024) in /a/b.cnv",
                     "The file is no binary label, or one of a version that cannot be read: it "
                     "says version 2000015, but 2000016 is the oldest that can."},
          FailureRow{"Error opening file: /a/b.qmtx", "The file cannot be opened."},
          FailureRow{"Error reading file: /a/b.qmtx is too large: 9 objects",
                     "The file is too large for a label: 9 objects."},
          FailureRow{"Error parsing file: /a/b.qmtx at line 3, column 14:\nno end",
                     "The file is no label or a damaged one: it is not well-formed XML at line 3, "
                     "column 14 (no end)."},
          FailureRow{"Error parsing file: fileName / content.xml at line 3, column 14:\nno end",
                     "The document is damaged: its part content.xml is not well-formed at line 3, "
                     "column 14 (no end)."},
          FailureRow{"Error: the file is not a orvanta doc",
                     "The file is XML, but not a label: its outermost element is not \"qmtx\"."},
          FailureRow{"Invalid type: -7",
                     "The file is no label, or a damaged one: its first item is of an unknown "
                     "kind (-7)."},
          FailureRow{"Unable to get file styles.",
                     "The file is no OpenDocument file, or a damaged one: it has no readable part "
                     "styles.xml."},
          FailureRow{"Unable to get file content.",
                     "The OpenDocument file is damaged: it has no readable part content.xml."}}) {
        EXPECT_EQ(whyImportFailed({debugRecord("before"), debugRecord(row.message)}, {}),
                  QString::fromLatin1(row.words));
    }
}

TEST(FailureWords, FallBackToTheMessageBoxThenToTheLogThenToNothingReadable)
{
    const LogRecord error{true, QStringLiteral("x.cpp"), QStringLiteral("Too large for a label")};
    const QString box = QStringLiteral("Errors reading items.");
    EXPECT_EQ(whyImportFailed({error}, {box}), box);
    EXPECT_EQ(whyImportFailed({error, debugRecord("later")}, {}), error.message);
    EXPECT_EQ(whyImportFailed({debugRecord("some debugging")}, {}),
              QStringLiteral("The file holds nothing that can be put on a label."));
}

TEST(FailureWords, ContentOfAFileIsNotTakenForAPlaceholder)
{
    EXPECT_EQ(
        whyImportFailed({debugRecord("Error parsing file: x at line 1, column 2:\n%1 %2")}, {}),
        QStringLiteral("The file is no label or a damaged one: it is not well-formed XML at "
                       "line 1, column 2 (%1 %2)."));
}

TEST(IssueWords, TakeTheLinesOfABoxApartAndKeepIndentedLinesTogether)
{
    const workbench::Canvas canvas;
    EXPECT_EQ(textsOf(collectIssues(canvas, {},
                                    {QStringLiteral("Unsupported barcode symbols.\n\"Net\":\n\t"
                                                    "Original font size: 6.\nDatasource not "
                                                    "connected.")})),
              QStringList({QStringLiteral("Unsupported barcode symbols."),
                           QStringLiteral("\"Net\":\n\tOriginal font size: 6."),
                           QStringLiteral("Datasource not connected.")}));
}

TEST(IssueWords, PointToTheItemThatANoteQuotes)
{
    Painted page;
    page.make<TextItem>(KestTypes::SimpleText).setText(QStringLiteral("other"));
    page.make<TextItem>(KestTypes::SimpleText).setText(QStringLiteral("Net  \nweight"));
    const QList<ImportIssue> issues = collectIssues(
        page.canvas, {}, {QStringLiteral("\"Net weight\":\n\tOriginal font size: 6.\n\"gone\":")});
    ASSERT_EQ(issues.size(), 2);
    EXPECT_EQ(issues.at(0).item, 1);
    EXPECT_EQ(issues.at(1).item, -1);
}

TEST(IssueWords, CountWhatIsMetAgain)
{
    const workbench::Canvas canvas;
    const QList<ImportIssue> issues = collectIssues(
        canvas,
        {debugRecord("Not processing: \"teapot\""), debugRecord("Not processing: \"teapot\""),
         debugRecord("Not processing: \"kettle\""), debugRecord("for developers")},
        {});
    ASSERT_EQ(issues.size(), 2);
    EXPECT_EQ(issues.at(0).repeats, 2);
    EXPECT_EQ(issues.at(1).repeats, 1);
}

TEST(IssueWords, ShowErrorsOfTheLogAndExplainThoseThatAreKnown)
{
    const workbench::Canvas canvas;
    const QList<ImportIssue> issues =
        collectIssues(canvas,
                      {{true, {}, QStringLiteral("A picture is damaged")},
                       {true, {}, QStringLiteral("Invalid type: -7")},
                       debugRecord("Unsupported document type."),
                       debugRecord("Left out of the label: a picture")},
                      {});
    EXPECT_EQ(textsOf(issues),
              QStringList({QStringLiteral("A picture is damaged"),
                           QStringLiteral("The file goes on with a record of an unknown kind "
                                          "(-7): nothing was read from there on."),
                           QStringLiteral("The document is neither a text nor a drawing: nothing "
                                          "was taken from it."),
                           QStringLiteral("Left out of the label: a picture")}));
}

TEST(ImportLog, CollectsOnlyWhileItLives)
{
    const auto log = [](Logger::LogLevel level, const char* text) {
        CuteMessageLogger(loggerInstance(), level, "/some/where/x.cpp", 1, "f()").write("%s", text);
    };
    {
        const workbench::ImportLog collected;
        log(Logger::Debug, "one");
        log(Logger::Error, "two");
        EXPECT_EQ(collected.records(),
                  QList<LogRecord>({{false, QStringLiteral("x.cpp"), QStringLiteral("one")},
                                    {true, QStringLiteral("x.cpp"), QStringLiteral("two")}}));
    }
    log(Logger::Debug, "three"); // nobody there any more
    const workbench::ImportLog later;
    EXPECT_TRUE(later.records().isEmpty());
}

TEST(ImportLog, KeepsABoundedNumberOfRecords)
{
    const workbench::ImportLog collected;
    for (int i = 0; i < 3'000; ++i) {
        CuteMessageLogger(loggerInstance(), Logger::Debug, "x.cpp", 1, "f()").write("%d", i);
    }
    EXPECT_EQ(collected.records().size(), 1'000);
}
