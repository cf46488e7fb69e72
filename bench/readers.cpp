// Each reader with a host that records nothing, compared with its floor on the same file.
//
// bench_readers [LARGEST SIZE]             measures and prints the table
// bench_readers --peak import|floor FILE   prints the increase of the peak memory in bytes

#include "bench/floors.h"
#include "bench/labels.h"
#include "bench/measuring.h"
#include "bench/table.h"

#include "opendocument/open_office_reader.h"
#include "orvanta/legacy_orvanta.h"
#include "recorder/recording_host.h"
#include "tavrel/legacy_tavrel.h"

#include "host/class_factory.h"
#include "host/items/item.h"

#include <QApplication>
#include <QFile>
#include <QGraphicsTextItem>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <cstdio>
#include <functional>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr int Repetitions = 5;
// Objects per repetition, enough for a measurable time.
constexpr int ItemsPerRepetition = 10'000;

template <class Reader>
void importWith(const QString& path, recorder::RecordingHost& host)
{
    Reader reader(host.canvasModel(), host.datasourceController());
    if (!reader.importLabelFromFile(path)) {
        qFatal("%s cannot be imported", qPrintable(path));
    }
}

// A program uses one reader for all its files; here each measured import creates one.
template <class Reader>
void makeReader()
{
    static recorder::RecordingHost host;
    const Reader reader(host.canvasModel(), host.datasourceController());
}

// A text of a drawing as the reader writes it. Most of the time for such a text is in
// QGraphicsTextItem::setHtml().
constexpr char16_t TextHtml[] =
    u"<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0//EN\" "
    "\"http://www.w3.org/TR/REC-html40/strict.dtd\">\n"
    "<html><head><meta name=\"qrichtext\" content=\"1\" /><meta charset=\"utf-8\" />"
    "<style type=\"text/css\">\np, li { white-space: pre-wrap; }\n"
    "hr { height: 1px; border-width: 0; }\nli.unchecked::marker { content: \"\\2610\"; }\n"
    "li.checked::marker { content: \"\\2612\"; }\n</style></head><body "
    "style=\" font-family:'_Nare Vol'; font-size:9.00pt; font-weight:400; font-style:normal; "
    "text-decoration:none;\"><p align=\"center\" style=\" margin-top:0pt; margin-bottom:0pt; "
    "margin-left:0pt; margin-right:0pt;\"><span>Shelf </span><span style=\" font-size:6.75pt; "
    "font-weight:700;\">4711</span></p></body></html>";

enum class RichTexts { AreHtml, ArePlain };

// The host's share of an import: creates the same items without reading.
void makeItems(const QList<KestTypes::ShapeType>& types, RichTexts texts,
               recorder::RecordingHost& host)
{
    for (const KestTypes::ShapeType type : types) {
        Item* item = host.canvasModel()->getClassFactory()->create(type);
        if (type == KestTypes::RichText && texts == RichTexts::AreHtml) {
            dynamic_cast<QGraphicsTextItem&>(*item).setHtml(QString::fromUtf16(TextHtml));
        }
        host.canvasModel()->importItem(item);
    }
}

struct Format
{
    QString name;
    QString ending;
    std::function<QByteArray(int)> label;
    void (*importFile)(const QString&, recorder::RecordingHost&);
    void (*makeReader)();
    void (*floor)(const QString&);
    RichTexts texts = RichTexts::ArePlain;
};

const QList<Format>& formats()
{
    static const QList<Format> all = {
        {u"binary"_s, u".cnv"_s, &bench::canvasFile, &importWith<LegacyTavrel>,
         &makeReader<LegacyTavrel>, &bench::walkCanvasFile},
        {u"XML"_s, u".qmtx"_s, &bench::xmlLabel, &importWith<LegacyOrvanta>,
         &makeReader<LegacyOrvanta>, &bench::parseXmlLabel},
        {u"OpenDocument"_s, u".odg"_s,
         [](int shapes) { return bench::drawing(shapes, bench::Texts::None); },
         &importWith<OpenOfficeReader>, &makeReader<OpenOfficeReader>, &bench::parseDrawing},
        {u"OpenDocument with texts"_s, u"_texts.odg"_s,
         [](int shapes) { return bench::drawing(shapes, bench::Texts::Some); },
         &importWith<OpenOfficeReader>, &makeReader<OpenOfficeReader>, &bench::parseDrawing,
         RichTexts::AreHtml},
    };
    return all;
}

QString benchmarkName(const Format& format, int size)
{
    return format.name + u'/' + QString::number(size);
}

