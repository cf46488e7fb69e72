// Workers that hostile files have taken over: nothing that they try succeeds, each attempt is
// reported, and only their own files fail.

#include "sandbox/confinement.h"
#include "tests/archive/run_fixture.h"

#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {
using namespace Qt::StringLiterals;

const QString Stopped = u"The import was stopped twice because it tried something that its sandbox "
                        "forbids. Do not trust the file, and please report it."_s;

class HostileWorker : public RunFixture
{
protected:
    HostileWorker()
    {
        settings.command.arguments = {u"confined"_s, u"512"_s};
        settings.readable = {folder.path(u"in"_s)};
        settings.workers = 1;
        input(u"a.cnv"_s, "write first");
        input(u"c.cnv"_s, "write third");
    }

    /// Imports a hostile file between two good ones, which must be imported.
    /// @return the outcome of the hostile file, with its errors
    QString outcomeOf(const QByteArray& attacks)
    {
        input(u"b.cnv"_s, attacks);
        const QStringList lines = run();
        if (lines.size() != 3) {
            ADD_FAILURE() << qPrintable(lines.join(u'\n'));
            return {};
        }
        EXPECT_EQ(lines.at(0), u"done a.cnv: a.png"_s);
        EXPECT_EQ(lines.at(2), u"done c.cnv: c.png"_s);
        EXPECT_EQ(output(u"a.png"_s), "first");
        EXPECT_EQ(output(u"c.png"_s), "third");
        EXPECT_EQ(unexpectedFiles(), QStringList());
        return lines.at(1);
    }
};

#define REQUIRE_KERNEL(part)                                                                       \
    if (!sandbox::supported().part) {                                                              \
        GTEST_SKIP() << "SKIPPED: this kernel lacks the sandbox's part '" #part "'";               \
    }

} // namespace

TEST_F(HostileWorker, ThatBehavesIsServed)
{
    EXPECT_EQ(outcomeOf("write second\nthread"), u"done b.cnv: b.png"_s);
    EXPECT_EQ(output(u"b.png"_s), "second");
}

TEST_F(HostileWorker, CannotReadForeignFiles)
{
    REQUIRE_KERNEL(files);
    const QByteArray secret = folder.write(u"secret"_s).toUtf8();
    const QString refused = u"failed b.cnv: read: Permission denied"_s;
    EXPECT_EQ(outcomeOf("read " + secret), refused);
    EXPECT_EQ(outcomeOf("read /etc/passwd"), refused);
    // Outputs of other commands, and what the coordinator works with.
    EXPECT_EQ(outcomeOf("read " + folder.write(u"out/old.png"_s).toUtf8()), refused);
    EXPECT_EQ(outcomeOf("read /proc/" + QByteArray::number(::getpid()) + "/environ"), refused);
    EXPECT_TRUE(QFile::remove(folder.path(u"out/old.png"_s)));
}

TEST_F(HostileWorker, CannotWriteOutsideItsFolder)
{
    REQUIRE_KERNEL(files);
    const QByteArray ownFile = folder.write(u"mine"_s, "mine").toUtf8();
    EXPECT_EQ(outcomeOf("spoil " + ownFile), u"failed b.cnv: spoil: Permission denied"_s);
    EXPECT_EQ(outcomeOf("remove " + ownFile), u"failed b.cnv: remove: Permission denied"_s);
    EXPECT_EQ(outcomeOf("create " + folder.path(u"out/planted.png"_s).toUtf8()),
              u"failed b.cnv: create: Permission denied"_s);
    EXPECT_EQ(outcomeOf("spoil " + folder.path(u"in/a.cnv"_s).toUtf8()),
              u"failed b.cnv: spoil: Permission denied"_s);
    EXPECT_EQ(folder.read(u"mine"_s), "mine");
}

TEST_F(HostileWorker, CannotConnect)
{
    REQUIRE_KERNEL(network);
    const int server = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* const name = reinterpret_cast<sockaddr*>(&address);
    socklen_t size = sizeof address;
    ASSERT_EQ(::bind(server, name, size), 0);
    ASSERT_EQ(::listen(server, 1), 0);
    ASSERT_EQ(::getsockname(server, name, &size), 0);
    EXPECT_EQ(outcomeOf("connect " + QByteArray::number(ntohs(address.sin_port))),
              u"failed b.cnv: connect: Permission denied"_s);
    EXPECT_EQ(::accept(server, nullptr, nullptr), -1) << "the worker has connected";
    ::close(server);
}

TEST_F(HostileWorker, IsStoppedWhenItRunsProgramsOrForks)
{
    REQUIRE_KERNEL(calls);
    for (const char* action : {"execute /bin/true", "fork"}) {
        SCOPED_TRACE(action);
        EXPECT_EQ(outcomeOf(action), u"crashed b.cnv: "_s + Stopped);
    }
}

TEST_F(HostileWorker, IsStoppedWhenItReachesForOtherProcesses)
{
    REQUIRE_KERNEL(calls);
    for (const char* action : {"trace", "kill"}) {
        SCOPED_TRACE(action);
        EXPECT_EQ(outcomeOf(action), u"crashed b.cnv: "_s + Stopped);
    }
}

TEST_F(HostileWorker, IsStoppedWhenItReachesForTheKernel)
{
    REQUIRE_KERNEL(calls);
    for (const long call : {SYS_mount, SYS_unshare, SYS_setns, SYS_io_uring_setup, SYS_keyctl,
                            SYS_add_key, SYS_bpf, SYS_userfaultfd, SYS_init_module}) {
        SCOPED_TRACE(call);
        EXPECT_EQ(outcomeOf("call " + QByteArray::number(static_cast<qlonglong>(call))),
                  u"crashed b.cnv: "_s + Stopped);
    }
}

// Without a sandbox the answer of the worker is all that can be checked.
TEST_F(HostileWorker, CannotHaveForeignFilesMovedOrReplaced)
{
    const QString invalid =
        u"crashed b.cnv: The worker process sent an invalid reply twice; please report the file."_s;
    const QString ownFile = folder.write(u"mine"_s, "mine");
    EXPECT_EQ(outcomeOf("claim " + ownFile.toUtf8()), invalid);
    EXPECT_EQ(outcomeOf("place " + ownFile.toUtf8()), invalid);
    EXPECT_EQ(outcomeOf("place " + folder.path(u"out/a.png"_s).toUtf8()), invalid);
    EXPECT_EQ(folder.read(u"mine"_s), "mine");
}

TEST_F(HostileWorker, CannotMakeLinks)
{
    REQUIRE_KERNEL(files);
    const QString line = outcomeOf("link /etc/passwd");
    EXPECT_TRUE(line.startsWith(u"failed b.cnv: link: "_s)) << qPrintable(line);
}

TEST_F(HostileWorker, GetsNoFileAtAllIfTheSandboxIsRequiredAndIncomplete)
{
    settings.requiresSandbox = true;
    if (sandbox::supported().isComplete()) {
        EXPECT_EQ(outcomeOf("write second"), u"done b.cnv: b.png"_s);
        return;
    }
    EXPECT_EQ(run(), QStringList());
    EXPECT_FALSE(warnings.isEmpty());
}
