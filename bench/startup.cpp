// bench_startup FILE    processor time of each step of a process that imports one label and writes
//                       it as a picture, from program start, with cold caches; alternately with
//                       and without the sandbox of a worker, median of several processes
#include "bench/measuring.h"
#include "bench/table.h"

#include "sandbox/confinement.h"
#include "workbench/import/label_import.h"
#include "workbench/rendering/page_image.h"

#include <QApplication>
#include <QDir>
#include <QFontInfo>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr double Dpi = 300.0;
constexpr int Rounds = 15;

const QStringList StepNames{u"loading and linking the program"_s,
                            u"application object, platform plug-in"_s,
                            u"sandbox"_s,
                            u"first font: list of all fonts"_s,
                            u"import"_s,
                            u"drawing"_s,
                            u"PNG"_s,
                            u"releasing memory"_s};

void require(const QString& error)
{
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
}

/// The label to import, and where to.
struct Work
{
    QString label;
    QString folder;
    bool isConfined = false;
};

void confine(const Work& work)
{
    if (work.isConfined &&
        !sandbox::confine({{QFileInfo(work.label).path()}, {work.folder}}).isComplete()) {
        qFatal("this system has no complete sandbox");
    }
}

/// The seconds of the steps after the application object.
QList<double> secondsOfSteps(const Work& work)
{
    QList<double> seconds;
    const auto take = [&seconds](const auto& step) { seconds.append(bench::secondsOf(step)); };
    take([&] { confine(work); });
    take([] { (void)QFontInfo(QApplication::font()).pixelSize(); });
    workbench::ImportResult label;
    take([&] { label = workbench::importLabel(work.label); });
    require(label.error);
    workbench::PageImage page;
    take([&] { page = workbench::renderPage(*label.canvas, Dpi); });
    require(page.error);
    take([&] { require(workbench::writePng(page.image, QDir(work.folder).filePath(u"a.png"_s))); });
    take([&] { label = {}; });
    return seconds;
}

// "0.001 0.002 ...", in the order of StepNames.
int printSteps(int& argc, char** argv)
{
    QList<double> seconds{bench::processSeconds()};
    std::unique_ptr<QApplication> application;
    seconds.append(
        bench::secondsOf([&] { application = std::make_unique<QApplication>(argc, argv); }));
    const QStringList arguments = QCoreApplication::arguments();
    seconds += secondsOfSteps({arguments[2], arguments[3], arguments[4] == u"confined"_s});
    seconds.last() += bench::secondsOf([&] { application.reset(); });
    for (const double step : seconds) {
        std::printf("%.6f ", step);
    }
    return 0;
}

using StepTimes = QList<QList<double>>;

void addRound(const QStringList& arguments, StepTimes& times)
{
    const QStringList words = bench::childOutput(arguments).split(u' ');
    double sum = 0.0;
    for (qsizetype step = 0; step < StepNames.size(); ++step) {
        const double seconds = words.value(step).toDouble();
        times[step].append(seconds);
        sum += seconds;
    }
    times[StepNames.size()].append(sum);
}

QString milliseconds(const QList<double>& seconds)
{
    return QString::number(bench::median(seconds) * 1000, 'f', 1);
}

int measure(const QString& label)
{
    const QTemporaryDir folder;
    StepTimes confined(StepNames.size() + 1);
    StepTimes open(StepNames.size() + 1);
    for (int round = 0; round < Rounds; ++round) {
        addRound({u"--steps"_s, label, folder.path(), u"confined"_s}, confined);
        addRound({u"--steps"_s, label, folder.path(), u"open"_s}, open);
    }
    QList<QStringList> rows{{u"step"_s, u"ms"_s, u"without sandbox ms"_s}};
    for (qsizetype step = 0; step <= StepNames.size(); ++step) {
        rows.append({StepNames.value(step, u"total"_s), milliseconds(confined.at(step)),
                     milliseconds(open.at(step))});
    }
    bench::printTable(rows);
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*=false"_s);
    if (argc == 5 && QByteArray(argv[1]) == "--steps") {
        return printSteps(argc, argv);
    }
    const QCoreApplication application(argc, argv);
    return measure(QCoreApplication::arguments().value(1));
}
