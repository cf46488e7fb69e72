// Pictures: how long encodePng() takes, and Qt's own writer for comparison in the same run.

#include "workbench/pictures/png_encoder.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

#include <benchmark/benchmark.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Width = 1200;
constexpr int Height = 1800;

// A label of 4 by 6 inches at 300 dots per inch: bars, text and a frame.
QImage flatLabel()
{
    QImage image(Width, Height, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setFont(QFont(u"Liberation Sans"_s, 30));
    painter.drawRect(20, 20, Width - 40, Height - 40);
    for (int line = 0; line < 20; ++line) {
        painter.drawText(60, 120 + 50 * line, u"Net weight 12.5 kg, line %1"_s.arg(line));
    }
    for (int bar = 0; bar < 120; ++bar) {
        painter.fillRect(60 + 8 * bar, 1200, bar % 3 + 2, 400, Qt::black);
    }
    return image;
}

// Many colors with little noise, as in a photograph.
QImage photograph()
{
    QImage image(Width, Height, QImage::Format_RGB32);
    quint32 noise = 1;
    for (int y = 0; y < Height; ++y) {
        for (int x = 0; x < Width; ++x) {
            noise = noise * 1664525U + 1013904223U;
            const int grain = static_cast<int>(noise >> 29);
            image.setPixel(x, y,
                           qRgb(x * 240 / Width + grain, y * 240 / Height + grain, 90 + grain));
        }
    }
    return image;
}

using Write = bool (*)(const QImage&, QIODevice&);

bool writeWithQt(const QImage& image, QIODevice& device)
{
    return image.save(&device, "png");
}

void measureWriter(benchmark::State& state, const QImage& image, Write writer)
{
    qint64 bytes = 0;
    for ([[maybe_unused]] auto step : state) {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        if (!writer(image, buffer)) {
            state.SkipWithError("not written");
        }
        bytes = buffer.size();
    }
    state.counters["bytes"] = static_cast<double>(bytes);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    const QImage label = flatLabel();
    const QImage photo = photograph();
    benchmark::RegisterBenchmark("label/encodePng", measureWriter, label, &workbench::encodePng);
    benchmark::RegisterBenchmark("label/Qt", measureWriter, label, &writeWithQt);
    benchmark::RegisterBenchmark("photograph/encodePng", measureWriter, photo,
                                 &workbench::encodePng);
    benchmark::RegisterBenchmark("photograph/Qt", measureWriter, photo, &writeWithQt);
    benchmark::RunSpecifiedBenchmarks();
}
