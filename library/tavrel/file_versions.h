#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The versions of the binary label format, and the choice of a record's layout by version.
namespace tavrel {

/// Older files are refused. Item positions of this version are in dots.
inline constexpr quint32 OldestVersion = 2000016;
/// Named in the refusal. Newer files are read with the newest layouts.
inline constexpr quint32 CurrentVersion = 2000024;

inline constexpr quint32 FirstWithPositionsInInches = 2000017;
inline constexpr quint32 FirstWithFixedTextSize = 2000018;
inline constexpr quint32 FirstWithCanvasInInches = 2000019;
inline constexpr quint32 FirstWithSequenceTrailingValue = 2000020;
inline constexpr quint32 FirstWithTextOptions = 2000020;
inline constexpr quint32 FirstWithSecondFontSize = 2000021;
inline constexpr quint32 FirstWithContentFirst = 2000022;
inline constexpr quint32 FirstWithSymbolData = 2000023;
inline constexpr quint32 FirstWithTextTrailer = 2000023;
inline constexpr quint32 FirstWithResolutions = 2000024;

/// A layout of a record: the first version that uses it and the function that decodes it.
template <typename Decode>
struct Layout
{
    quint32 firstVersion;
    Decode decode;
};

// Not all compilers deduce the argument of an aggregate.
template <typename Decode>
Layout(quint32, Decode) -> Layout<Decode>;

/// The decoder for a version: the last layout that is not newer. The table is in ascending order;
/// a version older than all layouts gets the first.
template <typename Decode, std::size_t count>
[[nodiscard]] constexpr Decode layoutFor(const std::array<Layout<Decode>, count>& layouts,
                                         quint32 version)
{
    Decode chosen = layouts.front().decode;
    for (const Layout<Decode>& layout : layouts) {
        if (version >= layout.firstVersion) {
            chosen = layout.decode;
        }
    }
    return chosen;
}

} // namespace tavrel
