#pragma once

#include "tavrel/bounded_stream.h"

#include <QDataStream>
#include <QtEndian>

#include <array>
#include <span>
#include <tuple>

/// Reads runs of fields of fixed size.
///
/// A device takes nearly as long for one byte as for a hundred, and records are mostly such runs.
namespace tavrel {

/// The bytes of a run, as many as the stream still held.
class FieldBytes
{
public:
    explicit FieldBytes(std::span<const char> bytes)
        : m_left(bytes)
    {}

    /// A field that is cut short is zero, and all behind it are.
    template <typename Field>
    [[nodiscard]] Field take()
    {
        if (m_left.size() < sizeof(Field)) {
            m_left = {};
            return Field{};
        }
        const char* const bytes = m_left.data();
        m_left = m_left.subspan(sizeof(Field));
        return decoded(bytes, Field{});
    }

private:
    static bool decoded(const char* byte, bool) { return *byte != 0; }
    template <typename Number>
    static Number decoded(const char* bytes, Number)
    {
        return qFromBigEndian<Number>(bytes);
    }

    std::span<const char> m_left;
};

/// Reads fields that stand behind each other: flags (`bool`, one byte), `qint32`, `quint32` and
/// `double`, encoded as the stream encodes them. The same as to read each by itself, also where
/// the stream ends among them.
template <typename... Field>
[[nodiscard]] std::tuple<Field...> readFields(QDataStream& stream)
{
    static_assert(sizeof(bool) == 1);
    std::array<char, (sizeof(Field) + ...)> bytes;
    const qsizetype count = readRaw(stream, bytes);
    FieldBytes left({bytes.data(), static_cast<std::size_t>(count)});
    return std::tuple<Field...>{left.take<Field>()...}; // braces: from left to right
}

} // namespace tavrel
