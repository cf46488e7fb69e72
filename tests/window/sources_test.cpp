// Data sources: CSV files and their columns, counters, dates, lists; all with undo.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/sources/csv_dialog.h"
#include "window/sources/csv_mapping.h"
#include "window/sources/source_commands.h"
#include "window/sources/source_dialog.h"
#include "window/sources/source_panel.h"
#include "workbench/datasources/csv_source.h"
#include "workbench/datasources/text_list_source.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QTableView>
#include <QTest>
#include <QToolButton>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

using workbench::datasources::CsvSource;
using workbench::datasources::parseCsv;
using workbench::datasources::SourceValues;

constexpr const char* Fruit =
    "Name,Price,Code\nApple,1.20,4006381333931\nPear,0.80,4006381333948\n";

workbench::ItemValues textOf(const QString& text)
{
    workbench::ItemValues values;
    values.type = KestTypes::SimpleText;
    values.box.size = {120.0, 24.0};
    values.font.emplace();
    values.textStyle.emplace();
    values.text = workbench::TextValues{text, {}};
    values.textLabel.emplace();
    values.datasource.emplace();
    return values;
}

workbench::ItemValues barcodeOf(const QString& content)
{
    workbench::ItemValues values;
    values.type = KestTypes::Barcode;
    values.box.size = {120.0, 40.0};
    values.font.emplace();
    values.barcode.emplace();
    values.barcode->content = content;
    values.datasource.emplace();
    return values;
}

class SourcesTest : public WindowFixture
{
protected:
    /// A label that lost its database: it shows the values of the last record.
    static OpenLabel lostLabel()
    {
        OpenLabel label = makeLabel();
        label.canvas->clear();
        for (const auto& values : {textOf(u"Pear"_s), textOf(u" %price% "_s),
                                   barcodeOf(u"4006381333948"_s), textOf(u"Best before"_s)}) {
            label.canvas->addItem(values);
        }
        EXPECT_TRUE(label.sources->setValues({}));
        return label;
    }

