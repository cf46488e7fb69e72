#pragma once

#include <QtGlobal>

#include <span>
#include <utility>
#include <vector>

/// Finds where the lines of a CSV file start. The file comes piece by piece, so it need not be
/// held whole.
///
/// A line feed ends a line, but for one inside quotes. A backslash hides the byte behind it,
/// inside quotes and outside.
class CsvLineStarts
{
public:
    /// Starts with the first line, at 0. Its memory is taken over from `offsets`, whose content
    /// is not.
    explicit CsvLineStarts(std::vector<qint64> offsets = {});

    void take(std::span<const char> piece);
    /// The end of the last piece; a last line without a line feed counts.
    void finish();

    /// Bytes taken so far.
    [[nodiscard]] qint64 position() const { return m_position; }
    /// Where each line starts, and after finish() where the last one ends: one more than there
    /// are lines.
    [[nodiscard]] const std::vector<qint64>& offsets() const { return m_offsets; }
    [[nodiscard]] std::vector<qint64> takeOffsets() { return std::move(m_offsets); }

private:
    std::vector<qint64> m_offsets;
    qint64 m_position = 0;
    bool m_isQuoted = false;
    bool m_isHidden = false; ///< whether a backslash stands before the next byte
};
