// Imports in a sandbox: on a kernel that offers none, and with little memory.

#include "tests/cli/program_fixture.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {
using namespace Qt::StringLiterals;

class OldKernel : public LabelportProgram
{
protected:
    void SetUp() override { copy("orvanta/asset_tag.qmtx", "a.qmtx"); }
};

// Files are imported with what there is, and the report states it.
TEST_F(OldKernel, ImportsWithoutASandbox)
{
    const Outcome imported =
        labelportWithoutSandbox(words("import a.qmtx --dpi 40 --report report.json"));
    EXPECT_EQ(imported.status, 0) << qPrintable(imported.err);
    EXPECT_EQ(imported.out, u"a.png\n"_s);
    // A header, then a line for each file.
    const QByteArray line = read(u"report.json"_s).split('\n').value(1);
    const QJsonObject file = QJsonDocument::fromJson(line).object();
    EXPECT_EQ(file.value("file"_L1).toString(), u"a.qmtx"_s);
    EXPECT_TRUE(file.value("sandbox"_L1).toArray().isEmpty());
}

TEST_F(OldKernel, ImportsNothingIfASandboxIsRequired)
{
    for (const char* command :
         {"import a.qmtx --require-sandbox", "inspect a.qmtx --require-sandbox"}) {
        const Outcome refused = labelportWithoutSandbox(words(command));
        EXPECT_EQ(refused.status, 1);
        EXPECT_EQ(refused.err, u"labelport: This system has no complete sandbox, which "
                               "--require-sandbox demands. It has: none.\n"_s);
    }
    EXPECT_FALSE(has("a.png"));
}

TEST_F(OldKernel, IsStatedAmongTheFormats)
{
    EXPECT_TRUE(labelportWithoutSandbox(words("formats"))
                    .out.contains(u"Sandbox in which files are read, on this system: none."_s));
}

// A reader that reserves the maximum of a file's size instead of its size fails here.
TEST_F(LabelportProgram, ImportsSmallLabelsWithTheLeastMemory)
{
    copy("orvanta/asset_tag.qmtx", "a.qmtx");
    copy("opendocument/sample_vial.odg", "b.odg");
    copy("tavrel/shelf_label_2000021.roc", "c.roc");
    const Outcome imported =
        labelport(words("import a.qmtx b.odg c.roc --to png,label --dpi 40 --memory-limit 128"));
    EXPECT_EQ(imported.status, 0) << qPrintable(imported.err);
    EXPECT_EQ(imported.out.count(u'\n'), 6);
}

} // namespace