// Alternately, so that a temporary slowdown of the machine affects all of them.
void measureTogether(benchmark::State& state, const Format& format, const QString& path)
{
    recorder::RecordingHost remembering;
    format.importFile(path, remembering);
    QList<KestTypes::ShapeType> types;
    for (const recorder::ItemState& state : remembering.itemStates()) {
        types.append(state.type);
    }
    remembering.reset();
    double floor = 0.0;
    double imported = 0.0;
    double host = 0.0;
    double reader = 0.0;
    for (auto iteration : state) {
        (void)iteration;
        reader += bench::secondsOf(format.makeReader);
        floor += bench::secondsOf([&] { format.floor(path); });
        // Deleting the items is not measured: it happens when the label is closed.
        recorder::RecordingHost quietHost;
        imported += bench::secondsOf([&] { format.importFile(path, quietHost); });
        quietHost.reset();
        host += bench::secondsOf([&] { makeItems(types, format.texts, quietHost); });
    }
    const auto times = static_cast<double>(state.iterations());
    state.counters["floor"] = floor / times;
    state.counters["import"] = imported / times;
    state.counters["host"] = host / times;
    state.counters["reader"] = reader / times;
    state.counters["ratio"] = imported / floor;
    state.counters["own ratio"] = (imported - host) / floor;
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

QString milliseconds(double seconds)
{
    return QString::number(seconds * 1000, 'f', seconds < 0.1 ? 2 : 0);
}

QString megabytes(const QString& bytes)
{
    return QString::number(bytes.toDouble() / (1 << 20), 'f', 1);
}

QStringList row(const Format& format, int size, const QString& path, const bench::Samples& samples)
{
    const QString name = benchmarkName(format, size);
    const QList<double> ratios = samples.of(name, u"ratio"_s);
    const QList<double> own = samples.of(name, u"own ratio"_s);
    return {format.name,
            QString::number(size),
            milliseconds(bench::median(samples.of(name, u"import"_s))),
            milliseconds(bench::median(samples.of(name, u"floor"_s))),
            milliseconds(bench::median(samples.of(name, u"host"_s))),
            milliseconds(bench::median(samples.of(name, u"reader"_s))),
            QString::number(bench::median(ratios), 'f', 2),
            bench::spread(ratios, 2),
            QString::number(bench::median(own), 'f', 2),
            bench::spread(own, 2),
            megabytes(bench::childOutput({u"--peak"_s, u"import"_s, path})),
            megabytes(bench::childOutput({u"--peak"_s, u"floor"_s, path}))};
}

// Growth of the time from one size to the next, which is ten times as large.
QString growth(const Format& format, int size, const bench::Samples& samples)
{
    const double before = bench::median(samples.of(benchmarkName(format, size / 10), u"import"_s));
    const double now = bench::median(samples.of(benchmarkName(format, size), u"import"_s));
    return before > 0.0 && size > 1000 ? QString::number(now / before, 'f', 1) : QString();
}

int measure(const QList<int>& sizes)
{
    const QTemporaryDir folder;
    QHash<QString, QString> paths;
    for (const Format& format : formats()) {
        for (const int size : sizes) {
            const QString name = benchmarkName(format, size);
            const QString path = write(folder, format, size);
            paths.insert(name, path);
            benchmark::RegisterBenchmark(
                name.toStdString().c_str(),
                [&format, path](benchmark::State& state) { measureTogether(state, format, path); })
                ->Iterations(std::max(1, ItemsPerRepetition / size))
                ->Repetitions(Repetitions);
        }
    }
    bench::Samples samples;
    benchmark::RunSpecifiedBenchmarks(&samples);
    QList<QStringList> rows = {{u"reader"_s, u"items"_s, u"import ms"_s, u"floor ms"_s,
                                u"items ms"_s, u"reader ms"_s, u"ratio"_s, u"spread"_s,
                                u"less items"_s, u"spread"_s, u"import MB"_s, u"floor MB"_s,
                                u"growth"_s}};
    for (const Format& format : formats()) {
        for (const int size : sizes) {
            rows.append(row(format, size, paths.value(benchmarkName(format, size)), samples));
            rows.last().append(growth(format, size, samples));
        }
    }
    bench::printTable(rows);
    return 0;
}

int printPeak(const QString& what, const QString& path)
{
    const Format* format = nullptr;
    for (const Format& known : formats()) {
        format = path.endsWith(known.ending) ? &known : format;
    }
    recorder::RecordingHost host;
    const qint64 bytes = bench::peakOf([&] {
        if (what == u"import"_s) {
            format->importFile(path, host);
        } else {
            format->floor(path);
        }
    });
    std::printf("%lld\n", static_cast<long long>(bytes));
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QLoggingCategory::setFilterRules(u"*=false"_s);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"--peak"_s && arguments.size() == 4) {
        return printPeak(arguments[2], arguments[3]);
    }
    QList<int> sizes = {100, 10'000, 100'000};
    const int largest = arguments.value(1, u"100000"_s).toInt();
    sizes.removeIf([largest](int size) { return size > largest; });
    return measure(sizes);
}
