#pragma once

#include <QByteArray>
#include <QString>

class QDomElement;
class QFile;

/// How large a label of the XML format may be. All limits lie far beyond any real label.
namespace orvanta {

/// Most bytes of a file. A label of 100,000 objects has about 70 MB, a scanned page in
/// base64 about 20 MB.
inline constexpr qint64 MaximumFileSize = qint64(128) * 1024 * 1024;
/// Most memory, in bytes, that a document's tree may take by the parser's estimate. A label
/// of 100,000 objects with all their properties needs 1,400 million.
inline constexpr qint64 MaximumTreeBytes = qint64(1536) * 1024 * 1024;
/// Most objects of a label. Each becomes an item of several kilobytes in the host.
inline constexpr int MaximumControls = 250'000;

/// A whole file, or why it was not read.
struct FileContent
{
    QByteArray bytes;
    QString refusal; ///< empty when the bytes are within the limits
};

/// Reads an open file to its end, but never more than the limits allow.
[[nodiscard]] FileContent readWithinLimits(QFile& file);

/// Why the children of a `controls` element are too many; empty when they are not.
[[nodiscard]] QString exceededLimit(const QDomElement& controls);

} // namespace orvanta
