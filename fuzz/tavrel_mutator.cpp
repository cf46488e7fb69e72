// Keeps a supported version in binary canvas files.

#include "fuzz/fuzzer_mutation.h"

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed)
{
    constexpr qsizetype start = 8;
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto mutate = [maximum](const QByteArray& bytes) {
        return fuzzerMutation(bytes, qsizetype(maximum) - start);
    };
    return toFuzzer(mutatedCanvasFile(input, seed, mutate), data, maximum);
}
