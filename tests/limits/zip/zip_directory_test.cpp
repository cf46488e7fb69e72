// The claims of zip packages, checked before Qt unpacks them.

#include "limits/zip/zip_directory.h"

#include "tests/opendocument/documents.h"

#include <QtEndian>

#include <gtest/gtest.h>

using namespace ziplimits;
using namespace Qt::StringLiterals;

namespace {

constexpr qint64 Plenty = 1 << 20;

// Text that is packed, not stored.
const QByteArray Text = QByteArray("label ").repeated(200);

// The offset of the table's entry of a package with one member.
qsizetype entryIn(const QByteArray& zip)
{
    return zip.indexOf("PK\x01\x02");
}

template <class Number>
QByteArray with(QByteArray zip, qsizetype offset, Number number)
{
    qToLittleEndian(number, zip.data() + offset);
    return zip;
}

QByteArray packed(const QByteArray& data = Text)
{
    return Package().add(u"a.xml"_s, data).bytes();
}

QString openingOf(const QByteArray& zip)
{
    Package package;
    ZipDirectory directory;
    return directory.open(package.writeRaw(zip)).value_or(QString());
}

QString refusalIn(const QByteArray& zip, qint64 largest = Plenty)
{
    Package package;
    ZipDirectory directory;
    EXPECT_EQ(directory.open(package.writeRaw(zip)), std::nullopt);
    return directory.refusalOf(u"a.xml"_s, largest).value_or(QString());
}

const QString Damaged = u"The package's member a.xml is damaged"_s;

// A member is read with its own size for the largest, and not with one byte less.
void expectSize(ZipDirectory& directory, const QString& name, qint64 size)
{
    EXPECT_EQ(directory.refusalOf(name, size), std::nullopt);
    EXPECT_TRUE(directory.refusalOf(name, size - 1).has_value());
}

QByteArray claimingMembers(quint16 count)
{
    QByteArray zip = packed();
    qToLittleEndian(count, zip.data() + zip.lastIndexOf("PK\x05\x06") + 10);
    return zip;
}

} // namespace

TEST(ZipDirectory, AcceptsWhatIsIntact)
{
    EXPECT_EQ(refusalIn(packed()), QString());
    EXPECT_EQ(refusalIn(packed("x")), QString());
    EXPECT_EQ(refusalIn(packed(QByteArray())), QString());
    EXPECT_EQ(refusalIn(packed(QByteArray(Plenty, 'x'))), QString());
    EXPECT_EQ(refusalIn(packed() + "trailing bytes"), QString());
}

TEST(ZipDirectory, KnowsItsMembers)
{
    Package package;
    ZipDirectory directory;
    ASSERT_FALSE(directory.open(package.add(u"a.xml"_s, Text).add(u"b"_s, "x").write()));
    EXPECT_TRUE(directory.hasMember(u"a.xml"_s));
    EXPECT_FALSE(directory.hasMember(u"A.XML"_s));
    EXPECT_FALSE(directory.hasMember(u"c"_s));
    expectSize(directory, u"a.xml"_s, Text.size());
    EXPECT_EQ(directory.refusalOf(u"c"_s, Plenty), u"The package has no member c"_s);
}

TEST(ZipDirectory, ForgetsTheLastPackage)
{
    Package package;
    ZipDirectory directory;
    ASSERT_FALSE(directory.open(package.add(u"a.xml"_s, Text).write()));
    EXPECT_TRUE(directory.isPackage());
    EXPECT_TRUE(directory.open(u"/nowhere/at/all.odg"_s));
    EXPECT_FALSE(directory.hasMember(u"a.xml"_s));
    EXPECT_FALSE(directory.isPackage());
}

TEST(ZipDirectory, RefusesDataThatIsNotAZipFile)
{
    EXPECT_TRUE(openingOf({}).startsWith(u"The file is not a zip package"_s));
    EXPECT_TRUE(openingOf("<xml/>").startsWith(u"The file is not a zip package"_s));
    EXPECT_TRUE(openingOf(QByteArray(200000, 'x')).startsWith(u"The file is not a zip package"_s));
    ZipDirectory directory;
    EXPECT_TRUE(directory.open(u"/tmp"_s)->startsWith(u"The file cannot be opened"_s));
    EXPECT_TRUE(directory.open(QString())->startsWith(u"The file cannot be opened"_s));
    Package package;
    EXPECT_TRUE(directory.open(package.writeRaw("<xml/>")));
    EXPECT_FALSE(directory.isPackage());
}

