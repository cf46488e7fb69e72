// Imports a complete OpenDocument package twice with one reader.

#include "fuzz/harness.h"
#include "opendocument/open_office_reader.h"
#include "recorder/recording_host.h"

void fuzzOneInput(const QByteArray& input)
{
    const MemoryFile file(input);
    recorder::RecordingHost host;
    OpenOfficeReader reader(host.canvasModel(), host.datasourceController());
    const bool first = reader.importLabelFromFile(file.path());
    const int items = host.importedCount();
    const bool second = reader.importLabelFromFile(file.path());
    if (first != second || host.importedCount() != 2 * items) {
        qFatal("the second import differs from the first");
    }
}
