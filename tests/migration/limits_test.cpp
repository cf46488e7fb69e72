// Every limit of the census and the report, at its last valid and its first invalid value.

#include "limits/json/tree_size.h"
#include "limits/zip/zip_directory.h"
#include "migration/census/counting.h"
#include "migration/model/file_report.h"
#include "migration/model/known_fonts.h"
#include "migration/report/report_lines.h"
#include "tests/migration/documents.h"
#include "tests/support/canvas_writer/canvas_writer.h"

#include <QBuffer>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtEndian>

#include <gtest/gtest.h>

#include <private/qzipwriter_p.h>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

/// A sparse file of this many zero bytes.
class HollowFile
{
public:
    explicit HollowFile(qint64 size)
        : m_name(m_folder.filePath(u"hollow"_s))
    {
        QFile file(m_name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.resize(size));
    }

    [[nodiscard]] const QString& name() const { return m_name; }

private:
    QTemporaryDir m_folder;
    QString m_name;
};

bool isCounted(const Census& census)
{
    return census.unknown.isEmpty();
}

QByteArray canvasStart()
{
    CanvasWriter writer(2000016);
    writer.start();
    return writer.bytes();
}

// The shortest object of a binary label: a symbol of no name.
QByteArray smallestObject()
{
    QByteArray record(4 + 1 + 4 * 8 + 2 * 4 + 4, '\0');
    qToBigEndian<qint32>(canvas::SymbolCode, record.data());
    return record;
}

QByteArray package(const QByteArray& styles, const QByteArray& content)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter zip(&buffer);
    zip.addFile(u"styles.xml"_s, styles);
    zip.addFile(u"content.xml"_s, content);
    zip.close();
    return buffer.data();
}

// A document of exactly this many bytes.
QByteArray documentOf(qint64 size)
{
    return QByteArray("<a/>").leftJustified(size, ' ');
}

qsizetype lineRead(QByteArray text)
{
    QBuffer report(&text);
    EXPECT_TRUE(report.open(QIODevice::ReadOnly));
    return readReportLine(report).size();
}

// Lists whose parsed tree has exactly this many bytes.
QByteArray linesOfTree(qint64 tree)
{
    const QByteArray lists = QByteArray("[[[[[[[[ ").repeated(300'000);
    const qint64 taken = jsonlimits::treeBytes(lists + "\"\"", MaximumLineTree);
    return lists + "\"" + QByteArray((tree - taken) / 2, 'x') + "\"";
}

} // namespace

TEST(CensusLimits, MeasureTheFile)
{
    QString unknown;
    EXPECT_EQ(bytesToCount(HollowFile(MaximumFile).name(), unknown).size(), MaximumFile);
    EXPECT_EQ(unknown, QString());
    EXPECT_TRUE(bytesToCount(HollowFile(MaximumFile + 1).name(), unknown).isEmpty());
    EXPECT_EQ(unknown, tooLargeToCount());
}

TEST(CensusLimits, CountTheObjectsOfBinaryLabels)
{
    const QByteArray most = canvasStart() + smallestObject().repeated(MaximumObjects);
    const Census whole = countTavrel(most);
    EXPECT_TRUE(isCounted(whole)) << whole.unknown.toStdString();
    EXPECT_EQ(whole.objects.size(), MaximumObjects);
    EXPECT_EQ(countTavrel(most + smallestObject()).unknown, tooLargeToCount());
}

TEST(CensusLimits, CountTheObjectsOfXmlLabels)
{
    const auto label = [](qsizetype controls) {
        return controlsOf(QByteArray("<a/>").repeated(controls));
    };
    const Census whole = countOrvanta(label(MaximumObjects));
    EXPECT_TRUE(isCounted(whole)) << whole.unknown.toStdString();
    EXPECT_EQ(whole.objects.size(), MaximumObjects);
    EXPECT_EQ(countOrvanta(label(MaximumObjects + 1)).unknown, tooLargeToCount());
}

