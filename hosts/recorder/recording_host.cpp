#include "recorder/recording_host.h"

namespace recorder {

RecordingHost::RecordingHost(QIODevice& out)
    : RecordingHost(std::make_shared<Recording>(&out))
{
    loggerInstance()->registerAppender(&m_logRecorder);
}

RecordingHost::RecordingHost()
    : RecordingHost(std::make_shared<Recording>(nullptr))
{
    behavior().symbolSize = QSizeF(100, 100);
    behavior().conversion = Behavior::Conversion::OfAnything;
}

RecordingHost::RecordingHost(std::shared_ptr<Recording> recording)
    : m_recording(std::move(recording))
    , m_canvas(m_recording)
    , m_datasources(m_recording)
    , m_logRecorder(m_recording)
{
    Recording::setCurrent(m_recording);
}

RecordingHost::~RecordingHost()
{
    loggerInstance()->removeAppender(&m_logRecorder);
    if (Recording::current() == m_recording) {
        Recording::setCurrent(nullptr);
    }
}

void RecordingHost::reset()
{
    m_canvas.clear();
    m_datasources.clear();
    m_recording->reset();
    Recording::setCurrent(m_recording);
}

void RecordingHost::writeItemStates()
{
    for (const ItemState& state : m_recording->itemStates()) {
        trace().itemState(state);
    }
}

} // namespace recorder
