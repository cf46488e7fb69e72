// Counts the objects of a file with the census, which shares no code with the readers.

#include "fuzz/harness.h"
#include "fuzz/legacy_file.h"
#include "migration/census/counting.h"

namespace {

migration::Census counted(Format format, const QByteArray& file)
{
    switch (format) {
    case Format::OpenDocument:
        return migration::countOpenDocument(file);
    case Format::Orvanta:
        return migration::countOrvanta(file);
    case Format::SavedLabel:
        return migration::countSavedLabel(file);
    case Format::Tavrel:
        break;
    }
    return migration::countTavrel(file);
}

} // namespace

void fuzzOneInput(const QByteArray& input)
{
    const Format format = formatOf(input);
    const migration::Census whole = counted(format, input);
    // A master page may add objects beyond the limit.
    if (whole.objects.size() > 2 * migration::MaximumObjects) {
        qFatal("more objects were counted than may be");
    }
    const migration::Census part = counted(format, input.left(input.size() * 2 / 3));
    if (format == Format::Tavrel && part.objects.size() > whole.objects.size()) {
        qFatal("a part of a file holds more than the whole");
    }
    // Truncated XML or JSON is damaged.
    const bool hasEndMark = format == Format::Orvanta || format == Format::SavedLabel;
    if (hasEndMark && whole.unknown.isEmpty() && part.unknown.isEmpty() &&
        part.objects.size() != whole.objects.size()) {
        qFatal("a document that is cut off within its objects is taken for whole");
    }
}
