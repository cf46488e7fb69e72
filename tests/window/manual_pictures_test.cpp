// The pictures of the manual, in the folder "screens/manual" of the build. The target
// manual_pictures copies them to docs/images.

#include "dialog_driver.h"
#include "window_fixture.h"

#include "translations/program_language.h"
#include "window/items/item_panel.h"
#include "window/main_window.h"
#include "window/output/print_dialog.h"
#include "window/output/record_chooser.h"
#include "window/output/sheet_editor.h"
#include "window/properties/property_panel.h"
#include "window/review/comparison_panel.h"
#include "window/review/issues_panel.h"
#include "window/review/label_list_panel.h"
#include "window/sources/csv_dialog.h"

#include <QApplication>
#include <QDockWidget>
#include <QLabel>
#include <QSignalSpy>

#include <algorithm>
#include <memory>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSize WindowSize(1000, 640);

// 32 steps of each color make a smaller file.
QImage withFewColors(QImage image)
{
    image = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        std::transform(line, line + image.width(), line, [](QRgb color) {
            const auto step = [](int value) { return std::min((value + 4) / 8 * 8, 255); };
            return qRgb(step(qRed(color)), step(qGreen(color)), step(qBlue(color)));
        });
    }
    return image;
}

class ManualPictures : public WindowFixture
{
protected:
    ManualPictures()
    {
        QApplication::setStyle(new ProgramStyle); // owned by the application
        applyColorScheme(ColorScheme::Light);
    }
    ~ManualPictures() override { applyColorScheme(ColorScheme::System); }

    static void keep(QWidget& widget, const QString& name)
    {
        QApplication::processEvents();
        ASSERT_TRUE(QDir().mkpath(QStringLiteral(LABELPORT_PICTURES "/manual")));
        const QImage image = withFewColors(widget.grab().toImage());
        keepImage(image, u"manual/"_s + name);
        QFile file(QStringLiteral(LABELPORT_PICTURES "/manual/%1.png").arg(name));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_LT(file.size(), 150'000) << "they are in the program";
    }

    static std::unique_ptr<MainWindow> makeWindow()
    {
        auto window = std::make_unique<MainWindow>();
        window->resize(WindowSize);
        window->show();
        window->resizeDocks({window->findChild<QDockWidget*>(u"items"_s)}, {400}, Qt::Horizontal);
        return window;
    }

    QString writeMembers()
    {
        QFile file(path(u"members.csv"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("Name,Number,Since\n"
                   "Robin Marsh,Member 0117,2019\nKim Reed,Member 0118,2021\n"
                   "Alex Brook,Member 0119,2021\nSam Fenn,Member 0120,2024\n");
        return file.fileName();
    }

private:
    const translations::ProgramLanguage m_english{QStringList()};
};

TEST_F(ManualPictures, Window)
{
    const auto window = makeWindow();
    ASSERT_TRUE(window->openFile(copied(u"opendocument/rating_plate.odg"_s)));
    window->panels().items().selectItem(2);
    keep(*window, u"window"_s);
}

TEST_F(ManualPictures, Review)
{
    const QString folder = path(u"labels"_s);
    ASSERT_TRUE(QDir(folder).mkpath(u"."_s));
    for (const QString& name :
         {u"opendocument/cable_markers.odg"_s, u"opendocument/shelf_label.odg"_s,
          u"orvanta/parcel_label.qmtx"_s, u"tavrel/stretched_text_2000022.cnv"_s,
          u"tavrel/member_card_2000024.cnv"_s}) {
        ASSERT_TRUE(QFile::copy(sample(name), folder + u'/' + QFileInfo(name).fileName()));
    }
    const auto window = makeWindow();
    FolderReview& review = window->panels().labels().review();
    QSignalSpy completed(&review, &FolderReview::completed);
    ASSERT_TRUE(window->openFile(folder));
    ASSERT_TRUE(!review.isBusy() || completed.wait(ImportTimeout));
    ASSERT_TRUE(window->openFile(folder + u"/member_card_2000024.cnv"_s));
    window->action(ActionId::GoIssues).trigger();
    keep(*window, u"review"_s);
    QDockWidget* issues = window->findChild<QDockWidget*>(u"issues"_s);
    issues->setFloating(true);
    issues->resize(720, 200);
    keep(window->panels().issues(), u"issues"_s);
    issues->setFloating(false);
    ASSERT_TRUE(window->openFile(folder + u"/cable_markers.odg"_s));
    window->action(ActionId::GoOriginal).trigger();
    auto* original = window->findChild<QDockWidget*>(u"original"_s);
    original->setFloating(true);
    original->resize(560, 320);
    QApplication::processEvents();
    keep(window->panels().comparison(), u"original"_s);
    EXPECT_TRUE(window->panels().comparison().hasOriginal());
}

TEST_F(ManualPictures, CsvAndPrint)
{
    DialogDriver dialogs;
    const auto window = makeWindow();
    ASSERT_TRUE(window->openFile(copied(u"tavrel/member_card_2000024.cnv"_s)));
    dialogs.expectFile(writeMembers());
    dialogs.expect([this](QDialog& dialog) {
        for (auto* text : dialog.findChildren<QLabel*>()) {
            if (text->text() == path(u"members.csv"_s)) {
                text->setText(u"/home/me/members.csv"_s); // not the test's folder
            }
        }
        keep(dialog, u"csv"_s);
        dialog.accept();
    });
    window->action(ActionId::ConnectCsv).trigger();
    OpenLabel& label = *window->session().label();
    ASSERT_EQ(label.sources->recordCount(), 4);
    PrintDialog print(label, 0, {{u"office"_s}, u"office"_s, {}}, nullptr);
    print.sheet().selectSheet(u"L7165"_s);
    print.records().chooseRun(1, 4);
    dialogs.expect([](QDialog&) {});
    print.show();
    keep(print, u"print"_s);
    window->session().undoStack().setClean();
}

} // namespace
