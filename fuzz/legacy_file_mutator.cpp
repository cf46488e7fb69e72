// Mutates files of all formats: packages stay valid, and binary files keep a supported version.

#include "fuzz/fuzzer_mutation.h"
#include "fuzz/legacy_file.h"

#include <optional>

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed);

namespace {

constexpr unsigned int BlindShare = 8;
constexpr qsizetype CanvasStart = 8;

std::optional<QByteArray> mutated(const QByteArray& file, std::size_t maximum, unsigned int seed)
{
    switch (formatOf(file)) {
    case Format::OpenDocument:
        return mutatedPackage(file, seed, [maximum](const QByteArray& bytes) {
            return fuzzerMutation(bytes, qsizetype(maximum / 2));
        });
    case Format::Tavrel:
        return mutatedCanvasFile(file, seed, [maximum](const QByteArray& bytes) {
            return fuzzerMutation(bytes, qsizetype(maximum) - CanvasStart);
        });
    case Format::Orvanta:
    case Format::SavedLabel:
        break;
    }
    return std::nullopt;
}

} // namespace

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t maximum, unsigned int seed)
{
    const QByteArray input(reinterpret_cast<const char*>(data), qsizetype(size));
    if (seed % BlindShare != 0 && size > 0) {
        const auto file = mutated(input, maximum, seed / BlindShare);
        if (file && file->size() <= qsizetype(maximum)) {
            return toFuzzer(*file, data, maximum);
        }
    }
    return LLVMFuzzerMutate(data, size, maximum);
}
