// The tables: items, properties, data sources, recent files, actions.

#include "window_fixture.h"

#include "translations/program_language.h"
#include "window/actions/actions.h"
#include "window/actions/palettes.h"
#include "window/items/item_table_model.h"
#include "window/label/recent_files.h"
#include "window/properties/property_model.h"
#include "window/properties/style_names.h"
#include "window/sources/source_table_model.h"

#include <QAbstractItemModelTester>
#include <QApplication>
#include <QLocale>
#include <QSet>

#include <algorithm>
#include <cmath>

using namespace window;

namespace {

QString cell(const QAbstractItemModel& model, int row, int column)
{
    return model.index(row, column).data().toString();
}

QString propertyOf(const QList<PropertyRow>& rows, const QString& name)
{
    for (const PropertyRow& row : rows) {
        if (row.name == name) {
            return row.value;
        }
    }
    return QStringLiteral("(missing)");
}

} // namespace

TEST(ItemTable, HasARowForEveryItemInTheOrderOfCreation)
{
    const OpenLabel label = makeLabel();
    ItemTableModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setCanvas(label.canvas.get());

    ASSERT_EQ(model.rowCount(), 3);
    EXPECT_EQ(cell(model, 0, ItemTableModel::Kind), QStringLiteral("Rectangle"));
    EXPECT_EQ(cell(model, 1, ItemTableModel::Kind), QStringLiteral("Text"));
    EXPECT_EQ(cell(model, 1, ItemTableModel::Content), QStringLiteral("Own text"));
    EXPECT_EQ(cell(model, 2, ItemTableModel::State), QStringLiteral("locked"));
    EXPECT_EQ(cell(model, 0, ItemTableModel::Width), QLocale().toString(25.4, 'f', 2));
}

TEST(ItemTable, ShowsLengthsInTheSelectedUnit)
{
    const OpenLabel label = makeLabel();
    ItemTableModel model;
    model.setCanvas(label.canvas.get());
    model.setUnit(LengthUnit::Inch);

    EXPECT_EQ(cell(model, 0, ItemTableModel::Width), QLocale().toString(1.0, 'f', 3));
    EXPECT_EQ(model.headerData(ItemTableModel::Left, Qt::Horizontal, Qt::DisplayRole).toString(),
              QStringLiteral("Left"));
    EXPECT_EQ(model.headerData(ItemTableModel::Left, Qt::Horizontal, Qt::ToolTipRole).toString(),
              QStringLiteral("Left (in)"));
}

TEST(ItemTable, FindsTheRowOfAnItemAndTheItemOfARow)
{
    const OpenLabel label = makeLabel();
    ItemTableModel model;
    model.setCanvas(label.canvas.get());

    EXPECT_EQ(model.rowOf(label.canvas->items().at(2)->graphicsItem()), 2);
    EXPECT_EQ(model.rowOf(nullptr), -1);
    EXPECT_EQ(model.itemAt(1), label.canvas->items().at(1));
    EXPECT_EQ(model.itemAt(3), nullptr);
    EXPECT_EQ(model.itemAt(-1), nullptr);
}

