// The summary at the end of an import.

#include "cli/loss_summary.h"

#include "migration/model/loss_kinds.h"

#include <gtest/gtest.h>

namespace {
using namespace Qt::StringLiterals;
using namespace migration;

FileReport complete(const QString& name)
{
    FileReport report;
    report.file = name;
    report.status = Status::Imported;
    report.objects.inFile = 10;
    report.objects.imported = 10;
    return report;
}

FileReport lossy(const QString& name, qint64 lost)
{
    FileReport report = complete(name);
    report.objects.imported -= lost;
    report.lost = {{lossCode(LossKind::Table), lossText(LossKind::Table), lost, true, {}}};
    return report;
}

FileReport changed(const QString& name)
{
    FileReport report = complete(name);
    report.changed = {{lossCode(LossKind::FontReplaced), {}, 1, false, {}}};
    return report;
}

TEST(LossSummary, CountsTheLabelsOfEachVerdict)
{
    cli::LossSummary summary(false);
    summary.add(complete(u"a"_s));
    EXPECT_TRUE(summary.isComplete());
    EXPECT_EQ(summary.hint({}), QString());
    summary.add(changed(u"b"_s));
    summary.add(lossy(u"c"_s, 2));
    summary.add(lossy(u"d"_s, 3));
    summary.add(FileReport());
    EXPECT_FALSE(summary.isComplete());
    EXPECT_EQ(summary.counts(),
              u"Labels imported completely: 1, with changes: 1, with losses: 2, failed: 1."_s);
}

TEST(LossSummary, NamesTheFiveWorstFirst)
{
    cli::LossSummary summary(false);
    for (int lost = 1; lost <= 9; ++lost) {
        summary.add(lossy(u"file %1"_s.arg(lost), lost));
    }
    const QStringList worst = summary.worst();
    ASSERT_EQ(worst.size(), cli::LossSummary::WorstLabels);
    EXPECT_EQ(worst.constFirst(),
              u"  file 9: Imported 1 of 10 objects. Texts and objects in tables were left out."_s);
    EXPECT_TRUE(worst.constLast().startsWith(u"  file 5: "_s));
}

TEST(LossSummary, NamesAllLabelsWithLossesIfAsked)
{
    cli::LossSummary summary(true);
    for (int lost = 1; lost <= 9; ++lost) {
        summary.add(lossy(u"file %1"_s.arg(lost), lost));
        summary.add(changed(u"changed"_s));
    }
    EXPECT_EQ(summary.worst().size(), 9);
}

TEST(LossSummary, MentionsTheReport)
{
    cli::LossSummary summary(false);
    summary.add(lossy(u"a"_s, 1));
    EXPECT_TRUE(summary.hint({}).contains(u"--report"_s));
    EXPECT_EQ(summary.hint({u"r.html"_s}), u"All details: r.html"_s);
}

} // namespace