TEST(ZipDirectory, DistinguishesADamagedPackageFromOtherData)
{
    QByteArray zip = packed();
    zip[entryIn(zip)] = 'X';
    Package package;
    ZipDirectory directory;
    EXPECT_TRUE(directory.open(package.writeRaw(zip)));
    EXPECT_TRUE(directory.isPackage());
}

TEST(ZipDirectory, FindsThePackageBeforeTheLongestComment)
{
    constexpr qsizetype longest = 65535;
    EXPECT_EQ(openingOf(packed() + QByteArray(longest, 'x')), QString());
    EXPECT_TRUE(openingOf(packed() + QByteArray(longest + 1, 'x'))
                    .startsWith(u"The file is not a zip package"_s));
}

TEST(ZipDirectory, RefusesADamagedTableOfContents)
{
    const QByteArray zip = packed();
    const qsizetype end = zip.indexOf("PK\x05\x06");
    const QString damaged = u"The package's table of contents is damaged"_s;
    EXPECT_TRUE(openingOf(with<quint32>(zip, end + 16, 0xfffffff0)).startsWith(damaged));
    EXPECT_TRUE(openingOf(with<quint32>(zip, end + 16, 3)).startsWith(damaged));
    EXPECT_TRUE(openingOf(with<quint16>(zip, end + 10, 2)).startsWith(damaged));
    EXPECT_TRUE(openingOf(with<quint16>(zip, entryIn(zip) + 28, 60000)).startsWith(damaged));
    EXPECT_TRUE(openingOf(with<quint16>(zip, entryIn(zip) + 32, 60000)).startsWith(damaged));
    EXPECT_TRUE(openingOf(with<quint16>(zip, end + 10, 5000))
                    .startsWith(u"The package has more than 4096 members"_s));
}

TEST(ZipDirectory, RefusesAWrongChecksum)
{
    const QByteArray zip = packed();
    EXPECT_EQ(refusalIn(with<quint32>(zip, entryIn(zip) + 16, 12345)), Damaged);
    const QByteArray stored = Package().add(u"a.xml"_s, Text).storeUncompressed().bytes();
    ASSERT_TRUE(stored.contains(Text));
    EXPECT_EQ(refusalIn(stored), QString());
    EXPECT_EQ(refusalIn(with<quint32>(stored, entryIn(stored) + 16, 12345)), Damaged);
}

TEST(ZipDirectory, RefusesDataThatIsNotWhatItClaims)
{
    const QByteArray zip = packed();
    const qsizetype entry = entryIn(zip);
    const auto claim = [&zip, entry](quint32 size) { return with<quint32>(zip, entry + 24, size); };
    EXPECT_EQ(refusalIn(claim(quint32(Text.size()) - 1)), Damaged) << "a bomb claims to be small";
    EXPECT_EQ(refusalIn(claim(0)), Damaged);
    EXPECT_EQ(refusalIn(claim(quint32(Text.size()) + 1)), Damaged);
}

TEST(ZipDirectory, RefusesMembersThatAreTooLarge)
{
    const QByteArray zip = packed();
    EXPECT_EQ(refusalIn(zip, Text.size()), QString());
    EXPECT_TRUE(refusalIn(zip, Text.size() - 1)
                    .startsWith(u"The package's member a.xml is too large: 1200 bytes"_s));
    EXPECT_TRUE(refusalIn(with<quint32>(zip, entryIn(zip) + 24, 0xfffffff0))
                    .startsWith(u"The package's member a.xml is too large: 4294967280"_s));
}

TEST(ZipDirectory, RefusesDataOutsideTheFile)
{
    const QByteArray zip = packed();
    const qsizetype entry = entryIn(zip);
    EXPECT_EQ(refusalIn(with<quint32>(zip, entry + 42, 0xfffffff0)), Damaged);
    EXPECT_EQ(refusalIn(with<quint32>(zip, entry + 20, 3000)), Damaged);
    EXPECT_NE(refusalIn(with<quint32>(zip, entry + 20, 0xfffffff0)), QString());
    EXPECT_EQ(refusalIn(with<quint16>(zip, 28, 60000)), Damaged) << "the extra field of the member";
}

TEST(ZipDirectory, RefusesOtherMethodsOfPacking)
{
    EXPECT_EQ(refusalIn(with<quint16>(packed(), 8, 12)), Damaged);
}

