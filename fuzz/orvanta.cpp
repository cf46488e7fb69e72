// Imports a complete XML label twice with one reader.

#include "fuzz/harness.h"
#include "orvanta/legacy_orvanta.h"
#include "recorder/recording_host.h"

void fuzzOneInput(const QByteArray& input)
{
    const MemoryFile file(input);
    recorder::RecordingHost host;
    LegacyOrvanta reader(host.canvasModel(), host.datasourceController());
    const bool first = reader.importLabelFromFile(file.path());
    const int items = host.importedCount();
    const bool second = reader.importLabelFromFile(file.path());
    if (first != second || host.importedCount() != 2 * items) {
        qFatal("the second import differs from the first");
    }
}
