// The events of `labelport import --json`, from the outside.

#include "tests/cli/program_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using namespace Qt::StringLiterals;

using ImportEvents = ImportArchive;

QList<QJsonObject> eventsIn(const Outcome& outcome)
{
    QList<QJsonObject> events;
    for (const QByteArray& line : outcome.bytes.trimmed().split('\n')) {
        events.append(QJsonDocument::fromJson(line).object());
        EXPECT_FALSE(events.last().isEmpty()) << line.toStdString();
        EXPECT_EQ(events.last().value("version"_L1).toInt(), 1);
    }
    return events;
}

TEST_F(ImportEvents, DescribeEachFileInTheOrderOfNames)
{
    write(u"old/aa.odg"_s, "no zip");
    const Outcome outcome = labelport(import("old --output-dir new --json"));
    EXPECT_EQ(outcome.status, 1);
    const QList<QJsonObject> events = eventsIn(outcome);
    ASSERT_EQ(events.size(), 6);
    QStringList names;
    for (const QJsonObject& event : events.first(5)) {
        EXPECT_EQ(event.value("event"_L1).toString(), u"file"_s);
        names.append(event.value("file"_L1).toString());
    }
    EXPECT_EQ(names,
              (QStringList{u"old/aa.odg"_s, u"old/tags/asset.qmtx"_s, u"old/tags/more/sign.QMTX"_s,
                           u"old/tags/shelf.roc"_s, u"old/vial.odg"_s}));
    EXPECT_EQ(events.at(0).value("status"_L1).toString(), u"failed"_s);
    EXPECT_EQ(events.at(0).value("verdict"_L1).toString(), u"failed"_s);
    EXPECT_EQ(events.at(0).value("errors"_L1).toArray().size(), 1);
    EXPECT_TRUE(events.at(0).value("outputs"_L1).toArray().isEmpty());
    EXPECT_EQ(events.at(1).value("status"_L1).toString(), u"imported"_s);
    EXPECT_EQ(events.at(1).value("outputs"_L1).toArray(), QJsonArray{u"new/tags/asset.png"_s});

    const QJsonObject end = events.last();
    EXPECT_EQ(end.value("event"_L1).toString(), u"end"_s);
    EXPECT_EQ(end.value("imported"_L1).toInt(), 4);
    EXPECT_EQ(end.value("failed"_L1).toInt(), 1);
    EXPECT_EQ(end.value("ignored"_L1).toInt(), 1);
    EXPECT_EQ(end.value("status"_L1).toInt(), 1);
    EXPECT_TRUE(outcome.err.contains(u"labelport: old/aa.odg: "_s)) << "messages stay";
}

TEST_F(ImportEvents, MarkResumedFiles)
{
    ASSERT_EQ(labelport(import("old --output-dir new")).status, 0);
    const QList<QJsonObject> events =
        eventsIn(labelport(import("old --output-dir new --json --resume")));
    ASSERT_EQ(events.size(), 5);
    for (const QJsonObject& event : events.first(4)) {
        EXPECT_TRUE(event.value("resumed"_L1).toBool());
        EXPECT_EQ(event.value("outputs"_L1).toArray().size(), 1);
    }
    EXPECT_EQ(events.last().value("skipped"_L1).toInt(), 4);
    EXPECT_EQ(events.last().value("imported"_L1).toInt(), 0);
}

TEST_F(ImportEvents, HaveTheVerdictOfReports)
{
    write(u"lossy.qmtx"_s, "<qmtx><controls><rich_box/><transparent_label/></controls></qmtx>");
    const Outcome outcome = labelport(import("lossy.qmtx old/vial.odg --json --fail-on-loss"));
    EXPECT_EQ(outcome.status, 3);
    const QList<QJsonObject> events = eventsIn(outcome);
    ASSERT_EQ(events.size(), 3);
    EXPECT_EQ(events.at(0).value("verdict"_L1).toString(), u"lossy"_s);
    EXPECT_NE(events.at(1).value("verdict"_L1).toString(), u"lossy"_s);
    EXPECT_EQ(events.last().value("status"_L1).toInt(), 3);
}

TEST_F(ImportEvents, EndEvenIfNothingCanBeImported)
{
    ASSERT_TRUE(QDir().mkpath(path(u"empty"_s)));
    const Outcome outcome = labelport(import("empty --json"));
    EXPECT_EQ(outcome.status, 1);
    const QList<QJsonObject> events = eventsIn(outcome);
    ASSERT_EQ(events.size(), 1);
    EXPECT_EQ(events.first().value("event"_L1).toString(), u"end"_s);
    EXPECT_EQ(events.first().value("status"_L1).toInt(), 1);
}

// Programs read the texts; they are the same in every language.
TEST_F(ImportEvents, AreEnglish)
{
    write(u"broken.odg"_s, "no zip");
    const QStringList command = import("broken.odg --json");
    EXPECT_EQ(labelport(command, {u"LANGUAGE=de"_s, u"LC_ALL=de_DE.UTF-8"_s}).bytes,
              labelport(command).bytes);
}

} // namespace
