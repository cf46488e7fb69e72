// labelport-workbench: opens legacy labels in a window.

#include "window/actions/icons.h"
#include "window/main_window.h"
#include "window/actions/palettes.h"
#include "window/window_picture.h"
#include "translations/program_language.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QTimer>

#include <cstdio>

namespace {

constexpr int kWrongUsage = 2;

struct Options
{
    QString file;    ///< to open, empty for none
    QString picture; ///< file for a picture of the window, empty for none
};

void describe(QCommandLineParser& parser)
{
    parser.setApplicationDescription(QCoreApplication::translate(
        "main", "Opens legacy label templates, shows them, saves, exports and prints them."));
    parser.addHelpOption();
    parser.addVersionOption();
    parser.addPositionalArgument(
        QStringLiteral("file"),
        QCoreApplication::translate("main", "A label to open: *.label, *.cnv, *.roc, *.qmtx, "
                                            "*.odt or *.odg."),
        QStringLiteral("[file]"));
    parser.addOption({QStringLiteral("screenshot"),
                      QCoreApplication::translate("main", "Writes a picture of the window as PNG "
                                                          "as soon as it is there, and ends."),
                      QStringLiteral("picture")});
}

// Ends the program where the command line is wrong.
Options readOptions(const QApplication& application)
{
    QCommandLineParser parser;
    describe(parser);
    parser.process(application);
    const QStringList files = parser.positionalArguments();
    if (files.size() > 1) {
        const QString message =
            QCoreApplication::translate("main", "a window holds one label, but %1 were named")
                .arg(files.size());
        std::fprintf(stderr, "labelport-workbench: %s\n", qUtf8Printable(message));
        std::exit(kWrongUsage);
    }
    return {files.value(0), parser.value(QStringLiteral("screenshot"))};
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication::setOrganizationName(QStringLiteral("LabelPort"));
    QCoreApplication::setApplicationName(QStringLiteral("LabelPort Workbench"));
    QCoreApplication::setApplicationVersion(QStringLiteral(LABELPORT_VERSION));
    QApplication::setStyle(QStringLiteral("Fusion"));
    const QApplication application(argc, argv);
    const translations::ProgramLanguage language(
        translations::wantedLanguages(QProcessEnvironment::systemEnvironment()));
    QApplication::setWindowIcon(window::applicationIcon());
    const Options options = readOptions(application);
    window::applyColorScheme(window::storedColorScheme());

    window::MainWindow window;
    if (!options.picture.isEmpty()) {
        new window::WindowPicture(window, options.picture, &window);
    }
    window.show();
    if (!options.file.isEmpty()) {
        // Once the window stands: what goes wrong is told before it.
        QTimer::singleShot(0, &window, [&window, &options] { window.openFile(options.file); });
    }
    return QApplication::exec();
}
