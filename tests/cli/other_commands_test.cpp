// `labelport inspect`, `formats` and `report`, from the outside.

#include "tests/cli/program_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using OtherCommands = LabelportProgram;

TEST_F(OtherCommands, InspectTellsWhatALabelHolds)
{
    const Outcome outcome =
        labelport({QStringLiteral("inspect"), sample("orvanta/asset_tag.qmtx")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("asset_tag.qmtx")));
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("barcode"))) << qPrintable(outcome.out);
}

TEST_F(OtherCommands, InspectTellsItAsJson)
{
    const Outcome outcome = labelport(
        {QStringLiteral("inspect"), sample("orvanta/asset_tag.qmtx"), QStringLiteral("--json")});
    const QJsonObject report = QJsonDocument::fromJson(outcome.out.toUtf8()).object();
    EXPECT_EQ(report.value(QLatin1String("status")).toString(), QStringLiteral("imported"));
    EXPECT_EQ(report.value(QLatin1String("reader")).toString(), QStringLiteral("orvanta"));
    EXPECT_FALSE(report.value(QLatin1String("items")).toArray().isEmpty());
}

TEST_F(OtherCommands, InspectOpensSavedLabels)
{
    labelport({QStringLiteral("import"), sample("orvanta/asset_tag.qmtx"), QStringLiteral("--to"),
               QStringLiteral("label")});
    const Outcome outcome = labelport(words("inspect asset_tag.label --json"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("\"label\"")));
}

TEST_F(OtherCommands, InspectSaysWhatFailed)
{
    write(QStringLiteral("broken.odg"), "no zip");
    const Outcome outcome = labelport(words("inspect broken.odg"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("broken.odg")));
    EXPECT_EQ(labelport(words("inspect missing.cnv")).status, 1);
}

TEST_F(OtherCommands, InspectHasTheLimitsOfImport)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "SKIPPED: no bounds of memory under the sanitizer";
#endif
    // A tree of so many elements takes some two hundred megabytes.
    write(QStringLiteral("wide.qmtx"), "<a>" + QByteArray("<b/>").repeated(1'000'000) + "</a>");
    const Outcome outcome = labelport(words("inspect wide.qmtx --timeout 0 --memory-limit 128"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.out.contains(QStringLiteral("128 MiB"))) << qPrintable(outcome.out);
}

TEST_F(OtherCommands, FormatsAreListed)
{
    const Outcome text = labelport(words("formats"));
    EXPECT_EQ(text.status, 0);
    for (const char* word : {"tavrel", "*.cnv", "*.roc", "orvanta", "*.qmtx", "opendocument",
                             "*.odt", "*.odg", "*.label", "2000016", "png", "svg", "pdf"}) {
        EXPECT_TRUE(text.out.contains(QLatin1String(word))) << word;
    }
    const QJsonObject json =
        QJsonDocument::fromJson(labelport(words("formats --json")).out.toUtf8()).object();
    EXPECT_EQ(json.value(QLatin1String("readers")).toArray().size(), 4);
    EXPECT_EQ(json.value(QLatin1String("targets")).toArray().size(), 4);
}

TEST_F(OtherCommands, ReportSaysWhatItCannotMerge)
{
    write(QStringLiteral("no.json"), "{}");
    const Outcome outcome = labelport(words("report merge no.json --to all.json"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(has("all.json"));
}

TEST_F(OtherCommands, ShowHelpThatNamesThem)
{
    for (const char* command : {"import", "inspect", "formats", "report"}) {
        const Outcome outcome = labelport({QLatin1String(command), QStringLiteral("--help")});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(
            outcome.out.startsWith(QStringLiteral("Usage: labelport ") + QLatin1String(command)))
            << qPrintable(outcome.out.left(80));
        EXPECT_TRUE(outcome.out.contains(QStringLiteral("Examples:")));
    }
}

TEST_F(OtherCommands, RefuseWrongArguments)
{
    for (const char* line : {"inspect", "inspect a b", "inspect a --reader x", "inspect --x a",
                             "inspect a --timeout x", "inspect a --memory-limit 127", "formats a",
                             "formats --x", "report", "report split a.json", "report merge",
                             "report merge a.json", "report merge --to b.json", "worker"}) {
        SCOPED_TRACE(line);
        const Outcome outcome = labelport(words(line));
        if (QLatin1String(line) != QLatin1String("worker")) {
            EXPECT_EQ(outcome.status, 2);
            EXPECT_FALSE(outcome.err.isEmpty());
        } else {
            EXPECT_NE(outcome.status, 0);
        }
    }
}

} // namespace
