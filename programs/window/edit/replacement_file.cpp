#include "window/edit/replacement_file.h"

#include "workbench/document/document_limits.h"
#include "workbench/symbols/symbol_data.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QMessageBox>

#include <optional>

namespace window {

namespace {

// Bytes of a drawing.
constexpr qint64 LargestDrawing = 32 * 1024 * 1024;

struct ReplacementFileTr
{
    Q_DECLARE_TR_FUNCTIONS(window::ReplacementFile)
};

void showError(QWidget* parent, const QString& path, const QString& reason)
{
    QMessageBox box(QMessageBox::Warning, ReplacementFileTr::tr("Replace Picture"), {},
                    QMessageBox::Ok, parent);
    // File names may contain markup.
    box.setTextFormat(Qt::PlainText);
    box.setText(
        ReplacementFileTr::tr("Cannot use \"%1\": %2").arg(QFileInfo(path).fileName(), reason));
    box.exec();
}

bool isTooLarge(const QSize& size)
{
    namespace limits = workbench::document::limits;
    return size.width() > limits::PictureSide || size.height() > limits::PictureSide ||
           qint64(size.width()) * size.height() > limits::PicturePixels;
}

QImage readPicture(QWidget* parent, const QString& path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    // Before decoding: a small file may be a huge picture.
    if (isTooLarge(reader.size())) {
        showError(parent, path, ReplacementFileTr::tr("The picture is too large."));
        return {};
    }
    const QImage image = reader.read();
    if (image.isNull()) {
        showError(parent, path, reader.errorString());
    } else if (isTooLarge(image.size())) {
        showError(parent, path, ReplacementFileTr::tr("The picture is too large."));
        return {};
    }
    return image;
}

} // namespace

QVariant askPicture(QWidget* parent)
{
    const QString path = QFileDialog::getOpenFileName(
        parent, ReplacementFileTr::tr("Replace Picture"), {},
        ReplacementFileTr::tr("Pictures (*.png *.jpg *.jpeg *.bmp *.gif *.webp);;All files (*)"));
    if (path.isEmpty()) {
        return {};
    }
    const QImage image = readPicture(parent, path);
    return image.isNull() ? QVariant() : QVariant(image);
}

QVariant askSymbol(QWidget* parent)
{
    const QString path =
        QFileDialog::getOpenFileName(parent, ReplacementFileTr::tr("Replace Symbol"), {},
                                     ReplacementFileTr::tr("Drawings (*.svg);;All files (*)"));
    if (path.isEmpty()) {
        return {};
    }
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        showError(parent, path, file.errorString());
        return {};
    }
    const QByteArray bytes = file.read(LargestDrawing + 1);
    const std::optional<QByteArray> data =
        bytes.size() <= LargestDrawing ? workbench::symbols::makeSymbolData(bytes) : std::nullopt;
    if (!data) {
        showError(parent, path,
                  ReplacementFileTr::tr("The file is not an SVG drawing, or it is too large."));
        return {};
    }
    return *data;
}

} // namespace window
