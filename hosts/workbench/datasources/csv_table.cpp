#include "workbench/datasources/csv_table.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace workbench::datasources {
namespace {

using namespace Qt::StringLiterals;

struct CsvTableTr
{
    Q_DECLARE_TR_FUNCTIONS(workbench::CsvTable)
};

// The characters of the bytes 0x80 to 0x9F; 0 for the unassigned ones.
constexpr std::array<char16_t, 32> Windows1252{
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

QString fromWindows1252(const QByteArray& bytes)
{
    QString text = QString::fromLatin1(bytes);
    for (QChar& character : text) {
        const char16_t code = character.unicode();
        if (code >= 0x80 && code < 0xA0 && Windows1252[code - 0x80] != 0) {
            character = Windows1252[code - 0x80];
        }
    }
    return text;
}

bool isUtf16(const QByteArray& bytes)
{
    return bytes.startsWith("\xFF\xFE") || bytes.startsWith("\xFE\xFF");
}

// The text without byte order mark; a null string if the bytes are not in the encoding.
QString decoded(const QByteArray& bytes, CsvEncoding encoding)
{
    if (encoding == CsvEncoding::Utf16 || (encoding == CsvEncoding::Detect && isUtf16(bytes))) {
        QStringDecoder decoder(QStringDecoder::Utf16);
        const QString text = decoder(bytes);
        return decoder.hasError() || bytes.size() % 2 != 0 ? QString() : text;
    }
    if (encoding != CsvEncoding::Windows1252) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        const QString text = decoder(bytes);
        if (!decoder.hasError()) {
            return text;
        }
    }
    return encoding == CsvEncoding::Utf8 ? QString() : fromWindows1252(bytes);
}

// The separator that is most frequent in the first line, outside quotes; comma if there is none.
QChar separatorOf(const QString& text)
{
    constexpr std::array<char16_t, 4> candidates{u',', u';', u'\t', u'|'};
    std::array<int, 4> counts{};
    bool isQuoted = false;
    bool hasText = false;
    for (const QChar character : text) {
        if (!isQuoted && hasText && (character == u'\n' || character == u'\r')) {
            break;
        }
        hasText = hasText || !character.isSpace();
        isQuoted = isQuoted != (character == u'"');
        for (std::size_t index = 0; index < candidates.size() && !isQuoted; ++index) {
            counts[index] += character == candidates[index] ? 1 : 0;
        }
    }
    const auto most = std::max_element(counts.begin(), counts.end());
    return candidates[static_cast<std::size_t>(most - counts.begin())];
}

/// Splits a text into records.
class Parser
{
public:
    Parser(const QString& text, QChar separator)
        : m_text(text)
        , m_separator(separator)
    {}

    [[nodiscard]] bool atEnd() const { return m_at >= m_text.size(); }
    [[nodiscard]] const QString& error() const { return m_error; }
    /// The line of the last record, counted from 1.
    [[nodiscard]] qsizetype line() const { return m_recordLine; }

    /// The fields of the next record; empty for an empty line, and after an error.
    [[nodiscard]] QStringList record()
    {
        m_recordLine = m_line;
        QStringList fields;
        if (takeLineBreak()) {
            return fields;
        }
        do {
            fields.append(atQuote() ? quotedField() : plainField());
            if (fields.size() > MaximumCsvColumns && m_error.isEmpty()) {
                m_error = CsvTableTr::tr("Line %1 has more than %2 columns.")
                              .arg(m_recordLine)
                              .arg(MaximumCsvColumns);
            }
        } while (m_error.isEmpty() && take(m_separator));
        if (m_error.isEmpty() && !atEnd() && !takeLineBreak()) {
            m_error =
                CsvTableTr::tr("Line %1 has text after a closing quotation mark.").arg(m_line);
        }
        return m_error.isEmpty() ? fields : QStringList();
    }

private:
    [[nodiscard]] bool atQuote() const { return !atEnd() && m_text.at(m_at) == u'"'; }

