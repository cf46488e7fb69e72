#pragma once

#include <QByteArray>
#include <QHash>
#include <QPixmap>
#include <QString>

#include <functional>

namespace opendocument {

/// The pictures of one package, each read and decoded once however many frames show it,
/// within the limits of one import.
class PictureStore
{
public:
    /// Reads a member of the package, up to a maximum size in bytes; empty on failure.
    using ReadMember = std::function<QByteArray(const QString& name, qint64 largest)>;

    explicit PictureStore(ReadMember readMember);

    /// The data of a picture's member; empty if it cannot be read.
    [[nodiscard]] QByteArray bytes(const QString& name);
    /// A raster picture; null if it is missing, damaged, too large or not a raster picture.
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
