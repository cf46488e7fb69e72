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

using namespace Qt::Literals::StringLiterals;

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
    return u"(missing)"_s;
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
    EXPECT_EQ(cell(model, 0, ItemTableModel::Kind), u"Rectangle"_s);
    EXPECT_EQ(cell(model, 1, ItemTableModel::Kind), u"Text"_s);
    EXPECT_EQ(cell(model, 1, ItemTableModel::Content), u"Own text"_s);
    EXPECT_EQ(cell(model, 2, ItemTableModel::State), u"locked"_s);
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
              u"Left"_s);
    EXPECT_EQ(model.headerData(ItemTableModel::Left, Qt::Horizontal, Qt::ToolTipRole).toString(),
              u"Left (in)"_s);
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
    EXPECT_EQ(kindName(static_cast<KestTypes::ShapeType>(7)), u"unknown (7)"_s);
}

TEST(ItemDescription, ListsTheGroupsThatAnItemHasAndNoOthers)
{
    const OpenLabel label = makeLabel();
    const QList<PropertyRow> rectangle =
        describeItem(label.canvas->items().at(0)->values(), LengthUnit::Inch);
    EXPECT_EQ(propertyOf(rectangle, u"Fill color"_s), u"#ffd580"_s);
    EXPECT_EQ(propertyOf(rectangle, u"Line style"_s), u"solid"_s);
    EXPECT_EQ(propertyOf(rectangle, u"Font family"_s), u"(missing)"_s);

    const QList<PropertyRow> text =
        describeItem(label.canvas->items().at(1)->values(), LengthUnit::Inch);
    EXPECT_EQ(propertyOf(text, u"Text"_s), u"Own text"_s);
    EXPECT_EQ(propertyOf(text, u"Font size"_s), u"14 pt"_s);
    EXPECT_EQ(propertyOf(text, u"Source"_s), u"number 1"_s);
}

TEST(ItemDescription, FollowsTheLanguage)
{
    const auto names = [] {
        const OpenLabel label = makeLabel();
        return QStringList{describeItem(label.canvas->items().at(0)->values(), {}).at(1).name,
                           describePage(label.canvas->page(), {}).at(0).name};
    };
    EXPECT_EQ(names(), (QStringList{u"Left"_s, u"Page width"_s}));
    const translations::ProgramLanguage german({u"de"_s});
    EXPECT_EQ(names(), (QStringList{u"Links"_s, u"Seitenbreite"_s}));
}

