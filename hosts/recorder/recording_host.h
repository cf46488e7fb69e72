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
/// which nothing in a recording does.
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

/// A whole host that writes down what an importer does to it, and the log with it.
///
/// Its answers never depend on the machine, so the same file gives the same trace
/// everywhere. The link-time services and the log belong to the host that was made or reset last.
class RecordingHost
{
public:
    /// @param out where the trace goes; outlives the host and every item that it made
    explicit RecordingHost(QIODevice& out);
    /// Keeps no trace, only the items, and takes every drawing for a symbol without a look: what
    /// an import costs without a host.
    RecordingHost();
    ~RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    [[nodiscard]] TalCanvasModel* canvasModel() { return &m_canvas; }
    [[nodiscard]] DatasourceController* datasourceController() { return &m_datasources; }
    [[nodiscard]] FileController* fileController() { return &m_fileController; }

    /// Only of a host that keeps a trace.
    [[nodiscard]] TraceWriter& trace() { return *m_recording->trace(); }
    [[nodiscard]] Behavior& behavior() { return m_recording->behavior(); }
    /// States of the items that still exist, in the order of creation.
    [[nodiscard]] std::vector<ItemState> itemStates() const { return m_recording->itemStates(); }
    [[nodiscard]] int symbolCreatorsMade() const { return m_recording->symbolCreatorsMade; }
    [[nodiscard]] int symbolCreators() const { return m_recording->symbolCreators; }
    /// Items that the factory made, and those that the canvas was given.
    [[nodiscard]] int createdCount() const { return m_recording->nextItemNumber() - 1; }
    [[nodiscard]] int importedCount() const { return m_recording->importedCount(); }
    /// The item of this number, from 1; null once it is deleted.
    [[nodiscard]] QGraphicsItem* item(int number) const { return m_recording->item(number); }
    /// Deletes items and data sources, and counts from 1 again: the host is as if new, and the
    /// link-time services belong to it.
    void reset();
    /// Closes the message boxes that importers have opened.
    void hideMessageBoxes() { m_recording->hideMessageBoxes(); }
    /// Writes what has become of the items.
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
