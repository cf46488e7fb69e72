// The real program, run like by a user or a script.

#include "program_runner.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

class TraceProgram : public ::testing::Test
{
protected:
    [[nodiscard]] static ProgramResult
    run(const QStringList& arguments, const QProcessEnvironment& environment = emptyEnvironment())
    {
        return runProgram(QStringLiteral(LABELPORT_TRACE_PROGRAM), arguments, environment);
    }
    [[nodiscard]] QString file(const QString& name, const QByteArray& content) const
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        return path;
    }
    /// A valid label without items.
    [[nodiscard]] QString goodLabel() const { return file(u"good.qmtx"_s, "<qmtx/>"); }

    QTemporaryDir m_folder;
};

const QByteArray FailedLabel = "{\"trace\":1,\"file\":\"none.odg\",\"reader\":\"opendocument\"}\n";

void expectJsonLines(const QByteArray& output)
{
    ASSERT_TRUE(output.endsWith('\n'));
    for (const QByteArray& line : output.chopped(1).split('\n')) {
        EXPECT_TRUE(QJsonDocument::fromJson(line).isObject()) << line.constData();
    }
}

TEST_F(TraceProgram, RunsInAnEmptyEnvironment)
{
    const ProgramResult result = run({goodLabel()});
    EXPECT_TRUE(result.finished) << result.errors.constData();
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    expectJsonLines(result.output);
    EXPECT_TRUE(
        result.output.startsWith("{\"trace\":1,\"file\":\"good.qmtx\",\"reader\":\"orvanta\"}\n"));
    EXPECT_TRUE(result.output.endsWith("{\"result\":true}\n")) << result.output.constData();
}

TEST_F(TraceProgram, HasTheSizeOfADrawingThatIsARasterPicture)
{
    const QByteArray svg = "<?xml version=\"1.0\"?><svg xmlns=\"http://www.w3.org/2000/svg\" "
                           "width=\"30\" height=\"20\"><rect width=\"9\" height=\"9\"/></svg>";
    const QByteArray label = "<qmtx><controls><picture_box><image><content>" + svg.toBase64() +
                             "</content></image></picture_box></controls></qmtx>";
    const ProgramResult result = run({file(u"logo.qmtx"_s, label)});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_TRUE(
        result.output.contains("\"pixmapImportActions\",\"args\":[{\"width\":30,\"height\":20}]"))
        << result.output.constData();
    EXPECT_FALSE(result.output.contains("\"log\"")) << result.output.constData();
}

TEST_F(TraceProgram, NeedsNoDisplayWhateverIsAskedFor)
{
    QProcessEnvironment environment = emptyEnvironment();
    environment.insert(u"QT_QPA_PLATFORM"_s, u"nosuchplatform"_s);
    environment.insert(u"DISPLAY"_s, u":77"_s);
    environment.insert(u"WAYLAND_DISPLAY"_s, u"wayland-77"_s);
    EXPECT_EQ(run({goodLabel()}, environment).status, 0);
}

TEST_F(TraceProgram, PrintsTheSameUnderAnyEnvironment)
{
    const QString label = goodLabel();
    const QByteArray expected = run({label}).output;
    const std::pair<const char*, const char*> settings[] = {
        {"QT_LOGGING_RULES", "*=false"}, {"QT_LOGGING_RULES", "*.debug=true"},
        {"LC_ALL", "de_DE.UTF-8"},       {"QT_SCALE_FACTOR", "3"},
        {"QT_FONT_DPI", "300"},          {"QT_MESSAGE_PATTERN", "%{message}"},
        {"QT_STYLE_OVERRIDE", "Windows"}};
    for (const auto& [name, value] : settings) {
        QProcessEnvironment environment = emptyEnvironment();
        environment.insert(QString::fromLatin1(name), QString::fromLatin1(value));
        EXPECT_EQ(run({label}, environment).output, expected) << name << '=' << value;
    }
}

TEST_F(TraceProgram, LogRecordsReachTheTraceUnderAnyLoggingRules)
{
    const QString label = file(u"broken.qmtx"_s, "<qmtx");
    const ProgramResult plain = run({label});
    EXPECT_EQ(plain.status, 1);
    EXPECT_TRUE(plain.output.contains("{\"log\":\"")) << plain.output.constData();
    for (const char* rules : {"*=false", "*.debug=true"}) {
        QProcessEnvironment environment = emptyEnvironment();
        environment.insert(u"QT_LOGGING_RULES"_s, QString::fromLatin1(rules));
        EXPECT_EQ(run({label}, environment).output, plain.output) << rules;
    }
}

