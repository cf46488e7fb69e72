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
/// everywhere. There can be one at a time; the link-time services belong to it while it
/// lives.
class RecordingHost
{
public:
    /// @param out where the trace goes; outlives the host and every item that it made
    explicit RecordingHost(QIODevice& out);
    ~RecordingHost();
    RecordingHost(const RecordingHost&) = delete;
    RecordingHost& operator=(const RecordingHost&) = delete;

    [[nodiscard]] TalCanvasModel* canvasModel() { return &m_canvas; }
    [[nodiscard]] DatasourceController* datasourceController() { return &m_datasources; }
    [[nodiscard]] FileController* fileController() { return &m_fileController; }

    [[nodiscard]] TraceWriter& trace() { return m_recording->trace(); }
    /// Closes the message boxes that importers have opened.
    void hideMessageBoxes() { m_recording->hideMessageBoxes(); }
    /// Writes what has become of the items.
    void writeItemStates();

private:
    std::shared_ptr<Recording> m_recording;
    RecordingCanvas m_canvas;
    RecordingDatasources m_datasources;
    IdleFileController m_fileController;
    LogRecorder m_logRecorder;
};

} // namespace recorder
