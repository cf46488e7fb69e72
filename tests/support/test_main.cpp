// The main function of all test programs: a widget application without a window
// system, with a separate name so that no test changes the user's settings.

#include <QApplication>
#include <QStandardPaths>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <gtest/gtest.h>

using namespace Qt::Literals::StringLiterals;

namespace {

// A run that tests a locale must not pass because the locale is not installed.
bool localeIsAsExpected()
{
    const char* expected = std::getenv("LABELPORT_EXPECT_DECIMAL_POINT");
    const char* actual = std::localeconv()->decimal_point;
    if (expected == nullptr || std::strcmp(expected, actual) == 0) {
        return true;
    }
    std::fprintf(stderr, "The locale's decimal point is \"%s\", not \"%s\": is %s installed?\n",
                 actual, expected, std::getenv("LC_ALL"));
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("TZ", "UTC");
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication::setOrganizationName(u"LabelPort"_s);
    QCoreApplication::setApplicationName(u"LabelPort tests"_s);
    QStandardPaths::setTestModeEnabled(true);
    const QApplication application(argc, argv);
    if (!localeIsAsExpected()) {
        return EXIT_FAILURE;
    }
    return RUN_ALL_TESTS();
}
