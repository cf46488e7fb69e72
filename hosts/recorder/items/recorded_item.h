#pragma once

#include "recorder/recording.h"

#include <memory>

namespace recorder {

/// The common part of all items of the recording host: a number, and access to the trace.
class RecordedItem
{
public:
    RecordedItem(std::shared_ptr<Recording> recording, int number)
        : m_recording(std::move(recording))
        , m_number(number)
    {}
    virtual ~RecordedItem() { m_recording->forgetItem(m_number); }
    RecordedItem(const RecordedItem&) = delete;
    RecordedItem& operator=(const RecordedItem&) = delete;

    /// From 1, in the order of creation.
    [[nodiscard]] int number() const { return m_number; }

protected:
    template <typename... Arguments>
    void record(const char* call, const Arguments&... arguments) const
    {
        if (m_recording->trace() != nullptr) {
            m_recording->call(itemTarget(m_number), call, arguments...);
        }
    }
    template <typename Returned>
    void answer(const Returned& returned, const char* call) const
    {
        if (m_recording->trace() != nullptr) {
            m_recording->answer(returned, itemTarget(m_number), call);
        }
    }
    [[nodiscard]] const Behavior& behavior() const { return m_recording->behavior(); }

private:
    std::shared_ptr<Recording> m_recording;
    int m_number;
};

/// The name in a trace of an item passed to a call: null for none, and for an item of
/// another host.
template <typename T>
[[nodiscard]] TraceValue itemValue(T* item)
{
    const auto* recorded = dynamic_cast<RecordedItem*>(item);
    return recorded == nullptr ? TraceValue(nullptr) : TraceValue(itemTarget(recorded->number()));
}

} // namespace recorder
