#pragma once

#include "fuzz/mutations.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum);

/// The fuzzer's own change to some bytes, which become no more than `maximum`.
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

/// Puts an input back into the fuzzer's buffer; one that does not fit is cut.
inline std::size_t toFuzzer(const QByteArray& input, std::uint8_t* data, std::size_t maximum)
{
    const std::size_t size = std::min(std::size_t(input.size()), maximum);
    std::memcpy(data, input.constData(), size);
    return size;
}
