// The main function of all test programs: a widget application without a window
// system, under a name of its own so that no test touches a user's settings.

#include <QApplication>
#include <QStandardPaths>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("LabelPort"));
    QCoreApplication::setApplicationName(QStringLiteral("LabelPort tests"));
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
