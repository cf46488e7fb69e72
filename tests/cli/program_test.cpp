// The program labelport from the outside: what a person or a script sees of it.

#include "tests/cli/program_fixture.h"

#include <QImage>

using namespace Qt::Literals::StringLiterals;

namespace {
using namespace Qt::StringLiterals;

TEST_F(LabelportProgram, ImportsALabelFromAnEmptyEnvironment)
{
    const Outcome outcome =
        labelport({u"import"_s, sample("opendocument/address_label.odg"), u"--quiet"_s});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"address_label.png\n"_s);
    EXPECT_EQ(outcome.err, QString());

    // 89 mm by 36 mm at 300 dots per inch.
    const QImage picture(path(u"address_label.png"_s));
    EXPECT_NEAR(picture.width(), 89 / 25.4 * 300, 1.0);
    EXPECT_NEAR(picture.height(), 36 / 25.4 * 300, 1.0);
    EXPECT_EQ(picture.dotsPerMeterX(), 11811);
}

TEST_F(LabelportProgram, ImportsEveryFormat)
{
    const Outcome outcome =
        labelport({u"import"_s, sample("opendocument/care_label.odt"),
                   sample("opendocument/high_voltage.odg"), sample("tavrel/address_2000016.cnv"),
                   sample("orvanta/asset_tag.qmtx"), u"--output-dir"_s, u"pictures/of/labels"_s,
                   u"--dpi"_s, u"72"_s});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    const QStringList lines = outcome.out.split(u'\n', Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 4);
    for (const QString& line : lines) {
        EXPECT_FALSE(QImage(path(line)).isNull()) << qPrintable(line);
    }
}

TEST_F(LabelportProgram, ContinuesAfterAFileThatFails)
{
    write(u"broken.odg"_s, "no zip at all");
    const Outcome outcome = labelport(
        {u"import"_s, u"broken.odg"_s, u"missing.cnv"_s, sample("opendocument/sample_vial.odg")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, u"sample_vial.png\n"_s);
    EXPECT_TRUE(outcome.err.contains(u"labelport: broken.odg: "_s));
    EXPECT_TRUE(outcome.err.contains(u"labelport: missing.cnv: "_s));
    EXPECT_TRUE(outcome.err.contains(u"labelport: 2 files failed.\n"_s));
    EXPECT_TRUE(outcome.err.contains(u"failed: 2."_s)) << qPrintable(outcome.err);
    EXPECT_FALSE(QFileInfo::exists(path(u"broken.png"_s)));
}

TEST_F(LabelportProgram, NeverOverwritesAForeignFile)
{
    write(u"sample_vial.png"_s, "the user's own");
    const QStringList command = {u"import"_s, sample("opendocument/sample_vial.odg")};
    const Outcome refused = labelport(command);
    EXPECT_EQ(refused.status, 1);
    EXPECT_TRUE(refused.err.contains(u"--force"_s));
    EXPECT_EQ(read(u"sample_vial.png"_s), "the user's own");

    EXPECT_EQ(labelport(command + QStringList{u"--force"_s}).status, 0);
    EXPECT_NE(read(u"sample_vial.png"_s), "the user's own");
}

TEST_F(LabelportProgram, ReplacesItsOwnPictures)
{
    const QStringList command = {u"import"_s, sample("opendocument/sample_vial.odg")};
    EXPECT_EQ(labelport(command).status, 0);
    EXPECT_EQ(labelport(command + QStringList{u"--dpi"_s, u"100"_s}).status, 0);
    EXPECT_NEAR(QImage(path(u"sample_vial.png"_s)).width(), 60 / 25.4 * 100, 1.0);
}

TEST_F(LabelportProgram, WritesEveryTargetAtOnce)
{
    const Outcome outcome = labelport(
        {u"import"_s, sample("orvanta/asset_tag.qmtx"), u"--to"_s, u"label,png,svg,pdf"_s});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"asset_tag.label\nasset_tag.png\nasset_tag.svg\nasset_tag.pdf\n"_s);
    EXPECT_TRUE(read(u"asset_tag.pdf"_s).startsWith("%PDF-"));
    EXPECT_TRUE(read(u"asset_tag.svg"_s).contains("<svg "));
}

TEST_F(LabelportProgram, ShowsASavedLabelAsItShowedTheLegacyOne)
{
    const QString legacy = sample("orvanta/warning_sign.qmtx");
    ASSERT_EQ(
        labelport({u"import"_s, legacy, u"--to"_s, u"label,png"_s, u"--output-dir"_s, u"first"_s})
            .status,
        0);
    const Outcome outcome =
        labelport({u"import"_s, u"first/warning_sign.label"_s, u"--output-dir"_s, u"second"_s});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    const QImage first(path(u"first/warning_sign.png"_s));
    ASSERT_FALSE(first.isNull());
    EXPECT_EQ(first, QImage(path(u"second/warning_sign.png"_s)));
}

