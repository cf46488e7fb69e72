// Where the labels of a sheet are, and which sheets are known.

#include "printing/sheet.h"
#include "printing/sheet_json.h"
#include "printing/sheet_presets.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QLocale>
#include <QSet>

#include <gtest/gtest.h>

#include <limits>

namespace {
using namespace Qt::StringLiterals;
using namespace printing;

Sheet preset(const QString& name)
{
    const std::optional<Sheet> sheet = sheetOfName(name, {50.0, 30.0});
    EXPECT_TRUE(sheet) << qPrintable(name);
    return sheet.value_or(Sheet{});
}

TEST(Sheet, NumbersLabelsAlongTheRows)
{
    const Sheet sheet = preset(u"L7160"_s);
    EXPECT_EQ(sheet.positions(), 21);
    EXPECT_EQ(cellAt(sheet, 0), QRectF(7.2, 15.1, 63.5, 38.1));
    EXPECT_EQ(cellAt(sheet, 2).topLeft(), QPointF(7.2 + 2 * 66.04, 15.1));
    EXPECT_EQ(cellAt(sheet, 3).topLeft(), QPointF(7.2, 15.1 + 38.1));
    EXPECT_NEAR(cellAt(sheet, 20).bottom(), 15.1 + 7 * 38.1, 1e-9);
}

TEST(Sheet, CountsSheetsFromTheFirstFreePosition)
{
    const Sheet sheet = preset(u"L7160"_s);
    EXPECT_EQ(sheetsFor(sheet, 0, 21), 1);
    EXPECT_EQ(sheetsFor(sheet, 0, 22), 2);
    EXPECT_EQ(sheetsFor(sheet, 20, 1), 1);
    EXPECT_EQ(sheetsFor(sheet, 20, 2), 2);
    EXPECT_EQ(sheetsFor(sheet, 5, 100'000), 4763);
}

TEST(Sheet, TakesLabelsUprightRotatedOrNotAtAll)
{
    const Sheet sheet = preset(u"L7160"_s); // 63.5 x 38.1
    EXPECT_EQ(fitOf(sheet, {63.5, 38.1}), Fit::Upright);
    EXPECT_EQ(fitOf(sheet, {64.5, 39.1}), Fit::Upright);
    EXPECT_EQ(fitOf(sheet, {64.6, 38.1}), Fit::TooLarge);
    EXPECT_EQ(fitOf(sheet, {38.1, 63.5}), Fit::Rotated);
    EXPECT_EQ(fitOf(sheet, {20.0, 20.0}), Fit::Upright);
    const QLocale locale; // "63,5" in a German one
    EXPECT_EQ(misfitMessage(sheet, {100.0, 50.04}),
              u"The label is 100 × 50 mm; the labels of sheet \"L7160\" are only %1 × %2 mm."_s.arg(
                  locale.toString(63.5), locale.toString(38.1)));
}

TEST(Sheet, MarksTheEdgesOfLabelsOutsideThem)
{
    Sheet sheet{{u"own"_s}, {}, {100, 100}, 2, 1, {30, 40}, {15, 20}, {35, 40}};
    ASSERT_EQ(problemOf(sheet), QString());
    const QList<QLineF> marks = cropMarks(sheet);
    EXPECT_EQ(marks.size(), 2 * (2 * 2 + 2 * 1));
    QSet<double> columns;
    QSet<double> rows;
    for (const QLineF& mark : marks) {
        EXPECT_EQ(mark.length(), 5.0);
        (mark.dx() == 0.0 ? columns : rows).insert(mark.dx() == 0.0 ? mark.x1() : mark.y1());
        for (const int position : {0, 1}) {
            EXPECT_FALSE(cellAt(sheet, position).contains(mark.p1()));
            EXPECT_FALSE(cellAt(sheet, position).contains(mark.p2()));
        }
    }
    EXPECT_EQ(columns, (QSet<double>{15, 45, 50, 80}));
    EXPECT_EQ(rows, (QSet<double>{20, 60}));
}

TEST(Sheet, OfPlainPaperHasAsManyLabelsAsFit)
{
    const Sheet sheet = preset(u"a4"_s); // of 50 x 30 mm
    EXPECT_EQ(sheet.columns, 3);         // 3 * 50 + 2 * 2 of 198
    EXPECT_EQ(sheet.rows, 8);            // 8 * 30 + 7 * 2 of 285
    EXPECT_EQ(problemOf(sheet), QString());
    EXPECT_NEAR(cellAt(sheet, 0).left(), 210 - cellAt(sheet, 23).right(), 1e-9);
    EXPECT_NEAR(cellAt(sheet, 0).top(), 297 - cellAt(sheet, 23).bottom(), 1e-9);
}

TEST(Sheet, OfPlainPaperTurnsLabelsThatAreTooWide)
{
    const QSizeF label(280.0, 100.0);
    const Sheet sheet = plainSheet(u"A4"_s, label);
    EXPECT_EQ(sheet.positions(), 1);
    EXPECT_EQ(fitOf(sheet, label), Fit::Rotated);
    const QSizeF tooLarge(250.0, 250.0);
    EXPECT_EQ(fitOf(plainSheet(u"A4"_s, tooLarge), tooLarge), Fit::TooLarge);
}

TEST(Sheet, IsRefusedIfItsNumbersMakeNoSense)
{
    const Sheet good{{u"own"_s}, {}, {100, 100}, 2, 1, {30, 40}, {15, 20}, {35, 40}};
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const auto isRefused = [&good](auto change) {
        Sheet sheet = good;
        change(sheet);
        return !problemOf(sheet).isEmpty();
    };
    EXPECT_TRUE(isRefused([&](Sheet& s) { s.paperSize.setWidth(nan); }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.paperSize.setHeight(MaximumPaperSide + 0.1); }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.columns = 0; }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.rows = -1; }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.label.setHeight(0.0); }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.pitch.setWidth(29.0); }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.start.setX(-1.0); }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.start.setX(36.0); }));
    EXPECT_TRUE(isRefused([&](Sheet& s) { s.start.setY(nan); }));
    EXPECT_TRUE(isRefused([](Sheet& s) { s.rows = 3; }));
}