TEST_F(TraceProgram, AMissingFileStillHasAStartAndAnEnd)
{
    const ProgramResult result = run({m_folder.filePath(u"none.odg"_s)});
    EXPECT_TRUE(result.finished);
    EXPECT_EQ(result.status, 1);
    expectJsonLines(result.output);
    EXPECT_TRUE(result.output.startsWith(FailedLabel));
    EXPECT_TRUE(result.output.endsWith("{\"result\":false}\n"));
    EXPECT_TRUE(result.errors.contains("none.odg\": No such file")) << result.errors.constData();
}

TEST_F(TraceProgram, AFolderIsNotAFile)
{
    const ProgramResult result = run({m_folder.path()});
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.output.endsWith("{\"result\":false}\n"));
    EXPECT_TRUE(result.errors.contains("it is a folder")) << result.errors.constData();
}

TEST_F(TraceProgram, ChoosesTheReaderByTheSuffix)
{
    const std::pair<const char*, const char*> rows[] = {{"a.cnv", "tavrel"},
                                                        {"a.ROC", "tavrel"},
                                                        {"a.Qmtx", "orvanta"},
                                                        {"a.odt", "opendocument"},
                                                        {"a.ODG", "opendocument"},
                                                        {"a.b.odt", "opendocument"},
                                                        {"a", "tavrel"}};
    for (const auto& [name, reader] : rows) {
        const QByteArray start = run({m_folder.filePath(QString::fromLatin1(name))}).output;
        EXPECT_EQ(start.left(start.indexOf('\n')), QByteArray("{\"trace\":1,\"file\":\"") + name +
                                                       "\",\"reader\":\"" + reader + "\"}");
    }
}

TEST_F(TraceProgram, TakesNamesOfAnyScript)
{
    const QString label = file(u"Größe \"ß\".qmtx"_s, "<qmtx/>");
    const ProgramResult result = run({label});
    EXPECT_EQ(result.status, 0) << result.errors.constData();
    EXPECT_TRUE(
        result.output.startsWith(u"{\"trace\":1,\"file\":\"Größe \\\"ß\\\".qmtx\""_s.toUtf8()));
}

TEST_F(TraceProgram, HelpAndVersionSucceed)
{
    for (const char* option : {"--help", "-h"}) {
        const ProgramResult result = run({QString::fromLatin1(option)});
        EXPECT_EQ(result.status, 0);
        EXPECT_TRUE(result.output.contains("FILE")) << result.output.constData();
    }
    const ProgramResult version = run({u"--version"_s});
    EXPECT_EQ(version.status, 0);
    EXPECT_TRUE(version.output.startsWith("labelport-trace ")) << version.output.constData();
}

TEST_F(TraceProgram, WrongUsageIsStatusTwoAndPrintsNoTrace)
{
    for (const QStringList& arguments :
         {QStringList{}, QStringList{u"--nonsense"_s}, QStringList{u"a.cnv"_s, u"b.cnv"_s},
          QStringList{u"-platform"_s, u"x.cnv"_s}}) {
        const ProgramResult result = run(arguments);
        EXPECT_EQ(result.status, 2) << qPrintable(arguments.join(u' '));
        EXPECT_EQ(result.output, QByteArray());
        EXPECT_TRUE(result.errors.contains("Help: labelport-trace --help"));
    }
}

TEST_F(TraceProgram, AFullDiskIsAFailure)
{
    // If this device exists, every write to it fails.
    if (!QFile::exists(u"/dev/full"_s)) {
        return;
    }
    const ProgramResult result = runProgram(u"/bin/sh"_s,
                                            {u"-c"_s, u"\"$0\" \"$1\" > /dev/full"_s,
                                             QStringLiteral(LABELPORT_TRACE_PROGRAM), goodLabel()},
                                            emptyEnvironment());
    EXPECT_EQ(result.status, 1);
    EXPECT_TRUE(result.errors.contains("Cannot write to standard output: "))
        << result.errors.constData();
}

} // namespace
