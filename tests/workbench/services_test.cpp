// The services that the importer's library expects from its host.

#include "host/services/basic_conversions.h"
#include "host/services/common_lists.h"
#include "host/services/file_controller_tools.h"
#include "host/services/tal_message_box.h"
#include "host/services/white_space.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <initializer_list>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinity = std::numeric_limits<double>::infinity();

std::unique_ptr<TalMessageBox> makeBox()
{
    return std::make_unique<TalMessageBox>(u"Title"_s, u"<b>one</b>\ntwo"_s, QMessageBox::Ok,
                                           QMessageBox::Ok, QString(),
                                           QMap<QMessageBox::StandardButton, QString>());
}

} // namespace

TEST(BasicConversions, ValuesWithinTheToleranceAreAlmostEqual)
{
    EXPECT_TRUE(BasicConversions::almostEqual(72.0, 72.0005, 0.00051));
    EXPECT_TRUE(BasicConversions::almostEqual(1.0, 1.5, 0.5));
    EXPECT_TRUE(BasicConversions::almostEqual(0.0, -0.0, 0.0));
    EXPECT_FALSE(BasicConversions::almostEqual(72.0, 72.001, 0.0005));
    EXPECT_FALSE(BasicConversions::almostEqual(NotANumber, NotANumber, 1.0));
    EXPECT_FALSE(BasicConversions::almostEqual(1.0, NotANumber, 1.0));
}

TEST(BasicConversions, AnglesAreBroughtIntoOneTurn)
{
    struct Row
    {
        double given;
        double angle;
    };
    for (const Row& row :
         {Row{0, 0}, Row{359.5, 359.5}, Row{360, 0}, Row{450, 90}, Row{-90, 270}, Row{-360, 0},
          Row{-3690, 270}, Row{NotANumber, 0}, Row{Infinity, 0}, Row{-Infinity, 0}}) {
        EXPECT_EQ(BasicConversions::normalizeAngle(row.given), row.angle) << row.given;
    }
    const double tiny = BasicConversions::normalizeAngle(-1e-30);
    EXPECT_GE(tiny, 0.0);
    EXPECT_LT(tiny, 360.0);
    EXPECT_FALSE(std::signbit(BasicConversions::normalizeAngle(-0.0)));
}

TEST(CommonLists, InstalledFamiliesAreValidInTheirOwnSpelling)
{
    EXPECT_TRUE(CommonLists::isValidFamily(u"Liberation Sans"_s));
    EXPECT_TRUE(CommonLists::isValidFamily(u"DejaVu Sans"_s));
    EXPECT_FALSE(CommonLists::isValidFamily(u"liberation sans"_s));
    EXPECT_FALSE(CommonLists::isValidFamily(u"_Nare Vol"_s));
    EXPECT_FALSE(CommonLists::isValidFamily(QString()));
}

TEST(CommonLists, FamiliesWithASubstituteAreValid)
{
    EXPECT_TRUE(CommonLists::isValidFamily(u"Arial"_s));
    EXPECT_TRUE(CommonLists::isValidFamily(u"Times New Roman"_s));
    EXPECT_TRUE(CommonLists::isValidFamily(u"Courier New"_s));
}

TEST(CommonLists, CommonSymbologiesAreOfTheirKind)
{
    for (const quint16 code : std::initializer_list<quint16>{8, 13, 20, 34, 37, 60, 69}) {
        EXPECT_TRUE(CommonLists::isValidBarcode1D(code)) << code;
        EXPECT_FALSE(CommonLists::isValidBarcode2D(code)) << code;
    }
    for (const quint16 code : std::initializer_list<quint16>{55, 57, 58, 71, 92}) {
        EXPECT_TRUE(CommonLists::isValidBarcode2D(code)) << code;
        EXPECT_FALSE(CommonLists::isValidBarcode1D(code)) << code;
    }
    for (const quint16 code : std::initializer_list<quint16>{0, 5, 999, 65535}) {
        EXPECT_FALSE(CommonLists::isValidBarcode1D(code)) << code;
        EXPECT_FALSE(CommonLists::isValidBarcode2D(code)) << code;
    }
}

TEST(FileControllerTools, TheImportFolderIsTheLastOneOrTheDocuments)
{
    const QString key = u"dir/import"_s;
    const QTemporaryDir folder;
    QSettings settings;
    settings.remove(key);
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    EXPECT_EQ(FileControllerTools::getDefaultImportFolder(), documents);
    settings.setValue(key, folder.path());
    EXPECT_EQ(FileControllerTools::getDefaultImportFolder(), folder.path());
    settings.setValue(key, folder.filePath(u"gone"_s));
    EXPECT_EQ(FileControllerTools::getDefaultImportFolder(), documents);
    settings.remove(key);
}

TEST(WhiteSpace, SplitsAtRunsOfAnyWhiteSpace)
{
    const QString text = u"Net  weight\t\n1\u00A0kg"_s;
    EXPECT_EQ(text.split(WhiteSpace::getWhiteSpacesSplitRegex()),
              QStringList({u"Net"_s, u"weight"_s, u"1"_s, u"kg"_s}));
}

TEST(TalMessageBox, ShowsItsTextUnchanged)
{
    const auto box = makeBox();
    EXPECT_EQ(box->windowTitle(), u"Title"_s);
    const auto* label = box->findChild<QLabel*>();
    ASSERT_NE(label, nullptr);
    EXPECT_EQ(label->text(), u"<b>one</b>\ntwo"_s);
    EXPECT_EQ(label->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->accessibleDescription(), label->text());
    EXPECT_EQ(box->accessibleName(), u"Title"_s);
}

TEST(TalMessageBox, HasTheButtonsWithTheirCaptions)
{
    const TalMessageBox box(u"t"_s, u"x"_s, QMessageBox::Yes | QMessageBox::No, QMessageBox::No,
                            u"further"_s, {{QMessageBox::Yes, u"Continue"_s}});
    const QList<QPushButton*> buttons = box.findChildren<QPushButton*>();
    ASSERT_EQ(buttons.size(), 2);
    QStringList captions;
    for (const QPushButton* button : buttons) {
        captions << button->text();
        EXPECT_EQ(button->isDefault(), button->text() != QLatin1String("Continue"));
    }
    EXPECT_TRUE(captions.contains(u"Continue"_s));
    EXPECT_EQ(box.findChildren<QLabel*>().size(), 2);
}

TEST(TalMessageBox, ReportsOnceThatItWasClosedAndMayThenBeDeleted)
{
    for (const bool byButton : {true, false}) {
        auto box = makeBox();
        int calls = 0;
        QObject::connect(box.get(), &TalMessageBox::popupHideSignal, box.get(), [&] {
            ++calls;
            box.reset(); // as the importer does
        });
        box->show();
        if (byButton) {
            box->findChild<QPushButton*>()->click();
        } else {
            box->close();
        }
        EXPECT_EQ(calls, 0); // not from within the event that closed it
        QCoreApplication::processEvents();
        EXPECT_EQ(calls, 1);
        EXPECT_EQ(box, nullptr);
    }
}
