// Binary canvas files as whole files, twice through one reader.

#include "fuzz/harness.h"
#include "tavrel/legacy_tavrel.h"
#include "tests/support/silent_host/silent_host.h"

void fuzzOneInput(const QByteArray& input)
{
    const MemoryFile file(input);
    silent::Canvas canvas;
    silent::Datasources datasources;
    LegacyTavrel reader(&canvas, &datasources);
    const bool first = reader.importLabelFromFile(file.path());
    const std::size_t items = canvas.itemCount();
    const bool second = reader.importLabelFromFile(file.path());
    if (first != second || canvas.itemCount() != 2 * items) {
        qFatal("the second import differs from the first");
    }
}