    bool take(QChar character)
    {
        const bool isThere = !atEnd() && m_text.at(m_at) == character;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    bool takeLineBreak()
    {
        const bool isReturn = take(u'\r');
        const bool isBreak = take(u'\n') || isReturn;
        m_line += isBreak ? 1 : 0;
        return isBreak;
    }

    [[nodiscard]] QString plainField()
    {
        const qsizetype start = m_at;
        while (!atEnd() && m_text.at(m_at) != m_separator && m_text.at(m_at) != u'\n' &&
               m_text.at(m_at) != u'\r') {
            ++m_at;
        }
        return m_text.mid(start, m_at - start);
    }

    [[nodiscard]] QString quotedField()
    {
        QString field;
        take(u'"');
        while (!atEnd()) {
            const qsizetype end = m_text.indexOf(u'"', m_at);
            if (end < 0) {
                break;
            }
            field += QStringView(m_text).mid(m_at, end - m_at);
            m_at = end + 1;
            if (!take(u'"')) {
                m_line += lineBreaksIn(field);
                return field;
            }
            field += u'"';
        }
        m_error =
            CsvTableTr::tr("The quotation mark that begins in line %1 is not closed.").arg(m_line);
        return {};
    }

    [[nodiscard]] static qsizetype lineBreaksIn(const QString& field)
    {
        return field.count(u'\n') + field.count(u'\r') - field.count(u"\r\n"_s);
    }

    const QString& m_text;
    QChar m_separator;
    qsizetype m_at = 0;
    qsizetype m_line = 1;
    qsizetype m_recordLine = 1;
    QString m_error;
};

// Names of columns must be different, because they select the fields of items.
QStringList columnNames(const QStringList& header, bool hasHeader)
{
    QStringList names;
    QSet<QString> used;
    for (qsizetype column = 0; column < header.size(); ++column) {
        QString name = hasHeader ? header.at(column).simplified() : QString();
        if (name.isEmpty()) {
            name = CsvTableTr::tr("Column %1").arg(column + 1);
        }
        QString unique = name;
        for (int number = 2; used.contains(unique); ++number) {
            unique = u"%1 (%2)"_s.arg(name).arg(number);
        }
        used.insert(unique);
        names.append(unique);
    }
    return names;
}

// An empty text for a record that fits the table.
QString recordProblem(const CsvTable& table, const QStringList& record, qsizetype line)
{
    if (record.size() != table.fields.size()) {
        return CsvTableTr::tr("Line %1 has %2 fields; the first line has %3.")
            .arg(line)
            .arg(record.size())
            .arg(table.fields.size());
    }
    if (table.cells.size() + record.size() > MaximumCsvCells) {
        return CsvTableTr::tr("The file has more than %1 cells.").arg(MaximumCsvCells);
    }
    return {};
}

CsvTable refusal(const QString& error)
{
    CsvTable table;
    table.error = error;
    return table;
}

} // namespace

CsvTable parseCsv(const QByteArray& bytes, const CsvOptions& options)
{
    if (bytes.size() > MaximumCsvBytes) {
        return refusal(CsvTableTr::tr("The file has more than %1 bytes.").arg(MaximumCsvBytes));
    }
    const QString text = decoded(bytes, options.encoding);
    if ((text.isNull() && !bytes.isEmpty()) || text.contains(QChar::Null)) {
        return refusal(CsvTableTr::tr("The file is not a text in this encoding."));
    }
    CsvTable table;
    table.separator = options.separator.isNull() ? separatorOf(text) : options.separator;
    Parser parser(text, table.separator);
    while (!parser.atEnd() && parser.error().isEmpty()) {
        const QStringList record = parser.record();
        if (record.isEmpty()) {
            continue;
        }
        if (table.fields.isEmpty()) {
            table.fields = columnNames(record, options.hasHeader);
            if (options.hasHeader) {
                continue;
            }
        }
        const QString problem = recordProblem(table, record, parser.line());
        if (!problem.isEmpty()) {
            return refusal(problem);
        }
        table.cells += record;
    }
    if (!parser.error().isEmpty()) {
        return refusal(parser.error());
    }
    return table.cells.isEmpty() ? refusal(CsvTableTr::tr("The file has no records.")) : table;
}

CsvTable readCsv(const QString& fileName, const CsvOptions& options)
{
    QFile file(fileName);
    // Opening a pipe could wait forever.
    if (QFileInfo::exists(fileName) && !QFileInfo(fileName).isFile()) {
        return refusal(CsvTableTr::tr("\"%1\" is not a file.").arg(fileName));
    }
    if (!file.open(QIODevice::ReadOnly)) {
        return refusal(CsvTableTr::tr("Cannot open \"%1\": %2.").arg(fileName, file.errorString()));
    }
    const QByteArray bytes = file.read(MaximumCsvBytes + 1);
    if (file.error() != QFileDevice::NoError) {
        return refusal(CsvTableTr::tr("Cannot read \"%1\": %2.").arg(fileName, file.errorString()));
    }
    return parseCsv(bytes, options);
}

} // namespace workbench::datasources
