// Repairs the two XML members of an OpenDocument file. Whatever the reader accepts, it must
// accept repaired.

#include "fuzz/harness.h"
#include "fuzz/package_bytes.h"
#include "repair/repaired_import.h"

void fuzzOneInput(const QByteArray& input)
{
    const qsizetype border = input.indexOf('\0');
    if (border < 0) {
        return;
    }
    const MemoryFile original(packageBytes(input.left(border), input.mid(border + 1)));
    const auto repaired = repair::repairPage(original.path());
    if (!repaired ||
        !workbench::importLabel(original.path(), ReaderKind::OpenDocument).isImported()) {
        return;
    }
    if (!repair::importRepaired(original.path()).isRepaired()) {
        qFatal("the reader accepts a document, but not the repaired one");
    }
}
