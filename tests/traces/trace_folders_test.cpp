#include "trace_folders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

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
    TraceFolders m_folders{m_folder.filePath(u"samples"_s), m_folder.filePath(u"traces"_s)};
};

TEST_F(TraceFoldersTest, FindsEveryLabelOfEveryReader)
{
    for (const char* name : {"tavrel/b.cnv", "tavrel/a.roc", "orvanta/l.qmtx", "opendocument/d.odg",
                             "opendocument/d.odt", "opendocument/make.sh", "tavrel/README.md"}) {
        touch(u"samples/"_s + QLatin1String(name));
    }
    QStringList names;
    for (const TracedSample& sample : m_folders.samples()) {
        names.append(sample.name);
        EXPECT_TRUE(QFile::exists(sample.samplePath));
    }
    EXPECT_EQ(names, (QStringList{
                         u"opendocument/d.odg"_s,
                         u"opendocument/d.odt"_s,
                         u"orvanta/l.qmtx"_s,
                         u"tavrel/a.roc"_s,
                         u"tavrel/b.cnv"_s,
                     }));
    EXPECT_EQ(m_folders.samples().first().referencePath,
              m_folder.filePath(u"traces/opendocument/d.odg.jsonl"_s));
}

TEST_F(TraceFoldersTest, FindsReferencesThatLostTheirSample)
{
    touch(u"samples/tavrel/kept.cnv"_s);
    touch(u"traces/tavrel/kept.cnv.jsonl"_s);
    touch(u"traces/tavrel/gone.cnv.jsonl"_s);
    EXPECT_EQ(m_folders.orphans(), QStringList{u"tavrel/gone.cnv.jsonl"_s});
}

} // namespace
