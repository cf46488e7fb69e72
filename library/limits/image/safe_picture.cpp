#include "limits/image/safe_picture.h"

#include "limits/image/png_chunks.h"

namespace imagelimits {

namespace {

constexpr QByteArrayView JpegSignature("\xff\xd8\xff");
// Does not occur in pixel data, where another byte follows every 0xff.
constexpr QByteArrayView ScanMarker("\xff\xda");

bool hasTooManyScans(QByteArrayView jpeg)
{
    int scans = 0;
    for (qsizetype at = jpeg.indexOf(ScanMarker); at >= 0 && scans <= MaximumScans;
         at = jpeg.indexOf(ScanMarker, at + ScanMarker.size())) {
        ++scans;
    }
    return scans > MaximumScans;
}

bool hasTooManyPackedTexts(QByteArrayView container)
{
    int texts = 0;
    for (qsizetype at = container.indexOf(PngSignature); at >= 0 && texts <= MaximumPackedTexts;
         at = container.indexOf(PngSignature, at + PngSignature.size())) {
        texts += packedTextsIn(container.sliced(at));
    }
    return texts > MaximumPackedTexts;
}

} // namespace

QByteArray safePicture(const QByteArray& bytes)
{
    if (bytes.startsWith(PngSignature)) {
        return pixelsOnly(bytes);
    }
    const bool refused =
        bytes.startsWith(JpegSignature) ? hasTooManyScans(bytes) : hasTooManyPackedTexts(bytes);
    return refused ? QByteArray() : bytes;
}

} // namespace imagelimits
