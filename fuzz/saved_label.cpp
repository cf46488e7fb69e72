// Opens a saved label, saves it, and opens the result.

#include "fuzz/harness.h"
#include "workbench/document/label_file.h"
#include "workbench/document/label_json.h"

using namespace workbench;

void fuzzOneInput(const QByteArray& input)
{
    const MemoryFile file(input);
    Canvas canvas;
    datasources::DatasourceController sources;
    if (!document::openLabel(file.path(), canvas, sources).isEmpty()) {
        return;
    }
    const QByteArray saved = document::toJson(document::snapshot(canvas, sources));
    const document::ReadLabel again = document::fromJson(saved);
    if (!again.error.isEmpty()) {
        qFatal("a label that could be opened is saved so that it cannot: %s",
               qPrintable(again.error));
    }
    if (document::toJson(again.label) != saved) {
        qFatal("a label is saved differently the second time");
    }
}
