// The issues of a label and their panel.

#include "window_fixture.h"

#include "tests/migration/documents.h"

#include "migration/model/loss_kinds.h"
#include "translations/program_language.h"
#include "window/canvas/canvas_view.h"
#include "window/items/item_panel.h"
#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/review/issues_panel.h"

#include <QApplication>
#include <QGraphicsItem>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTreeView>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

workbench::ItemValues badBarcode()
{
    workbench::ItemValues barcode;
    barcode.type = KestTypes::Barcode;
    barcode.box.size = QSizeF(80.0, 30.0);
    barcode.barcode = workbench::BarcodeValues();
    barcode.barcode->symbology = 13; // takes digits only
    barcode.barcode->content = u"not digits"_s;
    return barcode;
}

/// The texts of a tree with two levels, row by row.
QStringList textsOf(const QTreeView& tree)
{
    QStringList texts;
    const QAbstractItemModel& model = *tree.model();
    for (int group = 0; group < model.rowCount(); ++group) {
        const QModelIndex top = model.index(group, 0);
        texts.append(top.data().toString());
        for (int row = 0; row < model.rowCount(top); ++row) {
            texts.append(model.index(row, 0, top).data().toString());
        }
    }
    return texts;
}

/// What `labelport inspect --json` prints.
QJsonObject inspected(const QString& file)
{
    QProcess process;
    process.start(QStringLiteral(LABELPORT_PROGRAM), {u"inspect"_s, u"--json"_s, file});
    EXPECT_TRUE(process.waitForFinished());
    return QJsonDocument::fromJson(process.readAllStandardOutput()).object();
}

class IssuesTest : public WindowFixture
{
protected:
    IssuesTest() { window.show(); }

    /// A drawing with these shapes, opened in the window.
    void openDrawing(const QByteArray& shapes)
    {
        QFile file(path(u"drawing.odg"_s));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(drawingOf(shapes));
        file.close();
        ASSERT_TRUE(window.openFile(file.fileName()));
        QApplication::processEvents();
    }

    [[nodiscard]] IssuesPanel& panel() { return window.panels().issues(); }
    [[nodiscard]] const Issue* issue(const QString& code)
    {
        const QList<Issue>& issues = panel().issues();
        const auto found = std::find_if(issues.begin(), issues.end(),
                                        [&code](const Issue& one) { return one.code == code; });
        return found != issues.end() ? &*found : nullptr;
    }
    /// Selects the first issue of a group, as the arrow keys do.
    void choose(int group)
    {
        const QAbstractItemModel& model = *panel().tree().model();
        panel().tree().setCurrentIndex(model.index(0, 0, model.index(group, 0)));
    }

    MainWindow window;
};

constexpr const char* LostPath =
    R"(<draw:path svg:x="1in" svg:y="1in" svg:width="1in" svg:height="0.5in"/>)";
constexpr const char* OutsideText =
    R"(<draw:frame svg:x="20in" svg:y="1in" svg:width="1in" svg:height="1in">)"
    R"(<draw:text-box><text:p>Outside</text:p></draw:text-box></draw:frame>)";

} // namespace

TEST(Issues, OfItemsAreThoseOfTheRecordThatIsShown)
{
    OpenLabel label = makeLabel();
    label.canvas->addItem(badBarcode());
    label.report.issues = {{u"A note"_s, -1, 2}};

    const QList<Issue> issues = currentIssues(label);

    ASSERT_EQ(issues.size(), 2);
    EXPECT_EQ(issues.at(0).items, QList<int>{3});
    EXPECT_EQ(issues.at(0).about, u"Barcode “not digits”"_s);
    EXPECT_FALSE(issues.at(0).text.isEmpty());
    EXPECT_FALSE(issues.at(0).advice.isEmpty());
    EXPECT_EQ(issues.at(1).group, IssueGroup::Warning);
    EXPECT_EQ(issues.at(1).text, u"A note"_s);
    EXPECT_EQ(issues.at(1).count, 2);
}

