// The program labelport from the outside: what a person or a script sees of it.

#include "tests/cli/program_fixture.h"

#include <QImage>

namespace {

TEST_F(LabelportProgram, ImportsALabelFromAnEmptyEnvironment)
{
    const Outcome outcome =
        labelport({QStringLiteral("import"), sample("opendocument/address_label.odg")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, QStringLiteral("address_label.png\n"));
    EXPECT_EQ(outcome.err, QString());

    // 89 mm by 36 mm at 300 dots per inch.
    const QImage picture(path(QStringLiteral("address_label.png")));
    EXPECT_NEAR(picture.width(), 89 / 25.4 * 300, 1.0);
    EXPECT_NEAR(picture.height(), 36 / 25.4 * 300, 1.0);
    EXPECT_EQ(picture.dotsPerMeterX(), 11811);
}

TEST_F(LabelportProgram, ImportsEveryFormat)
{
    const Outcome outcome = labelport(
        {QStringLiteral("import"), sample("opendocument/care_label.odt"),
         sample("opendocument/high_voltage.odg"), sample("tavrel/address_2000016.cnv"),
         sample("orvanta/asset_tag.qmtx"), QStringLiteral("--output-dir"),
         QStringLiteral("pictures/of/labels"), QStringLiteral("--dpi"), QStringLiteral("72")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    const QStringList lines = outcome.out.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4);
    for (const QString& line : lines) {
        EXPECT_FALSE(QImage(path(line)).isNull()) << qPrintable(line);
    }
}

TEST_F(LabelportProgram, GoesOnBehindAFileThatFails)
{
    write(QStringLiteral("broken.odg"), "no zip at all");
    const Outcome outcome =
        labelport({QStringLiteral("import"), QStringLiteral("broken.odg"),
                   QStringLiteral("missing.cnv"), sample("opendocument/sample_vial.odg")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, QStringLiteral("sample_vial.png\n"));
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("labelport: broken.odg: ")));
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("labelport: missing.cnv: ")));
    EXPECT_TRUE(outcome.err.endsWith(QStringLiteral("labelport: 2 of 3 files failed.\n")));
    EXPECT_FALSE(QFileInfo::exists(path(QStringLiteral("broken.png"))));
}

TEST_F(LabelportProgram, LeavesSomebodysFileAlone)
{
    write(QStringLiteral("sample_vial.png"), "somebody's own");
    const QStringList command = {QStringLiteral("import"), sample("opendocument/sample_vial.odg")};
    const Outcome refused = labelport(command);
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(QStringLiteral("--force")));
    EXPECT_EQ(read(QStringLiteral("sample_vial.png")), "somebody's own");

    EXPECT_EQ(labelport(command + QStringList{QStringLiteral("--force")}).status, 0);
    EXPECT_NE(read(QStringLiteral("sample_vial.png")), "somebody's own");
}

TEST_F(LabelportProgram, ReplacesItsOwnPictures)
{
    const QStringList command = {QStringLiteral("import"), sample("opendocument/sample_vial.odg")};
    EXPECT_EQ(labelport(command).status, 0);
    EXPECT_EQ(
        labelport(command + QStringList{QStringLiteral("--dpi"), QStringLiteral("100")}).status, 0);
    EXPECT_NEAR(QImage(path(QStringLiteral("sample_vial.png"))).width(), 60 / 25.4 * 100, 1.0);
}

