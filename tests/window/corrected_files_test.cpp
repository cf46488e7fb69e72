// Labels of each format as a user corrects them: a text on the canvas, colors and barcodes in the
// properties; saved, opened again, undone, printed on sheets. With LABELPORT_FILES, a folder, for
// all files in it.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/canvas/canvas_view.h"
#include "window/items/item_panel.h"
#include "window/main_window.h"
#include "window/output/print_dialog.h"
#include "window/output/sheet_editor.h"
#include "window/properties/property_model.h"
#include "window/properties/property_panel.h"
#include "workbench/rendering/page_image.h"

#include <QApplication>
#include <QDirIterator>
#include <QElapsedTimer>
#include <QTableView>
#include <QTest>
#include <QTextDocument>

#include <algorithm>
#include <cstdlib>
#include <string>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

class CorrectedFilesTest : public WindowFixture, public ::testing::WithParamInterface<QString>
{
protected:
    OpenLabel& label() { return *main.session().label(); }

    QImage picture() { return workbench::renderPage(*label().canvas, 72.0).image; }

    workbench::ItemValues valuesOf(int item) { return label().canvas->items().at(item)->values(); }

    // The first item that has a value of a group and can be changed; -1 if there is none.
    template <class Group>
    int firstWith(std::optional<Group> workbench::ItemValues::*group)
    {
        const auto& items = label().canvas->items();
        for (int index = 0; index < items.size(); ++index) {
            const workbench::ItemValues values = items.at(index)->values();
            if (values.*group && !values.placement.readOnly) {
                return index;
            }
        }
        return -1;
    }

    // Types before the text of an item, on the canvas.
    void correctText(int item)
    {
        ASSERT_TRUE(main.view().editText(*label().canvas->items().at(item)));
        QTest::keyClick(&main.view(), Qt::Key_Home, Qt::ControlModifier);
        QTest::keyClicks(&main.view(), u"New "_s);
        main.view().endEditing(true);
    }

    // Sets a property in the panel; false if the item does not have it.
    bool setProperty(int item, const QString& name, const QVariant& value)
    {
        main.panels().items().selectItem(item);
        QAbstractItemModel& model = *main.panels().properties().table().model();
        for (int row = 0; row < model.rowCount(); ++row) {
            if (model.index(row, PropertyModel::Name).data() == name) {
                return model.setData(model.index(row, PropertyModel::Value), value, Qt::EditRole);
            }
        }
        return false;
    }

    DialogDriver dialogs;
    MainWindow main;
};

QString plainTextOf(const workbench::ItemValues& values)
{
    QTextDocument document;
    document.setHtml(values.text->html);
    return values.text->html.isEmpty() ? values.text->text : document.toPlainText();
}

// Where two pictures differ, and by how much.
std::string pixelDifference(const QImage& one, const QImage& other)
{
    if (one.size() != other.size()) {
        return "different sizes";
    }
    int pixels = 0;
    int most = 0;
    QRect box;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QColor a = one.pixelColor(x, y);
            const QColor b = other.pixelColor(x, y);
            if (a != b) {
                ++pixels;
                box |= QRect(x, y, 1, 1);
                most = std::max({most, std::abs(a.red() - b.red()), std::abs(a.green() - b.green()),
                                 std::abs(a.blue() - b.blue())});
            }
        }
    }
    return u"%1 pixels at %2, %3 to %4, %5, by up to %6"_s.arg(pixels)
        .arg(box.left())
        .arg(box.top())
        .arg(box.right())
        .arg(box.bottom())
        .arg(most)
        .toStdString();
}

QStringList files()
{
    const QString folder = qEnvironmentVariable("LABELPORT_FILES");
    if (folder.isEmpty()) {
        return {QStringLiteral(LABELPORT_SAMPLES "/opendocument/rating_plate.odg"),
                QStringLiteral(LABELPORT_SAMPLES "/orvanta/parcel_label.qmtx"),
                QStringLiteral(LABELPORT_SAMPLES "/tavrel/asset_tag_2000020.cnv")};
    }
    QStringList all;
    QDirIterator found(folder, QDir::Files, QDirIterator::Subdirectories);
    while (found.hasNext()) {
        all.append(found.next());
    }
    all.sort();
    return all;
}

} // namespace

TEST_P(CorrectedFilesTest, AreSavedOpenedUndoneAndPrinted)
{
    QElapsedTimer time;
    time.start();
    main.resize(1280, 800);
    main.show();
    const QString error = main.openFileQuietly(GetParam());
    if (!error.isEmpty()) {
        // A refused file of the given folder; the samples can all be opened.
        ASSERT_TRUE(qEnvironmentVariableIsSet("LABELPORT_FILES")) << qPrintable(error);
        GTEST_SKIP() << qPrintable(error);
    }
    const qint64 opened = time.restart();
    const QImage original = picture();
    const int text = firstWith(&workbench::ItemValues::text);
    if (text >= 0) {
        correctText(text);
        EXPECT_TRUE(plainTextOf(valuesOf(text)).startsWith(u"New "_s));
        EXPECT_TRUE(setProperty(text, u"Text color"_s, QColor(200, 0, 100)));
    }
    const int fill = firstWith(&workbench::ItemValues::fill);
    EXPECT_EQ(setProperty(fill, u"Fill color"_s, QColor(0, 200, 100)), fill >= 0);
    const int barcode = firstWith(&workbench::ItemValues::barcode);
    EXPECT_EQ(setProperty(barcode, u"Content"_s, u"4006381333931"_s), barcode >= 0);
    EXPECT_EQ(main.session().hasUnsavedChanges(), text >= 0 || fill >= 0 || barcode >= 0);
    const QImage corrected = picture();
    EXPECT_EQ(corrected == original, text < 0 && fill < 0 && barcode < 0);
    const qint64 edited = time.restart();

    dialogs.expectFile(path(u"corrected.label"_s));
    ASSERT_TRUE(main.session().save());
    const int steps = main.session().undoStack().count();
    for (int step = 0; step < steps; ++step) {
        main.action(ActionId::Undo).trigger();
    }
    EXPECT_TRUE(picture() == original) << pixelDifference(picture(), original);
    main.session().undoStack().setClean();
    ASSERT_EQ(main.openFileQuietly(path(u"corrected.label"_s)), QString());
    EXPECT_TRUE(picture() == corrected) << pixelDifference(picture(), corrected);
    const qint64 reopened = time.restart();

    PrintDialog print(label(), 0, {}, nullptr);
    print.sheet().selectSheet(u"A3"_s);
    if (print.problem().isEmpty()) {
        QList<printing::PrintDocument> documents;
        const OutputReport report = print.write(
            path(u"."_s), [](qint64) { return true; }, documents);
        EXPECT_EQ(report.error, QString());
        ASSERT_EQ(documents.size(), 1);
        EXPECT_EQ(documents.first().media, u"A3"_s);
        EXPECT_GT(QFileInfo(documents.first().file).size(), 800);
    }
    if (qEnvironmentVariableIsSet("LABELPORT_FILES")) {
        keepPicture(main, u"corrected_"_s + QFileInfo(GetParam()).fileName());
        std::printf(
            "%s: %d items, open %d ms, edit %d ms, save, undo and reopen %d ms, print %d ms; %s\n",
            qPrintable(QFileInfo(GetParam()).fileName()), int(label().canvas->items().size()),
            int(opened), int(edited), int(reopened), int(time.elapsed()),
            qPrintable(print.problem()));
    }
}

INSTANTIATE_TEST_SUITE_P(Files, CorrectedFilesTest, ::testing::ValuesIn(files()));
