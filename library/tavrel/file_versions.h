#pragma once

#include <QtGlobal>

#include <array>
#include <cstddef>

/// The versions of the binary label format and how a record's layout follows from them.
namespace tavrel {

/// Files below this one are refused; item positions of this one are in dots.
inline constexpr quint32 OldestVersion = 2000016;
/// Named in the refusal. A later file is read with the newest layouts.
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

/// One layout of a record: the version that brought it and the function that decodes it.
template <typename Decode>
struct Layout
{
    quint32 firstVersion;
    Decode decode;
};

// Not every compiler deduces an aggregate's argument by itself.
template <typename Decode>
Layout(quint32, Decode) -> Layout<Decode>;

/// The decoder for a file of this version: the last layout that is not younger than the
/// file. The table is in rising order; a file older than all takes the first.
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
