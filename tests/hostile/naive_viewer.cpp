// A viewer that shows a drawing or a text as Qt does by itself, without any care. The test that
// nothing outside a label is opened proves with it that its hostile files are hostile and
// that it would see a file being opened.

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QTextDocument>

#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

bool paintDrawing(const QByteArray& bytes, QPainter& painter)
{
    QSvgRenderer renderer(bytes);
    renderer.render(&painter, QRectF(0, 0, 100, 100));
    return renderer.isValid();
}

bool paintText(const QByteArray& bytes, QPainter& painter)
{
    QTextDocument document;
    document.setHtml(QString::fromUtf8(bytes));
    document.drawContents(&painter);
    return !document.isEmpty();
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QFile file(QFile::decodeName(argc > 1 ? argv[1] : ""));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "naive_viewer: nothing to show\n");
        return 2;
    }
    const QByteArray bytes = file.readAll();
    QImage image(100, 100, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&image);
    const bool isDrawing = file.fileName().endsWith(u".svg"_s);
    return (isDrawing ? paintDrawing(bytes, painter) : paintText(bytes, painter)) ? 0 : 1;
}