TEST(ItemTable, FollowsItemsThatMoveAndItemsThatCome)
{
    const OpenLabel label = makeLabel();
    ItemTableModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setCanvas(label.canvas.get());
    label.canvas->items().at(0)->graphicsItem()->setPos(72.0, 0.0);
    model.refresh();
    EXPECT_EQ(cell(model, 0, ItemTableModel::Left), QLocale().toString(25.4, 'f', 2));

    label.canvas->addItem(label.canvas->items().at(0)->values());
    model.refresh();
    EXPECT_EQ(model.rowCount(), 4);

    model.setCanvas(nullptr);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(ItemDescription, NamesEveryKindOfItem)
{
    QSet<QString> names;
    for (const int type :
         {0x1000C, 0x1000D, 0x10015, 0x10016, 0x1001D, 0x1001F, 0x1002A, 0x1002B, 0x1002C, 0x1002E,
          0x10033, 0x10034, 0x10035, 0x10036, 0x10037, 0x10038}) {
        names.insert(kindName(static_cast<KestTypes::ShapeType>(type)));
    }
    EXPECT_EQ(names.size(), 16);
    EXPECT_EQ(kindName(static_cast<KestTypes::ShapeType>(7)), QStringLiteral("unknown (7)"));
}

TEST(ItemDescription, ListsTheGroupsThatAnItemHasAndNoOthers)
{
    const OpenLabel label = makeLabel();
    const QList<PropertyRow> rectangle =
        describeItem(label.canvas->items().at(0)->values(), LengthUnit::Inch);
    EXPECT_EQ(propertyOf(rectangle, QStringLiteral("Fill color")), QStringLiteral("#ffd580"));
    EXPECT_EQ(propertyOf(rectangle, QStringLiteral("Line style")), QStringLiteral("solid"));
    EXPECT_EQ(propertyOf(rectangle, QStringLiteral("Font family")), QStringLiteral("(missing)"));

    const QList<PropertyRow> text =
        describeItem(label.canvas->items().at(1)->values(), LengthUnit::Inch);
    EXPECT_EQ(propertyOf(text, QStringLiteral("Text")), QStringLiteral("Own text"));
    EXPECT_EQ(propertyOf(text, QStringLiteral("Font size")), QStringLiteral("14 pt"));
    EXPECT_EQ(propertyOf(text, QStringLiteral("Source")), QStringLiteral("number 1"));
}

TEST(ItemDescription, FollowsTheLanguage)
{
    const auto names = [] {
        const OpenLabel label = makeLabel();
        return QStringList{describeItem(label.canvas->items().at(0)->values(), {}).at(1).name,
                           describePage(label.canvas->page(), {}).at(0).name};
    };
    EXPECT_EQ(names(), (QStringList{QStringLiteral("Left"), QStringLiteral("Page width")}));
    const translations::ProgramLanguage german({QStringLiteral("de")});
    EXPECT_EQ(names(), (QStringList{QStringLiteral("Links"), QStringLiteral("Seitenbreite")}));
}

TEST(ItemDescription, SummariesAreOneShortLine)
{
    workbench::ItemValues values;
    values.type = KestTypes::RichText;
    values.text =
        workbench::TextValues{{}, QStringLiteral("<p>first <b>line</b></p><p>second</p>")};
    EXPECT_EQ(contentSummary(values), QStringLiteral("first line second"));

    values.text = workbench::TextValues{QString(100'000, QLatin1Char('x')), {}};
    EXPECT_EQ(contentSummary(values).size(), 60);
    EXPECT_LE(propertyOf(describeItem(values, LengthUnit::Inch), QStringLiteral("Text")).size(),
              2000);
}

TEST(StyleNames, SayWhatNumbersMean)
{
    EXPECT_EQ(penStyleName(2), QStringLiteral("dashes"));
    EXPECT_EQ(penStyleName(99), QStringLiteral("unknown (99)"));
    EXPECT_EQ(capStyleName(0x20), QStringLiteral("round"));
    EXPECT_EQ(joinStyleName(0x40), QStringLiteral("cut off"));
    EXPECT_EQ(brushStyleName(15), QStringLiteral("gradient"));
    EXPECT_EQ(lineMarkerName(0x50), QStringLiteral("double arrow"));
    EXPECT_EQ(lineMarkerName(8), QStringLiteral("dimension stroke"));
    EXPECT_EQ(alignmentName(Qt::AlignRight | Qt::AlignVCenter), QStringLiteral("right, middle"));
    EXPECT_EQ(alignmentName({}), QStringLiteral("left, top"));
    EXPECT_EQ(fixedSidesName(3), QStringLiteral("width and height"));
    EXPECT_EQ(colorName(Qt::transparent), QStringLiteral("transparent"));
    EXPECT_EQ(colorName(QColor(1, 2, 3, 128)), QStringLiteral("#80010203"));
    EXPECT_EQ(colorName(QColor()), QStringLiteral("none"));
}

TEST(PropertyTable, ShowsAGroupOnceAndNamesItToScreenReaders)
{
    PropertyModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setRows({{QStringLiteral("Fill"), QStringLiteral("Filled"), QStringLiteral("yes")},
                   {QStringLiteral("Fill"), QStringLiteral("Color"), QStringLiteral("red")}});

    EXPECT_EQ(cell(model, 0, PropertyModel::Group), QStringLiteral("Fill"));
    EXPECT_EQ(cell(model, 1, PropertyModel::Group), QString());
    EXPECT_EQ(model.index(1, PropertyModel::Group).data(Qt::AccessibleTextRole).toString(),
              QStringLiteral("Fill"));
    EXPECT_EQ(cell(model, 1, PropertyModel::Value), QStringLiteral("red"));
}

TEST(SourceTable, ShowsKindSettingsRecordsAndCurrentText)
{
    const OpenLabel label = makeLabel();
    SourceTableModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.show(label.sources.get(), 2);

    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(cell(model, 0, SourceTableModel::Kind), QStringLiteral("Counter"));
    EXPECT_EQ(cell(model, 0, SourceTableModel::Settings), QStringLiteral("1 to 5, step 1"));
    EXPECT_EQ(cell(model, 0, SourceTableModel::Records), QStringLiteral("5"));
    EXPECT_EQ(cell(model, 0, SourceTableModel::Now), QStringLiteral("No. 3"));

    model.show(nullptr, 0);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(SourceTable, ShowsTheBeginningOfALongList)
{
    workbench::datasources::DatasourceController sources;
    const int list = sources.createDatasource(QStringLiteral("TextListDatasource"));
    QStringList texts;
    for (int i = 1; i <= 6; ++i) {
        texts.append(QString::number(i));
    }
    sources.getDatasource(list)->setDatasourceProperty(QStringLiteral("TextList"), texts);
    const int clock = sources.createDatasource(QStringLiteral("SystemDatasource"));
    sources.getDatasource(clock)->setDatasourceProperty(QStringLiteral("DateFormat"),
                                                        QStringLiteral("yyyy"));
    SourceTableModel model;
    model.show(&sources, 0);

    EXPECT_EQ(cell(model, 0, SourceTableModel::Settings), QStringLiteral("1, 2, 3, 4, 5, …"));
    EXPECT_EQ(cell(model, 1, SourceTableModel::Kind), QStringLiteral("Date and time"));
    EXPECT_EQ(cell(model, 1, SourceTableModel::Settings), QStringLiteral("yyyy"));
}

class RecentFilesTest : public WindowFixture
{};

TEST_F(RecentFilesTest, PutTheLatestFirstAndHaveEachOnce)
{
    RecentFiles recent;
    EXPECT_TRUE(recent.files().isEmpty());
    recent.add(QStringLiteral("/a"));
    recent.add(QStringLiteral("/b"));
    recent.add(QStringLiteral("/a"));
    EXPECT_EQ(recent.files(), (QStringList{QStringLiteral("/a"), QStringLiteral("/b")}));
    recent.remove(QStringLiteral("/a"));
    EXPECT_EQ(recent.files(), QStringList{QStringLiteral("/b")});
    recent.clear();
    EXPECT_TRUE(recent.files().isEmpty());
}

TEST_F(RecentFilesTest, KeepNoMoreThanTheMenuHasDigits)
{
    RecentFiles recent;
    for (int i = 0; i < 20; ++i) {
        recent.add(QStringLiteral("/file%1").arg(i));
    }
    EXPECT_EQ(recent.files().size(), RecentFiles::MaximumCount);
    EXPECT_EQ(recent.files().constFirst(), QStringLiteral("/file19"));
}

class PalettesTest : public WindowFixture
{};

TEST_F(PalettesTest, TheChoiceIsKept)
{
    EXPECT_EQ(storedColorScheme(), ColorScheme::System);
    for (const ColorScheme scheme : {ColorScheme::Light, ColorScheme::Dark, ColorScheme::System}) {
        storeColorScheme(scheme);
        EXPECT_EQ(storedColorScheme(), scheme);
    }
}

TEST_F(PalettesTest, TheSystemsColorsComeBack)
{
    const QColor system = QApplication::palette().color(QPalette::Window);
    applyColorScheme(ColorScheme::Dark);
    EXPECT_LT(QApplication::palette().color(QPalette::Window).lightness(), 80);
    applyColorScheme(ColorScheme::Light);
    EXPECT_GT(QApplication::palette().color(QPalette::Window).lightness(), 200);
    applyColorScheme(ColorScheme::System);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), system);
}

namespace {

// The contrast of two colors as defined by the Web Content Accessibility Guidelines.
double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& a, const QColor& b)
{
    const double first = luminance(a);
    const double second = luminance(b);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

} // namespace

TEST_F(PalettesTest, TextsCanBeReadOnTheirGrounds)
{
    using Role = QPalette;
    for (const QPalette& palette : {lightPalette(), darkPalette()}) {
        EXPECT_GE(contrast(palette.color(Role::WindowText), palette.color(Role::Window)), 7.0);
        EXPECT_GE(contrast(palette.color(Role::Text), palette.color(Role::Base)), 7.0);
        EXPECT_GE(contrast(palette.color(Role::Text), palette.color(Role::AlternateBase)), 7.0);
        EXPECT_GE(contrast(palette.color(Role::ButtonText), palette.color(Role::Button)), 7.0);
        EXPECT_GE(contrast(palette.color(Role::ToolTipText), palette.color(Role::ToolTipBase)),
                  7.0);
        EXPECT_GE(contrast(palette.color(Role::PlaceholderText), palette.color(Role::Window)), 4.5);
        EXPECT_GE(contrast(palette.color(Role::HighlightedText), palette.color(Role::Highlight)),
                  3.9);
    }
}

TEST(ActionTable, EveryActionHasAKeyOfItsOwnATextAndAHint)
{
    const Actions actions;
    QSet<QString> keys;
    for (const MenuId menu : {MenuId::File, MenuId::Edit, MenuId::Arrange, MenuId::View,
                              MenuId::Colors, MenuId::Panels, MenuId::Record, MenuId::Help}) {
        EXPECT_FALSE(menuTitle(menu).isEmpty());
        const QList<QAction*> ofMenu = actions.ofMenu(menu);
        EXPECT_FALSE(ofMenu.isEmpty());
        for (const QAction* action : ofMenu) {
            SCOPED_TRACE(action->text().toStdString());
            EXPECT_FALSE(action->statusTip().isEmpty());
            ASSERT_FALSE(action->shortcuts().isEmpty());
            const QList<QKeySequence> shortcuts = action->shortcuts();
            for (const QKeySequence& key : shortcuts) {
                EXPECT_FALSE(key.isEmpty());
                EXPECT_FALSE(keys.contains(key.toString())) << key.toString().toStdString();
                keys.insert(key.toString());
            }
        }
    }
    EXPECT_EQ(actions.shortcuts().size(), 65);
}

TEST(ActionTable, MnemonicsWithinAMenuAreDifferent)
{
    const Actions actions;
    for (const MenuId menu : {MenuId::File, MenuId::Edit, MenuId::Arrange, MenuId::View,
                              MenuId::Colors, MenuId::Panels, MenuId::Record, MenuId::Help}) {
        QSet<QString> letters;
        const QList<QAction*> ofMenu = actions.ofMenu(menu);
        for (const QAction* action : ofMenu) {
            const QString letter =
                action->text().mid(action->text().indexOf(QLatin1Char('&')) + 1, 1).toLower();
            EXPECT_FALSE(letters.contains(letter)) << action->text().toStdString();
            letters.insert(letter);
        }
    }
}

TEST(ActionTable, DisablesActionsThatNeedALabel)
{
    Actions actions;
    actions.setLabelOpen(false);
    EXPECT_TRUE(actions.at(ActionId::Open).isEnabled());
    EXPECT_FALSE(actions.at(ActionId::Save).isEnabled());
    EXPECT_FALSE(actions.at(ActionId::ZoomIn).isEnabled());
    actions.setLabelOpen(true);
    EXPECT_TRUE(actions.at(ActionId::Save).isEnabled());
}
