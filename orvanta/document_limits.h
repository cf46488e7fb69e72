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
/// Most marks that make nodes: tags and attributes. A node of the document tree takes some
/// 300 bytes, but its text in the file as few as four.
inline constexpr qint64 MaximumMarkup = 8'000'000;
/// Most references in a document that declares entities: each may stand for 4,096 characters.
inline constexpr qint64 MaximumEntityReferences = 20'000;
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

/// Why a document's bytes are beyond the limits of a document tree; empty when they are not.
[[nodiscard]] QString exceededLimit(const QByteArray& bytes);

/// Why the children of a `controls` element are too many; empty when they are not.
[[nodiscard]] QString exceededLimit(const QDomElement& controls);

} // namespace orvanta
