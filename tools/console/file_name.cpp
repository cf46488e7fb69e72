#include "console/file_name.h"

#include <QDir>

#include <algorithm>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace console {
namespace {

using namespace Qt::StringLiterals;

constexpr char16_t EscapeBase = 0xEF00;
constexpr char16_t FirstEscape = 0xEF80;
constexpr char16_t LastEscape = 0xEFFF;

bool isEscape(QChar character)
{
    return character.unicode() >= FirstEscape && character.unicode() <= LastEscape;
}

bool hasEscape(const QString& text)
{
    return std::any_of(text.begin(), text.end(), isEscape);
}

/// Bytes of the UTF-8 sequence that a byte begins; 1 for a byte that begins none.
qsizetype sequenceLength(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    if (byte >= 0xF0) {
        return 4;
    }
    return byte >= 0xE0 ? 3 : byte >= 0xC0 ? 2 : 1;
}

bool changesDirection(QChar character)
{
    const char16_t code = character.unicode();
    return (code >= 0x202A && code <= 0x202E) || (code >= 0x2066 && code <= 0x2069);
}

QString hexadecimal(char16_t code, int digits)
{
    return u"%1"_s.arg(static_cast<uint>(code), digits, 16, QLatin1Char('0')).toUpper();
}

QString escaped(QChar character)
{
    const char16_t code = character.unicode();
    if (isEscape(character)) {
        return u"\\x"_s + hexadecimal(code - EscapeBase, 2);
    }
    if (code == u'\n') {
        return u"\\n"_s;
    }
    if (code == u'\t') {
        return u"\\t"_s;
    }
    return code < 0x100 ? u"\\x"_s + hexadecimal(code, 2) : u"\\u"_s + hexadecimal(code, 4);
}

template <typename Keep>
QString escapedExcept(const QString& text, Keep keep)
{
    QString shown;
    for (const QChar character : text) {
        const bool isUnsafe = isEscape(character) || changesDirection(character) ||
                              character.category() == QChar::Other_Control ||
                              character.category() == QChar::Separator_Line ||
                              character.category() == QChar::Separator_Paragraph;
        shown += isUnsafe && !keep(character) ? escaped(character) : QString(character);
    }
    return shown;
}

} // namespace

QString fileNameFromBytes(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes);
    if (!hasEscape(text) && text.toUtf8() == bytes) {
        return text;
    }
    QString name;
    for (qsizetype at = 0; at < bytes.size();) {
        const QByteArray sequence = bytes.mid(at, sequenceLength(bytes.at(at)));
        const QString character = QString::fromUtf8(sequence);
        if (!hasEscape(character) && character.toUtf8() == sequence) {
            name += character;
            at += sequence.size();
        } else {
            name += QChar(EscapeBase + static_cast<unsigned char>(bytes.at(at)));
            ++at;
        }
    }
    return name;
}

QByteArray fileNameToBytes(const QString& name)
{
    QByteArray bytes;
    qsizetype begin = 0;
    for (qsizetype at = 0; at < name.size(); ++at) {
        if (isEscape(name.at(at))) {
            bytes += name.mid(begin, at - begin).toUtf8();
            bytes += static_cast<char>(name.at(at).unicode() - EscapeBase);
            begin = at + 1;
        }
    }
    return bytes + name.mid(begin).toUtf8();
}

std::filesystem::path systemPath(const QString& name)
{
    return fileNameToBytes(name).toStdString();
}

bool isUtf8FileName(const QString& name)
{
    return !hasEscape(name);
}

QString shownFileName(const QString& name)
{
    return escapedExcept(name, [](QChar) { return false; });
}

QString shownText(const QString& text)
{
    return escapedExcept(text,
                         [](QChar character) { return character == u'\n' || character == u'\t'; });
}

QString absolutePath(const QString& path)
{
    if (QDir::isAbsolutePath(path)) {
        return QDir::cleanPath(path);
    }
    std::error_code error;
    const std::string current = std::filesystem::current_path(error).string();
    return QDir::cleanPath(fileNameFromBytes(QByteArray::fromStdString(current)) + u'/' + path);
}

FileKind kindOf(const QString& path)
{
    std::error_code error;
    switch (std::filesystem::status(systemPath(path), error).type()) {
    case std::filesystem::file_type::none:
    case std::filesystem::file_type::not_found:
        return FileKind::Missing;
    case std::filesystem::file_type::regular:
        return FileKind::File;
    case std::filesystem::file_type::directory:
        return FileKind::Folder;
    default:
        return FileKind::Other;
    }
}

QString makeFolder(const QString& path)
{
    std::error_code error;
    std::filesystem::create_directories(systemPath(path), error);
    return error ? QString::fromLocal8Bit(error.message().c_str()) : QString();
}

ReachablePath::ReachablePath(const QString& path)
    : m_path(path)
{
    if (isUtf8FileName(path)) {
        return;
    }
    m_descriptor = ::open(fileNameToBytes(path).constData(), O_PATH | O_CLOEXEC);
    if (m_descriptor >= 0) {
        m_path = u"/proc/self/fd/%1"_s.arg(m_descriptor);
    }
}

ReachablePath::~ReachablePath()
{
    if (m_descriptor >= 0) {
        ::close(m_descriptor);
    }
}

} // namespace console
