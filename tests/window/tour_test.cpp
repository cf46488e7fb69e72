// A tour through the window in two sizes, light and dark, in three languages: takes a picture of
// every screen, and finds texts that are cut off.

#include "window_fixture.h"

#include "translations/program_language.h"
#include "window/actions/palettes.h"
#include "window/help/manual_dialog.h"
#include "window/items/item_panel.h"
#include "window/main_window.h"
#include "window/output/export_dialog.h"
#include "window/output/print_dialog.h"
#include "window/output/sheet_editor.h"
#include "window/properties/property_panel.h"
#include "window/review/issues_panel.h"
#include "window/review/label_list_panel.h"
#include "window/sources/csv_dialog.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QHeaderView>
#include <QLabel>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <QToolButton>
#include <QTreeView>

#include <tuple>

using namespace window;
using namespace Qt::Literals::StringLiterals;

namespace {

using Setting = std::tuple<QString, QSize, ColorScheme>;

QString nameOf(const Setting& setting)
{
    const auto& [language, size, colors] = setting;
    const QString scheme = colors == ColorScheme::Dark ? u"dark"_s : u"light"_s;
    return u"%1_%2_%3"_s.arg(language, QString::number(size.width()), scheme);
}

bool isTooNarrow(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        return !label->wordWrap() && label->width() < label->sizeHint().width();
    }
    if (const auto* tool = qobject_cast<const QToolButton*>(&widget)) {
        return tool->toolButtonStyle() != Qt::ToolButtonIconOnly &&
               tool->width() < tool->fontMetrics().horizontalAdvance(tool->text());
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        return !button->text().isEmpty() && button->width() < button->minimumSizeHint().width();
    }
    if (qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr) {
        return widget.width() < widget.minimumSizeHint().width();
    }
    if (const auto* box = qobject_cast<const QComboBox*>(&widget)) {
        const int text = box->fontMetrics().horizontalAdvance(box->currentText());
        return box->width() < text + 2 * box->fontMetrics().averageCharWidth();
    }
    return false;
}

QString captionOf(const QWidget& widget)
{
    const QString text = widget.property("text").toString();
    return QString::fromLatin1(widget.metaObject()->className()) +
           u" “%1”"_s.arg(text.isEmpty() ? widget.accessibleName() : text);
}

QStringList cutHeadings(const QHeaderView& header)
{
    QStringList cut;
    for (int section = 0; section < header.count(); ++section) {
        const QString heading = header.model()->headerData(section, Qt::Horizontal).toString();
        if (header.sectionSize(section) < header.fontMetrics().horizontalAdvance(heading)) {
            cut.append(u"heading “%1”"_s.arg(heading));
        }
    }
    return cut;
}

// The texts of visible controls for which there is no room.
QStringList cutTexts(const QWidget& window)
{
    QStringList cut;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible()) {
            continue;
        }
        const auto* header = qobject_cast<const QHeaderView*>(widget);
        if (header != nullptr && header->orientation() == Qt::Horizontal) {
            cut.append(cutHeadings(*header));
        } else if (isTooNarrow(*widget)) {
            cut.append(captionOf(*widget));
        }
    }
    return cut;
}

class TourTest : public WindowFixture, public ::testing::WithParamInterface<Setting>
{
protected:
    TourTest()
        : m_language({std::get<QString>(GetParam())})
    {
        QApplication::setStyle(new ProgramStyle); // owned by the application
        applyColorScheme(std::get<ColorScheme>(GetParam()));
        EXPECT_EQ(m_language.name(), std::get<QString>(GetParam()));
    }
    ~TourTest() override { applyColorScheme(ColorScheme::System); }

    static void keep(QWidget& screen, const QString& name)
    {
        screen.show();
        QApplication::processEvents();
        keepPicture(screen, u"tour_%1_%2"_s.arg(name, nameOf(GetParam())));
        EXPECT_EQ(cutTexts(screen), QStringList()) << qPrintable(name);
    }

