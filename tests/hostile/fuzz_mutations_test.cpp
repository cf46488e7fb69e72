// The fuzz targets' own mutators: what they change is still what it was.

#include "fuzz/harness.h"
#include "fuzz/mutations.h"
#include "tavrel/file_versions.h"
#include "tests/opendocument/documents.h"

#include "limits/zip/zip_directory.h"

#include <QtEndian>

#include <algorithm>

#include <gtest/gtest.h>

namespace {

QByteArray reversed(QByteArray bytes)
{
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

void expectMember(const QByteArray& package, const char* name)
{
    const MemoryFile file(package);
    ziplimits::ZipDirectory directory;
    EXPECT_FALSE(directory.open(file.path()));
    EXPECT_FALSE(directory.refusalOf(QLatin1String(name), 1 << 20)) << name;
}

TEST(PackageMutation, KeepsThePackageReadable)
{
    const QByteArray package = Package("<styles/>", "<content/>").bytes();
    for (quint32 seed = 0; seed < 8; ++seed) {
        SCOPED_TRACE(seed);
        const auto changed = mutatedPackage(package, seed, reversed);
        ASSERT_TRUE(changed);
        EXPECT_NE(*changed, package);
        expectMember(*changed, "styles.xml");
        expectMember(*changed, "content.xml");
        const bool stored = seed % 2 == 0;
        EXPECT_EQ(changed->contains(">/selyts<") || changed->contains(">/tnetnoc<"), stored);
    }
}

TEST(PackageMutation, IgnoresDataThatIsNotAPackage)
{
    EXPECT_FALSE(mutatedPackage("no package", 1, reversed));
    QByteArray damaged = Package("<styles/>", "<content/>").bytes();
    damaged.replace("PK\x01\x02", "PK\x01\x03");
    EXPECT_FALSE(mutatedPackage(damaged, 1, reversed));
}

TEST(CanvasFileMutation, KeepsAVersionThatIsRead)
{
    const QByteArray start = QByteArray::fromHex("00000000001E8494"); // 2000020
    for (quint32 seed = 0; seed < 100; ++seed) {
        for (const QByteArray& file : {start + "abc", QByteArray(), QByteArray("x")}) {
            const QByteArray changed = mutatedCanvasFile(file, seed, reversed);
            ASSERT_GE(changed.size(), 8);
            const auto version = qFromBigEndian<quint32>(changed.constData() + 4);
            EXPECT_GE(version, tavrel::OldestVersion);
            EXPECT_LE(version, tavrel::CurrentVersion);
        }
    }
    EXPECT_EQ(mutatedCanvasFile(start + "abc", 1, reversed), start + "cba");
}

} // namespace
