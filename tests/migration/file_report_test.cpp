#include "migration/model/file_report.h"

#include "migration/model/loss_kinds.h"
#include "tests/migration/random_reports.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>

using namespace Qt::Literals::StringLiterals;

using namespace migration;

namespace {

FileReport sampleReport()
{
    FileReport report;
    report.file = u"a.cnv"_s;
    report.status = Status::Imported;
    report.objects.inFile = 3;
    report.objects.imported = 3;
    return report;
}

Finding findingOfKind(LossKind kind)
{
    return {lossCode(kind), lossText(kind), 2, true, {}};
}

FileReport throughText(const FileReport& report)
{
    const QByteArray text = QJsonDocument(toJson(report)).toJson();
    return fileReportFromJson(QJsonDocument::fromJson(text).object()).value_or(FileReport());
}

} // namespace

TEST(FileReport, ComesBackFromJsonAsItWas)
{
    std::mt19937 random(20261121);
    for (int round = 0; round < 300; ++round) {
        const FileReport report = randomReport(random);
        EXPECT_EQ(throughText(report), report) << "round " << round;
    }
}

TEST(FileReport, IsNotReadFromOtherObjects)
{
    EXPECT_FALSE(fileReportFromJson({}).has_value());
    QJsonObject object = toJson(sampleReport());
    object.insert(u"status"_s, u"glorious"_s);
    EXPECT_FALSE(fileReportFromJson(object).has_value());
    object = toJson(sampleReport());
    object.remove(u"file"_s);
    EXPECT_FALSE(fileReportFromJson(object).has_value());
}

TEST(FileReport, IsNotReadWithNumbersThatAreNotExact)
{
    QJsonObject object = toJson(sampleReport());
    object.insert(u"bytes"_s, 1e300);
    EXPECT_FALSE(fileReportFromJson(object).has_value());
}

TEST(FileReport, IsNotReadWithInvalidPlaces)
{
    FileReport report = sampleReport();
    report.lost = {findingOfKind(LossKind::Connector)};
    report.lost[0].places = FindingPlaces{{1, 2}, {QRectF(1.0, 2.0, 3.0, 4.0)}};
    EXPECT_EQ(throughText(report), report);
    for (const char* places :
         {R"({"items":[1.5],"missing":[]})", R"({"items":[],"missing":[[1,2,3]]})",
          R"({"items":3,"missing":[]})", R"({"items":[]})"}) {
        QJsonObject object = toJson(report);
        QJsonArray lost = object[u"lost"_s].toArray();
        QJsonObject finding = lost[0].toObject();
        finding[u"places"_s] = QJsonDocument::fromJson(places).object();
        lost[0] = finding;
        object[u"lost"_s] = lost;
        EXPECT_FALSE(fileReportFromJson(object).has_value()) << places;
    }
}

TEST(FileReport, WritesTextsThatAreNotUnicodeAsPlainStrings)
{
    FileReport report = sampleReport();
    report.outputs = {u"a"_s + QChar(0xd800)};
    report.lost = {{u"x"_s, {}, 1, true, {QString(QChar(0xdc00))}}};
    const QJsonObject object = toJson(report);
    EXPECT_TRUE(object[u"outputs"_s][0].isString());
    EXPECT_TRUE(object[u"lost"_s][0][u"details"_s][0].isString());
}

TEST(FileReport, EveryStatusHasAName)
{
    for (const Status status : {Status::Imported, Status::Failed, Status::Crashed, Status::TimedOut,
                                Status::OutOfMemory}) {
        EXPECT_EQ(statusOfName(statusName(status)), status);
    }
    EXPECT_FALSE(statusOfName(u"fine"_s).has_value());
}

TEST(FileReport, OnlyAnImportedFileWithoutFindingsIsComplete)
{
    EXPECT_EQ(verdictOf(sampleReport()), Verdict::Complete);
    EXPECT_FALSE(hasLoss(sampleReport()));
    EXPECT_EQ(verdictOf(FileReport()), Verdict::Failed);
    FileReport uncounted = sampleReport();
    uncounted.objects.inFile.reset();
    EXPECT_EQ(verdictOf(uncounted), Verdict::Lossy) << "objects may be missing";
}

TEST(FileReport, HasALossForEveryKindThatAffectsTheContent)
{
    for (const LossRow& row : lossRows()) {
        FileReport report = sampleReport();
        (row.outcome == Outcome::Lost ? report.lost : report.changed)
            .append(findingOfKind(row.kind));
        EXPECT_EQ(hasLoss(report), row.impact == Impact::Content) << row.code;
        EXPECT_EQ(verdictOf(report),
                  row.impact == Impact::Content ? Verdict::Lossy : Verdict::Changed)
            << row.code;
    }
}

TEST(FileReport, HasALossForACodeOfANewerProgram)
{
    FileReport report = sampleReport();
    report.changed.append({u"from-the-future"_s, {}, 1, false, {}});
    EXPECT_TRUE(hasLoss(report));
}

TEST(FileReport, HasALossWheneverTheFileIsNotImported)
{
    for (const Status status :
         {Status::Failed, Status::Crashed, Status::TimedOut, Status::OutOfMemory}) {
        FileReport report = sampleReport();
        report.status = status;
        EXPECT_TRUE(hasLoss(report));
    }
}

TEST(FileReport, SaysInWordsThatNothingWasLost)
{
    EXPECT_EQ(summaryOf(sampleReport()),
              u"Imported 3 of 3 objects. Nothing was lost or changed."_s);
}

TEST(FileReport, ReportsHowManyObjectsWereImported)
{
    FileReport report = sampleReport();
    report.objects.imported = 1;
    report.lost.append(findingOfKind(LossKind::Table));
    EXPECT_EQ(summaryOf(report), u"Imported 1 of 3 objects. Content was lost or changed."_s);
    EXPECT_EQ(objectsLost(report), 2);

    report.objects.inFile.reset();
    EXPECT_EQ(summaryOf(report),
              u"Objects imported: 1 (the number of objects in the file is unknown). "
              "Content was lost or changed."_s);
    EXPECT_EQ(objectsLost(report), 0);
}

TEST(FileReport, DistinguishesChangesFromLossesInTheText)
{
    FileReport report = sampleReport();
    report.changed.append(findingOfKind(LossKind::FontReplaced));
    EXPECT_EQ(summaryOf(report), u"Imported 3 of 3 objects. The content is complete; "
                                 "looks changed."_s);
}

// A card must not say "with losses" above "nothing was lost".
TEST(FileReport, NamesAChangeOfContentALoss)
{
    FileReport report = sampleReport();
    report.changed.append(findingOfKind(LossKind::OutsidePage));
    EXPECT_EQ(verdictOf(report), Verdict::Lossy);
    EXPECT_EQ(summaryOf(report), u"Imported 3 of 3 objects. Content was lost or changed."_s);
}

TEST(FileReport, EveryVerdictHasAName)
{
    QStringList names;
    for (int index = 0; index < Verdicts; ++index) {
        names.append(verdictName(static_cast<Verdict>(index)));
        EXPECT_FALSE(verdictText(static_cast<Verdict>(index)).isEmpty());
    }
    EXPECT_EQ(names, (QStringList{u"complete"_s, u"changed"_s, u"lossy"_s, u"failed"_s}));
    EXPECT_EQ(toJson(sampleReport())[u"verdict"_s].toString(), names.constFirst());
}
