#pragma once

#include <QByteArray>
#include <QHash>
#include <QPixmap>
#include <QString>

#include <functional>

namespace opendocument {

/// The pictures of one package, each read and decoded once however many frames show it,
/// and no more of them than an import may take.
class PictureStore
{
public:
    /// Reads a member of the package of at most so many bytes; empty when it cannot.
    using ReadMember = std::function<QByteArray(const QString& name, qint64 largest)>;

    explicit PictureStore(ReadMember readMember);

    /// A picture's member as it is; empty when there is none to read.
    [[nodiscard]] QByteArray bytes(const QString& name);
    /// A raster picture; null when it is missing, damaged, too large or no raster picture.
    [[nodiscard]] QPixmap pixmap(const QString& name);

private:
    [[nodiscard]] QByteArray read(const QString& name);
    [[nodiscard]] QPixmap decode(const QString& name);

    ReadMember m_readMember;
    QHash<QString, QByteArray> m_bytes;
    QHash<QString, QPixmap> m_pixmaps;
    qint64 m_bytesLeft;
    qint64 m_pixelsLeft;
};

} // namespace opendocument
