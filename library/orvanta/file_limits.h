#pragma once

#include "orvanta/elements.h"

#include <QByteArray>
#include <QString>

class QFile;

/// Limits on the size of an XML label. All are far above any real label.
namespace orvanta {

/// Bytes of a file. A label of 100,000 objects has about 70 MB, a scanned page in
/// base64 about 20 MB.
inline constexpr qint64 MaximumFileSize = qint64(128) * 1024 * 1024;
/// Bytes of memory of a document's tree, by the parser's estimate for the worst case. A label
/// of 100,000 objects with all their properties has 900 million.
inline constexpr qint64 MaximumTreeBytes = qint64(1344) * 1024 * 1024;
/// Objects of a label. Each becomes an item of several kilobytes in the host.
inline constexpr int MaximumControls = 250'000;

/// A complete file, or the reason why it was not read.
struct FileContent
{
    QByteArray bytes;
    QString refusal; ///< empty if the file is within the limits
};

/// Reads an open file to its end, at most up to the limit.
[[nodiscard]] FileContent readWithinLimits(QFile& file);

/// The reason for refusing a `controls` element with too many children; empty without one.
[[nodiscard]] QString exceededLimit(const Element& controls);

} // namespace orvanta