TEST_F(LabelportProgram, NumbersThePicturesOfASeries)
{
    const QString counter = sample("orvanta/asset_tag.qmtx");
    const Outcome outcome =
        labelport({u"import"_s, counter, u"--dpi"_s, u"50"_s, u"--records"_s, u"2-3"_s});
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"asset_tag-0002.png\nasset_tag-0003.png\n"_s);
    EXPECT_NE(QImage(path(u"asset_tag-0002.png"_s)), QImage(path(u"asset_tag-0003.png"_s)));
}

// The number of records that are written decides, not the way they are given.
TEST_F(LabelportProgram, NumbersFilesOnlyIfThereAreSeveral)
{
    for (const char* records : {"5", "5-5"}) {
        const Outcome outcome =
            labelport({u"import"_s, sample("orvanta/asset_tag.qmtx"), u"--records"_s,
                       QString::fromLatin1(records), u"--force"_s});
        EXPECT_EQ(outcome.out, u"asset_tag.png\n"_s) << records;
    }
    const Outcome outcome =
        labelport({u"import"_s, sample("opendocument/sample_vial.odg"), u"--records"_s, u"all"_s});
    EXPECT_EQ(outcome.out, u"sample_vial.png\n"_s);
}

TEST_F(LabelportProgram, PutsRecordsOnSheets)
{
    const auto pagesOf = [this](const char* options) {
        const Outcome outcome = labelport(QStringList{u"import"_s, sample("orvanta/asset_tag.qmtx"),
                                                      u"--to"_s, u"pdf"_s, u"--force"_s} +
                                          words(options));
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
        return read(u"asset_tag.pdf"_s).count("/Type /Page\n");
    };
    EXPECT_EQ(pagesOf("--records 1-20"), 20);
    EXPECT_EQ(pagesOf("--records 1-20 --copies 2"), 40);
    EXPECT_EQ(pagesOf("--records 1-20 --sheet L7163 --crop-marks"), 2);
    EXPECT_EQ(pagesOf("--records 1-8 --sheet L7163 --copies 2 --first-position 14"), 3);
    EXPECT_EQ(pagesOf("--sheet letter"), 1);
}

TEST_F(LabelportProgram, RefusesSheetsForWhichALabelIsTooLarge)
{
    const Outcome outcome = labelport(QStringList{u"import"_s, sample("orvanta/asset_tag.qmtx")} +
                                      words("--to pdf --sheet L4731"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains(u"the labels of sheet \"L4731\" are only 25.4 × 10 mm."_s))
        << qPrintable(outcome.err);
    EXPECT_FALSE(has("asset_tag.pdf"));
}

TEST_F(LabelportProgram, RefusesRecordsThatALabelDoesNotHave)
{
    const Outcome outcome =
        labelport({u"import"_s, sample("opendocument/sample_vial.odg"), u"--records"_s, u"2"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains(u"has only 1 record; record 2"_s));
}

// A label that an import saved has a mark and a checksum; editing it invalidates one of them.
TEST_F(LabelportProgram, ReplacesOnlyUneditedLabels)
{
    const QStringList command =
        words("import --to label") + QStringList{sample("opendocument/sample_vial.odg")};
    EXPECT_EQ(labelport(command).status, 0);
    const Outcome again = labelport(command);
    EXPECT_EQ(again.status, 0) << qPrintable(again.err);

    const QByteArray label = read(u"sample_vial.label"_s);
    const QList<QByteArray> edited{
        QByteArray(label).replace("\"rotation\": 0,", "\"rotation\": 9,"),
        QByteArray(label).replace("\"origin\": \"import\"", "\"\": 0"),
        QByteArray(label).replace("\"checksum\"", "\"nothing\"")};
    for (const QByteArray& bytes : edited) {
        ASSERT_NE(bytes, label);
        write(u"sample_vial.label"_s, bytes);
        const Outcome refused = labelport(command);
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.err.contains(u"has been edited since. Use --force"_s));
        EXPECT_EQ(read(u"sample_vial.label"_s), bytes);
    }
    EXPECT_EQ(labelport(command + QStringList{u"--force"_s}).status, 0);
}

TEST_F(LabelportProgram, NamesAFolderInThePlaceOfAnOutput)
{
    ASSERT_TRUE(QDir().mkpath(path(u"sample_vial.png"_s)));
    for (const char* option : {"--dpi=40", "--force"}) {
        const Outcome outcome = labelport(
            {u"import"_s, sample("opendocument/sample_vial.odg"), QString::fromLatin1(option)});
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.err.endsWith(
            u"Cannot write \"sample_vial.png\": a folder of that name exists.\n"_s))
            << qPrintable(outcome.err);
    }
}

