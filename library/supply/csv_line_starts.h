#pragma once

#include <QtGlobal>

#include <span>
#include <utility>
#include <vector>

/// Finds the starts of the lines of a CSV file. The file is passed in pieces, so it need not be in
/// memory completely.
///
/// A line feed outside quotes ends a line. A backslash makes the next byte literal, inside and
/// outside quotes.
class CsvLineStarts
{
public:
    /// Starts with the first line, at 0. Reuses the memory of `offsets`, but not its content.
    explicit CsvLineStarts(std::vector<qint64> offsets = {});

    /// Reads the next bytes of the file.
    void take(std::span<const char> piece);
    /// Call it after the last piece. A last line without a line feed counts.
    void finish();

    /// Number of bytes so far.
    [[nodiscard]] qint64 position() const { return m_position; }
    /// Start of each line, and after finish() the end of the last one: one more than the number of
    /// lines.
    [[nodiscard]] const std::vector<qint64>& offsets() const { return m_offsets; }
    [[nodiscard]] std::vector<qint64> takeOffsets() { return std::move(m_offsets); }

private:
    std::vector<qint64> m_offsets;
    qint64 m_position = 0;
    bool m_isQuoted = false;
    bool m_isHidden = false; ///< whether the last byte was a backslash
};
