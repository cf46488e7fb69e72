#pragma once

#include "host/file_controller.h"
#include "recorder/log_recorder.h"
#include "recorder/recording.h"
#include "recorder/recording_canvas.h"
#include "recorder/recording_datasources.h"

#include <memory>

class QIODevice;

namespace recorder {

/// Agrees to everything and saves nothing. Only the interactive import command calls it,
/// which a recording never uses.
class IdleFileController : public FileController
{
public:
    [[nodiscard]] bool checkSaveChanges(TalCanvasModel*, const QString&, bool) override
    {
        return true;
    }
    void saveImportedLabelAs(const QString&, const QString&, const QString&) override {}
    void emitLabelTypeLoadedSignal(QString) override {}
};

/// A complete host that records the calls of an importer, and the log with them.
///
/// Its answers never depend on the machine, so the same file gives the same trace
/// everywhere. The link-time services and the log use the host that was created or reset last.
class RecordingHost
{
public:
    /// @param out receives the trace; must outlive the host and all its items
    explicit RecordingHost(QIODevice& out);
    /// Keeps no trace, only the items, and accepts every drawing as a symbol unparsed: measures
    /// an import without the time of a host.
    RecordingHost();
    ~RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    [[nodiscard]] TalCanvasModel* canvasModel() { return &m_canvas; }
    [[nodiscard]] DatasourceController* datasourceController() { return &m_datasources; }
    [[nodiscard]] FileController* fileController() { return &m_fileController; }

    /// Requires a trace.
    [[nodiscard]] TraceWriter& trace() { return *m_recording->trace(); }
    [[nodiscard]] Behavior& behavior() { return m_recording->behavior(); }
    /// States of the items that still exist, in the order of creation.
    [[nodiscard]] std::vector<ItemState> itemStates() const { return m_recording->itemStates(); }
    [[nodiscard]] int symbolCreatorsMade() const { return m_recording->symbolCreatorsMade; }
    [[nodiscard]] int symbolCreators() const { return m_recording->symbolCreators; }
    [[nodiscard]] int symbolDatabases() const { return m_recording->symbolDatabases; }
    /// Items that the factory created, and those that were added to the canvas.
    [[nodiscard]] int createdCount() const { return m_recording->nextItemNumber() - 1; }
    [[nodiscard]] int importedCount() const { return m_recording->importedCount(); }
    /// The item of this number, from 1; null once it is deleted.
    [[nodiscard]] QGraphicsItem* item(int number) const { return m_recording->item(number); }
    /// Deletes items and data sources and restarts the numbers at 1; the link-time
    /// services then use this host.
    void reset();
    /// Closes the message boxes that importers have opened.
    void hideMessageBoxes() { m_recording->hideMessageBoxes(); }
    /// Writes the final states of the items.
    void writeItemStates();

private:
    explicit RecordingHost(std::shared_ptr<Recording> recording);

    std::shared_ptr<Recording> m_recording;
    RecordingCanvas m_canvas;
    RecordingDatasources m_datasources;
    IdleFileController m_fileController;
    LogRecorder m_logRecorder;
};

} // namespace recorder