TEST(CensusLimits, MeasureTheMembersOfPackages)
{
    const QByteArray small = documentOf(4);
    EXPECT_TRUE(isCounted(countOpenDocument(package(documentOf(MaximumStyles), small))));
    EXPECT_FALSE(isCounted(countOpenDocument(package(documentOf(MaximumStyles + 1), small))));
    const QByteArray most = package(small, documentOf(MaximumContent));
    ziplimits::ZipDirectory directory;
    ASSERT_FALSE(directory.openBytes(most));
    EXPECT_TRUE(!directory.refusalOf(u"content.xml"_s, MaximumContent))
        << "only unpacked: it takes long";
    EXPECT_FALSE(isCounted(countOpenDocument(package(small, documentOf(MaximumContent + 1)))));
}

// A limit of the zip format: a comment of up to this many bytes may follow the end record.
TEST(CensusLimits, FindThePackageBeforeItsComment)
{
    constexpr qsizetype longest = 65535;
    const QByteArray plain = package(documentOf(4), documentOf(4));
    EXPECT_TRUE(isCounted(countOpenDocument(plain + QByteArray(longest, 'x'))));
    EXPECT_FALSE(isCounted(countOpenDocument(plain + QByteArray(longest + 1, 'x'))));
}

// Parsing the largest valid text takes gigabytes, so only its size is checked.
TEST(CensusLimits, MeasureTheTreeOfSavedLabels)
{
    const QByteArray lists = QByteArray("[[[[[[[[ ").repeated(1'840'000);
    const qint64 taken = jsonlimits::treeBytes(lists + "\"\"", MaximumSavedTree);
    const QByteArray most = lists + "\"" + QByteArray((MaximumSavedTree - taken) / 2, 'x');
    EXPECT_FALSE(jsonlimits::isLargerThan(most + "\"", MaximumSavedTree));
    EXPECT_EQ(countSavedLabel(most + "x\"").unknown, tooLargeToCount());
}

TEST(CensusLimits, KeepTheFirstDetails)
{
    Tally tally;
    for (int index = 0; index <= Tally::MaximumDetails; ++index) {
        tally.addDetail(u"%1"_s.arg(index));
    }
    EXPECT_EQ(tally.details.size(), Tally::MaximumDetails);
    EXPECT_FALSE(tally.details.contains(QString::number(Tally::MaximumDetails)));
}

TEST(CensusLimits, ShortenDetails)
{
    const QString longest(LongestDetail, u'x');
    Tally tally;
    tally.addDetail(longest);
    tally.addDetail(longest + u'y');
    const QString cut = longest.left(LongestDetail - 1) + QChar(0x2026);
    EXPECT_EQ(tally.details, (QStringList{longest, cut}));
}

// The cache only affects the time; removed entries are queried again.
TEST(CensusLimits, ForgetFontsWithoutMistakes)
{
    constexpr int more = 2'500;
    for (int index = 0; index < more; ++index) {
        EXPECT_FALSE(isFontThere(u"No font %1"_s.arg(index)));
        EXPECT_EQ(familySeen(u"Liberation Sans"_s), u"Liberation Sans"_s);
    }
}

TEST(ReportLimits, MeasureALine)
{
    EXPECT_EQ(lineRead(QByteArray(MaximumLine - 1, ' ') + "\n{}"), MaximumLine);
    EXPECT_EQ(lineRead(QByteArray(MaximumLine, ' ') + "\n{}"), 0);
}

TEST(ReportLimits, MeasureTheTreeOfALine)
{
    EXPECT_GT(lineRead(linesOfTree(MaximumLineTree)), 0);
    EXPECT_EQ(lineRead(linesOfTree(MaximumLineTree + 2)), 0);
}

TEST(ReportLimits, TakeWholeNumbersThatAreExact)
{
    const auto bytesOf = [](double bytes) {
        QJsonObject object = toJson(FileReport());
        object.insert(u"bytes"_s, bytes);
        const auto report = fileReportFromJson(object);
        return report ? std::optional(report->bytes) : std::nullopt;
    };
    constexpr double largest = 9'007'199'254'740'992.0;
    EXPECT_EQ(bytesOf(largest), 9'007'199'254'740'992);
    EXPECT_EQ(bytesOf(-largest), -9'007'199'254'740'992);
    EXPECT_EQ(bytesOf(largest + 2), std::nullopt);
    EXPECT_EQ(bytesOf(-largest - 2), std::nullopt);
}
