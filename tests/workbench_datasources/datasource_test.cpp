#include "workbench/datasources/sequence_source.h"
#include "workbench/datasources/system_source.h"
#include "workbench/datasources/text_list_source.h"

#include <gtest/gtest.h>

#include <limits>

using namespace Qt::Literals::StringLiterals;

using namespace workbench::datasources;

namespace {

constexpr int Lowest = std::numeric_limits<int>::min();
constexpr int Highest = std::numeric_limits<int>::max();

SequenceSource sequence(int start, int end, int step)
{
    SequenceSource source;
    source.setDatasourceProperty(u"Start"_s, start);
    source.setDatasourceProperty(u"End"_s, end);
    source.setDatasourceProperty(u"Step"_s, step);
    return source;
}

SystemSource systemSource(const QString& date, const QString& time)
{
    const QDateTime moment(QDate(2024, 3, 5), QTime(14, 7, 9), Qt::UTC);
    SystemSource source([moment] { return moment; }, QLocale::c());
    source.setDatasourceProperty(u"DateFormat"_s, date);
    source.setDatasourceProperty(u"TimeFormat"_s, time);
    return source;
}

} // namespace

TEST(SequenceSource, CountsFromStartToEnd)
{
    const struct
    {
        int start, end, step;
        qint64 count;
        const char* first;
        const char* last;
    } rows[] = {
        {1, 10, 1, 10, "1", "10"},
        {1, 10, 4, 3, "1", "9"},
        {10, 1, -3, 4, "10", "1"},
        {10, 1, 3, 4, "10", "1"},
        {1, 10, -1, 10, "1", "10"},
        {5, 5, 1, 1, "5", "5"},
        {1, 10, 0, 1, "1", "1"},
        {-2, 2, 2, 3, "-2", "2"},
        {1, 3, 100, 1, "1", "1"},
        {Lowest, Highest, 1, qint64{1} << 32, "-2147483648", "2147483647"},
        {Highest, Lowest, Lowest, 2, "2147483647", "-1"},
        {0, 0, 1, 1, "0", "0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.start << ".." << row.end << " by " << row.step);
        const SequenceSource source = sequence(row.start, row.end, row.step);
        EXPECT_EQ(source.recordCount(), row.count);
        EXPECT_EQ(source.value(0), QString::fromUtf8(row.first));
        EXPECT_EQ(source.value(row.count - 1), QString::fromUtf8(row.last));
        EXPECT_EQ(source.value(row.count), QString::fromUtf8(row.first)) << "begins again";
    }
}

TEST(SequenceSource, IsOneZeroByDefault)
{
    const SequenceSource source;
    EXPECT_EQ(source.recordCount(), 1);
    EXPECT_EQ(source.value(0), u"0"_s);
}

TEST(SequenceSource, PutsTheNumberBetweenItsTextsAndFillsItUp)
{
    const struct
    {
        int start, zeroPad;
        const char* shown;
    } rows[] = {{7, 4, "<0007>"},      {7, 0, "<7>"},      {7, -3, "<7>"},
                {12345, 3, "<12345>"}, {-7, 4, "<-0007>"}, {Lowest, 12, "<-002147483648>"}};
    for (const auto& row : rows) {
        SequenceSource source = sequence(row.start, row.start, 1);
        source.setDatasourceProperty(u"Prefix"_s, u"<"_s);
        source.setDatasourceProperty(u"Suffix"_s, u">"_s);
        source.setDatasourceProperty(u"ZeroPad"_s, row.zeroPad);
        EXPECT_EQ(source.value(0), QString::fromUtf8(row.shown));
    }
    constexpr int most = SequenceSource::MaximumZeroPad;
    const std::pair<int, int> pads[] = {
        {most - 1, most - 1}, {most, most}, {most + 1, most}, {Highest, most}};
    for (const auto& [asked, given] : pads) {
        SequenceSource monstrous = sequence(1, 1, 1);
        monstrous.setDatasourceProperty(u"ZeroPad"_s, asked);
        EXPECT_EQ(monstrous.value(0)->size(), given);
    }
}

TEST(SequenceSource, KeepsWhatItCannotTakeAsItWas)
{
    SequenceSource source = sequence(3, 5, 1);
    source.setDatasourceProperty(u"Start"_s, u"three"_s);
    source.setDatasourceProperty(u"start"_s, 9);
    source.setDatasourceProperty(u"TextList"_s, QStringList{u"x"_s});
    EXPECT_EQ(source.value(0), u"3"_s);
    const QVariantMap expected{{u"Prefix"_s, QString()}, {u"Suffix"_s, QString()},
                               {u"Start"_s, 3},          {u"End"_s, 5},
                               {u"Step"_s, 1},           {u"ZeroPad"_s, 0}};
    EXPECT_EQ(source.properties(), expected);
}

TEST(SequenceSource, HasNoRecordBeforeTheFirst)
{
    EXPECT_FALSE(sequence(1, 9, 1).value(-1));
    EXPECT_FALSE(sequence(1, 9, 1).value(std::numeric_limits<qint64>::min()));
    EXPECT_TRUE(sequence(1, 9, 1).value(std::numeric_limits<qint64>::max()));
}

TEST(SystemSource, ShowsTheFormatsOfImportedLabels)
{
    const struct
    {
        const char* date;
        const char* time;
        const char* shown;
    } rows[] = {
        {"ddd MMM d yyyy", "", "Tue Mar 5 2024"},
        {"d/MM/yyyy", "", "5/03/2024"},
        {"MMMM-d-yy", "", "March-5-24"},
        {"", "hh:mm:ss", "14:07:09"},
        {"MM-dd-yyyy", "HH:mm:ss", "03-05-2024 14:07:09"},
        {"MM/dd/yy", "", "03/05/24"},
        {"", "mm:sshh:mm:ss ap", "07:0902:07:09 pm"},
        {"", "", ""},
    };
    for (const auto& row : rows) {
        const SystemSource source =
            systemSource(QString::fromUtf8(row.date), QString::fromUtf8(row.time));
        EXPECT_EQ(source.value(0), QString::fromUtf8(row.shown));
        EXPECT_EQ(source.value(17), source.value(0)) << "the same for every label";
        EXPECT_EQ(source.recordCount(), 1);
    }
}

TEST(SystemSource, NamesDaysInTheLocale)
{
    const QDateTime moment(QDate(2024, 3, 5), QTime(14, 7, 9), Qt::UTC);
    SystemSource source([moment] { return moment; }, QLocale(QLocale::German));
    source.setDatasourceProperty(u"DateFormat"_s, u"dddd"_s);
    EXPECT_EQ(source.value(0), u"Dienstag"_s);
}

TEST(SystemSource, ShowsTheRequestedFields)
{
    SystemSource source = systemSource(u"yyyy"_s, u"hh"_s);
    EXPECT_EQ(source.fields(), QStringList({u"Date"_s, u"Time"_s}));
    EXPECT_EQ(source.value(0, {u"Time"_s}), u"14"_s);
    EXPECT_EQ(source.value(0, {u"Nonsense"_s}), u"2024 14"_s);
    source.setSelectedFields({u"Nonsense"_s, u"Date"_s});
    EXPECT_EQ(source.selectedFields(), QStringList(u"Date"_s));
    EXPECT_EQ(source.value(0), u"2024"_s);
    EXPECT_EQ(source.value(0, {u"Time"_s}), u"14"_s);
}

TEST(SystemSource, ShowsNothingForAMonstrousFormat)
{
    const QString most = u"'x'"_s.leftJustified(SystemSource::MaximumFormat);
    EXPECT_TRUE(systemSource(most, {}).value(0)->startsWith(u'x'));
    EXPECT_EQ(systemSource(most + u' ', {}).value(0), QString());
}

TEST(TextListSource, StepsThroughItsTexts)
{
    TextListSource source;
    EXPECT_EQ(source.recordCount(), 0);
    EXPECT_FALSE(source.value(0)) << "nothing to show: the item keeps its own text";
    source.setDatasourceProperty(u"TextList"_s, QStringList{u"x"_s, QString(), u"y z"_s});
    EXPECT_EQ(source.recordCount(), 3);
    EXPECT_EQ(source.value(0), u"x"_s);
    EXPECT_EQ(source.value(1), QString());
    EXPECT_EQ(source.value(2), u"y z"_s);
    EXPECT_EQ(source.value(3), u"x"_s) << "begins again";
}
