#include "migration/report/report_reader.h"

#include "limits/json/tree_size.h"
#include "migration/report/report_format.h"

#include <QCoreApplication>

namespace migration {

namespace {

constexpr qint64 kChunk = 64 * 1024;
// Longest name or short value at the outermost level that is looked at.
constexpr qsizetype kLongestName = 100;

QString tr(const char* text)
{
    return QCoreApplication::translate("migration::ReportReader", text);
}

bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

} // namespace

ReportReader::ReportReader(const QString& fileName)
    : m_file(fileName)
{
    if (!m_file.open(QIODevice::ReadOnly)) {
        m_error = tr("The report %1 cannot be read: %2.").arg(fileName, m_file.errorString());
        return;
    }
    findFiles();
}

void ReportReader::fail(const QString& why)
{
    m_inFiles = false;
    m_error = tr("%1 is no report of LabelPort: %2.").arg(m_file.fileName(), why);
}

std::optional<char> ReportReader::take()
{
    if (m_at == m_buffer.size()) {
        m_bufferStart += m_buffer.size();
        m_buffer = m_file.read(kChunk);
        m_at = 0;
        if (m_buffer.isEmpty()) {
            return std::nullopt;
        }
    }
    return m_buffer.at(m_at++);
}

std::optional<char> ReportReader::takeAfterSpace()
{
    auto c = take();
    while (c && isSpace(*c)) {
        c = take();
    }
    return c;
}

// The opening quotation mark is taken already.
std::optional<QByteArray> ReportReader::takeString()
{
    QByteArray text;
    for (auto c = take(); c; c = take()) {
        if (*c == '"') {
            return text;
        }
        if (*c == '\\' && !(c = take())) {
            return std::nullopt;
        }
        if (text.size() < kLongestName) {
            text.append(*c);
        }
    }
    return std::nullopt;
}

bool ReportReader::skipString()
{
    return takeString().has_value();
}

// Stops behind the value, or behind the comma or bracket that ends a bare word.
bool ReportReader::skipValue(char first)
{
    if (first == '"') {
        return skipString();
    }
    if (first != '{' && first != '[') {
        return true;
    }
    for (qint64 depth = 1; depth > 0;) {
        const auto c = take();
        if (!c || (*c == '"' && !skipString())) {
            return false;
        }
        depth += (*c == '{' || *c == '[') ? 1 : 0;
        depth -= (*c == '}' || *c == ']') ? 1 : 0;
    }
    return true;
}

// Leaves the reader behind the bracket that opens the list of files. Other programs may have
// put the list before the format's name.
void ReportReader::findFiles()
{
    if (takeAfterSpace() != '{') {
        return fail(tr("it does not begin as one"));
    }
    bool isReport = false;
    bool isKnownVersion = false;
    qint64 files = 0;
    for (auto c = takeAfterSpace(); c && *c != '}'; c = takeAfterSpace()) {
        if (*c != '"') {
            continue; // a comma, or the rest of a number
        }
        const auto name = takeString();
        auto value = name ? takeAfterSpace() : std::nullopt;
        value = value == ':' ? takeAfterSpace() : std::nullopt;
        if (!value) {
            break;
        }
        if (*name == "files" && *value == '[') {
            files = m_bufferStart + m_at;
        }
        if (*name == "version") {
            isKnownVersion = *value == '0' + ReportVersion;
        } else if (*name == "format" && *value == '"') {
            isReport = takeString() == QByteArray(ReportFormat);
        }
        if (isReport && isKnownVersion && files > 0) {
            return startAt(files);
        }
        if (*name != "format" && !skipValue(*value)) {
            break;
        }
    }
    fail(isReport ? tr("it has no list of files, or is of a version that is not known")
                  : tr("it does not name its format"));
}

void ReportReader::startAt(qint64 offset)
{
    m_file.seek(offset);
    m_buffer.clear();
    m_at = 0;
    m_bufferStart = offset;
    m_inFiles = true;
}

std::optional<ReportReader::Entry> ReportReader::next()
{
    if (!m_inFiles) {
        return std::nullopt;
    }
    auto c = takeAfterSpace();
    if (c == ',') {
        c = takeAfterSpace();
    }
    if (c == ']') {
        m_inFiles = false;
        return std::nullopt;
    }
    const qint64 offset = m_bufferStart + m_at - 1;
    if (c != '{' || !skipValue('{')) {
        fail(tr("its list of files is damaged"));
        return std::nullopt;
    }
    return Entry{offset, m_bufferStart + m_at - offset};
}

QByteArray ReportReader::bytesOf(const QString& fileName, const Entry& entry)
{
    QFile file(fileName);
    if (entry.size > kMaximumEntry || !file.open(QIODevice::ReadOnly) || !file.seek(entry.offset)) {
        return {};
    }
    const QByteArray bytes = file.read(entry.size);
    return jsonbounds::isLargerThan(bytes, kMaximumEntryTree) ? QByteArray() : bytes;
}

} // namespace migration
