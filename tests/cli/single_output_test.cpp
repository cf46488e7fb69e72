// `labelport import --output`, and `labelport records`, from the outside.

#include "tests/cli/program_fixture.h"

#include <QImage>

namespace {
using namespace Qt::StringLiterals;

class SingleOutput : public LabelportProgram
{
protected:
    void SetUp() override
    {
        copy("orvanta/asset_tag.qmtx", "tag.qmtx");
        copy("opendocument/sample_vial.odg", "vial.odg");
    }
};

TEST_F(SingleOutput, HasTheNameAndTheFormatOfItsSuffix)
{
    const Outcome outcome = labelport(words("import vial.odg -o deep/new.svg"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"deep/new.svg\n"_s);
    EXPECT_TRUE(read(u"deep/new.svg"_s).contains("<svg "));
    EXPECT_FALSE(has("vial.svg"));
    EXPECT_FALSE(has("deep/vial.svg"));
}

TEST_F(SingleOutput, MayHaveAnyNameWithATarget)
{
    for (const char* line : {"import vial.odg --to png --output picture.dat",
                             "import vial.odg --to png --output picture.dat --dpi 40"}) {
        const Outcome outcome = labelport(words(line));
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
        EXPECT_TRUE(read(u"picture.dat"_s).startsWith("\x89PNG")) << "its own picture is replaced";
    }
    write(u"mine.dat"_s, "the user's own");
    EXPECT_EQ(labelport(words("import vial.odg --to png -o mine.dat")).status, 1);
    EXPECT_EQ(read(u"mine.dat"_s), "the user's own");
}

TEST_F(SingleOutput, GoesToStandardOutput)
{
    const Outcome picture = labelport(words("import vial.odg -o - --dpi 40 --quiet"));
    EXPECT_EQ(picture.status, 0) << qPrintable(picture.err);
    EXPECT_EQ(picture.err, QString());
    const QImage image = QImage::fromData(picture.bytes);
    EXPECT_NEAR(image.width(), 60 / 25.4 * 40, 1.0);

    const Outcome drawing = labelport(words("import - --to svg -o -"), {}, read(u"vial.odg"_s));
    EXPECT_EQ(drawing.status, 0) << qPrintable(drawing.err);
    EXPECT_TRUE(drawing.bytes.contains("</svg>"));
    EXPECT_EQ(QDir(path(QString())).entryList(QDir::Files | QDir::Hidden),
              (QStringList{u"tag.qmtx"_s, u"vial.odg"_s}))
        << "nothing is left in the current folder";
}

TEST_F(SingleOutput, PrintsNothingIfItFails)
{
    write(u"broken.odg"_s, "no zip");
    const Outcome broken = labelport(words("import broken.odg -o -"));
    EXPECT_EQ(broken.status, 1);
    EXPECT_EQ(broken.bytes, QByteArray());
    const Outcome series = labelport(words("import tag.qmtx -o - --dpi 40 --records 1-3"));
    EXPECT_EQ(series.status, 1);
    EXPECT_EQ(series.bytes, QByteArray());
    EXPECT_TRUE(series.err.contains(u"--records"_s)) << qPrintable(series.err);
}

TEST_F(SingleOutput, NumbersASeriesByItsName)
{
    const Outcome outcome = labelport(words("import tag.qmtx -o t.png --dpi 40 --records 2-3"));
    EXPECT_EQ(outcome.out, u"t-0002.png\nt-0003.png\n"_s);
}

TEST_F(SingleOutput, ExitsWithStatus3ForALoss)
{
    write(u"lossy.qmtx"_s, "<qmtx><controls><rich_box/><transparent_label/></controls></qmtx>");
    const Outcome outcome = labelport(words("import lossy.qmtx -o - --fail-on-loss"));
    EXPECT_EQ(outcome.status, 3);
    EXPECT_TRUE(outcome.bytes.startsWith("\x89PNG"));
}

TEST_F(SingleOutput, IsRefusedWhereItMakesNoSense)
{
    for (const char* line :
         {"import tag.qmtx vial.odg -o x.png", "import . -o x.png", "import vial.odg -o x.doc",
          "import vial.odg --to png,svg -o x.png", "import vial.odg -o x.png --output-dir y",
          "import vial.odg -o x.png --resume", "import vial.odg -o x.png --shard 1/2",
          "import --files-from list -o x.png", "import vial.odg -o - --json",
          "import vial.odg -o - --print0", "import vial.odg --json --print0",
          "import vial.odg --to glabels -o -", "import vial.odg --output="}) {
        SCOPED_TRACE(line);
        const Outcome outcome = labelport(words(line));
        EXPECT_EQ(outcome.status, 2);
        EXPECT_EQ(outcome.out, QString());
        EXPECT_FALSE(outcome.err.isEmpty());
    }
}

TEST_F(SingleOutput, IsALabelForAPrinter)
{
    const Outcome outcome =
        labelport(words("import tag.qmtx --to zpl -o - --dpi 203 --records 1-3 --copies 2"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.bytes.count("^XA"), 3);
    EXPECT_EQ(outcome.bytes.count("^PQ2^XZ"), 3);
    ASSERT_EQ(labelport(words("import tag.qmtx --to zpl")).status, 0);
    EXPECT_EQ(labelport(words("import tag.qmtx --to zpl")).status, 0) << "replaces its own";
}

TEST_F(SingleOutput, IsALabelForGlabelsWithItsRecords)
{
    const Outcome outcome =
        labelport(words("import tag.qmtx --to glabels -o new/t.xml --report r.json"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_TRUE(read(u"r.json"_s).contains(R"("fidelity":"exact","kind":"barcode")"));
    EXPECT_EQ(outcome.out, u"new/t.xml.csv\nnew/t.xml\n"_s);
    EXPECT_TRUE(read(u"new/t.xml"_s).contains("src=\"t.xml.csv\""));
    EXPECT_GT(read(u"new/t.xml.csv"_s).count('\n'), 2);
    EXPECT_EQ(labelport(words("import tag.qmtx --to glabels -o new/t.xml")).status, 0)
        << "replaces its own";

    write(u"new/t.xml.csv"_s, read(u"new/t.xml.csv"_s) + "mine\r\n");
    const Outcome edited = labelport(words("import tag.qmtx --to glabels -o new/t.xml"));
    EXPECT_EQ(edited.status, 1);
    EXPECT_TRUE(edited.err.contains(u"t.xml.csv"_s)) << qPrintable(edited.err);
    EXPECT_TRUE(read(u"new/t.xml.csv"_s).endsWith("mine\r\n"));
}

TEST_F(SingleOutput, IsALabelForGlabelsOnASheet)
{
    const Outcome outcome = labelport(words("import vial.odg --to glabels --sheet A4"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"vial.glabels\n"_s);
    EXPECT_TRUE(read(u"vial.glabels"_s).contains("part=\"A4\""));
    const Outcome misfit = labelport(words("import vial.odg --to glabels --sheet L7651"));
    EXPECT_EQ(misfit.status, 1);
    EXPECT_FALSE(misfit.err.isEmpty());
}

TEST_F(SingleOutput, RecordsAreListedAsCsv)
{
    const Outcome outcome = labelport(words("records tag.qmtx --records 1-2"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    const QStringList lines = outcome.out.split(u"\r\n"_s, Qt::SkipEmptyParts);
    ASSERT_EQ(lines.size(), 3) << qPrintable(outcome.out);
    EXPECT_TRUE(lines.at(0).startsWith(u"record,item-"_s));
    EXPECT_TRUE(lines.at(1).startsWith(u"1,"_s));
    EXPECT_NE(lines.at(1).mid(2), lines.at(2).mid(2)) << "the counter advances";

    EXPECT_EQ(labelport(words("records tag.qmtx --to r.csv --records 1-2")).out, u"r.csv\n"_s);
    EXPECT_EQ(read(u"r.csv"_s), outcome.bytes);
    EXPECT_EQ(labelport(words("records tag.qmtx --to r.csv")).status, 1) << "it may be edited";
    EXPECT_EQ(labelport(words("records tag.qmtx --to r.csv --force")).status, 0);
    EXPECT_GT(read(u"r.csv"_s).size(), outcome.bytes.size()) << "all records";
}

TEST_F(SingleOutput, RecordsRefuseWrongArguments)
{
    for (const char* line : {"records", "records a b", "records a --records x",
                             "records a --reader x", "records a --to="}) {
        EXPECT_EQ(labelport(words(line)).status, 2) << line;
    }
    EXPECT_EQ(labelport(words("records missing.odg")).status, 1);
}

} // namespace