    static std::unique_ptr<MainWindow> makeWindow()
    {
        auto window = std::make_unique<MainWindow>();
        window->resize(std::get<QSize>(GetParam()));
        window->show();
        // The virtual screen is smaller, so that the panels begin narrower than on a real one.
        window->resizeDocks({window->findChild<QDockWidget*>(u"items"_s)}, {480}, Qt::Horizontal);
        return window;
    }

private:
    const translations::ProgramLanguage m_language;
};

} // namespace

TEST_P(TourTest, Label)
{
    const auto window = makeWindow();
    ASSERT_TRUE(window->openFile(copied(u"opendocument/shelf_label.odg"_s)));
    window->panels().items().selectItem(4);
    QTableView& properties = window->panels().properties().table();
    properties.setCurrentIndex(properties.model()->index(3, 2));
    properties.edit(properties.currentIndex());
    keep(*window, u"label"_s);
}

TEST_P(TourTest, Folder)
{
    const QString folder = path(u"labels"_s);
    ASSERT_TRUE(QDir(folder).mkpath(u"."_s));
    for (const char* name :
         {"opendocument/cable_markers.odg", "orvanta/jar_label.qmtx",
          "tavrel/stretched_text_2000022.cnv", "tavrel/member_card_2000024.cnv"}) {
        const QString file = QString::fromLatin1(name);
        ASSERT_TRUE(QFile::copy(sample(file), folder + u'/' + QFileInfo(file).fileName()));
    }
    QFile bad(folder + u"/unreadable.cnv"_s);
    ASSERT_TRUE(bad.open(QIODevice::WriteOnly));
    bad.write("no label");
    bad.close();
    const auto window = makeWindow();
    FolderReview& review = window->panels().labels().review();
    QSignalSpy completed(&review, &FolderReview::completed);
    ASSERT_TRUE(window->openFile(folder));
    ASSERT_TRUE(!review.isBusy() || completed.wait(ImportTimeout));
    window->action(ActionId::GoOriginal).trigger();
    keep(*window, u"original"_s);
    ASSERT_TRUE(window->openFile(folder + u"/member_card_2000024.cnv"_s));
    window->action(ActionId::GoIssues).trigger();
    keep(*window, u"issues"_s);
}

TEST_P(TourTest, Csv)
{
    QFile file(path(u"goods.csv"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("Article,Name,Price\n4711,Screws,3.20\n4712,Nuts,1.95\n");
    file.close();
    const OpenLabel label = makeLabel();
    CsvDialog dialog(*label.canvas, -1, nullptr);
    dialog.readFile(file.fileName());
    keep(dialog, u"csv"_s);
}

TEST_P(TourTest, PrintAndExport)
{
    OpenLabel label = makeLabel();
    PrintDialog print(label, 0, {{u"office"_s, u"zebra"_s}, u"zebra"_s, {}}, nullptr);
    keep(print, u"print"_s);
    print.sheet().selectSheet(u"L7165"_s);
    keep(print, u"print_sheet"_s);
    ExportDialog dialog(path(u"shelf"_s), 50, 6, nullptr);
    keep(dialog, u"export"_s);
}

TEST_P(TourTest, Manual)
{
    ManualDialog manual;
    keep(manual, u"manual"_s);
}

INSTANTIATE_TEST_SUITE_P(Settings, TourTest,
                         ::testing::Values(Setting{u"en"_s, {1280, 800}, ColorScheme::Light},
                                           Setting{u"de"_s, {1280, 800}, ColorScheme::Dark},
                                           Setting{u"fr"_s, {1280, 800}, ColorScheme::Light},
                                           Setting{u"en"_s, {1920, 1080}, ColorScheme::Dark},
                                           Setting{u"de"_s, {1920, 1080}, ColorScheme::Light},
                                           Setting{u"fr"_s, {1920, 1080}, ColorScheme::Dark}),
                         [](const ::testing::TestParamInfo<Setting>& setting) {
                             return nameOf(setting.param).toStdString();
                         });
