// The workbench: importing, saving, opening, drawing; growth of time and memory with the size of
// the label.
//
// bench_workbench [LARGEST SIZE]       measures and prints the table
// bench_workbench --steps FILE         runs each step once and prints seconds and bytes
// bench_workbench --imports N FILE     imports N times after a warm-up, and prints for each the
//                                      processor time and the elapsed time in seconds

#include "bench/labels.h"
#include "bench/measuring.h"
#include "bench/table.h"

#include "workbench/document/label_file.h"
#include "workbench/import/label_import.h"
#include "workbench/rendering/page_image.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>

using namespace Qt::StringLiterals;

namespace {

constexpr double Dpi = 72.0;

struct Format
{
    QString name;
    QString ending;
    std::function<QByteArray(int)> label;
    int rounds;
};

const QList<Format>& formats()
{
    static const QList<Format> all = {
        {u"binary"_s, u".cnv"_s, &bench::canvasFile, 3},
        {u"XML"_s, u".qmtx"_s, &bench::xmlLabel, 3},
        {u"OpenDocument"_s, u"_texts.odg"_s,
         [](int shapes) { return bench::drawing(shapes, bench::Texts::Some); }, 3},
        {u"text document"_s, u".odt"_s, &bench::textDocument, 3},
    };
    return all;
}

struct Steps
{
    double import = 0.0;
    double save = 0.0;
    double open = 0.0;
    double draw = 0.0;
    qint64 importedBytes = 0;
    qint64 importPeak = 0; // of the process, Qt and the program included
};

void require(const QString& error)
{
    if (!error.isEmpty()) {
        qFatal("%s", qPrintable(error));
    }
}

Steps stepsOf(const QString& path)
{
    Steps steps;
    workbench::ImportResult label;
    const qint64 before = bench::currentBytes();
    steps.import = bench::secondsOf([&] { label = workbench::importLabel(path); });
    require(label.error);
    steps.importedBytes = bench::currentBytes() - before;
    steps.importPeak = bench::peakBytes();
    const QString saved = path + u".label"_s;
    steps.save = bench::secondsOf(
        [&] { require(workbench::document::saveLabel(saved, *label.canvas, *label.datasources)); });
    steps.draw =
        bench::secondsOf([&] { require(workbench::renderPage(*label.canvas, Dpi).error); });
    workbench::Canvas canvas;
    workbench::datasources::DatasourceController sources;
    steps.open =
        bench::secondsOf([&] { require(workbench::document::openLabel(saved, canvas, sources)); });
    return steps;
}

QString write(const QTemporaryDir& folder, const Format& format, int size)
{
    const QString path = folder.filePath(QString::number(size) + format.ending);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(format.label(size)) < 0) {
        qFatal("%s cannot be written", qPrintable(path));
    }
    return path;
}

struct Medians
{
    QList<double> import;
    QList<double> save;
    QList<double> open;
    QList<double> draw;
    QList<double> bytes;
    QList<double> importPeak;
    QList<double> peak;
};

// Each round runs in a new process, so that the memory of one does not affect the next.
Medians measured(const Format& format, const QString& path)
{
    Medians all;
    for (int round = 0; round < format.rounds; ++round) {
        const QStringList words = bench::childOutput({u"--steps"_s, path}).split(u' ');
        all.import.append(words.value(0).toDouble());
        all.save.append(words.value(1).toDouble());
        all.open.append(words.value(2).toDouble());
        all.draw.append(words.value(3).toDouble());
        all.bytes.append(words.value(4).toDouble());
        all.importPeak.append(words.value(5).toDouble());
        all.peak.append(words.value(6).toDouble());
    }
    return all;
}

QString milliseconds(const QList<double>& seconds)
{
    return QString::number(bench::median(seconds) * 1000, 'f', 0);
}

QString growth(const QList<double>& before, const QList<double>& now)
{
    return before.isEmpty() ? QString()
                            : QString::number(bench::median(now) / bench::median(before), 'f', 1);
}

int measure(const QList<int>& sizes)
{
    const QTemporaryDir folder;
    QList<QStringList> rows = {{u"label"_s, u"items"_s, u"import ms"_s, u"growth"_s, u"save ms"_s,
                                u"growth"_s, u"open ms"_s, u"growth"_s, u"draw ms"_s, u"growth"_s,
                                u"bytes/item"_s, u"imported MB"_s, u"peak MB"_s}};
    for (const Format& format : formats()) {
        Medians before;
        for (const int size : sizes) {
            const Medians now = measured(format, write(folder, format, size));
            rows.append({format.name, QString::number(size), milliseconds(now.import),
                         growth(before.import, now.import), milliseconds(now.save),
                         growth(before.save, now.save), milliseconds(now.open),
                         growth(before.open, now.open), milliseconds(now.draw),
                         growth(before.draw, now.draw),
                         QString::number(bench::median(now.bytes) / size, 'f', 0),
                         QString::number(bench::median(now.importPeak) / (1 << 20), 'f', 0),
                         QString::number(bench::median(now.peak) / (1 << 20), 'f', 0)});
            before = now;
        }
    }
    bench::printTable(rows);
    return 0;
}

int printImports(int times, const QString& path)
{
    require(workbench::importLabel(path).error);
    double seconds = 0.0;
    qint64 nanoseconds = 0;
    for (int i = 0; i < times; ++i) {
        workbench::ImportResult label;
        QElapsedTimer clock;
        clock.start();
        seconds += bench::secondsOf([&] { label = workbench::importLabel(path); });
        nanoseconds += clock.nsecsElapsed();
    }
    std::printf("%.9f %.9f\n", seconds / times, static_cast<double>(nanoseconds) * 1e-9 / times);
    return 0;
}

int printSteps(const QString& path)
{
    const Steps steps = stepsOf(path);
    std::printf("%.6f %.6f %.6f %.6f %lld %lld %lld\n", steps.import, steps.save, steps.open,
                steps.draw, static_cast<long long>(steps.importedBytes),
                static_cast<long long>(steps.importPeak),
                static_cast<long long>(bench::peakBytes()));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*=false"_s);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--steps"_s && arguments.size() == 3) {
        return printSteps(arguments[2]);
    }
    if (arguments.value(1) == u"--imports"_s && arguments.size() == 4) {
        return printImports(arguments[2].toInt(), arguments[3]);
    }
    QList<int> sizes = {1000, 10'000, 100'000};
    const int largest = arguments.value(1, u"100000"_s).toInt();
    sizes.removeIf([largest](int size) { return size > largest; });
    return measure(sizes);
}
