// `labelport inspect`, `formats` and `report`, from the outside.

#include "exporting/targets.h"
#include "tests/cli/program_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using namespace Qt::StringLiterals;

using OtherCommands = LabelportProgram;

TEST_F(OtherCommands, InspectPrintsTheContentOfALabel)
{
    const Outcome outcome = labelport({u"inspect"_s, sample("orvanta/asset_tag.qmtx")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.out.contains(u"asset_tag.qmtx"_s));
    EXPECT_TRUE(outcome.out.contains(u"Barcode"_s)) << qPrintable(outcome.out);
}

TEST_F(OtherCommands, InspectPrintsJson)
{
    const Outcome outcome =
        labelport({u"inspect"_s, sample("orvanta/asset_tag.qmtx"), u"--json"_s});
    const QJsonObject report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    EXPECT_EQ(report.value("status"_L1).toString(), u"imported"_s);
    EXPECT_EQ(report.value("reader"_L1).toString(), u"orvanta"_s);
    EXPECT_FALSE(report.value("items"_L1).toArray().isEmpty());
}

TEST_F(OtherCommands, InspectOpensSavedLabels)
{
    labelport({u"import"_s, sample("orvanta/asset_tag.qmtx"), u"--to"_s, u"label"_s});
    const Outcome outcome = labelport(words("inspect asset_tag.label --json"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.out.contains(u"\"label\""_s));
}

TEST_F(OtherCommands, InspectSaysWhatFailed)
{
    write(u"broken.odg"_s, "no zip");
    const Outcome outcome = labelport(words("inspect broken.odg"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.out.contains(u"broken.odg"_s));
    EXPECT_EQ(labelport(words("inspect missing.cnv")).status, 1);
}

TEST_F(OtherCommands, InspectHasTheLimitsOfImport)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    // A tree of so many elements takes more than a hundred megabytes.
    write(u"wide.qmtx"_s, "<a>" + QByteArray("<b/>").repeated(5'000'000) + "</a>");
    const Outcome outcome = labelport(words("inspect wide.qmtx --timeout 0 --memory-limit 128"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.out.contains(u"128 MiB"_s)) << qPrintable(outcome.out);
}

TEST_F(OtherCommands, InspectReadsStandardInput)
{
    for (const char* line : {"inspect - --json", "inspect - --json --reader orvanta"}) {
        QFile label(sample("orvanta/asset_tag.qmtx"));
        ASSERT_TRUE(label.open(QIODevice::ReadOnly));
        const Outcome outcome = labelport(words(line), {}, label.readAll());
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
        const QJsonObject report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
        EXPECT_EQ(report.value("file"_L1).toString(), u"stdin"_s);
        EXPECT_EQ(report.value("reader"_L1).toString(), u"orvanta"_s);
    }
}

// A script must learn that its output is incomplete.
TEST_F(OtherCommands, FailIfStandardOutputCannotBeWritten)
{
    copy("orvanta/asset_tag.qmtx", "a.qmtx");
    for (const char* command : {"--help", "--version", "formats", "formats --json", "import --help",
                                "inspect a.qmtx", "inspect a.qmtx --json", "import a.qmtx",
                                "trace a.qmtx", "trace --help", "trace --version"}) {
        for (const char* closed : {">/dev/full", ">&-"}) {
            SCOPED_TRACE(command);
            QProcess shell;
            shell.setWorkingDirectory(path(QString()));
            shell.start(u"sh"_s,
                        {u"-c"_s,
                         u"exec \"$0\" %1 %2"_s.arg(QLatin1String(command), QLatin1String(closed)),
                         QStringLiteral(LABELPORT_PROGRAM)});
            ASSERT_TRUE(shell.waitForFinished(120'000));
            EXPECT_EQ(shell.exitCode(), 1) << closed;
            EXPECT_TRUE(shell.readAllStandardError().contains("Cannot write to standard output: "))
                << closed;
        }
    }
}

TEST_F(OtherCommands, PrintNoWarningsOfQt)
{
    for (const char* command : {"inspect", "trace"}) {
        const Outcome outcome =
            labelport({QLatin1String(command), sample("opendocument/sample_vial.odg")});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_EQ(outcome.err, QString()) << "no XDG_RUNTIME_DIR in this environment";
    }
}

TEST_F(OtherCommands, FormatsAreListed)
{
    const Outcome text = labelport(words("formats"));
    EXPECT_EQ(text.status, 0);
    for (const char* word :
         {"tavrel", "*.cnv", "*.roc", "orvanta", "*.qmtx", "opendocument", "*.odt", "*.odg",
          "*.label", "2000016", "png", "svg", "pdf", "L7160, J8160", "5160", "63.5 × 38.1 mm"}) {
        EXPECT_TRUE(text.out.contains(QString::fromUtf8(word))) << word;
    }
    const QJsonObject json =
        QJsonDocument::fromJson(labelport(words("formats --json")).out.toUtf8()).object();
    EXPECT_EQ(json.value("readers"_L1).toArray().size(), 4);
    const QJsonArray targets = json.value("targets"_L1).toArray();
    ASSERT_EQ(targets.size(), exporting::targetNames().size());
    const QJsonObject png = targets.first().toObject();
    EXPECT_EQ(png.value("name"_L1).toString(), u"png"_s);
    EXPECT_EQ(png.value("suffix"_L1).toString(), u"png"_s);
    EXPECT_EQ(png.value("records"_L1).toString(), u"file-for-each"_s);
    const QJsonObject dpi = png.value("options"_L1).toArray().first().toObject();
    EXPECT_EQ(dpi.value("name"_L1).toString(), u"dpi"_s);
    EXPECT_EQ(dpi.value("type"_L1).toString(), u"number"_s);
    EXPECT_EQ(dpi.value("minimum"_L1).toInt(), 10);
    EXPECT_EQ(dpi.value("maximum"_L1).toInt(), 2400);
    EXPECT_EQ(dpi.value("default"_L1).toInt(), 300);
    EXPECT_GE(json.value("sheets"_L1).toArray().size(), 30);
}

TEST_F(OtherCommands, ReportSaysWhatItCannotMerge)
{
    write(u"no.json"_s, "{}");
    const Outcome outcome = labelport(words("report merge no.json --to all.json"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(has("all.json"));
}

TEST_F(OtherCommands, ShowHelpThatNamesThem)
{
    for (const char* command : {"import", "inspect", "list", "formats", "report"}) {
        const Outcome outcome = labelport({QLatin1String(command), u"--help"_s});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.out.startsWith(u"Usage: labelport "_s + QLatin1String(command)))
            << qPrintable(outcome.out.left(80));
        EXPECT_TRUE(outcome.out.contains(u"Examples:"_s));
    }
}

TEST_F(OtherCommands, RefuseWrongArguments)
{
    for (const char* line : {"inspect",
                             "inspect a b",
                             "inspect a --reader x",
                             "inspect --x a",
                             "inspect a --timeout x",
                             "inspect a --memory-limit 127",
                             "formats a",
                             "formats --x",
                             "report",
                             "report split a.json",
                             "report merge",
                             "report merge a.json",
                             "report merge --to b.json",
                             "formats --jsn",
                             "worker",
                             "list",
                             "list a",
                             "list --to l",
                             "list a --to l --shards 0",
                             "list a --to l --shards 100001",
                             "list - --to l",
                             "list a --to l --null"}) {
        SCOPED_TRACE(line);
        const Outcome outcome = labelport(words(line));
        if (QLatin1String(line) != "worker"_L1) {
            EXPECT_EQ(outcome.status, 2);
            EXPECT_FALSE(outcome.err.isEmpty());
        } else {
            EXPECT_NE(outcome.status, 0);
        }
    }
}

} // namespace
