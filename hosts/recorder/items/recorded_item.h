#pragma once

#include "recorder/recording.h"

#include <memory>

namespace recorder {

/// What all items of the recording host have: a number, and a way to the trace.
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
    void record(const char* call, const TraceWriter::Values& arguments) const
    {
        m_recording->trace().call(itemTarget(m_number), call, arguments);
    }
    void record(const char* call, const TraceWriter::Values& arguments,
                const TraceValue& returned) const
    {
        m_recording->trace().call(itemTarget(m_number), call, arguments, returned);
    }

private:
    std::shared_ptr<Recording> m_recording;
    int m_number;
};

/// How a trace names an item that a call passes: null for none, and for an item that
/// another host made.
template <typename T>
[[nodiscard]] TraceValue itemValue(T* item)
{
    const auto* recorded = dynamic_cast<RecordedItem*>(item);
    return recorded == nullptr ? TraceValue(nullptr) : TraceValue(itemTarget(recorded->number()));
}

} // namespace recorder
