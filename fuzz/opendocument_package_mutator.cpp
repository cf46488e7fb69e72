// Keeps most inputs valid packages.

#include "fuzz/fuzzer_mutation.h"

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed)
{
    constexpr unsigned int blindShare = 8;
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    const auto mutate = [maximum](const QByteArray& bytes) {
        return fuzzerMutation(bytes, qsizetype(maximum / 2));
    };
    if (seed % blindShare != 0) {
        const auto package = mutatedPackage(input, seed / blindShare, mutate);
        if (package && package->size() <= qsizetype(maximum)) {
            return toFuzzer(*package, data, maximum);
        }
    }
    return LLVMFuzzerMutate(data, size, maximum);
}
