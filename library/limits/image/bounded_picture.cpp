#include "limits/image/bounded_picture.h"

#include "limits/image/png_chunks.h"

namespace imagebounds {

namespace {

constexpr QByteArrayView JpegSignature("\xff\xd8\xff");
// Stands nowhere in the pixels' own data, where every 0xff is followed by something else.
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

QByteArray boundedPicture(const QByteArray& bytes)
{
    if (bytes.startsWith(PngSignature)) {
        return pixelsOnly(bytes);
    }
    const bool refused =
        bytes.startsWith(JpegSignature) ? hasTooManyScans(bytes) : hasTooManyPackedTexts(bytes);
    return refused ? QByteArray() : bytes;
}

} // namespace imagebounds
