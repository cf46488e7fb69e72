// The compact list of inputs.

#include "archive/inputs.h"
#include "tests/archive/test_folder.h"

#include <malloc.h>

namespace {
using namespace Qt::StringLiterals;

using Inputs = QList<archive::Input>;

Inputs listOf(const archive::Inputs& inputs)
{
    Inputs list;
    for (qsizetype index = 0; index < inputs.size(); ++index) {
        list.append(inputs.at(index));
    }
    return list;
}

TEST(Inputs, KeepPathNameAndFolder)
{
    const Inputs inputs{
        {u"/tmp/copy"_s, u"stdin"_s, {}},         {u"a.cnv"_s, u"a.cnv"_s, {}},
        {u"./old/a.cnv"_s, u"old/a.cnv"_s, {}},   {u"/in/x/b.cnv"_s, u"in/x/b.cnv"_s, u"x"_s},
        {u"/in/x/b.cnv"_s, u"in/x/b.cnv"_s, {}},  {u"/in/x/c.cnv"_s, u"in/x/c.cnv"_s, u"x"_s},
        {u"/in/folder/"_s, u"/in/folder/"_s, {}}, {{}, {}, {}}};
    EXPECT_EQ(listOf(archive::Inputs(inputs)), inputs);
}

// As the paths compare, whatever folder holds a file.
TEST(Inputs, AreSortedByShownNameThenPath)
{
    archive::Inputs inputs;
    for (const char* name : {"b/x", "b", "a.cnv", "a/z", "a/b/c", "a-b/c", "a/c", "A/c"}) {
        inputs.append({QLatin1String(name), QLatin1String(name), {}});
    }
    inputs.append({u"/2/a.cnv"_s, u"a.cnv"_s, {}});
    inputs.append({u"/1/a.cnv"_s, u"a.cnv"_s, {}});
    inputs.sort();
    QStringList names;
    for (const archive::Input& input : listOf(inputs)) {
        names.append(input.path);
    }
    EXPECT_EQ(names.join(u' '), u"A/c a-b/c /1/a.cnv /2/a.cnv a.cnv a/b/c a/c a/z b b/x"_s);
}

TEST(Inputs, KeepThoseThatAreWanted)
{
    archive::Inputs inputs({{u"a"_s, u"a"_s, {}}, {u"b"_s, u"b"_s, {}}, {u"c"_s, u"c"_s, {}}});
    inputs.keep({true, false, true});
    EXPECT_EQ(listOf(inputs), (Inputs{{u"a"_s, u"a"_s, {}}, {u"c"_s, u"c"_s, {}}}));
}

// An archive of millions of files must fit into memory.
TEST(Inputs, TakeFewBytesForEachFile)
{
    constexpr qsizetype count = 100'000;
    const std::size_t before = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    archive::Inputs inputs;
    for (qsizetype number = 0; number < count; ++number) {
        const QString folder = u"plant-%1/line"_s.arg(number / 1000);
        const QString path = u"/archive/%1/label-%2.qmtx"_s.arg(folder).arg(number);
        inputs.append({path, path, folder});
    }
    const archive::PathIndex paths(inputs);
    const std::size_t after = ::mallinfo2().uordblks + ::mallinfo2().hblkhd;
    // 16 bytes, a name of 17 letters, and 16 bytes of the index; lists grow by doubling.
    EXPECT_LT(after - before, count * 140);
}

TEST(PathIndex, FindsInputsByAbsolutePath)
{
    const archive::Inputs inputs(
        {{u"/in/./a"_s, u"a"_s, {}}, {u"/in/b"_s, u"b"_s, {}}, {u"/in/x/../a"_s, u"other"_s, {}}});
    const archive::PathIndex index(inputs);
    EXPECT_EQ(index.find(u"/in/b"_s), 1);
    EXPECT_EQ(index.find(u"/in/a"_s), 2) << "the last one";
    EXPECT_FALSE(index.find(u"/in/c"_s));
    EXPECT_EQ(index.duplicates(), (QList<QList<qsizetype>>{{0, 2}}));
}

} // namespace
