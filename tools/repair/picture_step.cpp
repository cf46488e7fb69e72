#include "repair/document.h"
#include "repair/shape_steps.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// What the reader accepts.
constexpr qint64 PicturePixels = 32'000'000;

// First bytes of the pictures that the reader supports.
constexpr QByteArrayView PictureStarts[] = {"\x89PNG", "\xff\xd8\xff", "GIF8", "BM"};

bool isPicture(const QByteArray& bytes)
{
    return std::any_of(std::begin(PictureStarts), std::end(PictureStarts),
                       [&bytes](QByteArrayView start) { return bytes.startsWith(start); });
}

bool isDrawing(const QByteArray& bytes)
{
    return bytes.left(1024).contains("<svg");
}

QString plainName(QString name)
{
    return name.startsWith("./"_L1) ? name.sliced(2) : name;
}

/// How well a picture can be read: 0 not at all.
int rankOf(const Document& document, const QString& name)
{
    if (document.newMembers.contains(name)) {
        return 3;
    }
    const QByteArray bytes = document.readMember(name);
    if (isDrawing(bytes)) {
        return QFileInfo(name).completeSuffix().toLower() == "svg"_L1 ? 3 : 0;
    }
    return isPicture(bytes) ? 2 : 0;
}

// Whether the frame had to be changed.
bool chooseIn(Document& document, Node& frame)
{
    int images = 0;
    int best = 0;
    QString chosen;
    for (const auto& child : frame.children) {
        if (child->is(u"draw:image")) {
            ++images;
            const QString name = plainName(child->attribute(u"xlink:href"));
            const int rank = rankOf(document, name);
            if (rank > best) {
                best = rank;
                chosen = name;
            }
        }
    }
    const Node* const first = frame.firstElement();
    const bool isAsRead = images == 1 && first != nullptr && first->is(u"draw:image") &&
                          first->attribute(u"xlink:href") == chosen;
    if (best == 0 || isAsRead || frame.child(u"draw:text-box") != nullptr) {
        return false;
    }
    frame.children.clear();
    frame.append(Node::element(u"draw:image"_s)).setAttribute(u"xlink:href"_s, chosen);
    return true;
}

QByteArray mirrored(const QImage& image, bool isHorizontal, bool isVertical)
{
    QByteArray result;
    QBuffer output(&result);
    return !image.isNull() && image.mirrored(isHorizontal, isVertical).save(&output, "PNG")
               ? result
               : QByteArray();
}

bool mirrorIn(Document& document, Node& frame)
{
    Node* const image = frame.child(u"draw:image");
    const QString mirror = graphicOf(document, frame).value(u"style:mirror"_s);
    const bool isHorizontal = mirror.contains("horizontal"_L1);
    const bool isVertical = mirror.contains("vertical"_L1);
    if (image == nullptr || !(isHorizontal || isVertical)) {
        return false;
    }
    const QByteArray bytes =
        mirrored(readPicture(document, image->attribute(u"xlink:href")), isHorizontal, isVertical);
    if (bytes.isEmpty()) {
        return false;
    }
    const QString made = u"Pictures/labelport-mirrored-%1.png"_s.arg(document.newMembers.size());
    document.newMembers.insert(made, bytes);
    image->setAttribute(u"xlink:href"_s, made);
    return true;
}

} // namespace

QImage readPicture(const Document& document, const QString& reference)
{
    QByteArray bytes = document.readMember(plainName(reference));
    QBuffer input(&bytes);
    QImageReader reader(&input);
    const QSize size = reader.size();
    return size.isValid() && qint64(size.width()) * size.height() <= PicturePixels ? reader.read()
                                                                                   : QImage();
}

bool hasReadablePicture(const Document& document, const Node& frame)
{
    return std::any_of(frame.children.begin(), frame.children.end(), [&](const auto& child) {
        return child->is(u"draw:image") &&
               rankOf(document, plainName(child->attribute(u"xlink:href"))) > 0;
    });
}

int choosePictures(Document& document)
{
    Node* const page = document.page();
    int count = 0;
    if (page != nullptr) {
        for (const auto& shape : page->children) {
            count += shape->is(u"draw:frame") && chooseIn(document, *shape) ? 1 : 0;
        }
    }
    return count;
}

int mirrorPictures(Document& document)
{
    Node* const page = document.page();
    int count = 0;
    if (page != nullptr) {
        for (const auto& shape : page->children) {
            count += shape->is(u"draw:frame") && mirrorIn(document, *shape) ? 1 : 0;
        }
    }
    return count;
}

} // namespace repair
