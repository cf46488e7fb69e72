#include "supply/csv_fields.h"

#include <optional>

namespace {

bool isLineEnd(char byte)
{
    return byte == '\n' || byte == '\r';
}

class FieldScanner
{
public:
    explicit FieldScanner(const QByteArray& line)
        : m_line(line)
    {}

    QStringList scan()
    {
        while (const std::optional<char> byte = next()) {
            scanPlain(*byte);
        }
        // A line that ends in a comma has no empty last field.
        if (!m_field.isEmpty()) {
            endField();
        }
        return m_fields;
    }

private:
    std::optional<char> next()
    {
        return m_position < m_line.size() ? std::optional(m_line.at(m_position++)) : std::nullopt;
    }

    void append(char byte) { m_field.append(QLatin1Char(byte)); }

    void appendNext()
    {
        if (const std::optional<char> byte = next()) {
            append(*byte);
        }
    }

    void endField()
    {
        m_fields.append(m_field);
        m_field.clear();
    }

    void scanPlain(char byte)
    {
        if (byte == ',') {
            endField();
        } else if (byte == '\\') {
            appendNext();
        } else if (byte == '"') {
            append(byte);
            scanQuoted();
        } else if (!isLineEnd(byte)) {
            append(byte);
        }
    }

    // From an opening quote to the end of the quoted field.
    void scanQuoted()
    {
        do {
            scanToClosingQuote();
        } while (quoteResumes());
    }

    void scanToClosingQuote()
    {
        while (const std::optional<char> byte = next()) {
            if (*byte == '\\') {
                appendNext();
                continue;
            }
            append(*byte);
            if (*byte == '"') {
                return;
            }
        }
    }

    // Skips the bytes after a closing quote. A quote directly after it is the second of a doubled
    // one; a later quote also resumes the quoted text. Neither becomes part of the text. Existing
    // tables depend on it.
    bool quoteResumes()
    {
        while (const std::optional<char> byte = next()) {
            if (*byte == '"') {
                return true;
            }
            if (*byte == ',' || isLineEnd(*byte)) {
                endField();
                return false;
            }
            if (*byte == '\\') {
                appendNext();
                return false;
            }
        }
        return false;
    }

    const QByteArray& m_line;
    qsizetype m_position = 0;
    QString m_field;
    QStringList m_fields;
};

} // namespace

QStringList csvFields(const QByteArray& line)
{
    return FieldScanner(line).scan();
}
