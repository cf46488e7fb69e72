// `labelport import`: which files it reads and overwrites, whatever their names.

#include "console/file_name.h"
#include "tests/cli/program_fixture.h"

#include <filesystem>

#include <sys/stat.h>

namespace {

using namespace Qt::StringLiterals;

TEST_F(ImportArchive, SelectsTheReaderByTheLastSuffixOrTheContent)
{
    copy("opendocument/sample_vial.odg", "dots/Label 3.5 inch.odg");
    copy("orvanta/asset_tag.qmtx", "dots/shelf.old.qmtx");
    copy("opendocument/sample_vial.odg", "dots/template.otg");
    copy("opendocument/care_label.odt", "dots/template.v2.OTT");
    const Outcome outcome = labelport(import("dots --output-dir new"));
    EXPECT_EQ(outcome.status, 0) << qPrintable(outcome.err);
    EXPECT_EQ(outcome.out.count(u'\n'), 4);
    copy("opendocument/sample_vial.odg", "unknown.zip");
    copy("tavrel/shelf_label_2000021.roc", "unknown.dat");
    labelport(import("old/vial.odg --to label"));
    QFile::rename(path(u"vial.label"_s), path(u"saved.json"_s));
    const Outcome content = labelport(import("unknown.zip unknown.dat saved.json"));
    EXPECT_EQ(content.out, u"saved.png\nunknown.dat.png\nunknown.zip.png\n"_s)
        << qPrintable(content.err);
}

TEST_F(ImportArchive, ImportsNamesThatAreNotUtf8)
{
    const QString folder = console::fileNameFromBytes("latin/\xFC"
                                                      "ber");
    const QString name = console::fileNameFromBytes("latin/\xFC"
                                                    "ber/Gr\xF6\xDF"
                                                    "e.qmtx");
    ASSERT_EQ(console::makeFolder(path(folder)), QString());
    std::filesystem::copy_file(console::systemPath(path(u"old/tags/asset.qmtx"_s)),
                               console::systemPath(path(name)));
    // The shell and QProcess pass arguments as text: the names come from folder and list.
    const Outcome found =
        labelport(import("latin --output-dir new --to png,label --print0 --report r.json"));
    EXPECT_EQ(found.status, 0) << qPrintable(found.err);
    EXPECT_EQ(found.bytes, QByteArray("new/\xFC"
                                      "ber/Gr\xF6\xDF"
                                      "e.png\0"
                                      "new/\xFC"
                                      "ber/Gr\xF6\xDF"
                                      "e.label\0",
                                      40));
    EXPECT_TRUE(read(u"r.json"_s).contains(R"(latin/\\xFCber/Gr\\xF6\\xDFe.qmtx)"));
    const Outcome listed = labelport(import("--files-from - --output-dir new"), {},
                                     console::fileNameToBytes(name) + '\n');
    EXPECT_EQ(listed.status, 0) << qPrintable(listed.err);
    EXPECT_EQ(listed.bytes, QByteArray("new/Gr\xF6\xDF"
                                       "e.png\n"));
    const Outcome resumed =
        labelport(import("latin --output-dir new --to png,label --resume --report r.json"));
    EXPECT_TRUE(resumed.err.contains(u"1 file had been imported before."_s))
        << qPrintable(resumed.err);
    const Outcome failed = labelport(import("--files-from - --output-dir new"), {}, "no\xF6.cnv\n");
    EXPECT_EQ(failed.status, 1);
    EXPECT_TRUE(failed.err.startsWith(u"labelport: no\\xF6.cnv: "_s)) << qPrintable(failed.err);
}

TEST_F(ImportArchive, WritesIntoAFolderThatIsNotUtf8)
{
    const QString output = console::fileNameFromBytes("n\xE4u");
    ASSERT_EQ(console::makeFolder(path(output)), QString());
    const QString script = u"cd $(printf 'n\\344u') && exec \"$0\" import ../old --dpi 40 --to "
                           "png,label,svg,pdf --output-dir \"$(pwd)\" --resume"_s;
    for (int turn = 0; turn < 2; ++turn) {
        QProcess shell;
        shell.setWorkingDirectory(path(QString()));
        shell.start(u"sh"_s, {u"-c"_s, script, QStringLiteral(LABELPORT_PROGRAM)});
        ASSERT_TRUE(shell.waitForFinished(120'000));
        EXPECT_EQ(shell.exitCode(), 0) << shell.readAllStandardError().constData();
        EXPECT_EQ(shell.readAllStandardOutput().count('\n'), turn == 0 ? 16 : 0);
    }
    EXPECT_EQ(console::kindOf(path(output + u"/tags/asset.label"_s)), console::FileKind::File);
}

TEST_F(ImportArchive, ReportsDanglingLinksAndPipes)
{
    QFile::link(path(u"nothing"_s), path(u"old/link.odg"_s));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path(u"old/pipe.odg"_s)).constData(), 0600), 0);
    const Outcome outcome = labelport(import("old --output-dir new"));
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(
        outcome.err.contains(u"old/link.odg: The link points to a file that does not exist."_s))
        << qPrintable(outcome.err);
    EXPECT_TRUE(outcome.err.contains(u"old/pipe.odg: This is not a regular file."_s));
    EXPECT_EQ(outcome.out.count(u'\n'), 4);
}

TEST_F(ImportArchive, ShowsNoControlCharactersInMessages)
{
    write(u"esc\x1B[31m\n.odg"_s, "no zip");
    const Outcome outcome = labelport(QStringList{u"import"_s, u"esc\x1B[31m\n.odg"_s});
    EXPECT_TRUE(outcome.err.startsWith(u"labelport: esc\\x1B[31m\\n.odg: "_s))
        << qPrintable(outcome.err);
    EXPECT_FALSE(outcome.err.contains(u'\x1B'));
}

TEST_F(ImportArchive, OverwritesNoForeignFileWithAReport)
{
    for (const char* name : {"r.json", "r.html"}) {
        const QStringList command =
            import("old/vial.odg --report ") + QStringList{QLatin1String(name)};
        write(QLatin1String(name), "notes");
        const Outcome refused = labelport(command);
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.err.contains(u"is not a report of labelport. Use --force"_s));
        EXPECT_EQ(read(QLatin1String(name)), "notes");
        EXPECT_EQ(labelport(command + QStringList{u"--force"_s}).status, 0);
        const Outcome again = labelport(command);
        EXPECT_EQ(again.status, 0) << qPrintable(again.err);
    }
    write(u"notes.json"_s, "notes");
    const Outcome merged = labelport(words("report merge r.json --to notes.json"));
    EXPECT_EQ(merged.status, 1);
    EXPECT_EQ(read(u"notes.json"_s), "notes");
    EXPECT_EQ(labelport(words("report merge r.json --to notes.json --force")).status, 0);
    EXPECT_EQ(labelport(words("report merge r.json --to notes.json")).status, 0);
    for (const char* name : {"x.txt", "-", "x"}) {
        EXPECT_EQ(
            labelport(words("report merge r.json --to ") + QStringList{QLatin1String(name)}).status,
            2)
            << name;
        EXPECT_FALSE(has(name));
    }
}

} // namespace
