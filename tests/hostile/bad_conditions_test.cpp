// The program labelport under bad conditions: inputs that are not files, that
// never end, are empty or gone; places that cannot be written. Each costs a message with the
// file's name and nothing else: what is good in the same command is imported all the same.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <filesystem>
#include <functional>

#include <sys/resource.h>
#include <sys/stat.h>

using namespace Qt::Literals::StringLiterals;

namespace {
using namespace Qt::StringLiterals;

struct Outcome
{
    int status = -1;
    QByteArray out;
    QByteArray err;
};

const char* const Suffixes[] = {"cnv", "roc", "qmtx", "odt", "odg", "label"};

class BadConditions : public testing::Test
{
protected:
    BadConditions()
    {
        EXPECT_TRUE(QFile::copy(QStringLiteral(LABELPORT_SAMPLES "/orvanta/asset_tag.qmtx"), good));
    }

    /// Runs the program in the test's folder. It may take long on a busy machine, but not for
    /// ever.
    Outcome run(const QString& program, const QStringList& arguments,
                const std::function<void()>& prepare = {})
    {
        QProcess process;
        process.setWorkingDirectory(folder.path());
        if (prepare) {
            process.setChildProcessModifier(prepare);
        }
        process.start(program, arguments);
        if (!process.waitForFinished(120'000)) {
            ADD_FAILURE() << "the program does not end";
            process.kill();
            process.waitForFinished();
            return {};
        }
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
        return {process.exitCode(), process.readAllStandardOutput(),
                process.readAllStandardError()};
    }

    Outcome import(const QStringList& arguments, const std::function<void()>& prepare = {})
    {
        return run(QStringLiteral(LABELPORT_PROGRAM),
                   QStringList{u"import"_s} + arguments + QStringList{u"--dpi"_s, u"50"_s},
                   prepare);
    }

    [[nodiscard]] QString path(const QString& name) const { return folder.filePath(name); }
    [[nodiscard]] bool isPicture(const QString& name) const { return !QImage(path(name)).isNull(); }

    /// The bad file is named with a reason, and the good one is imported.
    void expectOnlyTheGoodOne(const QStringList& bad)
    {
        const Outcome outcome = import(bad + QStringList{good});
        SCOPED_TRACE(outcome.err.constData());
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(isPicture(u"good.png"_s));
        EXPECT_EQ(outcome.out, "good.png\n");
        for (const QString& name : bad) {
            EXPECT_TRUE(outcome.err.contains(QFile::encodeName(QFileInfo(name).fileName()) + ": "))
                << qPrintable(name);
        }
    }

    QStringList forEverySuffix(const std::function<void(const QString&)>& make)
    {
        QStringList names;
        for (const char* suffix : Suffixes) {
            names.append(path(u"bad."_s + QLatin1String(suffix)));
            make(names.last());
        }
        return names;
    }

    QTemporaryDir folder;
    const QString good = path(u"good.qmtx"_s);
};

} // namespace

TEST_F(BadConditions, EmptyFiles)
{
    expectOnlyTheGoodOne(forEverySuffix([](const QString& name) {
        QFile file(name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    }));
}

TEST_F(BadConditions, FilesThatAreGone)
{
    expectOnlyTheGoodOne(forEverySuffix([](const QString&) {}));
    expectOnlyTheGoodOne({path(u"no/such/folder/a.cnv"_s)});
}

TEST_F(BadConditions, DanglingAndCircularLinks)
{
    expectOnlyTheGoodOne(forEverySuffix(
        [this](const QString& name) { EXPECT_TRUE(QFile::link(path(u"nothing"_s), name)); }));
    const QString loop = path(u"loop.cnv"_s);
    EXPECT_TRUE(QFile::link(loop, loop));
    expectOnlyTheGoodOne({loop});
}

TEST_F(BadConditions, PipesWithoutAWriter)
{
    expectOnlyTheGoodOne(forEverySuffix([](const QString& name) {
        EXPECT_EQ(::mkfifo(QFile::encodeName(name).constData(), 0600), 0);
    }));
}

TEST_F(BadConditions, DevicesThatNeverEnd)
{
    expectOnlyTheGoodOne(forEverySuffix(
        [](const QString& name) { EXPECT_TRUE(QFile::link(u"/dev/zero"_s, name)); }));
}

TEST_F(BadConditions, FilesOfFourGigabytes)
{
    expectOnlyTheGoodOne(forEverySuffix([](const QString& name) {
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_TRUE(file.resize(4LL << 30)); // a hole, which takes no room
    }));
}

TEST_F(BadConditions, FoldersWithALabelsName)
{
    const QStringList bad =
        forEverySuffix([](const QString& name) { EXPECT_TRUE(QDir().mkpath(name)); });
    const Outcome outcome = import(bad + QStringList{good});
    EXPECT_TRUE(isPicture(u"good.png"_s)) << outcome.err.constData();
}

TEST_F(BadConditions, NamesThatSpanLines)
{
    const QString odd = path(u"two\nlines.qmtx"_s);
    EXPECT_TRUE(QFile::copy(good, odd));
    const Outcome outcome = import({odd, good});
    EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
    EXPECT_TRUE(isPicture(u"two\nlines.png"_s));
    EXPECT_TRUE(isPicture(u"good.png"_s));
}

TEST_F(BadConditions, NamesThatAreNotText)
{
    // No QString can hold such a name: a shell makes it.
    const QString script = u"name=$(printf 'odd\\377.qmtx'); cp good.qmtx \"$name\"; "
                           "exec \"$0\" import \"$name\" good.qmtx --dpi 50"_s;
    const Outcome outcome = run(u"sh"_s, {u"-c"_s, script, QStringLiteral(LABELPORT_PROGRAM)});
    EXPECT_EQ(outcome.status, 0) << outcome.err.constData();
    EXPECT_EQ(outcome.out, "good.png\nodd\xFF.png\n");
    EXPECT_TRUE(isPicture(u"good.png"_s));
    // QTemporaryDir cannot remove such names.
    std::filesystem::remove_all(folder.path().toStdString());
}

TEST_F(BadConditions, AFolderThatCannotBeMade)
{
    const Outcome outcome = import({good, u"--output-dir"_s, good + u"/below"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains("good.qmtx/below")) << outcome.err.constData();
    EXPECT_EQ(outcome.out, "");
}

TEST_F(BadConditions, AFolderThatCannotBeWritten)
{
    // Not even the superuser can write here.
    const Outcome outcome = import({good, u"--output-dir"_s, u"/proc/self"_s});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_TRUE(outcome.err.contains("good.qmtx: ") || outcome.err.contains("/proc/self"))
        << outcome.err.constData();
    EXPECT_EQ(outcome.out, "");
}

TEST_F(BadConditions, ADiskWithoutRoom)
{
    const auto smallDisk = [] {
        const rlimit limit{2048, 2048};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        ::signal(SIGXFSZ, SIG_IGN);
    };
    for (const char* target : {"png", "svg", "pdf", "label"}) {
        SCOPED_TRACE(target);
        const QString output = u"good."_s + QLatin1String(target);
        const Outcome outcome = import({good, u"--to"_s, QLatin1String(target)}, smallDisk);
        EXPECT_EQ(outcome.status, 1);
        EXPECT_TRUE(outcome.err.contains("good.qmtx: ")) << outcome.err.constData();
        EXPECT_EQ(outcome.out, "");
        EXPECT_TRUE(outcome.err.contains("File too large")) << outcome.err.constData();
        EXPECT_FALSE(QFileInfo::exists(path(output))) << "half a file";
    }
}
