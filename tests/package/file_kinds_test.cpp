// The file type that a desktop detects for a label, by name and by content.

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A MIME database with LabelPort's types, used instead of the user's.
class FileKinds : public ::testing::Test
{
protected:
    static void SetUpTestSuite()
    {
        s_data = std::make_unique<QTemporaryDir>();
        ASSERT_TRUE(QDir(s_data->path()).mkpath(u"mime/packages"_s));
        // One folder, as in an installation: Qt ignores priorities between several.
        for (const char* description :
             {LABELPORT_MIME_FILE, "/usr/share/mime/packages/freedesktop.org.xml"}) {
            const QString file = QString::fromLatin1(description);
            ASSERT_TRUE(QFile::copy(
                file, s_data->filePath(u"mime/packages/"_s + QFileInfo(file).fileName())))
                << description;
        }
        ASSERT_EQ(QProcess::execute(u"update-mime-database"_s, {s_data->filePath(u"mime"_s)}), 0);
        qputenv("XDG_DATA_HOME", s_data->path().toUtf8());
        qputenv("XDG_DATA_DIRS", s_data->path().toUtf8());
        s_database = std::make_unique<QMimeDatabase>();
    }

    static void TearDownTestSuite()
    {
        s_database.reset();
        s_data.reset();
    }

    static QString kindByName(const char* name)
    {
        return s_database->mimeTypeForFile(QString::fromLatin1(name), QMimeDatabase::MatchExtension)
            .name();
    }

    static QString kindByContent(const QByteArray& content)
    {
        return s_database->mimeTypeForData(content).name();
    }

    static QByteArray sample(const QString& name)
    {
        QFile file(QStringLiteral(LABELPORT_SAMPLES "/") + name);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
        return file.readAll();
    }

    static std::unique_ptr<QTemporaryDir> s_data;
    static std::unique_ptr<QMimeDatabase> s_database;
};

std::unique_ptr<QTemporaryDir> FileKinds::s_data;
std::unique_ptr<QMimeDatabase> FileKinds::s_database;

const QString SavedLabel = u"application/x-labelport-label"_s;
const QString BinaryLabel = u"application/x-tavrel-canvas"_s;
const QString XmlLabel = u"application/x-orvanta-label+xml"_s;

TEST_F(FileKinds, ByName)
{
    EXPECT_EQ(kindByName("shelf.label"), SavedLabel);
    EXPECT_EQ(kindByName("shelf.cnv"), BinaryLabel);
    EXPECT_EQ(kindByName("shelf.roc"), BinaryLabel);
    EXPECT_EQ(kindByName("shelf.qmtx"), XmlLabel);
    EXPECT_EQ(kindByName("shelf.odt"), u"application/vnd.oasis.opendocument.text"_s);
    EXPECT_EQ(kindByName("shelf.odg"), u"application/vnd.oasis.opendocument.graphics"_s);
}

TEST_F(FileKinds, BinaryLabelsOfEveryVersionByContent)
{
    const QStringList names =
        QDir(QStringLiteral(LABELPORT_SAMPLES "/tavrel")).entryList({u"*.cnv"_s, u"*.roc"_s});
    EXPECT_EQ(names.size(), 9);
    for (const QString& name : names) {
        EXPECT_EQ(kindByContent(sample(u"tavrel/"_s + name)), BinaryLabel) << qPrintable(name);
    }
    EXPECT_NE(kindByContent(QByteArray("\0\0\0\0\0\x1e\x83\x00", 8)), BinaryLabel);
}

TEST_F(FileKinds, SavedLabelsByContent)
{
    EXPECT_EQ(kindByContent(R"({"format": "labelport-label", "version": 1, "label": {}})"),
              SavedLabel);
    const QByteArray checksum(64, 'f');
    EXPECT_EQ(kindByContent("{\n    \"checksum\": \"" + checksum +
                            "\",\n    \"format\": \"labelport-label\","),
              SavedLabel);
    EXPECT_NE(kindByContent(R"({"format": "labelport-report"})"), SavedLabel);
}

TEST_F(FileKinds, AreSortsOfWhatTheyAreMadeOf)
{
    QMimeDatabase database;
    EXPECT_TRUE(database.mimeTypeForName(SavedLabel).inherits(u"application/json"_s));
    EXPECT_TRUE(database.mimeTypeForName(XmlLabel).inherits(u"application/xml"_s));
}

TEST_F(FileKinds, OpenInTheWindow)
{
    QFile file(QStringLiteral(LABELPORT_DESKTOP_FILE));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    for (const char* name : {"a.label", "a.cnv", "a.roc", "a.qmtx", "a.odt", "a.odg"}) {
        EXPECT_TRUE(text.contains(kindByName(name).toLatin1() + ';')) << name;
    }
}

} // namespace
