#include "repair/document.h"
#include "repair/shape_steps.h"

#include <QFileInfo>

#include <algorithm>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// How the pictures begin that the reader understands.
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

} // namespace

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

} // namespace repair