// libpng would print an error of its own.
TEST_F(LabelportProgram, LooksForItsMarkWithoutReadingThePicture)
{
    write(u"sample_vial.png"_s, "\x89PNG\r\n\x1A\n and nothing else");
    const Outcome outcome = labelport({u"import"_s, sample("opendocument/sample_vial.odg")});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_FALSE(outcome.err.contains(u"libpng"_s)) << qPrintable(outcome.err);
}

TEST_F(LabelportProgram, ReplacesItsOwnDrawingsAndDocuments)
{
    const QStringList command = {u"import"_s, sample("opendocument/sample_vial.odg"), u"--to"_s,
                                 u"svg,pdf"_s};
    EXPECT_EQ(labelport(command).status, 0);
    const Outcome again = labelport(command);
    EXPECT_EQ(again.status, 0) << qPrintable(again.err);
}

TEST_F(LabelportProgram, SaysWhatIsWrongWithTheCommandLine)
{
    const QList<QStringList> wrong = {
        {},
        {u"convert"_s},
        {u"import"_s},
        {u"import"_s, u"a.odg"_s, u"--to"_s, u"bmp"_s},
        {u"import"_s, u"a.odg"_s, u"--dpi"_s, u"0"_s},
        {u"import"_s, u"--no-such-option"_s, u"a.odg"_s},
        {u"trace"_s},
    };
    const Outcome misspelled = labelport(words("imprt a.odg"));
    EXPECT_TRUE(misspelled.err.contains(u"Unknown command \"imprt\". Did you mean \"import\"?"_s));
    for (const QStringList& arguments : wrong) {
        SCOPED_TRACE(qPrintable(arguments.join(u' ')));
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
        EXPECT_TRUE(outcome.out.startsWith(u"Usage: labelport COMMAND"_s));
    }
    EXPECT_TRUE(labelport({u"--version"_s}).out.startsWith(u"labelport "_s));
    EXPECT_TRUE(labelport({u"import"_s, u"--help"_s}).out.contains(u"--output-dir"_s));
}

TEST_F(LabelportProgram, HandsATraceOverToTheTracer)
{
    const Outcome outcome = labelport({u"trace"_s, sample("opendocument/sample_vial.odg")});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.out.startsWith(
        uR"({"trace":1,"file":"sample_vial.odg","reader":"opendocument"})"_s))
        << qPrintable(outcome.out.left(200));
    EXPECT_TRUE(outcome.out.endsWith(u"{\"result\":true}\n"_s));
    EXPECT_EQ(labelport({u"trace"_s, u"missing.odg"_s}).status, 1);
}

TEST_F(LabelportProgram, TracesStandardInputAndWithTheReaderNamed)
{
    copy("orvanta/asset_tag.qmtx", "misnamed.cnv");
    EXPECT_EQ(labelport(words("trace misnamed.cnv")).status, 1);
    const Outcome named = labelport(words("trace misnamed.cnv --reader orvanta"));
    EXPECT_EQ(named.status, 0) << qPrintable(named.err);
    EXPECT_EQ(named.err, QString());
    const Outcome input = labelport(words("trace -"), {}, read(u"misnamed.cnv"_s));
    EXPECT_EQ(input.status, 0) << qPrintable(input.err);
    EXPECT_TRUE(input.out.startsWith(u"{\"trace\":1,\"file\":\"stdin\",\"reader\":\"orvanta\"}"_s));
    EXPECT_EQ(labelport(words("trace a --reader x")).status, 2);
    EXPECT_TRUE(labelport(words("trace --help")).out.startsWith(u"Usage: labelport trace "_s));
    EXPECT_TRUE(labelport(words("trace")).err.startsWith(u"labelport: trace needs"_s));
}

// Results do not pass through Qt's logging, so no rule takes from them or adds to them.
TEST_F(LabelportProgram, SaysTheSameUnderEveryLoggingRule)
{
    for (const char* command : {"import", "trace"}) {
        SCOPED_TRACE(command);
        const QStringList arguments = {QString::fromLatin1(command),
                                       sample("opendocument/goods_in.odt")};
        const Outcome silent = labelport(arguments, {u"QT_LOGGING_RULES=*=false"_s});
        const Outcome loud = labelport(arguments, {u"QT_LOGGING_RULES=*.debug=true"_s});
        EXPECT_EQ(silent.status, 0);
        EXPECT_FALSE(silent.out.isEmpty());
        EXPECT_EQ(silent.out, loud.out);
    }
}

} // namespace
