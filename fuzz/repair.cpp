// Repairs the two XML members of an OpenDocument file. Whatever the reader accepts, it must
// accept repaired.

#include "fuzz/harness.h"
#include "fuzz/package_bytes.h"
#include "repair/repaired_import.h"

namespace {

// Further ones take time, and run through the same code.
constexpr int MostPages = 6;

} // namespace

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
    const repair::RepairedImport import = repair::importRepaired(original.path());
    if (!import.isRepaired()) {
        qFatal("the reader accepts a document, but not the repaired one");
    }
    // What does not fit on a page is on the next ones.
    for (int page = 2;
         import.document != nullptr && page <= MostPages && page <= import.document->pageCount();
         ++page) {
        (void)repair::importFurtherPage(*import.document, page);
    }
}
