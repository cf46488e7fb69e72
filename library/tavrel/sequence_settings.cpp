#include "tavrel/sequence_settings.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/file_versions.h"

namespace tavrel {
namespace {

SequenceSettings readWithoutTrailingValue(QDataStream& stream)
{
    SequenceSettings settings;
    settings.sequenceStart = readInt32(stream);
    settings.sequenceEnd = readInt32(stream);
    settings.sequenceStep = readInt32(stream);
    settings.sequenceZeroPad = readInt32(stream);
    settings.sequencePrefix = readText(stream);
    settings.sequenceSuffix = readText(stream);
    settings.sequenceTrailingValue = settings.sequenceStart;
    return settings;
}

SequenceSettings readWithTrailingValue(QDataStream& stream)
{
    SequenceSettings settings = readWithoutTrailingValue(stream);
    settings.sequenceTrailingValue = readInt32(stream);
    return settings;
}

constexpr std::array Layouts{
    Layout{OldestVersion, &readWithoutTrailingValue},
    Layout{FirstWithSequenceTrailingValue, &readWithTrailingValue},
};

} // namespace

SequenceSettings readSequenceSettings(QDataStream& stream, quint32 version)
{
    return layoutFor(Layouts, version)(stream);
}

} // namespace tavrel
