#include "trace/trace_import.h"

#include "importer/legacy_template_importer.h"
#include "importer/reader_choice.h"
#include "recorder/recording_host.h"

#include <QFileInfo>

#include <cstdio>
#include <exception>

namespace {

QString readerName(ReaderKind kind)
{
    switch (kind) {
    case ReaderKind::Orvanta:
        return QStringLiteral("orvanta");
    case ReaderKind::OpenDocument:
        return QStringLiteral("opendocument");
    case ReaderKind::Tavrel:
        break;
    }
    return QStringLiteral("tavrel");
}

bool importWith(LegacyTemplateImporter& importer, ReaderKind kind, const QString& fileName)
{
    switch (kind) {
    case ReaderKind::Orvanta:
        return importer.importLabelFromOrvantaFile(fileName);
    case ReaderKind::OpenDocument:
        return importer.importLabelFromOpenOfficeFile(fileName);
    case ReaderKind::Tavrel:
        break;
    }
    return importer.importLabelFromTavrelFile(fileName);
}

/// Readers throw nothing, but memory may run out anywhere; the trace ends properly even so.
bool importGuarded(LegacyTemplateImporter& importer, ReaderKind kind, const QString& fileName)
{
    try {
        return importWith(importer, kind, fileName);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "labelport-trace: %s\n", error.what());
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

bool traceImport(const QString& fileName, QIODevice& out)
{
    recorder::RecordingHost host(out);
    LegacyTemplateImporter importer(host.canvasModel(), host.fileController(),
                                    host.datasourceController());
    recordSignals(importer, host.trace());

    const ReaderKind kind = readerForFile(fileName);
    host.trace().start(QFileInfo(fileName).fileName(), readerName(kind));
    const bool imported = importGuarded(importer, kind, fileName);
    host.hideMessageBoxes();
    host.writeItemStates();
    host.trace().end(imported);
    return imported;
}
