// The log records of imports, and their explanations for users.

#include "workbench/import/failure_text.h"
#include "workbench/import/import_log.h"
#include "workbench/import/issue_text.h"
#include "workbench/import/known_messages.h"

#include "host/items/simple_text_item.h"
#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "painted.h"

#include <Logger.h>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

using workbench::argumentsOf;
using workbench::collectIssues;
using workbench::importFailureReason;
using workbench::ImportIssue;
using workbench::KnownMessage;
using workbench::LogRecord;
using workbench::recognize;

namespace {

using namespace Qt::StringLiterals;

QStringList issueTexts(const QList<ImportIssue>& issues)
{
    QStringList texts;
    for (const ImportIssue& issue : issues) {
        texts << issue.text;
    }
    return texts;
}

LogRecord debugRecord(const char* message)
{
    return {false, u"x"_s, QString::fromLatin1(message)};
}

LogRecord refusal(const char* code)
{
    return {false, u"x"_s, u"some words"_s, QString::fromLatin1(code)};
}

struct FailureRow
{
    const char* message;
    const char* words;
};

} // namespace

TEST(FailureText, ExplainTheMessagesOfTheReaders)
{
    for (const FailureRow& row :
         {FailureRow{"Invalid canvas file version (2000015 != 2000024) in /a/b.cnv",
                     "Not a binary label, or one of an unsupported version: the file has version "
                     "2000015, the oldest supported version is 2000016."},
          FailureRow{"Error opening file: /a/b.qmtx", "Cannot open the file."},
          FailureRow{"Error parsing file: /a/b.qmtx at line 3, column 14:\nno end",
                     "Not a label, or a damaged one: the XML is not well-formed at line 3, column "
                     "14 (no end)."},
          FailureRow{"Error parsing file: fileName / content.xml at line 3, column 14:\nno end",
                     "The document is damaged: content.xml is not well-formed at line 3, column 14 "
                     "(no end)."},
          FailureRow{"Error: the file is not a orvanta doc",
                     "The file is XML, but not a label: its root element is not \"qmtx\"."},
          FailureRow{"Invalid type: -7",
                     "Not a label, or a damaged one: the first object has the unknown type -7."},
          FailureRow{"Unable to get file styles.",
                     "Not an OpenDocument file, or a damaged one: styles.xml is missing or "
                     "unreadable."},
          FailureRow{"Unable to get file content.",
                     "The OpenDocument file is damaged: content.xml is missing or unreadable."}}) {
        EXPECT_EQ(importFailureReason({debugRecord("before"), debugRecord(row.message)}, {}),
                  QString::fromLatin1(row.words));
    }
}

TEST(FailureText, ExplainARefusalByItsCodeWhateverItsMessage)
{
    EXPECT_EQ(importFailureReason({refusal(refusals::FileTooLarge)}, {}),
              u"The file is too large for a label."_s);
    EXPECT_EQ(importFailureReason({refusal(refusals::TooManyControls)}, {}),
              u"The file has too many objects for a label."_s);
}

TEST(FailureText, FallBackToTheMessageBoxThenToTheLogThenToNothingReadable)
{
    const LogRecord error{true, u"x"_s, u"Something went wrong"_s};
    const QString box = u"Errors reading items."_s;
    EXPECT_EQ(importFailureReason({error}, {box}), box);
    EXPECT_EQ(importFailureReason({error, debugRecord("later")}, {}), error.message);
    EXPECT_EQ(importFailureReason({debugRecord("some debugging")}, {}),
              u"The file contains nothing to put on a label."_s);
}

TEST(FailureText, ContentOfAFileIsNotTakenForAPlaceholder)
{
    EXPECT_EQ(
        importFailureReason({debugRecord("Error parsing file: x at line 1, column 2:\n%1 %2")}, {}),
        u"Not a label, or a damaged one: the XML is not well-formed at line 1, "
        "column 2 (%1 %2)."_s);
}

TEST(KnownMessages, AreRecognizedByTheirFormat)
{
    const auto arguments = [](const char* format, const char* message) {
        return argumentsOf(QString::fromLatin1(format), QString::fromLatin1(message));
    };
    EXPECT_EQ(arguments("no arguments", "no arguments"), QStringList());
    EXPECT_EQ(arguments("no arguments", "no arguments at all"), std::nullopt);
    EXPECT_EQ(arguments("file %s: %lld", "file a: 7"), QStringList({u"a"_s, u"7"_s}));
    EXPECT_EQ(arguments("file %s: %lld", "file a: seven"), std::nullopt);
    EXPECT_EQ(arguments("%1 of %2.", "3 of 4."), QStringList({u"3"_s, u"4"_s}));
    EXPECT_EQ(arguments("%1 of %2.", "3 of 4"), std::nullopt);
    EXPECT_EQ(arguments("100 % of %s", "100 % of all"), QStringList({u"all"_s}));
}

