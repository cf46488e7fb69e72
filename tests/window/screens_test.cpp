// Takes a picture of every screen for review, in the folder "screens" of the build.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "window/canvas/canvas_view.h"
#include "window/help/shortcuts_dialog.h"
#include "window/items/item_panel.h"
#include "window/label/label_files.h"
#include "window/main_window.h"
#include "window/output/export_dialog.h"
#include "window/output/record_chooser.h"
#include "window/review/issues_panel.h"

#include <QApplication>
#include <QSet>
#include <QTableView>

using namespace Qt::Literals::StringLiterals;

using namespace window;

namespace {

class ScreensTest : public WindowFixture
{
protected:
    ScreensTest() { applyColorScheme(ColorScheme::Light); }
    ~ScreensTest() override { applyColorScheme(ColorScheme::System); }

    void openSample(MainWindow& window, const char* name)
    {
        window.resize(1240, 800);
        window.show();
        ASSERT_TRUE(window.openFile(copied(QString::fromLatin1(name))));
        QApplication::processEvents();
    }

    void saveBadBarcode(const QString& fileName)
    {
        OpenLabel label = makeLabel();
        workbench::ItemValues barcode;
        barcode.type = KestTypes::Barcode;
        barcode.placement.position = QPointF(18.0, 64.0);
        barcode.box.size = QSizeF(120.0, 36.0);
        barcode.barcode = workbench::BarcodeValues();
        barcode.barcode->symbology = 13;
        barcode.barcode->content = u"not digits"_s;
        label.canvas->addItem(barcode);
        ASSERT_EQ(writeLabel(label, fileName), QString());
    }
};

// The number of different colors in the middle of a picture: an empty screen has few.
int colorsOf(QWidget& widget)
{
    const QImage image = widget.grab().toImage();
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); y += 3) {
        for (int x = 0; x < image.width(); x += 3) {
            colors.insert(image.pixel(x, y));
        }
    }
    return static_cast<int>(colors.size());
}

} // namespace

TEST_F(ScreensTest, Empty)
{
    MainWindow window;
    window.resize(1240, 800);
    window.show();
    keepPicture(window, u"empty"_s);
    EXPECT_GT(colorsOf(window), 10);
}

TEST_F(ScreensTest, WithALabel)
{
    MainWindow window;
    openSample(window, "orvanta/parcel_label.qmtx");
    window.panels().items().selectItem(2);
    keepPicture(window, u"label"_s);
    EXPECT_GT(colorsOf(window.view()), 10);
}

TEST_F(ScreensTest, WithEachFormat)
{
    MainWindow window;
    const QPair<const char*, const char*> samples[] = {
        {"opendocument/high_voltage.odg", "label_opendocument"},
        {"tavrel/parcel_2000023.roc", "label_tavrel"},
        {"orvanta/shapes_sheet.qmtx", "label_orvanta"},
    };
    for (const auto& [sampleName, picture] : samples) {
        window.session().close();
        openSample(window, sampleName);
        keepPicture(window, QString::fromLatin1(picture));
        EXPECT_GT(colorsOf(window.view()), 10);
    }
}

TEST_F(ScreensTest, Dark)
{
    applyColorScheme(ColorScheme::Dark);
    MainWindow window;
    openSample(window, "orvanta/parcel_label.qmtx");
    window.panels().items().selectItem(2);
    keepPicture(window, u"dark"_s);
    EXPECT_LT(window.grab().toImage().pixelColor(3, 3).lightness(), 80);
}

TEST_F(ScreensTest, Issues)
{
    saveBadBarcode(path(u"bad.label"_s));
    MainWindow window;
    window.resize(1240, 800);
    window.show();
    ASSERT_TRUE(window.openFile(path(u"bad.label"_s)));
    window.action(ActionId::GoIssues).trigger();
    keepPicture(window, u"issues"_s);
    EXPECT_EQ(window.panels().issues().issues().size(), 1);
    ASSERT_TRUE(window.openFile(sample(u"opendocument/cable_markers.odg"_s)));
    window.action(ActionId::GoIssues).trigger();
    keepPicture(window, u"issues_of_a_drawing"_s);
    EXPECT_GE(window.panels().issues().issues().size(), 1);
}

TEST_F(ScreensTest, SmallWindowZoomedInInches)
{
    MainWindow window;
    openSample(window, "orvanta/jar_label.qmtx");
    window.resize(900, 600);
    window.action(ActionId::Inches).trigger();
    window.view().setZoom(4.0);
    keepPicture(window, u"zoomed"_s);
    EXPECT_GT(colorsOf(window.view()), 2);
}

TEST_F(ScreensTest, ExportDialogs)
{
    ExportDialog dialog(path(u"shelf"_s), 50, 6, nullptr);
    dialog.show();
    keepPicture(dialog, u"export"_s);
    dialog.setTarget(exporting::Target::Svg);
    dialog.records().chooseRun(1, 50);
    keepPicture(dialog, u"export_series"_s);
    EXPECT_GT(colorsOf(dialog), 4);
}

TEST_F(ScreensTest, Shortcuts)
{
    const Actions actions;
    ShortcutsDialog dialog(actions.shortcuts(), nullptr);
    dialog.show();
    keepPicture(dialog, u"shortcuts"_s);
    EXPECT_GT(colorsOf(dialog), 4);
}

TEST_F(ScreensTest, Questions)
{
    DialogDriver dialogs;
    QWidget window;
    const Prompts prompts(&window);
    dialogs.expect([](QDialog& dialog) {
        keepPicture(dialog, u"question"_s);
        dialog.reject();
    });
    EXPECT_EQ(prompts.askUnsavedChanges(u"shelf.label"_s, true), Prompts::Changes::Cancel);
    dialogs.expect([](QDialog& dialog) {
        keepPicture(dialog, u"error"_s);
        dialog.accept();
    });
    prompts.showError(u"“shelf.label” could not be opened."_s,
                      u"The file was saved by a newer version of LabelPort. "
                      "Install that version, or ask for a copy in an older one."_s);
}