TEST(ZipDirectory, RefusesEveryDamagedByteOfTheData)
{
    const QByteArray zip = packed();
    const qsizetype data = 30 + 5;
    for (qsizetype at = data; at < zip.indexOf("PK\x01\x02"); ++at) {
        SCOPED_TRACE(at);
        QByteArray damaged = zip;
        damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
        EXPECT_EQ(refusalIn(damaged), Damaged);
    }
}

TEST(ZipDirectory, TakesTheFirstOfTwoMembersOfOneName)
{
    const QByteArray zip = Package().add(u"a.xml"_s, Text).add(u"b.xml"_s, "x").bytes();
    QByteArray twice = zip;
    twice[twice.lastIndexOf("b.xml")] = 'a';
    Package package;
    ZipDirectory directory;
    ASSERT_FALSE(directory.open(package.writeRaw(twice)));
    expectSize(directory, u"a.xml"_s, Text.size());
}

TEST(ZipDirectory, LimitsTheNumberOfMembers)
{
    const auto most = quint16(MaximumMembers);
    EXPECT_TRUE(openingOf(claimingMembers(most)).startsWith(u"The package's table of contents"_s));
    EXPECT_EQ(openingOf(claimingMembers(most + 1)), u"The package has more than 4096 members"_s);
}

TEST(ZipDirectory, LimitsTheTableOfContents)
{
    constexpr qint64 entry = 46;
    constexpr qint64 longName = 60'000;
    constexpr int many = int(MaximumDirectoryBytes / (entry + longName));
    const auto withRest = [](qint64 rest) {
        Package package;
        for (int i = 0; i < many; ++i) {
            package.add(QString::number(i).leftJustified(longName, u'x'), {});
        }
        return package.add(QString(rest - entry, u'y'), {}).bytes();
    };
    const qint64 rest = MaximumDirectoryBytes - many * (entry + longName);
    EXPECT_EQ(openingOf(withRest(rest)), QString());
    EXPECT_EQ(openingOf(withRest(rest + 1)),
              u"The package's table of contents is longer than 4194304 bytes"_s);
}

// Qt's writer stores data that it cannot compress.
TEST(ZipDirectory, ReadsStoredMembers)
{
    QByteArray noise;
    quint32 state = 1;
    for (int i = 0; i < 200; ++i) {
        state = state * 1'664'525 + 1'013'904'223;
        noise += char(state >> 24);
    }
    QByteArray zip = packed(noise);
    // A stored member: method 0 in both headers, and the data itself.
    const qsizetype data = 30 + 5;
    const qsizetype compressed = entryIn(zip) - data;
    zip = with<quint16>(with<quint16>(zip, 8, 0), entryIn(zip) + 10, 0);
    zip = with<quint32>(zip, entryIn(zip) + 20, quint32(noise.size()));
    zip = with<quint32>(zip, zip.lastIndexOf("PK\x05\x06") + 16, quint32(data + noise.size()));
    zip.replace(data, compressed, noise);
    EXPECT_EQ(refusalIn(zip), QString());
    ZipDirectory directory;
    ASSERT_FALSE(directory.openBytes(zip));
    EXPECT_EQ(directory.read(u"a.xml"_s, Plenty), noise);
    zip[data] = char(zip[data] ^ 1);
    EXPECT_EQ(refusalIn(zip), Damaged);
}

TEST(ZipDirectory, ReadsNoMoreThanIsAllowed)
{
    ZipDirectory directory;
    ASSERT_FALSE(directory.openBytes(packed()));
    EXPECT_TRUE(directory.isPackage());
    EXPECT_EQ(directory.read(u"a.xml"_s, Text.size()), Text);
    EXPECT_EQ(directory.read(u"a.xml"_s, Text.size() - 1), std::nullopt);
    EXPECT_EQ(directory.read(u"missing.xml"_s, Plenty), std::nullopt);
}

TEST(ZipDirectory, HasNoMembersIfItsTableIsDamaged)
{
    const QByteArray zip = packed();
    ZipDirectory directory;
    ASSERT_TRUE(directory.openBytes(with<quint16>(zip, zip.lastIndexOf("PK\x05\x06") + 10, 2)));
    EXPECT_TRUE(directory.isPackage());
    EXPECT_FALSE(directory.hasMember(u"a.xml"_s));
}
