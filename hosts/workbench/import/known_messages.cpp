#include "workbench/import/known_messages.h"

#include "messages/reader_messages.h"

#include <QCoreApplication>
#include <QList>

#include <array>

namespace workbench {

namespace {

using namespace Qt::StringLiterals;

/// A parsed format: text, placeholder, text, placeholder, ..., text.
struct Format
{
    QStringList texts;
    QList<bool> isNumber; ///< for each placeholder
};

// The length of the placeholder at a percent sign; 0 if there is none.
qsizetype placeholderLength(QStringView rest)
{
    if (rest.startsWith("%lld"_L1)) {
        return 4;
    }
    const bool isPlaceholder = rest.startsWith("%s"_L1) || (rest.size() > 1 && rest[1].isDigit());
    return isPlaceholder ? 2 : 0;
}

Format takenApart(const QString& format)
{
    Format parts{{QString()}, {}};
    for (qsizetype at = 0; at < format.size();) {
        const QStringView rest = QStringView(format).mid(at);
        const qsizetype length = rest.startsWith(u'%') ? placeholderLength(rest) : 0;
        if (length == 0) {
            parts.texts.last() += rest.front();
            ++at;
            continue;
        }
        parts.isNumber.append(rest.startsWith("%lld"_L1));
        parts.texts.append(QString());
        at += length;
    }
    return parts;
}

bool fits(const QString& argument, bool isNumber)
{
    bool isInteger = true;
    if (isNumber) {
        (void)argument.toLongLong(&isInteger);
    }
    return isInteger;
}

// Matches the placeholders from `index` on against the message from `start` on. An argument may
// contain the text that follows it, so all occurrences of that text are tried.
bool matchArguments(const Format& format, qsizetype index, const QString& message, qsizetype start,
                    QStringList& arguments)
{
    if (index == format.isNumber.size()) {
        return start == message.size();
    }
    const QString& next = format.texts.at(index + 1);
    const bool isLast = index + 1 == format.isNumber.size();
    qsizetype end = isLast ? message.size() - next.size() : message.indexOf(next, start);
    while (end >= start && QStringView(message).mid(end).startsWith(next)) {
        const QString argument = message.mid(start, end - start);
        arguments.append(argument);
        if (fits(argument, format.isNumber.at(index)) &&
            matchArguments(format, index + 1, message, end + next.size(), arguments)) {
            return true;
        }
        arguments.removeLast();
        end = isLast ? -1 : message.indexOf(next, end + 1);
    }
    return false;
}

QString translated(const messages::Translated& message)
{
    return QCoreApplication::translate("QObject", message.text, message.comment);
}

/// A fixed message, and the format of the complete log record.
struct LogMessage
{
    const char* code;
    QString format;
};

std::array<LogMessage, 10> logMessages()
{
    const auto plain = [](const char* text) { return LogMessage{text, QString::fromLatin1(text)}; };
    return {
        LogMessage{messages::VersionRefused.text, translated(messages::VersionRefused) + u" %s"_s},
        plain(messages::RecordTypeUnknown),
        plain(messages::OpeningFailed),
        // Must precede the more general format.
        plain(messages::DocumentParsingFailed),
        plain(messages::ParsingFailed),
        plain(messages::RootElementUnknown),
        LogMessage{messages::ControlUnknown,
                   QString::fromLatin1(messages::ControlUnknown) + u" \"%s\""_s},
        plain(messages::StylesMissing),
        plain(messages::ContentMissing),
        plain(messages::DocumentTypeUnsupported),
    };
}

} // namespace

std::optional<QStringList> argumentsOf(const QString& format, const QString& message)
{
    const Format parts = takenApart(format);
    const QString& first = parts.texts.constFirst();
    QStringList arguments;
    if (!message.startsWith(first) || !matchArguments(parts, 0, message, first.size(), arguments)) {
        return std::nullopt;
    }
    return arguments;
}

KnownMessage recognize(const LogRecord& record)
{
    if (!record.category.isEmpty()) {
        return {record.category, {}};
    }
    for (const LogMessage& message : logMessages()) {
        if (const auto arguments = argumentsOf(message.format, record.message)) {
            return {QString::fromLatin1(message.code), *arguments};
        }
    }
    return {};
}

} // namespace workbench
