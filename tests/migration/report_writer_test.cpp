#include "migration/report/report_merger.h"
#include "migration/report/report_writer.h"

#include "migration/model/loss_kinds.h"
#include "tests/migration/documents.h"
#include "tests/migration/random_reports.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

QByteArray contentOf(const QString& fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void putContent(const QString& fileName, const QByteArray& bytes)
{
    QFile file(fileName);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

QString write(const QString& fileName, const QList<FileReport>& reports, const QString& note = {})
{
    ReportWriter writer(fileName);
    writer.setNote(note);
    for (const FileReport& report : reports) {
        writer.add(report);
    }
    return writer.finish();
}

QList<QJsonObject> linesOf(const QByteArray& report)
{
    QList<QJsonObject> lines;
    for (const QByteArray& line : report.split('\n')) {
        if (!line.isEmpty()) {
            lines.append(QJsonDocument::fromJson(line).object());
            EXPECT_FALSE(lines.constLast().isEmpty()) << line.constData();
        }
    }
    return lines;
}

FileReport named(const QString& file, Status status = Status::Imported)
{
    FileReport report;
    report.file = file;
    report.status = status;
    report.objects.inFile = 4;
    report.objects.imported = 4;
    return report;
}

// Reports of different names, in the order of the names.
QList<FileReport> someReports(int count)
{
    std::mt19937 random(5);
    QList<FileReport> reports;
    for (int index = 0; index < count; ++index) {
        FileReport report = randomReport(random);
        report.file = u"%1 %2"_s.arg(index, 4, 10, QLatin1Char('0')).arg(report.file);
        reports.append(report);
    }
    return reports;
}

class ReportWriting : public testing::Test
{
protected:
    [[nodiscard]] QString path(const char* name) const
    {
        return m_folder.filePath(QString::fromLatin1(name));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ReportWriting, JsonHoldsTheFilesAndWhatTheyAddUpTo)
{
    FileReport lossy = named(u"b"_s);
    lossy.objects.imported = 1;
    lossy.lost = {{lossCode(LossKind::Table), {}, 3, true, {}}};
    FileReport changed = named(u"c"_s);
    changed.changed = {{lossCode(LossKind::FontReplaced), {}, 1, false, {}}};
    ASSERT_EQ(
        write(path("r.jsonl"), {named(u"a"_s), lossy, changed, named(u"d"_s, Status::Crashed)}),
        QString());

    const QList<QJsonObject> lines = linesOf(contentOf(path("r.jsonl")));
    ASSERT_EQ(lines.size(), 6);
    EXPECT_EQ(lines.at(0)[u"format"_s].toString(), u"labelport-report"_s);
    EXPECT_EQ(lines.at(0)[u"version"_s].toInt(), 1);
    EXPECT_EQ(lines.at(2)[u"file"_s].toString(), u"b"_s);
    const QJsonObject totals = lines.at(5)[u"totals"_s].toObject();
    EXPECT_EQ(totals[u"files"_s].toInt(), 4);
    EXPECT_EQ(totals[u"complete"_s].toInt(), 1);
    EXPECT_EQ(totals[u"changed"_s].toInt(), 1);
    EXPECT_EQ(totals[u"lossy"_s].toInt(), 1);
    EXPECT_EQ(totals[u"failed"_s].toInt(), 1);
    EXPECT_EQ(totals[u"objectsInFiles"_s].toInt(), 12);
    EXPECT_EQ(totals[u"objectsImported"_s].toInt(), 9);
    EXPECT_EQ(totals[u"filesByCode"_s][u"table"_s].toInt(), 1);
}

TEST_F(ReportWriting, AnEmptyRunIsAReportToo)
{
    ASSERT_EQ(write(path("r.jsonl"), {}), QString());
    EXPECT_EQ(linesOf(contentOf(path("r.jsonl"))).size(), 2);
    ASSERT_EQ(write(path("r.html"), {}), QString());
    EXPECT_TRUE(contentOf(path("r.html")).endsWith("</html>\n"));
}

TEST_F(ReportWriting, TheSameReportsGiveTheSameBytes)
{
    for (const char* name : {"r.jsonl", "r.html"}) {
        ASSERT_EQ(write(path(name), someReports(40)), QString());
        const QByteArray first = contentOf(path(name));
        ASSERT_EQ(write(path(name), someReports(40)), QString());
        EXPECT_EQ(contentOf(path(name)), first);
    }
}

TEST_F(ReportWriting, TheOldReportStaysUntilTheEnd)
{
    for (const char* name : {"r.jsonl", "r.html"}) {
        putContent(path(name), "old");
        {
            ReportWriter writer(path(name));
            writer.add(named(u"a"_s));
        }
        EXPECT_EQ(contentOf(path(name)), "old") << "a writer that was not finished";
    }
    EXPECT_EQ(QDir(path(".")).entryList(QDir::Files | QDir::Hidden).size(), 2) << "no stray files";
}

TEST_F(ReportWriting, AFolderThatIsNotThereIsAnErrorInWords)
{
    for (const char* name : {"none/r.jsonl", "none/r.html"}) {
        EXPECT_TRUE(write(path(name), {named(u"a"_s)}).contains(path(name)));
    }
}

TEST_F(ReportWriting, NothingFromAFileBecomesMarkup)
{
    const QString hostile = u"</script><script>alert(1)</script>\" onload='x' <img src=x>"_s;
    FileReport report = named(hostile, Status::Failed);
    report.error = hostile;
    report.reader = hostile;
    report.lost = {{hostile, hostile, 1, true, {hostile}}};
    report.datasources = {{1, hostile, {hostile}, hostile}};
    report.issues = {{hostile, 0, 1}};
    report.outputs = {hostile};
    report.exports = {{hostile, hostile, hostile, hostile, 1}};
    report.items = {{hostile, 1}};
    report.complete = {{hostile, 1}};
    ASSERT_EQ(write(path("r.html"), {report}, hostile), QString());
    const QByteArray html = contentOf(path("r.html"));
    EXPECT_EQ(html.count("<script>"), 1) << "the page's own";
    EXPECT_EQ(html.count("</script>"), 1);
    EXPECT_FALSE(html.contains("<img src=x"));
    EXPECT_FALSE(html.contains("\" onload"));
}

TEST_F(ReportWriting, ThePageListsWhatBecameOfItemsInGlabels)
{
    FileReport report = named(u"a"_s);
    report.exports = {{u"glabels"_s, u"exact"_s, u"line"_s, {}, 2},
                      {u"glabels"_s, u"picture"_s, u"pie"_s, u"No such shape."_s, 1},
                      {u"glabels"_s, u"simplified"_s, u"label"_s, u"Only a part."_s, 1}};
    ASSERT_EQ(write(path("r.html"), {report}), QString());
    const QByteArray html = contentOf(path("r.html"));
    for (const char* line :
         {"<bdi>Line: exact</bdi> <b>×2</b>", "<bdi>Pie: became a picture. No such shape.</bdi>",
          "<bdi>Label: simplified. Only a part.</bdi>"}) {
        EXPECT_TRUE(html.contains(line)) << line;
    }
}

TEST_F(ReportWriting, ThePageNeedsNothingFromElsewhere)
{
    ASSERT_EQ(write(path("r.html"), {named(u"a"_s)}), QString());
    const QByteArray html = contentOf(path("r.html"));
    EXPECT_FALSE(html.contains("http://"));
    EXPECT_FALSE(html.contains("https://"));
    EXPECT_FALSE(html.contains("<link"));
    EXPECT_TRUE(html.contains("default-src 'none'"));
}

TEST_F(ReportWriting, MergedShardsAreTheReportOfOneRun)
{
    const QList<FileReport> all = someReports(60);
    for (const char* name : {"all.jsonl", "all.html"}) {
        ASSERT_EQ(write(path(name), all), QString());
    }
    QList<QList<FileReport>> shards(4);
    for (qsizetype index = 0; index < all.size(); ++index) {
        shards[(index * 7) % 4].prepend(all.at(index));
    }
    QStringList names;
    for (qsizetype shard = 0; shard < shards.size(); ++shard) {
        names.append(path("shard%1.jsonl").arg(shard));
        ASSERT_EQ(write(names.constLast(), shards.at(shard)), QString());
    }
    ASSERT_EQ(mergeReports(names, path("merged.jsonl")), QString());
    EXPECT_EQ(contentOf(path("merged.jsonl")), contentOf(path("all.jsonl")));
    ASSERT_EQ(mergeReports(names, path("merged.html")), QString());
    EXPECT_EQ(contentOf(path("merged.html")), contentOf(path("all.html")));
}

TEST_F(ReportWriting, ConcatenatedReportsAreMerged)
{
    ASSERT_EQ(write(path("a.jsonl"), {named(u"one"_s)}), QString());
    ASSERT_EQ(write(path("b.jsonl"), {named(u"two"_s)}), QString());
    putContent(path("both.jsonl"), contentOf(path("a.jsonl")) + contentOf(path("b.jsonl")));
    ASSERT_EQ(mergeReports({path("a.jsonl"), path("b.jsonl")}, path("1.jsonl")), QString());
    ASSERT_EQ(mergeReports({path("both.jsonl")}, path("2.jsonl")), QString());
    EXPECT_EQ(contentOf(path("1.jsonl")), contentOf(path("2.jsonl")));
}

TEST_F(ReportWriting, MergingRefusesWhatDoesNotBelongTogether)
{
    ASSERT_EQ(write(path("a.jsonl"), {named(u"one"_s)}), QString());
    EXPECT_TRUE(
        mergeReports({path("a.jsonl"), path("a.jsonl")}, path("m.jsonl")).contains(u"one"_s));
    EXPECT_FALSE(mergeReports({path("missing.jsonl")}, path("m.jsonl")).isEmpty());
    const QByteArray whole = contentOf(path("a.jsonl"));
    const QByteArray first = "{\"format\":\"labelport-report\",\"version\":1}\n";
    const QByteArray totals = "{\"totals\":{}}\n";
    for (const QByteArray& text :
         {QByteArray(), QByteArray("{}\n"), QByteArray("[]\n"), totals,
          QByteArray("{\"format\":\"other\",\"version\":1}\n"),
          QByteArray("{\"format\":\"labelport-report\",\"version\":2}\n") + totals, first,
          first + "{\n" + totals, first + "1\n" + totals, first + "{}\n" + totals,
          whole.left(whole.size() / 2), whole.left(whole.lastIndexOf("{\"totals")),
          whole + "{\"file\":\"x\"}\n"}) {
        SCOPED_TRACE(text.toStdString());
        putContent(path("bad.jsonl"), text);
        EXPECT_FALSE(mergeReports({path("bad.jsonl")}, path("m.jsonl")).isEmpty());
        EXPECT_FALSE(QFile::exists(path("m.jsonl")));
    }
}

TEST(Thumbnail, OfAPhotographIsSmallToo)
{
    QImage noise(400, 300, QImage::Format_RGB32);
    std::mt19937 random(3);
    for (int y = 0; y < noise.height(); ++y) {
        for (int x = 0; x < noise.width(); ++x) {
            noise.setPixel(x, y, static_cast<QRgb>(random()));
        }
    }
    QByteArray png;
    QBuffer buffer(&png);
    ASSERT_TRUE(noise.save(&buffer, "PNG"));
    const FileReport report = reportOn(qmtx(
        "<picture_box><printable_control><bounds><x>200</x><y>200</y><w>400</w><h>300</h></bounds>"
        "</printable_control><image><content>" +
        png.toBase64() + "</content></image></picture_box>"));
    EXPECT_FALSE(QImage::fromData(report.thumbnail).isNull());
    EXPECT_LT(report.thumbnail.size(), 8 * 1024);
}

TEST(Thumbnail, IsASmallPictureOfTheLabel)
{
    const FileReport report = reportOn(qmtx(PlainLabel));
    const QImage image = QImage::fromData(report.thumbnail);
    EXPECT_EQ(image.size(), QSize(160, 120));
    EXPECT_LT(report.thumbnail.size(), 8 * 1024);
    EXPECT_TRUE(reportOn(qmtx(PlainLabel), nullptr, {.thumbnail = false}).thumbnail.isEmpty());
}
