// `labelport import` and `labelport inspect` of documents that are repaired.

#include "cli/import_worker.h"
#include "migration/model/file_report.h"
#include "tests/cli/program_fixture.h"

#include <private/qzipwriter_p.h>

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

using namespace Qt::StringLiterals;

const QByteArray Rectangle =
    R"(<draw:rect svg:x="1cm" svg:y="1cm" svg:width="2cm" svg:height="1cm"/>)";
// Beside the other one, so that none is covered.
const QByteArray SecondRectangle = QByteArray(Rectangle).replace("svg:x=\"1cm\"", "svg:x=\"6cm\"");
const QByteArray Group = "<draw:g>" + Rectangle + SecondRectangle + "</draw:g>";

QByteArray drawing(const QList<QByteArray>& pages)
{
    const QByteArray names =
        R"( xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0")"
        R"( xmlns:style="urn:oasis:names:tc:opendocument:xmlns:style:1.0")"
        R"( xmlns:xlink="http://www.w3.org/1999/xlink")"
        R"( xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0")"
        R"( xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0")"
        R"( xmlns:fo="urn:oasis:names:tc:opendocument:xmlns:xsl-fo-compatible:1.0")";
    QByteArray content = "<office:document-content" + names +
                         "><office:automatic-styles/><office:body><office:drawing>";
    for (const QByteArray& page : pages) {
        content += R"(<draw:page draw:master-page-name="M">)" + page + "</draw:page>";
    }
    content += "</office:drawing></office:body></office:document-content>";
    const QByteArray styles =
        "<office:document-styles" + names +
        R"(><office:styles/><office:automatic-styles><style:page-layout style:name="L">)"
        R"(<style:page-layout-properties fo:page-width="10cm" fo:page-height="5cm"/>)"
        R"(</style:page-layout></office:automatic-styles><office:master-styles>)"
        R"(<style:master-page style:name="M" style:page-layout-name="L"/>)"
        "</office:master-styles></office:document-styles>";
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter zip(&buffer);
    zip.addFile(u"styles.xml"_s, styles);
    zip.addFile(u"content.xml"_s, content);
    zip.close();
    return buffer.data();
}

class Repairs : public LabelportProgram
{
protected:
    Outcome import(const char* arguments)
    {
        return labelport(words("import --dpi 40") + words(arguments));
    }

    QJsonObject inspect(const char* arguments)
    {
        const Outcome outcome = labelport(words("inspect --json") + words(arguments));
        EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
        return QJsonDocument::fromJson(outcome.bytes).object();
    }
};

QStringList codesOf(const QJsonValue& list)
{
    QStringList codes;
    for (const QJsonValue& entry : list.toArray()) {
        codes.append(entry.toObject().value("code"_L1).toString());
    }
    return codes;
}

TEST_F(Repairs, AreMadeUnlessAsWrittenIsGiven)
{
    write(u"group.odg"_s, drawing({Group}));
    const QJsonObject repaired = inspect("group.odg");
    EXPECT_TRUE(codesOf(repaired.value("repaired"_L1)).contains(u"groups-dissolved"_s));
    EXPECT_EQ(codesOf(repaired.value("lost"_L1)), QStringList());
    EXPECT_EQ(repaired.value("objects"_L1).toObject().value("inFile"_L1).toInt(), 2);
    EXPECT_EQ(repaired.value("objects"_L1).toObject().value("imported"_L1).toInt(), 2);
    const QJsonObject written = inspect("group.odg --as-written");
    EXPECT_EQ(codesOf(written.value("repaired"_L1)), QStringList());
    EXPECT_EQ(codesOf(written.value("lost"_L1)), QStringList{u"grouped-object"_s});
    EXPECT_EQ(import("group.odg --fail-on-loss").status, 0);
    EXPECT_EQ(import("group.odg --fail-on-loss --as-written").status, 3);
}

TEST_F(Repairs, AreListedAsText)
{
    write(u"group.odg"_s, drawing({Group}));
    const Outcome outcome = labelport(words("inspect group.odg"));
    EXPECT_TRUE(outcome.out.contains(u"Repaired:\n"_s)) << qPrintable(outcome.out);
    EXPECT_TRUE(outcome.out.contains(u"  groups-dissolved: "_s)) << qPrintable(outcome.out);
}