TEST(KnownMessages, AnArgumentMayContainTheTextThatFollowsIt)
{
    const KnownMessage message = recognize(
        debugRecord("Error parsing file: at line x, column y at line 3, column 14:\nno end"));
    EXPECT_EQ(message.code, QLatin1String(messages::ParsingFailed));
    EXPECT_EQ(message.arguments,
              QStringList({u"at line x, column y"_s, u"3"_s, u"14"_s, u"no end"_s}));
}

TEST(KnownMessages, OtherRecordsHaveNoCode)
{
    EXPECT_EQ(recognize(debugRecord("for developers")).code, QString());
    EXPECT_EQ(recognize(debugRecord("No: Not processing: \"x\"")).code, QString());
}

TEST(IssueText, TakeTheTextOfABoxApart)
{
    const workbench::Canvas canvas;
    const QList<ImportIssue> issues =
        collectIssues(canvas, {},
                      {u"Errors reading symbol items.\nPlease update legacy Tavrel to its latest "
                       "version and re-save file.\nUnsupported barcode symbols.\n\"Net\":\n\t"
                       "Original font size: 6.\nDatasource not connected.\nSomething else."_s});
    EXPECT_EQ(issueTexts(issues),
              QStringList({u"Left out symbols: neither the file nor the symbol "
                           "databases contain their drawings."_s,
                           u"Left out barcodes of unsupported types."_s,
                           u"Text \"Net\" was stretched; its font size was 6 pt."_s,
                           u"The database is no longer connected; the label shows "
                           "its last values."_s,
                           u"Something else."_s}));
    EXPECT_EQ(issues.at(1).code, QLatin1String(messages::BarcodesUnsupported.text));
    EXPECT_EQ(issues.at(2).code, QLatin1String(messages::TextStretched.text));
    EXPECT_EQ(issues.at(4).code, QString());
}

TEST(IssueText, PointToTheItemThatANoteQuotes)
{
    Painted page;
    page.make<TextItem>(KestTypes::SimpleText).setText(u"other"_s);
    page.make<TextItem>(KestTypes::SimpleText).setText(u"Net  \nweight"_s);
    const QList<ImportIssue> issues = collectIssues(page.canvas, {},
                                                    {u"\"Net weight\":\n\tOriginal font size: 6.\n"
                                                     "\"gone\":\n\tOriginal font size: 7."_s});
    ASSERT_EQ(issues.size(), 2);
    EXPECT_EQ(issues.at(0).item, 1);
    EXPECT_EQ(issues.at(1).item, -1);
}

TEST(IssueText, CountWhatIsMetAgain)
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

TEST(IssueText, ShowErrorsOfTheLogAndExplainThoseThatAreKnown)
{
    const workbench::Canvas canvas;
    const QList<ImportIssue> issues = collectIssues(canvas,
                                                    {{true, {}, u"Something went wrong"_s},
                                                     {true, {}, u"Invalid type: -7"_s},
                                                     debugRecord("Unsupported document type."),
                                                     refusal(refusals::PictureTooLarge)},
                                                    {});
    EXPECT_EQ(issueTexts(issues),
              QStringList({u"Something went wrong"_s,
                           u"The file continues with an object of the unknown type "
                           "-7; the rest was not read."_s,
                           u"The document is neither a text nor a drawing; nothing "
                           "was imported from it."_s,
                           u"Left out a picture that is too large."_s}));
}

TEST(IssueText, ExplainEveryObjectThatAReaderRefuses)
{
    const workbench::Canvas canvas;
    for (const char* code :
         {refusals::ItemRefused, refusals::DatasourceRefused, refusals::PictureTooLarge,
          refusals::PictureFormat, refusals::PictureUnreadable, refusals::TextTooLong,
          refusals::TooManyItems, refusals::TooManyNotes, refusals::PackageMemberUnreadable,
          refusals::PackagePictureUnreadable, refusals::PackageDrawingUnreadable}) {
        const QList<ImportIssue> issues = collectIssues(canvas, {refusal(code)}, {});
        ASSERT_EQ(issues.size(), 1) << code;
        EXPECT_NE(issues.at(0).text, u"some words"_s) << code;
        EXPECT_EQ(issues.at(0).code, QLatin1String(code));
    }
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
                  QList<LogRecord>({{false, u"x"_s, u"one"_s}, {true, u"x"_s, u"two"_s}}));
    }
    log(Logger::Debug, "three"); // not collected
    const workbench::ImportLog later;
    EXPECT_TRUE(later.records().isEmpty());
}

TEST(ImportLog, KeepsTheCodeOfARefusal)
{
    const workbench::ImportLog collected;
    CuteMessageLogger(loggerInstance(), Logger::Debug, "x", 1, "f()",
                      refusals::category(refusals::TextTooLong))
        .write("too long");
    ASSERT_EQ(collected.records().size(), 1);
    EXPECT_EQ(collected.records().at(0).category, QLatin1String(refusals::TextTooLong));
}

TEST(ImportLog, KeepsABoundedNumberOfRecords)
{
    const workbench::ImportLog collected;
    for (int i = 0; i < 3'000; ++i) {
        CuteMessageLogger(loggerInstance(), Logger::Debug, "x.cpp", 1, "f()").write("%d", i);
    }
    EXPECT_EQ(collected.records().size(), 1'000);
}
