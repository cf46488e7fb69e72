#include "recorder/recording_host.h"

namespace recorder {

RecordingHost::RecordingHost(QIODevice& out)
    : m_recording(std::make_shared<Recording>(out))
    , m_canvas(m_recording)
    , m_datasources(m_recording)
    , m_logRecorder(m_recording)
{
    Recording::setCurrent(m_recording);
    loggerInstance()->registerAppender(&m_logRecorder);
}

RecordingHost::~RecordingHost()
{
    loggerInstance()->removeAppender(&m_logRecorder);
    Recording::setCurrent(nullptr);
}

void RecordingHost::writeItemStates()
{
    for (const ItemState& state : m_recording->itemStates()) {
        trace().itemState(state);
    }
}

} // namespace recorder