TEST_F(Repairs, MakeALabelOfEachPage)
{
    write(u"pages.odg"_s, drawing({Rectangle, Group, Rectangle}));
    const Outcome outcome = import("pages.odg --to png,label --report report.json");
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"pages.png\npages.label\npages-2.png\npages-2.label\npages-3.png\n"
                           "pages-3.label\n"_s);
    const QByteArray report = read(u"report.json"_s).split('\n').at(1);
    const QJsonObject file = QJsonDocument::fromJson(report).object();
    EXPECT_TRUE(codesOf(file.value("repaired"_L1)).contains(u"pages-separated"_s));
    EXPECT_EQ(codesOf(file.value("lost"_L1)), QStringList());
    EXPECT_EQ(file.value("objects"_L1).toObject().value("inFile"_L1).toInt(), 4);
    EXPECT_EQ(file.value("objects"_L1).toObject().value("imported"_L1).toInt(), 4);
    EXPECT_EQ(file.value("outputs"_L1).toArray().size(), 6);
    EXPECT_TRUE(read(u"pages-2.label"_s) != read(u"pages-3.label"_s));
    EXPECT_EQ(import("pages.odg --as-written --force").out, u"pages.png\n"_s);
}

// Each page becomes a label up to the limit.
TEST_F(Repairs, LeaveOutPagesOnlyWithALoss)
{
    archive::Job job;
    job.file = write(u"pages.odg"_s, drawing({{}, {}, {}, {}, Rectangle}));
    const archive::FileResult result = cli::importJob(
        job, [] {}, 3);
    EXPECT_EQ(result.warnings,
              QStringList{u"Only the first 3 pages were imported; the document has more."_s});
    const auto report = migration::fileReportFromJson(result.report);
    ASSERT_TRUE(report);
    EXPECT_TRUE(migration::hasLoss(*report));
    EXPECT_EQ(migration::verdictName(migration::verdictOf(*report)), u"lossy"_s);
    ASSERT_EQ(report->lost.size(), 1);
    EXPECT_EQ(report->lost.first().code, u"pages-left-out"_s);
    EXPECT_EQ(report->lost.first().details, QStringList{u"4–5"_s});
    EXPECT_EQ(report->objects.imported, 0);
}

// The picture is in the background of all pages.
TEST_F(Repairs, WarnOfADamagedPictureOnlyOnce)
{
    const QByteArray frame =
        R"(<draw:frame svg:x="1cm" svg:y="1cm" svg:width="2cm")"
        R"( svg:height="1cm"><draw:image xlink:href="none.png"/></draw:frame>)";
    write(u"pages.odg"_s, drawing({frame, frame, frame}));
    EXPECT_EQ(import("pages.odg").err.count(u"Warning: "_s), 1);
    const QJsonArray issues = inspect("pages.odg").value("issues"_L1).toArray();
    ASSERT_EQ(issues.size(), 1);
    EXPECT_EQ(issues.first().toObject().value("repeats"_L1).toInt(), 3);
}

TEST_F(Repairs, NeverGiveAPageTheNameOfAnotherLabel)
{
    write(u"in/shelf.odg"_s, drawing({Rectangle, Rectangle}));
    write(u"in/shelf-2.odg"_s, drawing({Group}));
    const Outcome outcome = import("in --output-dir out");
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out, u"out/shelf-2.png\nout/shelf.png\nout/shelf-page-2.png\n"_s);
}

TEST_F(Repairs, NameAFolderInThePlaceOfAnOutputWithSeveralPages)
{
    write(u"shelf.odg"_s, drawing({Rectangle, Rectangle}));
    write(u"out/other.txt"_s, "x");
    for (const char* output : {"out", "out/"}) {
        const Outcome outcome = import(QByteArray("shelf.odg --to png --output ") + output);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.err.contains(u"a folder of that name exists"_s))
            << qPrintable(outcome.err);
        EXPECT_FALSE(outcome.err.contains(u"worker"_s)) << qPrintable(outcome.err);
    }
}

TEST_F(Repairs, AreNeverWrittenIntoTheFile)
{
    const QByteArray original = drawing({Group, Rectangle});
    write(u"group.odg"_s, original);
    EXPECT_EQ(import("group.odg").status, 0);
    EXPECT_EQ(read(u"group.odg"_s), original);
}

TEST_F(Repairs, AreMadeAgainAfterAnImportAsWritten)
{
    write(u"in/group.odg"_s, drawing({Group}));
    EXPECT_EQ(import("in --to label --output-dir out --as-written").status, 0);
    const QByteArray written = read(u"out/group.label"_s);
    EXPECT_EQ(import("in --to label --output-dir out --resume").status, 0);
    EXPECT_TRUE(read(u"out/group.label"_s) != written);
}

} // namespace
