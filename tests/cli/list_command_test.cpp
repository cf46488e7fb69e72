// `labelport list`, and imports of the lists.

#include "tests/cli/program_fixture.h"

namespace {
using namespace Qt::StringLiterals;

class ListCommand : public ImportArchive
{
protected:
    QStringList outputs(const QString& folder) const
    {
        QStringList names;
        const std::filesystem::path root = path(folder).toStdString();
        for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
            if (entry.is_regular_file() && entry.path().filename().string().front() != '.') {
                names.append(
                    QString::fromStdString(entry.path().lexically_relative(root).string()));
            }
        }
        names.sort();
        return names;
    }
};

TEST_F(ListCommand, PreparesPartsThatTogetherAreTheArchive)
{
    copy("opendocument/sample_vial.odg", "old/tags/asset.odg"); // next to asset.qmtx
    ASSERT_EQ(labelport(import("old --output-dir whole")).status, 0);
    const Outcome listed = labelport(words("list old --shards 3 --to lists"));
    ASSERT_EQ(listed.status, 0) << qPrintable(listed.err);
    EXPECT_EQ(listed.out, u"lists/1.jsonl\nlists/2.jsonl\nlists/3.jsonl\n"_s);
    EXPECT_EQ(listed.err, u"labelport: 5 files listed.\n"_s);
    for (const char* part : {"lists/1.jsonl", "lists/2.jsonl", "lists/3.jsonl"}) {
        const Outcome imported =
            labelport(import("--output-dir parts --files-from") + QStringList{QLatin1String(part)});
        EXPECT_EQ(imported.status, 0) << qPrintable(imported.err);
    }
    EXPECT_EQ(outputs(u"parts"_s), outputs(u"whole"_s));
    EXPECT_TRUE(has("parts/tags/asset.odg.png"));
    const Outcome again =
        labelport(import("--output-dir parts --resume --files-from lists/1.jsonl"));
    EXPECT_TRUE(again.err.contains(u"2 files had been imported before."_s))
        << qPrintable(again.err);
}

TEST_F(ListCommand, ReadsAListFromStandardInput)
{
    ASSERT_EQ(labelport(words("list old --to lists")).status, 0);
    const Outcome imported =
        labelport(import("--output-dir new --files-from -"), {}, read(u"lists/1.jsonl"_s));
    EXPECT_EQ(imported.status, 0) << qPrintable(imported.err);
    EXPECT_EQ(outputs(u"new"_s).size(), 4);
}

TEST_F(ListCommand, ImportsAnEmptyPart)
{
    ASSERT_EQ(labelport(words("list old --shards 9 --to lists")).status, 0);
    const Outcome imported = labelport(import("--output-dir new --files-from lists/9.jsonl"));
    EXPECT_EQ(imported.status, 0) << qPrintable(imported.err);
}

TEST_F(ListCommand, ReplacesEarlierListsOnly)
{
    ASSERT_EQ(labelport(words("list old --shards 3 --to lists")).status, 0);
    ASSERT_EQ(labelport(words("list old --shards 2 --to lists")).status, 0);
    EXPECT_EQ(outputs(u"lists"_s), words("1.jsonl 2.jsonl"));
    write(u"lists/2.jsonl"_s, "my notes");
    const Outcome refused = labelport(words("list old --shards 2 --to lists"));
    EXPECT_EQ(refused.status, 1);
    EXPECT_EQ(refused.err,
              u"labelport: \"lists/2.jsonl\" exists, and is not a list of labelport.\n"_s);
    EXPECT_EQ(read(u"lists/2.jsonl"_s), QByteArray("my notes"));
}

TEST_F(ListCommand, ListsNamesOfAListWithTheirFolders)
{
    write(u"names.txt"_s, "old/tags/asset.qmtx\nold/vial.odg\n");
    ASSERT_EQ(labelport(words("list --files-from names.txt --base old --to lists")).status, 0);
    EXPECT_TRUE(read(u"lists/1.jsonl"_s).contains("\"folder\":\"tags\""));
    EXPECT_EQ(labelport(import("--output-dir new --files-from lists/1.jsonl")).status, 0);
    EXPECT_EQ(outputs(u"new"_s), words("tags/asset.png vial.png"));
}

TEST_F(ListCommand, RefusesWhatItCannotList)
{
    write(u"empty/readme.txt"_s, "no label");
    EXPECT_EQ(labelport(words("list empty --to lists")).err, u"labelport: No labels to list.\n"_s);
    write(u"file"_s, "x");
    EXPECT_EQ(labelport(words("list old --to file/lists")).status, 1);
    ASSERT_EQ(labelport(words("list old --to lists")).status, 0);
    EXPECT_EQ(labelport(words("list --files-from lists/1.jsonl --to more")).status, 1);
}

TEST_F(ListCommand, ItsListsAreImportedAlone)
{
    ASSERT_EQ(labelport(words("list old --to lists")).status, 0);
    for (const char* more : {"old/vial.odg", "--base old", "--shard 1/2", "--null"}) {
        SCOPED_TRACE(more);
        const Outcome refused =
            labelport(import("--output-dir new --files-from lists/1.jsonl") + words(more));
        EXPECT_EQ(refused.status, 1);
        EXPECT_TRUE(refused.err.contains(u"was written by \"labelport list\""_s));
    }
    const QByteArray list = read(u"lists/1.jsonl"_s);
    write(u"lists/1.jsonl"_s, list.chopped(5));
    const Outcome damaged = labelport(import("--output-dir new --files-from lists/1.jsonl"));
    EXPECT_EQ(damaged.status, 1);
    EXPECT_EQ(damaged.err, u"labelport: Cannot read the list of files \"lists/1.jsonl\": it is "
                           "damaged or incomplete.\n"_s);
    EXPECT_FALSE(has("new"));
}

} // namespace
