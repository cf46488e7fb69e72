#include "workbench/import/failure_text.h"

#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "workbench/import/known_messages.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

using namespace Qt::StringLiterals;

// The readers' messages on failure, and their explanations for users. %1 and so on are the
// arguments of the message.
struct FailureRow
{
    const char* code;
    const char* words;
};

#define TEXT(text) QT_TRANSLATE_NOOP("workbench::FailureText", text)
constexpr std::array FailureRows{
    FailureRow{
        messages::VersionRefused.text,
        TEXT("Not a binary label, or one of an unsupported version: the file has version %1, the "
             "oldest supported version is 2000016.")},
    FailureRow{messages::RecordTypeUnknown,
               TEXT("Not a label, or a damaged one: the first object has the unknown type %1.")},
    FailureRow{messages::OpeningFailed, TEXT("Cannot open the file.")},
    FailureRow{messages::DocumentParsingFailed,
               TEXT("The document is damaged: %1 is not well-formed at line %2, column %3 (%4).")},
    FailureRow{
        messages::ParsingFailed,
        TEXT("Not a label, or a damaged one: the XML is not well-formed at line %2, column %3 "
             "(%4).")},
    FailureRow{messages::RootElementUnknown,
               TEXT("The file is XML, but not a label: its root element is not \"qmtx\".")},
    FailureRow{
        messages::StylesMissing,
        TEXT("Not an OpenDocument file, or a damaged one: styles.xml is missing or unreadable.")},
    FailureRow{messages::ContentMissing,
               TEXT("The OpenDocument file is damaged: content.xml is missing or unreadable.")},
    FailureRow{refusals::NotAFile, TEXT("This is not a regular file.")},
    FailureRow{refusals::FileTooLarge, TEXT("The file is too large for a label.")},
    FailureRow{refusals::TooManyControls, TEXT("The file has too many objects for a label.")},
};
constexpr const char* NothingFound = TEXT("The file contains nothing to put on a label.");
#undef TEXT

QString translatedFailure(const char* words)
{
    return QCoreApplication::translate("workbench::FailureText", words);
}

// All placeholders at once: an argument may look like one.
QString filled(const QString& words, const QStringList& arguments)
{
    QString result;
    for (qsizetype at = 0; at < words.size(); ++at) {
        const int number = words.at(at) == u'%' ? words.mid(at + 1, 1).toInt() : 0;
        if (number > 0) {
            result += arguments.value(number - 1);
            ++at;
        } else {
            result += words.at(at);
        }
    }
    return result;
}

QString textFor(const LogRecord& record)
{
    const KnownMessage message = recognize(record);
    const auto* row = std::find_if(FailureRows.begin(), FailureRows.end(),
                                   [&message](const FailureRow& candidate) {
                                       return message.code == QLatin1String(candidate.code);
                                   });
    return row != FailureRows.end() ? filled(translatedFailure(row->words), message.arguments)
                                    : QString();
}

QString lastError(const QList<LogRecord>& records)
{
    const auto error = std::find_if(records.crbegin(), records.crend(),
                                    [](const LogRecord& record) { return record.isError; });
    return error != records.crend() ? error->message : QString();
}

} // namespace

QString importFailureReason(const QList<LogRecord>& records, const QStringList& messages)
{
    for (auto record = records.crbegin(); record != records.crend(); ++record) {
        const QString words = textFor(*record);
        if (!words.isEmpty()) {
            return words;
        }
    }
    if (!messages.isEmpty()) {
        return messages.join(u'\n');
    }
    const QString error = lastError(records);
    return error.isEmpty() ? translatedFailure(NothingFound) : error;
}

} // namespace workbench
