#include "repair/package.h"

#include "limits/zip/zip_directory.h"

#include <QBuffer>
#include <QSet>

#include <private/qzipwriter_p.h>

namespace repair {

namespace {

using namespace Qt::StringLiterals;

// What the reader accepts, in bytes, uncompressed.
constexpr qint64 StylesBytes = 16LL << 20;
constexpr qint64 ContentBytes = 48LL << 20;
constexpr qint64 PictureBytes = 32LL << 20;
constexpr qint64 AllPicturesBytes = 128LL << 20;
// Trees that can be changed take more memory than the reader's: documents that exceed this are
// imported as they are written.
constexpr qint64 StylesTreeBytes = 120LL << 20;
constexpr qint64 ContentTreeBytes = 400LL << 20;

const QString StylesMember = u"styles.xml"_s;
const QString ContentMember = u"content.xml"_s;

QSet<QString> picturesOf(Node& content)
{
    QSet<QString> names;
    forEachElement(content, [&names](Node& node) {
        if (node.is(u"draw:image")) {
            names.insert(node.attribute(u"xlink:href"));
        }
    });
    return names;
}

} // namespace

Package::Package(const QString& fileName)
    : m_directory(std::make_unique<ziplimits::ZipDirectory>())
{
    if (m_directory->open(fileName)) {
        m_directory.reset();
    }
}

Package::~Package() = default;

QByteArray Package::member(const QString& name, qint64 largest)
{
    return m_directory && m_directory->hasMember(name)
               ? m_directory->read(name, largest).value_or(QByteArray())
               : QByteArray();
}

std::optional<Document> Package::readDocument()
{
    auto styles = parseTree(member(StylesMember, StylesBytes), StylesTreeBytes);
    auto content = parseTree(member(ContentMember, ContentBytes), ContentTreeBytes);
    if (!styles || !content) {
        return std::nullopt;
    }
    return Document(std::move(styles), std::move(content),
                    [this](const QString& name) { return member(name, PictureBytes); });
}

QByteArray Package::written(const Document& document)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QZipWriter zip(&buffer);
    zip.setCompressionPolicy(QZipWriter::NeverCompress);
    zip.addFile(u"mimetype"_s, "application/vnd.oasis.opendocument.graphics");
    for (const QString& name : picturesOf(*document.content)) {
        const auto made = document.newMembers.constFind(name);
        const QByteArray bytes =
            made != document.newMembers.constEnd() ? *made : member(name, PictureBytes);
        if (!m_written.contains(name)) {
            m_written.insert(name);
            m_pictureBytes += bytes.size();
        }
        if (m_pictureBytes > AllPicturesBytes) {
            return {};
        }
        if (!bytes.isEmpty()) {
            zip.addFile(name, bytes);
        }
    }
    zip.addFile(StylesMember, writeTree(*document.styles));
    zip.addFile(ContentMember, writeTree(*document.content));
    zip.close();
    return zip.status() == QZipWriter::NoError ? buffer.data() : QByteArray();
}

} // namespace repair
