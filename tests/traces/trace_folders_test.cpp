#include "trace_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace {

class TraceFoldersTest : public ::testing::Test
{
protected:
    void touch(const QString& name) const
    {
        const QString path = m_folder.filePath(name);
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }

    QTemporaryDir m_folder;
    TraceFolders m_folders{m_folder.filePath(QStringLiteral("samples")),
                           m_folder.filePath(QStringLiteral("traces"))};
};

TEST_F(TraceFoldersTest, FindsEveryLabelOfEveryReader)
{
    for (const char* name : {"tavrel/b.cnv", "tavrel/a.roc", "orvanta/l.qmtx", "opendocument/d.odg",
                             "opendocument/d.odt", "opendocument/make.sh", "tavrel/README.md"}) {
        touch(QStringLiteral("samples/") + QLatin1String(name));
    }
    QStringList names;
    for (const TracedSample& sample : m_folders.samples()) {
        names.append(sample.name);
        EXPECT_TRUE(QFile::exists(sample.samplePath));
    }
    EXPECT_EQ(names, (QStringList{
                         QStringLiteral("opendocument/d.odg"),
                         QStringLiteral("opendocument/d.odt"),
                         QStringLiteral("orvanta/l.qmtx"),
                         QStringLiteral("tavrel/a.roc"),
                         QStringLiteral("tavrel/b.cnv"),
                     }));
    EXPECT_EQ(m_folders.samples().first().referencePath,
              m_folder.filePath(QStringLiteral("traces/opendocument/d.odg.jsonl")));
}

TEST_F(TraceFoldersTest, FindsReferencesThatLostTheirSample)
{
    touch(QStringLiteral("samples/tavrel/kept.cnv"));
    touch(QStringLiteral("traces/tavrel/kept.cnv.jsonl"));
    touch(QStringLiteral("traces/tavrel/gone.cnv.jsonl"));
    EXPECT_EQ(m_folders.orphans(), QStringList{QStringLiteral("tavrel/gone.cnv.jsonl")});
}

} // namespace
