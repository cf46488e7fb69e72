#include "supply/csv_line_starts.h"

CsvLineStarts::CsvLineStarts(std::vector<qint64> offsets)
    : m_offsets(std::move(offsets))
{
    m_offsets.assign(1, 0);
}

void CsvLineStarts::take(std::span<const char> piece)
{
    qint64 next = m_position;
    for (const char byte : piece) {
        ++next;
        if (m_isHidden) {
            m_isHidden = false;
        } else if (byte == '\\') {
            m_isHidden = true;
        } else if (byte == '"') {
            m_isQuoted = !m_isQuoted;
        } else if (byte == '\n' && !m_isQuoted) {
            m_offsets.push_back(next);
        }
    }
    m_position = next;
}

void CsvLineStarts::finish()
{
    if (m_offsets.back() < m_position) {
        m_offsets.push_back(m_position);
    }
}
