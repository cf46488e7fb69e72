#include "supply/csv_line_starts.h"

CsvLineStarts::CsvLineStarts(std::vector<qint64> offsets)
    : m_offsets(std::move(offsets))
{
    m_offsets.assign(1, 0);
}

void CsvLineStarts::take(std::span<const char> piece)
{
    // In registers: each label reads the tables again.
    qint64 next = m_position;
    bool isHidden = m_isHidden;
    bool isQuoted = m_isQuoted;
    for (const char byte : piece) {
        ++next;
        if (isHidden) {
            isHidden = false;
        } else if (byte == '\\') {
            isHidden = true;
        } else if (byte == '"') {
            isQuoted = !isQuoted;
        } else if (byte == '\n' && !isQuoted) {
            m_offsets.push_back(next);
        }
    }
    m_position = next;
    m_isHidden = isHidden;
    m_isQuoted = isQuoted;
}

void CsvLineStarts::finish()
{
    if (m_offsets.back() < m_position) {
        m_offsets.push_back(m_position);
    }
}
