// The two XML members of an OpenDocument package, without the zip around them: the input is
// the styles member, a zero byte, and the content member.

#include "fuzz/harness.h"
#include "fuzz/package_bytes.h"
#include "opendocument/open_office_reader.h"
#include "tests/support/silent_host/silent_host.h"

void fuzzOneInput(const QByteArray& input)
{
    const qsizetype border = input.indexOf('\0');
    if (border < 0) {
        return;
    }
    const MemoryFile file(packageBytes(input.left(border), input.mid(border + 1)));
    silent::Canvas canvas;
    silent::Datasources datasources;
    OpenOfficeReader reader(&canvas, &datasources);
    (void)reader.importLabelFromFile(file.path());
}
