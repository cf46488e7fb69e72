// labelport-workbench: opens legacy labels in a window.

#include "translations/program_language.h"
#include "window/actions/icons.h"
#include "window/actions/palettes.h"
#include "window/main_window.h"
#include "window/window_picture.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <cstdio>
#include <initializer_list>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int WrongUsage = 2;

struct WindowMainTr
{
    Q_DECLARE_TR_FUNCTIONS(window::Main)
};

void printError(const QString& message)
{
    std::fprintf(stderr, "labelport-workbench: %s\n", qUtf8Printable(message));
}

struct Options
{
    QString file;    ///< to open, empty for none
    QString picture; ///< file for a picture of the window, empty for none
};

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(WindowMainTr::tr(
        "Opens legacy label templates, shows them, saves, exports and prints them."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        u"file"_s,
        WindowMainTr::tr("A label to open: *.label, *.cnv, *.roc, *.qmtx, *.odt or *.odg; or "
                         "a folder of labels."),
        u"[file]"_s);
    parser.addOption({u"screenshot"_s,
                      WindowMainTr::tr("Writes a picture of the window to a PNG file, and exits."),
                      u"picture"_s});
}

// The file of an address: desktops pass "file:" addresses, and links of reports are "labelport:"
// addresses. Other arguments are file names.
QString fileOf(const QString& argument)
{
    const bool isAddress = argument.startsWith("file:///"_L1, Qt::CaseInsensitive) ||
                           argument.startsWith("labelport:///"_L1, Qt::CaseInsensitive);
    return isAddress ? QUrl(argument).path(QUrl::FullyDecoded) : argument;
}

// Exits on a usage error and for --help and --version.
Options readOptions(const QStringList& arguments)
{
    QCommandLineParser parser;
    describe(parser);
    parser.process(arguments);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        const QString message =
            WindowMainTr::tr("A window shows one label, but %n files were given.", nullptr,
                             static_cast<int>(files.size()));
        printError(message);
        std::exit(WrongUsage);
    }
    return {fileOf(files.value(0)), parser.value(u"screenshot"_s)};
}

// Without a login session or a display, over SSH, in cron or in containers, Qt prints warnings that
// do not help users.
void printMessage(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    // no translation: Qt's own text
    constexpr auto sizeHints = "This plugin does not support propagateSizeHints"_L1;
    if (!text.startsWith("QStandardPaths: XDG_RUNTIME_DIR"_L1) && !text.startsWith(sizeHints)) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(qFormatLogMessage(type, context, text)));
    }
}

bool contains(int argc, char** argv, std::initializer_list<std::string_view> options)
{
    return std::any_of(argv, argv + argc, [&](const char* argument) {
        return std::find(options.begin(), options.end(), argument) != options.end();
    });
}

// Whether Qt can connect to a display: without one it aborts the program.
bool hasDisplay(int argc, char** argv)
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ||
           contains(argc, argv, {"-platform", "--platform"});
}

int showWindow(const Options& options)
{
    window::MainWindow mainWindow;
    if (options.picture.isEmpty()) {
        mainWindow.show();
        if (!options.file.isEmpty()) {
            // After the window is shown, so that error messages appear in front of it.
            QTimer::singleShot(0, &mainWindow, [&] { mainWindow.openFile(options.file); });
        }
        return QApplication::exec();
    }
    if (!options.file.isEmpty()) {
        const QString error = mainWindow.openFileQuietly(options.file);
        if (!error.isEmpty()) {
            printError(WindowMainTr::tr("Cannot open \"%1\": %2").arg(options.file, error));
            return EXIT_FAILURE;
        }
    }
    const window::WindowPicture picture(mainWindow, options.picture);
    mainWindow.show();
    return QApplication::exec();
}

} // namespace

int main(int argc, char** argv)
{
    qInstallMessageHandler(printMessage);
    QCoreApplication::setOrganizationName(u"LabelPort"_s);
    QCoreApplication::setApplicationName(u"LabelPort Workbench"_s);
    QCoreApplication::setApplicationVersion(QStringLiteral(LABELPORT_VERSION));
    const bool isVisible = hasDisplay(argc, argv);
    if (!isVisible || contains(argc, argv, {"-h", "--help", "--help-all", "-v", "--version"})) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    const QApplication application(argc, argv);
    QApplication::setStyle(new window::ProgramStyle); // owned by the application
    const translations::ProgramLanguage language(
        translations::preferredLanguages(QProcessEnvironment::systemEnvironment()));
    QApplication::setWindowIcon(window::applicationIcon());
    const Options options = readOptions(QApplication::arguments());
    if (!isVisible && options.picture.isEmpty()) {
        printError(WindowMainTr::tr("Cannot show a window: there is no display. "
                                    "Set DISPLAY or WAYLAND_DISPLAY, or use --screenshot."));
        return EXIT_FAILURE;
    }
    window::applyColorScheme(window::storedColorScheme());
    return showWindow(options);
}