TEST_F(LabelportProgram, WritesEveryTargetAtOnce)
{
    const Outcome outcome =
        labelport({QStringLiteral("import"), sample("orvanta/asset_tag.qmtx"),
                   QStringLiteral("--to"), QStringLiteral("label,png,svg,pdf")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out,
              QStringLiteral("asset_tag.label\nasset_tag.png\nasset_tag.svg\nasset_tag.pdf\n"));
    EXPECT_TRUE(read(QStringLiteral("asset_tag.pdf")).startsWith("%PDF-"));
    EXPECT_TRUE(read(QStringLiteral("asset_tag.svg")).contains("<svg "));
}

TEST_F(LabelportProgram, ShowsASavedLabelAsItShowedTheLegacyOne)
{
    const QString legacy = sample("orvanta/warning_sign.qmtx");
    ASSERT_EQ(labelport({QStringLiteral("import"), legacy, QStringLiteral("--to"),
                         QStringLiteral("label,png"), QStringLiteral("--output-dir"),
                         QStringLiteral("first")})
                  .status,
              0);
    const Outcome outcome =
        labelport({QStringLiteral("import"), QStringLiteral("first/warning_sign.label"),
                   QStringLiteral("--output-dir"), QStringLiteral("second")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    const QImage first(path(QStringLiteral("first/warning_sign.png")));
    ASSERT_FALSE(first.isNull());
    EXPECT_EQ(first, QImage(path(QStringLiteral("second/warning_sign.png"))));
}

TEST_F(LabelportProgram, NumbersThePicturesOfASeries)
{
    const QString counter = sample("orvanta/asset_tag.qmtx");
    const Outcome outcome =
        labelport({QStringLiteral("import"), counter, QStringLiteral("--dpi"), QStringLiteral("50"),
                   QStringLiteral("--records"), QStringLiteral("2-3")});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, QStringLiteral("asset_tag-0002.png\nasset_tag-0003.png\n"));
    EXPECT_NE(QImage(path(QStringLiteral("asset_tag-0002.png"))),
              QImage(path(QStringLiteral("asset_tag-0003.png"))));
}

// The number of records that are written decides, not the way they are given.
TEST_F(LabelportProgram, NumbersFilesOnlyIfThereAreSeveral)
{
    for (const char* records : {"5", "5-5"}) {
        const Outcome outcome = labelport(
            {QStringLiteral("import"), sample("orvanta/asset_tag.qmtx"),
             QStringLiteral("--records"), QString::fromLatin1(records), QStringLiteral("--force")});
        EXPECT_EQ(outcome.out, QStringLiteral("asset_tag.png\n")) << records;
    }
    const Outcome outcome =
        labelport({QStringLiteral("import"), sample("opendocument/sample_vial.odg"),
                   QStringLiteral("--records"), QStringLiteral("all")});
    EXPECT_EQ(outcome.out, QStringLiteral("sample_vial.png\n"));
}

TEST_F(LabelportProgram, RefusesRecordsThatALabelDoesNotHave)
{
    const Outcome outcome =
        labelport({QStringLiteral("import"), sample("opendocument/sample_vial.odg"),
                   QStringLiteral("--records"), QStringLiteral("2")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains(QStringLiteral("only 1 records")));
}

TEST_F(LabelportProgram, NeverReplacesASavedLabelUnasked)
{
    const QStringList command = {QStringLiteral("import"), sample("opendocument/sample_vial.odg"),
                                 QStringLiteral("--to"), QStringLiteral("label")};
    EXPECT_EQ(labelport(command).status, 0);
    EXPECT_EQ(labelport(command).status, 1);
    EXPECT_EQ(labelport(command + QStringList{QStringLiteral("--force")}).status, 0);
}

TEST_F(LabelportProgram, ReplacesItsOwnDrawingsAndDocuments)
{
    const QStringList command = {QStringLiteral("import"), sample("opendocument/sample_vial.odg"),
                                 QStringLiteral("--to"), QStringLiteral("svg,pdf")};
    EXPECT_EQ(labelport(command).status, 0);
    const Outcome again = labelport(command);
    EXPECT_EQ(again.status, 0) << qPrintable(again.err);
}

TEST_F(LabelportProgram, SaysWhatIsWrongWithTheCommandLine)
{
    const QList<QStringList> wrong = {
        {},
        {QStringLiteral("convert")},
        {QStringLiteral("import")},
        {QStringLiteral("import"), QStringLiteral("a.odg"), QStringLiteral("--to"),
         QStringLiteral("bmp")},
        {QStringLiteral("import"), QStringLiteral("a.odg"), QStringLiteral("--dpi"),
         QStringLiteral("0")},
        {QStringLiteral("import"), QStringLiteral("--no-such-option"), QStringLiteral("a.odg")},
        {QStringLiteral("trace")},
    };
    for (const QStringList& arguments : wrong) {
        SCOPED_TRACE(qPrintable(arguments.join(QLatin1Char(' '))));
        const Outcome outcome = labelport(arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, QString());
        EXPECT_FALSE(outcome.err.isEmpty());
    }
}

TEST_F(LabelportProgram, ShowsHelpAndVersion)
{
    for (const char* word : {"--help", "-h", "help"}) {
        const Outcome outcome = labelport({QString::fromLatin1(word)});
        EXPECT_EQ(outcome.status, 0);
        EXPECT_TRUE(outcome.out.startsWith(QStringLiteral("Usage: labelport COMMAND")));
    }
    EXPECT_TRUE(
        labelport({QStringLiteral("--version")}).out.startsWith(QStringLiteral("labelport ")));
    EXPECT_TRUE(labelport({QStringLiteral("import"), QStringLiteral("--help")})
                    .out.contains(QStringLiteral("--output-dir")));
}

TEST_F(LabelportProgram, HandsATraceOverToTheTracer)
{
    const Outcome outcome =
        labelport({QStringLiteral("trace"), sample("opendocument/sample_vial.odg")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.startsWith(
        QStringLiteral(R"({"trace":1,"file":"sample_vial.odg","reader":"opendocument"})")))
        << qPrintable(outcome.out.left(200));
    EXPECT_TRUE(outcome.out.endsWith(QStringLiteral("{\"result\":true}\n")));
    EXPECT_EQ(labelport({QStringLiteral("trace"), QStringLiteral("missing.odg")}).status, 1);
}

// Results do not pass through Qt's logging, so no rule takes from them or adds to them.
TEST_F(LabelportProgram, SaysTheSameUnderEveryLoggingRule)
{
    for (const char* command : {"import", "trace"}) {
        SCOPED_TRACE(command);
        const QStringList arguments = {QString::fromLatin1(command),
                                       sample("opendocument/goods_in.odt")};
        const Outcome silent = labelport(arguments, {QStringLiteral("QT_LOGGING_RULES=*=false")});
        const Outcome loud =
            labelport(arguments, {QStringLiteral("QT_LOGGING_RULES=*.debug=true")});
        EXPECT_EQ(silent.status, 0);
        EXPECT_FALSE(silent.out.isEmpty());
        EXPECT_EQ(silent.out, loud.out);
    }
}

} // namespace