TEST(Issues, NameTheFirstItemsAndCountTheOthers)
{
    OpenLabel label = makeLabel();
    migration::Finding finding{u"outside-page"_s, u"Outside"_s, 4, false, {}};
    finding.places = migration::FindingPlaces{{0, 1, 2, 0, 99, -1}, {}};
    label.report.changed = {finding};
    label.importedItems = label.canvas->items();
    const QList<Issue> issues = currentIssues(label);
    ASSERT_EQ(issues.size(), 1);
    EXPECT_EQ(issues.at(0).items, (QList<int>{0, 1, 2, 0})); // those that exist
    EXPECT_TRUE(issues.at(0).about.endsWith(u", 1 more"_s)) << issues.at(0).about.toStdString();
}

TEST_F(IssuesTest, WithoutALabelThePanelSaysSo)
{
    EXPECT_TRUE(panel().issues().isEmpty());
    EXPECT_FALSE(panel().tree().isVisible());
}

TEST_F(IssuesTest, LongTextsAreWrapped)
{
    const auto rowHeight = [](const QString& advice, const QString& text = u"A short text"_s) {
        IssuesPanel panel;
        panel.resize(600, 300);
        panel.setIssues({{.group = IssueGroup::Warning, .text = text, .advice = advice}});
        panel.show();
        QApplication::processEvents();
        const QModelIndex group = panel.tree().model()->index(0, 0);
        return panel.tree().visualRect(panel.tree().model()->index(0, 0, group)).height();
    };
    const QString advice = u"Correct the content or the type in the properties. "_s;
    const int line = rowHeight(u"Short advice"_s);
    EXPECT_GE(rowHeight(advice.repeated(4)), 3 * line);
    EXPECT_GT(rowHeight(u"Short advice"_s, advice), line);
    EXPECT_EQ(rowHeight({}, advice), line) << "a text alone has the full width";
}

TEST_F(IssuesTest, ShowsWhatInspectShowsByGroupWithAdvice)
{
    const std::pair<const char*, int> samples[] = {{"tavrel/stretched_text_2000022.cnv", 2},
                                                   {"orvanta/shapes_sheet.qmtx", 1},
                                                   {"opendocument/cable_markers.odg", 1}};
    for (const auto& [name, findings] : samples) {
        SCOPED_TRACE(name);
        const QString file = sample(QString::fromLatin1(name));
        ASSERT_TRUE(window.openFile(file));
        const QJsonObject report = inspected(file);
        for (const auto& [list, group] :
             {std::pair("lost", IssueGroup::Lost), std::pair("changed", IssueGroup::Changed)}) {
            for (const QJsonValue& value : report.value(QLatin1String(list)).toArray()) {
                const QJsonObject finding = value.toObject();
                const QString code = finding.value(u"code"_s).toString();
                SCOPED_TRACE(code.toStdString());
                const Issue* shown = issue(code);
                ASSERT_NE(shown, nullptr);
                EXPECT_EQ(shown->group, group);
                EXPECT_EQ(shown->text, finding.value(u"text"_s).toString());
                EXPECT_EQ(shown->count, finding.value(u"count"_s).toInt());
                EXPECT_EQ(shown->advice, migration::lossAdvice(migration::lossRowOf(code)->kind));
            }
        }
        EXPECT_EQ(std::count_if(panel().issues().begin(), panel().issues().end(),
                                [](const Issue& shown) {
                                    return !shown.code.isEmpty() &&
                                           shown.group != IssueGroup::Repaired;
                                }),
                  findings);
    }
    ASSERT_TRUE(window.openFile(sample(u"orvanta/shapes_sheet.qmtx"_s)));
    EXPECT_FALSE(panel().issues().first().advice.isEmpty());
}

