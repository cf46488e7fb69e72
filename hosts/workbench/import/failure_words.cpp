#include "workbench/import/failure_words.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <array>

namespace workbench {

namespace {

// What readers log when they give up, and what that means to the person who has the file.
// The words may take over what the pattern captured.
struct Row
{
    const char* pattern;
    const char* words;
};

// The one of them that the reader says in the program's language (no translation: it has one).
constexpr const char* VersionRefused = "Invalid canvas file version";

constexpr std::array kRows{
    Row{VersionRefused,
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The file is no binary label, or one of a version that cannot be read: "
                          "it says version %1, but 2000016 is the oldest that can.")},
    Row{R"(^Error opening file)",
        QT_TRANSLATE_NOOP("workbench::FailureWords", "The file cannot be opened.")},
    Row{R"(is too large: (.*)$)",
        QT_TRANSLATE_NOOP("workbench::FailureWords", "The file is too large for a label: %1.")},
    Row{R"(^Error parsing file: .* / (styles\.xml|content\.xml) at line (\d+), column (\d+):\n(.*)$)",
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The document is damaged: its part %1 is not well-formed at line %2, "
                          "column %3 (%4).")},
    Row{R"(^Error parsing file: .* at line (\d+), column (\d+):\n(.*)$)",
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The file is no label or a damaged one: it is not well-formed XML at "
                          "line %1, column %2 (%3).")},
    Row{R"(not a orvanta doc$)",
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The file is XML, but not a label: its outermost element is not "
                          "\"qmtx\".")},
    Row{R"(^Invalid type: (-?\d+))",
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The file is no label, or a damaged one: its first item is of an "
                          "unknown kind (%1).")},
    Row{R"(^Unable to get file styles\.)",
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The file is no OpenDocument file, or a damaged one: it has no "
                          "readable part styles.xml.")},
    Row{R"(^Unable to get file content\.)",
        QT_TRANSLATE_NOOP("workbench::FailureWords",
                          "The OpenDocument file is damaged: it has no readable part "
                          "content.xml.")},
};

QString translated(const char* words)
{
    return QCoreApplication::translate("workbench::FailureWords", words);
}

QString versionRefusedPattern()
{
    const QString text = QCoreApplication::translate(
        "QObject", "Invalid canvas file version (%1 != %2) in", "Content of error message.");
    return QLatin1Char('^') + QRegularExpression::escape(text)
                                  .replace(QLatin1String("\\%1"), QLatin1String("(\\d+)"))
                                  .replace(QLatin1String("\\%2"), QLatin1String("\\d+"));
}

QString patternOf(const Row& row)
{
    return row.pattern == VersionRefused ? versionRefusedPattern()
                                         : QString::fromLatin1(row.pattern);
}

QString wordsFor(const QString& message)
{
    for (const Row& row : kRows) {
        const QRegularExpression pattern(patternOf(row),
                                         QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = pattern.match(message);
        if (!match.hasMatch()) {
            continue;
        }
        QString words = translated(row.words);
        for (int group = 1; group <= match.lastCapturedIndex(); ++group) {
            words.replace(QStringLiteral("%%1").arg(group), match.captured(group));
        }
        return words;
    }
    return {};
}

QString lastError(const QList<LogRecord>& records)
{
    for (auto record = records.crbegin(); record != records.crend(); ++record) {
        if (record->isError) {
            return record->message;
        }
    }
    return {};
}

} // namespace

QString whyImportFailed(const QList<LogRecord>& records, const QStringList& messages)
{
    for (auto record = records.crbegin(); record != records.crend(); ++record) {
        const QString words = wordsFor(record->message);
        if (!words.isEmpty()) {
            return words;
        }
    }
    if (!messages.isEmpty()) {
        return messages.join(QLatin1Char('\n'));
    }
    const QString error = lastError(records);
    return error.isEmpty() ? translated(QT_TRANSLATE_NOOP("workbench::FailureWords",
                                                          "The file holds nothing that can be "
                                                          "put on a label."))
                           : error;
}

} // namespace workbench