TEST(ItemDescription, SummariesAreOneShortLine)
{
    workbench::ItemValues values;
    values.type = KestTypes::RichText;
    values.text = workbench::TextValues{{}, u"<p>first <b>line</b></p><p>second</p>"_s};
    EXPECT_EQ(contentSummary(values), u"first line second"_s);

    values.text = workbench::TextValues{QString(100'000, QLatin1Char('x')), {}};
    EXPECT_EQ(contentSummary(values).size(), 60);
    EXPECT_LE(propertyOf(describeItem(values, LengthUnit::Inch), u"Text"_s).size(), 2000);
}

TEST(StyleNames, SayWhatNumbersMean)
{
    EXPECT_EQ(penStyleName(2), u"dashes"_s);
    EXPECT_EQ(penStyleName(99), u"unknown (99)"_s);
    EXPECT_EQ(capStyleName(0x20), u"round"_s);
    EXPECT_EQ(joinStyleName(0x40), u"cut off"_s);
    EXPECT_EQ(brushStyleName(15), u"gradient"_s);
    EXPECT_EQ(lineMarkerName(0x50), u"double arrow"_s);
    EXPECT_EQ(lineMarkerName(8), u"dimension stroke"_s);
    EXPECT_EQ(alignmentName(Qt::AlignRight | Qt::AlignVCenter), u"right, middle"_s);
    EXPECT_EQ(alignmentName({}), u"left, top"_s);
    EXPECT_EQ(fixedSidesName(3), u"width and height"_s);
    EXPECT_EQ(colorName(Qt::transparent), u"transparent"_s);
    EXPECT_EQ(colorName(QColor(1, 2, 3, 128)), u"#80010203"_s);
    EXPECT_EQ(colorName(QColor()), u"none"_s);
}

TEST(PropertyTable, ShowsAGroupOnceAndNamesItToScreenReaders)
{
    PropertyModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.setRows({{u"Fill"_s, u"Filled"_s, u"yes"_s}, {u"Fill"_s, u"Color"_s, u"red"_s}});

    EXPECT_EQ(cell(model, 0, PropertyModel::Group), u"Fill"_s);
    EXPECT_EQ(cell(model, 1, PropertyModel::Group), QString());
    EXPECT_EQ(model.index(1, PropertyModel::Group).data(Qt::AccessibleTextRole).toString(),
              u"Fill"_s);
    EXPECT_EQ(cell(model, 1, PropertyModel::Value), u"red"_s);
}

TEST(SourceTable, ShowsKindSettingsRecordsAndCurrentText)
{
    const OpenLabel label = makeLabel();
    SourceTableModel model;
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::Fatal);
    model.show(label.sources.get(), 2);

    ASSERT_EQ(model.rowCount(), 1);
    EXPECT_EQ(cell(model, 0, SourceTableModel::Kind), u"Counter"_s);
    EXPECT_EQ(cell(model, 0, SourceTableModel::Settings), u"1 to 5, step 1"_s);
    EXPECT_EQ(cell(model, 0, SourceTableModel::Records), u"5"_s);
    EXPECT_EQ(cell(model, 0, SourceTableModel::Now), u"No. 3"_s);

    model.show(nullptr, 0);
    EXPECT_EQ(model.rowCount(), 0);
}

TEST(SourceTable, ShowsTheBeginningOfALongList)
{
    workbench::datasources::DatasourceController sources;
    const int list = sources.createDatasource(u"TextListDatasource"_s);
    QStringList texts;
    for (int i = 1; i <= 6; ++i) {
        texts.append(QString::number(i));
    }
    sources.getDatasource(list)->setDatasourceProperty(u"TextList"_s, texts);
    const int clock = sources.createDatasource(u"SystemDatasource"_s);
    sources.getDatasource(clock)->setDatasourceProperty(u"DateFormat"_s, u"yyyy"_s);
    SourceTableModel model;
    model.show(&sources, 0);

    EXPECT_EQ(cell(model, 0, SourceTableModel::Settings), u"1, 2, 3, 4, 5, …"_s);
    EXPECT_EQ(cell(model, 1, SourceTableModel::Kind), u"Date and time"_s);
    EXPECT_EQ(cell(model, 1, SourceTableModel::Settings), u"yyyy"_s);
}

class RecentFilesTest : public WindowFixture
{};

TEST_F(RecentFilesTest, PutTheLatestFirstAndHaveEachOnce)
{
    RecentFiles recent;
    EXPECT_TRUE(recent.files().isEmpty());
    recent.add(u"/a"_s);
    recent.add(u"/b"_s);
    recent.add(u"/a"_s);
    EXPECT_EQ(recent.files(), (QStringList{u"/a"_s, u"/b"_s}));
    recent.remove(u"/a"_s);
    EXPECT_EQ(recent.files(), QStringList{u"/b"_s});
    recent.clear();
    EXPECT_TRUE(recent.files().isEmpty());
}

TEST_F(RecentFilesTest, KeepNoMoreThanTheMenuHasDigits)
{
    RecentFiles recent;
    for (int i = 0; i < 20; ++i) {
        recent.add(u"/file%1"_s.arg(i));
    }
    EXPECT_EQ(recent.files().size(), RecentFiles::MaximumCount);
    EXPECT_EQ(recent.files().constFirst(), u"/file19"_s);
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
