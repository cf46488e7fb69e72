#include "tavrel/canvas_header.h"

#include "tavrel/bounded_stream.h"
#include "tavrel/file_versions.h"

namespace tavrel {

bool CanvasHeader::isSupported() const
{
    return version >= OldestVersion;
}

CanvasHeader readCanvasHeader(QDataStream& stream)
{
    readInt32(stream); // Says nothing that reading needs; old labels hold any value here.
    CanvasHeader header;
    header.version = readUInt32(stream);
    return header;
}

} // namespace tavrel
