#pragma once

#include "fuzz/mutations.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

/// libFuzzer's own mutation of some bytes; the result has at most `maximum` bytes.
inline QByteArray fuzzerMutation(const QByteArray& bytes, qsizetype maximum)
{
    const qsizetype room = std::max<qsizetype>(maximum, 1);
    QByteArray changed = bytes.left(room);
    const qsizetype size = changed.size();
    changed.resize(room);
    changed.resize(qsizetype(LLVMFuzzerMutate(reinterpret_cast<std::uint8_t*>(changed.data()),
                                              std::size_t(size), std::size_t(room))));
    return changed;
}

/// Copies an input to the fuzzer's buffer, truncated if it does not fit.
inline std::size_t toFuzzer(const QByteArray& input, std::uint8_t* data, std::size_t maximum)
{
    const std::size_t size = std::min(std::size_t(input.size()), maximum);
    std::memcpy(data, input.constData(), size);
    return size;
}
