// The two XML members of an OpenDocument package without the zip container. Input: the styles
// member, a zero byte, the content member.

#include "fuzz/harness.h"
#include "fuzz/package_bytes.h"
#include "opendocument/open_office_reader.h"
#include "recorder/recording_host.h"

void fuzzOneInput(const QByteArray& input)
{
    const qsizetype border = input.indexOf('\0');
    if (border < 0) {
        return;
    }
    const MemoryFile file(packageBytes(input.left(border), input.mid(border + 1)));
    recorder::RecordingHost host;
    OpenOfficeReader reader(host.canvasModel(), host.datasourceController());
    (void)reader.importLabelFromFile(file.path());
}
