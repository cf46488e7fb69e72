// bench_make_label OBJECTS FILE    writes a label for measurements; FILE's suffix is its format

#include "bench/labels.h"

#include <QFile>
#include <QStringList>

#include <cstdio>

namespace {

QByteArray labelFor(const QString& path, int objects)
{
    if (path.endsWith(QLatin1String(".cnv"))) {
        return bench::canvasFile(objects);
    }
    if (path.endsWith(QLatin1String(".qmtx"))) {
        return bench::xmlLabel(objects);
    }
    if (path.endsWith(QLatin1String(".odt"))) {
        return bench::textDocument(objects);
    }
    return bench::drawing(objects, path.endsWith(QLatin1String("_texts.odg")) ? bench::Texts::Some
                                                                              : bench::Texts::None);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        std::fputs("Usage: bench_make_label OBJECTS FILE.cnv|.qmtx|.odg|_texts.odg|.odt\n", stderr);
        return 2;
    }
    const QString path = QString::fromLocal8Bit(argv[2]);
    const QByteArray label = labelFor(path, QByteArray(argv[1]).toInt());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(label) != label.size()) {
        std::perror(argv[2]);
        return 1;
    }
    return 0;
}
