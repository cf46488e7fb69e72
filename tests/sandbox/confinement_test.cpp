// The names and the sums of what is confined. What it prevents is tested with workers.

#include "sandbox/confinement.h"
#include "sandbox/system_files.h"
#include "tests/archive/test_folder.h"

#include <cstdlib>

#include <unistd.h>

namespace {
using namespace Qt::StringLiterals;
using sandbox::Confinement;

TEST(Confinement, HasStableNames)
{
    EXPECT_EQ(sandbox::codesOf({true, true, true}),
              (QStringList{u"files"_s, u"network"_s, u"calls"_s}));
    EXPECT_EQ(sandbox::codesOf({}), QStringList());
    for (const Confinement& confinement :
         {Confinement{true, false, false}, Confinement{false, true, true}, Confinement{}}) {
        EXPECT_EQ(sandbox::confinementOf(sandbox::codesOf(confinement)), confinement);
    }
    EXPECT_EQ(sandbox::confinementOf({u"+"_s, u"files"_s, u"moon"_s}),
              (Confinement{true, false, false}));
}

TEST(Confinement, IsAsWeakAsItsWeakestPart)
{
    EXPECT_EQ(sandbox::common({true, true, false}, {false, true, true}),
              (Confinement{false, true, false}));
    EXPECT_TRUE((Confinement{true, true, true}.isComplete()));
    EXPECT_FALSE((Confinement{true, true, false}.isComplete()));
}

TEST(Confinement, IsDescribed)
{
    EXPECT_EQ(sandbox::describe({true, false, true}), u"files, system calls"_s);
    EXPECT_EQ(sandbox::describe({}), u"none"_s);
}

TEST(Confinement, IsNotActiveBeforeItIsAskedFor)
{
    EXPECT_EQ(sandbox::active(), Confinement{});
}

// In a separate process, because confinement is irrevocable.
TEST(Confinement, GivesWhatTheSystemOffers)
{
    const TestFolder folder;
    const QByteArray readable = folder.write(u"in/label"_s).toUtf8();
    const QByteArray secret = folder.write(u"secret"_s).toUtf8();
    const QByteArray created = folder.path(u"out/new"_s).toUtf8();
    folder.write(u"out/old"_s);
    const auto check = [&] {
        const Confinement offered = sandbox::supported();
        const Confinement got = sandbox::confine({{folder.path(u"in"_s)}, {folder.path(u"out"_s)}});
        const bool isRight =
            got == offered && got == sandbox::active() &&
            QFile(QString::fromUtf8(readable)).open(QIODevice::ReadOnly) &&
            QFile(QString::fromUtf8(created)).open(QIODevice::WriteOnly) &&
            QFile::remove(folder.path(u"out/old"_s)) &&
            QFile(QString::fromUtf8(secret)).open(QIODevice::ReadOnly) != offered.files &&
            // Ignored by the filter, even for a descriptor that does not exist.
            (::fsync(-1) == 0) == offered.calls && (::fdatasync(-1) == 0) == offered.calls;
        ::_exit(isRight ? 0 : 1);
    };
    EXPECT_EXIT(check(), ::testing::ExitedWithCode(0), "");
}

TEST(SystemFiles, AreFewBecauseEachIsARule)
{
    const QStringList files = sandbox::systemFiles();
    EXPECT_LT(files.size(), 60);
    EXPECT_TRUE(files.contains(u"/usr/share"_s));
    for (const QString& file : files) {
        EXPECT_FALSE(file.startsWith(u"/usr/share/"_s)) << qPrintable(file);
    }
}

} // namespace
