#include "workbench/document/label_file.h"

#include "sample_label.h"

#include "workbench/document/document_limits.h"
#include "workbench/document/label_json.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>
#include <sys/resource.h>

using namespace Qt::Literals::StringLiterals;

using namespace workbench;
using namespace workbench::document;
using testing::HasSubstr;

namespace {

class LabelFile : public testing::Test
{
protected:
    void SetUp() override { ASSERT_TRUE(restore(sampleLabel(), canvas, sources)); }

    QString path(const char* name = "one.label") const
    {
        return folder.filePath(QString::fromUtf8(name));
    }
    QString written(const QByteArray& bytes) const
    {
        QFile file(path("written.label"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    static QByteArray contentOf(const QString& path)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QTemporaryDir folder;
    Canvas canvas;
    datasources::DatasourceController sources;
};

/// Limits the size of files during its lifetime, to simulate a full disk.
class FullDisk
{
public:
    explicit FullDisk(rlim_t bytes)
    {
        m_handler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_before);
        rlimit full = m_before;
        full.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &full);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

} // namespace

TEST_F(LabelFile, SendsAHeartbeatForEachItem)
{
    const SavedLabel label = sampleLabel();
    ASSERT_GE(label.items.size(), 4);
    ASSERT_TRUE(restore(label, canvas, sources));
    qsizetype count = 0;
    EXPECT_EQ(saveLabel(path(), canvas, sources, Origin::User, [&count] { ++count; }), QString());
    EXPECT_GT(count, label.items.size());
}

TEST_F(LabelFile, NumbersZValuesInTheirOrder)
{
    SavedLabel label = sampleLabel();
    ASSERT_GE(label.items.size(), 4);
    label.items.resize(4);
    const double given[] = {1e9, -7.5, 1e9, 12.0};
    for (qsizetype i = 0; i < 4; ++i) {
        label.items[i].placement.z = given[i];
    }
    ASSERT_TRUE(restore(label, canvas, sources));
    const SavedLabel saved = snapshot(canvas, sources);
    QList<double> numbers;
    for (const ItemValues& item : saved.items) {
        numbers << item.placement.z;
    }
    EXPECT_EQ(numbers, QList<double>({2.0, 0.0, 2.0, 1.0}));
}

TEST_F(LabelFile, OpensInPlaceOfAnotherLabel)
{
    ASSERT_EQ(saveLabel(path(), canvas, sources).toStdString(), "");
    Canvas other;
    datasources::DatasourceController otherSources;
    ASSERT_TRUE(restore(
        {{{50, 50}, false, false, Qt::red, Qt::green}, {}, {sampleItem(KestTypes::Ellipse)}}, other,
        otherSources));
    ASSERT_EQ(openLabel(path(), other, otherSources).toStdString(), "");
    EXPECT_EQ(snapshot(other, otherSources), snapshot(canvas, sources));
    EXPECT_TRUE(other.isComplete());
    EXPECT_EQ(other.scene()->sceneRect(), other.pageRect());
}

TEST_F(LabelFile, LeavesTheCanvasAloneWhenItCannotOpen)
{
    const SavedLabel before = snapshot(canvas, sources);
    SavedLabel twice = sampleLabel();
    twice.datasources << twice.datasources[0];
    const struct
    {
        QString file;
        const char* words;
    } rows[] = {
        {path("missing.label"), "cannot be opened: No such file"},
        {folder.path(), "cannot be opened: it is a folder."},
        {written("{"), "The file is not a saved label, or it is damaged"},
    };
    for (const auto& row : rows) {
        EXPECT_THAT(openLabel(row.file, canvas, sources).toStdString(), HasSubstr(row.words));
        EXPECT_EQ(snapshot(canvas, sources), before);
    }
    EXPECT_EQ(openLabel(written(toJson(twice)), canvas, sources).toStdString(),
              "The label file is damaged: its data sources do not fit together.");
    EXPECT_EQ(snapshot(canvas, sources), before);
}

TEST_F(LabelFile, IsNotReadWhenItIsTooLarge)
{
    QFile file(path("huge.label"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_TRUE(file.resize(limits::FileBytes + 1));
    file.close();
    EXPECT_THAT(openLabel(file.fileName(), canvas, sources).toStdString(),
                HasSubstr("it is larger than any label."));
}

TEST_F(LabelFile, SaysWhyItCannotSave)
{
    EXPECT_THAT(saveLabel(path("no/such/folder.label"), canvas, sources).toStdString(),
                HasSubstr("The label cannot be saved as "));
    EXPECT_NE(saveLabel(folder.path(), canvas, sources), QString());
    EXPECT_NE(saveLabel(QString(), canvas, sources), QString());
}

TEST_F(LabelFile, KeepsTheOldFileWhenTheDiskIsFull)
{
    {
        const FullDisk full(0);
        QFile probe(path("probe"));
        if (probe.open(QIODevice::WriteOnly) && probe.write("x") == 1 && probe.flush()) {
            GTEST_SKIP() << "this system does not keep files to a size";
        }
    }
    QFile::remove(path("probe"));
    ASSERT_EQ(saveLabel(path(), canvas, sources).toStdString(), "");
    const QByteArray old = contentOf(path());
    canvas.clear();
    canvas.addItem(sampleItem(KestTypes::Picture));
    QStringList errors;
    for (const rlim_t room : {rlim_t{0}, rlim_t{1}, rlim_t{500}}) {
        const FullDisk full(room);
        errors << saveLabel(path(), canvas, sources);
    }
    for (const QString& error : errors) {
        EXPECT_THAT(error.toStdString(), HasSubstr("The label cannot be saved as "));
    }
    EXPECT_EQ(contentOf(path()), old);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1)
        << "nothing half done is left beside it";
}

TEST_F(LabelFile, ReplacesTheOldFileInOneStep)
{
    ASSERT_EQ(saveLabel(path(), canvas, sources).toStdString(), "");
    QFile old(path());
    ASSERT_TRUE(old.open(QIODevice::ReadOnly));
    const QByteArray before = contentOf(path());
    canvas.clear();
    ASSERT_EQ(saveLabel(path(), canvas, sources).toStdString(), "");
    EXPECT_EQ(old.readAll(), before) << "the old file was not written to";
    EXPECT_NE(contentOf(path()), before);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(LabelFile, ShowsTheFirstRecordOfItsDataSources)
{
    SavedLabel label;
    label.datasources = {
        {1, u"TextListDatasource"_s, {{u"TextList"_s, QStringList{u"12345"_s}}}, {}}};
    ItemValues barcode = sampleItem(KestTypes::Barcode);
    barcode.barcode->symbology = 8;
    barcode.barcode->content = QString(QChar(0xe4));
    barcode.datasource = DatasourceValues{1, {}};
    label.items = {barcode};
    ASSERT_TRUE(restore(label, canvas, sources));
    EXPECT_EQ(canvas.items()[0]->issue(), QString()) << "the source's text can be encoded";
    EXPECT_EQ(canvas.items()[0]->values().barcode->content, barcode.barcode->content);
}