TEST_F(IssuesTest, ListsTheRepairsOfADocumentUnlessItIsOpenedAsWritten)
{
    const translations::ProgramLanguage language({u"en"_s}); // with plural forms
    const QString file = sample(u"opendocument/cable_markers.odg"_s);
    ASSERT_TRUE(window.openFile(file));
    const QJsonArray repairs = inspected(file).value(u"repaired"_s).toArray();
    ASSERT_FALSE(repairs.isEmpty());
    EXPECT_TRUE(textsOf(panel().tree()).contains(u"Repaired"_s));
    for (const QJsonValue& value : repairs) {
        const Issue* shown = issue(value[u"code"_s].toString());
        ASSERT_NE(shown, nullptr);
        EXPECT_EQ(shown->group, IssueGroup::Repaired);
        EXPECT_EQ(shown->text, value[u"text"_s].toString());
    }
    QAction& asWritten = window.action(ActionId::OpenAsWritten);
    EXPECT_TRUE(asWritten.isEnabled());
    EXPECT_FALSE(asWritten.isChecked());

    asWritten.trigger();

    EXPECT_TRUE(asWritten.isChecked());
    EXPECT_FALSE(textsOf(panel().tree()).contains(u"Repaired"_s));

    asWritten.trigger();
    EXPECT_FALSE(asWritten.isChecked());
    EXPECT_TRUE(textsOf(panel().tree()).contains(u"Repaired"_s));
}

TEST_F(IssuesTest, ALostObjectIsOutlinedWhereItShouldBe)
{
    openDrawing(QByteArray(LostPath) + OutsideText);
    const QString title = u"Not imported"_s;
    ASSERT_TRUE(textsOf(panel().tree()).contains(title));
    const QPoint corner =
        window.view().mapFromScene(QPointF(72.0, 72.0)) + QPoint(1, 0); // the upper edge
    const QImage before = window.view().viewport()->grab().toImage();

    choose(0);

    const Issue* lost = issue(u"freeform-shape"_s);
    ASSERT_NE(lost, nullptr);
    ASSERT_EQ(lost->missing.size(), 1);
    EXPECT_NEAR(lost->missing.at(0).x(), 72.0, 0.01);
    EXPECT_NEAR(lost->missing.at(0).height(), 36.0, 0.01);
    const QImage after = window.view().viewport()->grab().toImage();
    EXPECT_NE(before.pixel(corner), after.pixel(corner));
    EXPECT_TRUE(window.view().scene()->selectedItems().isEmpty());
}

TEST_F(IssuesTest, AnIssueSelectsItsItems)
{
    openDrawing(QByteArray(LostPath) + OutsideText);
    const Issue* outside = issue(u"outside-page"_s);
    ASSERT_NE(outside, nullptr);
    ASSERT_FALSE(outside->items.isEmpty());
    const int row = outside->items.constFirst();

    choose(1);

    EXPECT_TRUE(window.session().label()->canvas->items().at(row)->graphicsItem()->isSelected());
    EXPECT_NE(window.panels().items().currentItem(), nullptr);
}

TEST_F(IssuesTest, AreReachedByTheirKey)
{
    OpenLabel label = makeLabel();
    label.canvas->addItem(badBarcode());
    ASSERT_EQ(writeLabel(label, path(u"b.label"_s)), QString());
    ASSERT_TRUE(window.openFile(path(u"b.label"_s)));
    ASSERT_EQ(panel().issues().size(), 1);
    EXPECT_TRUE(panel().tree().isVisible());

    window.action(ActionId::GoIssues).trigger();

    EXPECT_TRUE(window.session().label()->canvas->items().at(3)->graphicsItem()->isSelected());
}

TEST_F(IssuesTest, AreRemovedWithTheirLabel)
{
    openDrawing(LostPath);
    EXPECT_FALSE(panel().issues().isEmpty());
    EXPECT_TRUE(window.session().close());
    EXPECT_TRUE(panel().issues().isEmpty());
}
