#include "trace/trace_import.h"

#include "console/output.h"
#include "importer/legacy_template_importer.h"
#include "recorder/recording_host.h"

#include <exception>

namespace {
using namespace Qt::StringLiterals;

/// Readers throw nothing, but memory may run out; the trace ends properly even then.
bool importGuarded(LegacyTemplateImporter& importer, ReaderKind kind, const QString& fileName)
{
    try {
        return (importer.*readerOf(kind).importFile)(fileName);
    } catch (const std::exception& error) {
        console::printMessage(QString::fromLocal8Bit(error.what()));
        return false;
    }
}

void recordSignals(const LegacyTemplateImporter& importer, recorder::TraceWriter& trace)
{
    QObject::connect(&importer, &LegacyTemplateImporter::popupShowSignal, &importer,
                     [&trace] { trace.signal("popupShowSignal"); });
    QObject::connect(&importer, &LegacyTemplateImporter::popupHideSignal, &importer,
                     [&trace] { trace.signal("popupHideSignal"); });
}

} // namespace

bool traceImport(const QString& path, const QString& name, ReaderKind reader, QIODevice& out)
{
    recorder::RecordingHost host(out);
    LegacyTemplateImporter importer(host.canvasModel(), host.fileController(),
                                    host.datasourceController());
    recordSignals(importer, host.trace());

    host.trace().start(name, readerOf(reader).name);
    const bool imported = importGuarded(importer, reader, path);
    host.hideMessageBoxes();
    host.writeItemStates();
    host.trace().end(imported);
    return imported;
}