    QString writeFruit(const QByteArray& bytes = Fruit)
    {
        QFile file(path(u"fruit.csv"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }

    static QStringList columnsOf(const QList<MappedItem>& mapping)
    {
        QStringList columns;
        for (const MappedItem& mapped : mapping) {
            columns.append(mapped.column);
        }
        return columns;
    }

    /// A field of a dialog by its accessible name.
    template <class Field>
    static Field& field(QWidget& dialog, const QString& name)
    {
        for (Field* each : dialog.findChildren<Field*>()) {
            if (each->accessibleName() == name) {
                return *each;
            }
        }
        throw std::runtime_error("no field " + name.toStdString());
    }

    DialogDriver dialogs;
    QWidget window;
    int changes = 0;
    const ChangeSources::Changed changed = [this] { ++changes; };
};

} // namespace

TEST_F(SourcesTest, ColumnsAreProposedByContentAndByName)
{
    const OpenLabel label = lostLabel();
    EXPECT_EQ(columnsOf(proposedMapping(*label.canvas, parseCsv(Fruit), -1)),
              (QStringList{u"Name"_s, u"Price"_s, u"Code"_s, QString()}));
}

TEST_F(SourcesTest, ItemsOfOtherSourcesAreNotProposed)
{
    const OpenLabel label = makeLabel(); // a text that shows a counter
    EXPECT_EQ(columnsOf(proposedMapping(*label.canvas, parseCsv("Own text\n1\n"), -1)),
              QStringList{QString()});
}

TEST_F(SourcesTest, ConnectingAFileBindsItsItemsAndIsUndone)
{
    OpenLabel label = lostLabel();
    dialogs.expectFile(writeFruit());
    dialogs.expect([](QDialog& dialog) {
        keepPicture(dialog, u"csv_dialog"_s);
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const std::unique_ptr<QUndoCommand> command = connectCsv(label, changed, &window);
    ASSERT_NE(command, nullptr);
    command->redo();
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(label.sources->recordCount(), 2);
    EXPECT_EQ(label.sources->recordText(1, 0, {u"Name"_s}), u"Apple"_s);
    const QList<workbench::CanvasItem*>& items = label.canvas->items();
    EXPECT_EQ(items.at(0)->datasource(), (workbench::DatasourceValues{1, {u"Name"_s}}));
    EXPECT_EQ(items.at(2)->datasource(), (workbench::DatasourceValues{1, {u"Code"_s}}));
    EXPECT_EQ(items.at(3)->datasource(), workbench::DatasourceValues());

    ASSERT_EQ(writeLabel(label, path(u"saved.label"_s)), QString());
    const ReadLabel saved = readSavedLabel(path(u"saved.label"_s));
    ASSERT_TRUE(saved.label) << qPrintable(saved.error);
    EXPECT_EQ(saved.label->sources->recordText(1, 1, {u"Price"_s}), u"0.80"_s);

    command->undo();
    EXPECT_EQ(label.sources->values(), QList<SourceValues>());
    EXPECT_EQ(items.at(0)->datasource(), workbench::DatasourceValues());
    command->redo();
    EXPECT_EQ(label.sources->recordCount(), 2);
}

TEST_F(SourcesTest, AnotherFileReplacesTheFirstAndItemsCanLeaveIt)
{
    OpenLabel label = lostLabel();
    const auto connect = [&](const DialogDriver::Answer& answer, const QByteArray& bytes) {
        dialogs.expectFile(writeFruit(bytes));
        dialogs.expect(answer);
        const std::unique_ptr<QUndoCommand> command = connectCsv(label, changed, &window);
        ASSERT_NE(command, nullptr);
        command->redo();
    };
    connect([](QDialog& dialog) { dialog.accept(); }, Fruit);
    connect(
        [](QDialog& dialog) {
            auto& csv = dynamic_cast<CsvDialog&>(dialog);
            EXPECT_EQ(columnsOf(csv.mapping()),
                      (QStringList{u"Name"_s, u"Price"_s, QString(), QString()}));
            csv.selectColumn(0, QString());
            dialog.accept();
        },
        "Name;Price\nFig;3\nPlum;4\nKiwi;5\n");
    EXPECT_EQ(label.sources->ids(), QList<int>{1});
    EXPECT_EQ(label.sources->recordCount(), 3);
    EXPECT_EQ(label.canvas->items().at(0)->datasource(), workbench::DatasourceValues());
    EXPECT_EQ(label.canvas->items().at(1)->datasource().id, 1);
    EXPECT_EQ(label.canvas->items().at(2)->datasource(), workbench::DatasourceValues());
}

TEST_F(SourcesTest, AFileThatCannotBeReadIsNotConnected)
{
    const OpenLabel label = lostLabel();
    CsvDialog dialog(*label.canvas, -1, nullptr);
    dialog.readFile(writeFruit("a,b\n1\n"));
    EXPECT_EQ(dialog.problem(), u"Line 2 has 1 fields; the first line has 2."_s);
    for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
        if (button->isDefault()) {
            EXPECT_FALSE(button->isEnabled());
        }
    }
    dialog.readFile(writeFruit("a,b\n1,2\n"));
    EXPECT_EQ(dialog.problem(), QString());
    EXPECT_EQ(dialog.table().records(), 1);
}

TEST_F(SourcesTest, OptionsReadTheFileAgain)
{
    const OpenLabel label = lostLabel();
    CsvDialog dialog(*label.canvas, -1, nullptr);
    dialog.readFile(writeFruit("a;b\n1;2\n"));
    EXPECT_EQ(dialog.table().fields.size(), 2);
    auto& separator = field<QComboBox>(dialog, u"Separator"_s);
    separator.setCurrentIndex(1);
    Q_EMIT separator.activated(1);
    EXPECT_EQ(dialog.table().fields, QStringList{u"a;b"_s});
}

TEST_F(SourcesTest, ACounterIsEdited)
{
    OpenLabel label = makeLabel();
    const int id = label.sources->ids().first();
    const QList<SourceValues> before = label.sources->values();
    dialogs.expect([](QDialog& dialog) {
        field<QSpinBox>(dialog, u"Start"_s).setValue(10);
        field<QSpinBox>(dialog, u"End"_s).setValue(40);
        field<QSpinBox>(dialog, u"Step"_s).setValue(10);
        field<QSpinBox>(dialog, u"Digits, with zeros in front"_s).setValue(4);
        field<QLineEdit>(dialog, u"Text before"_s).setText(u"A-"_s);
        keepPicture(dialog, u"counter_dialog"_s);
        dialog.accept();
    });
    const std::unique_ptr<QUndoCommand> command = editSource(label, id, changed, &window);
    ASSERT_NE(command, nullptr);
    command->redo();
    EXPECT_EQ(label.sources->recordCount(), 4);
    EXPECT_EQ(label.sources->recordText(id, 1), u"A-0020"_s);
    command->undo();
    EXPECT_EQ(label.sources->values(), before);
}

TEST_F(SourcesTest, AnUnchangedSourceAddsNoUndoStep)
{
    OpenLabel label = makeLabel();
    dialogs.expect([](QDialog& dialog) { dialog.accept(); });
    EXPECT_EQ(editSource(label, label.sources->ids().first(), changed, &window), nullptr);
    dialogs.expectCancel();
    EXPECT_EQ(editSource(label, label.sources->ids().first(), changed, &window), nullptr);
    EXPECT_EQ(editSource(label, 99, changed, &window), nullptr);
}

TEST_F(SourcesTest, ListsAndDatesAreEdited)
{
    const QStringList texts{u"one"_s, u"two\nlines"_s, u"back\\slash\\n"_s};
    SourceDialog list(
        {1, workbench::datasources::TextListSource::Kind.toString(), {{u"TextList"_s, texts}}, {}},
        nullptr);
    auto& edit = field<QPlainTextEdit>(list, u"Texts, one on each line"_s);
    EXPECT_EQ(edit.toPlainText(), u"one\ntwo\\nlines\nback\\\\slash\\\\n"_s);
    edit.appendPlainText(u"four"_s);
    EXPECT_EQ(list.source().properties.value(u"TextList"_s).toStringList(),
              texts + QStringList{u"four"_s});
    edit.clear();
    EXPECT_EQ(list.source().properties.value(u"TextList"_s).toStringList(), QStringList());

    SourceDialog clock({1,
                        workbench::datasources::SystemSource::Kind.toString(),
                        {{u"DateFormat"_s, u"yyyy"_s}, {u"TimeFormat"_s, QString()}},
                        {}},
                       nullptr);
    auto& date = field<QComboBox>(clock, u"Date"_s);
    EXPECT_EQ(date.currentText(), u"yyyy"_s);
    date.setEditText(u"dd.MM.yyyy"_s);
    EXPECT_EQ(clock.source().properties.value(u"DateFormat"_s), u"dd.MM.yyyy"_s);
}

// The label of an import that lost its database: connect, choose the file, confirm.
TEST_F(SourcesTest, TheWindowConnectsAFileInThreeClicks)
{
    ASSERT_EQ(writeLabel(lostLabel(), path(u"lost.label"_s)), QString());
    MainWindow main;
    ASSERT_EQ(main.openFileQuietly(path(u"lost.label"_s)), QString());
    dialogs.expectFile(writeFruit());
    dialogs.expectButton(u"Connect"_s);
    main.action(ActionId::ConnectCsv).trigger();
    const OpenLabel& label = *main.session().label();
    EXPECT_EQ(label.sources->recordCount(), 2);
    EXPECT_TRUE(main.session().hasUnsavedChanges());
    main.action(ActionId::NextRecord).trigger();
    EXPECT_EQ(main.record(), 1);
    const QTableView& table = main.panels().sources().table();
    EXPECT_EQ(table.model()->rowCount(), 1);
    main.session().undoStack().undo();
    EXPECT_EQ(main.record(), 0);
    EXPECT_EQ(table.model()->rowCount(), 0);
}

TEST_F(SourcesTest, TheWindowEditsTheSelectedSource)
{
    saveMadeLabel(path(u"a.label"_s));
    MainWindow main;
    ASSERT_EQ(main.openFileQuietly(path(u"a.label"_s)), QString());
    main.panels().sources().table().selectRow(0);
    dialogs.expect([](QDialog& dialog) {
        field<QSpinBox>(dialog, u"End"_s).setValue(2);
        dialog.accept();
    });
    main.action(ActionId::EditSource).trigger();
    EXPECT_EQ(main.session().label()->sources->recordCount(), 2);
    EXPECT_EQ(main.session().undoStack().count(), 1);
}

TEST_F(SourcesTest, ANewCounterIsShownInTheSelectedTextAndUndone)
{
    OpenLabel made = makeLabel();
    ASSERT_TRUE(made.sources->setValues({}));
    workbench::CanvasItem* text = made.canvas->items().at(1);
    workbench::ItemValues unbound = text->values();
    unbound.datasource = workbench::DatasourceValues();
    text->setValues(unbound);
    ASSERT_EQ(writeLabel(made, path(u"a.label"_s)), QString());
    MainWindow main;
    ASSERT_EQ(main.openFileQuietly(path(u"a.label"_s)), QString());
    const OpenLabel& label = *main.session().label();
    EXPECT_FALSE(main.action(ActionId::ShowSource).isEnabled());
    main.action(ActionId::SelectAll).trigger();
    dialogs.expect([](QDialog& dialog) {
        field<QSpinBox>(dialog, u"End"_s).setValue(3);
        dialog.accept();
    });
    main.action(ActionId::NewCounter).trigger();
    EXPECT_EQ(label.sources->recordCount(), 3);
    // The rectangle and the line show no text.
    const int id = label.sources->ids().first();
    EXPECT_EQ(label.canvas->items().at(1)->datasource().id, id);
    EXPECT_FALSE(label.canvas->items().at(0)->values().datasource);
    main.session().undoStack().undo();
    EXPECT_TRUE(label.sources->ids().isEmpty());
    EXPECT_EQ(label.canvas->items().at(1)->datasource().id, -1);
    main.session().undoStack().setClean();
}

TEST_F(SourcesTest, NewDatesAndListsStartWithUsefulValues)
{
    OpenLabel label = makeLabel();
    const qsizetype before = label.sources->ids().size();
    const auto add = [&](QStringView kind) {
        dialogs.expect([](QDialog& dialog) { dialog.accept(); });
        const auto command = addSource(label, kind.toString(), {}, changed, &window);
        command->redo();
    };
    add(workbench::datasources::SystemSource::Kind);
    add(workbench::datasources::TextListSource::Kind);
    ASSERT_EQ(label.sources->ids().size(), before + 2);
    const int date = label.sources->ids().at(before);
    EXPECT_EQ(label.sources->recordText(date, 0).value_or(QString()).size(), 10);
    dialogs.expectCancel();
    EXPECT_EQ(addSource(label, u"TextListDatasource"_s, {}, changed, &window), nullptr);
}

TEST_F(SourcesTest, AnExistingSourceIsShownInSelectedItems)
{
    OpenLabel label = makeLabel();
    const int id = label.sources->ids().first();
    const QList<workbench::CanvasItem*> items = label.canvas->items();
    // The text shows it already, the others cannot.
    EXPECT_EQ(showSource(label, id, items, changed, &window), nullptr);
    workbench::ItemValues unbound = items.at(1)->values();
    unbound.datasource = workbench::DatasourceValues();
    items.at(1)->setValues(unbound);
    EXPECT_EQ(showSource(label, 99, items, changed, &window), nullptr);
    const auto command = showSource(label, id, items, changed, &window);
    ASSERT_NE(command, nullptr);
    command->redo();
    EXPECT_EQ(items.at(1)->datasource().id, id);
    command->undo();
    EXPECT_EQ(items.at(1)->datasource().id, -1);
}