TEST(Sheet, HasLimitedRowsAndPaper)
{
    Sheet sheet{{u"own"_s}, {},    {MaximumPaperSide, MaximumPaperSide}, 1, MaximumGrid, {1, 1},
                {},         {1, 1}};
    EXPECT_EQ(problemOf(sheet), QString());
    sheet.rows = MaximumGrid + 1;
    EXPECT_NE(problemOf(sheet), QString());
    sheet.rows = 1;
    sheet.paperSize.setWidth(MaximumPaperSide + 1.0);
    EXPECT_NE(problemOf(sheet), QString());
}

TEST(SheetPresets, AreAllUsableAndTheirNamesUnique)
{
    QFile file(u":/printing/sheets.json"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QJsonArray rows =
        QJsonDocument::fromJson(file.readAll()).object().value(u"sheets"_s).toArray();
    EXPECT_EQ(sheetPresets().size(), rows.size()); // unusable rows are skipped
    EXPECT_GE(rows.size(), 30);
    QSet<QString> names;
    for (const QString& paper : paperNames()) {
        names.insert(paper.toLower());
    }
    for (const Sheet& sheet : sheetPresets()) {
        for (const QString& name : sheet.names) {
            EXPECT_FALSE(names.contains(name.toLower())) << qPrintable(name);
            names.insert(name.toLower());
        }
    }
}

// Labels are centered on their paper, within half a label gap: a wrong digit would show.
TEST(SheetPresets, AreCenteredOnTheirPaper)
{
    for (const Sheet& sheet : sheetPresets()) {
        const QRectF first = cellAt(sheet, 0);
        const QRectF last = cellAt(sheet, sheet.positions() - 1);
        EXPECT_NEAR(first.left(), sheet.paperSize.width() - last.right(), 0.6)
            << qPrintable(sheet.name());
        EXPECT_NEAR(first.top(), sheet.paperSize.height() - last.bottom(), 0.6)
            << qPrintable(sheet.name());
    }
}

TEST(SheetPresets, AreFoundByAllTheirNames)
{
    EXPECT_EQ(preset(u"8160"_s), preset(u"5160"_s));
    EXPECT_EQ(preset(u"j8160"_s).name(), u"L7160"_s);
    EXPECT_FALSE(sheetOfName(u"L716"_s, {50, 30}));
    EXPECT_FALSE(sheetOfName(QString(), {50, 30}));
}

TEST(SheetJson, KeepsAllValues)
{
    const Sheet sheet{{u"own"_s, u"other"_s}, {}, {100, 100}, 2, 1, {30, 40}, {15, 20}, {35, 40}};
    EXPECT_EQ(sheetFromJson(toJson(sheet)), sheet);
    EXPECT_FALSE(sheetFromJson({}));
    EXPECT_FALSE(sheetFromJson({{u"paper"_s, u"A4"_s}}));
}

} // namespace
