#pragma once

#include "host/class_factory.h"
#include "recorder/recording.h"

#include <memory>

namespace recorder {

/// Creates recording items of every class of the contract.
class RecordingFactory : public ClassFactory
{
public:
    explicit RecordingFactory(std::shared_ptr<Recording> recording);

    /// Null for a code that is not in the contract.
    [[nodiscard]] Item* create(KestTypes::ShapeType type) override;

private:
    std::shared_ptr<Recording> m_recording;
};

} // namespace recorder
