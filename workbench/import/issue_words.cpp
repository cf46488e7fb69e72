#include "workbench/import/issue_words.h"

#include "host/services/white_space.h"
#include "workbench/canvas/canvas.h"

#include <QCoreApplication>
#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace workbench {

namespace {

// Debug records that tell of something left out, and what they mean. All other debug
// records are for developers; error records are shown as they are where they are not here.
struct Row
{
    const char* pattern;
    const char* words;
};

constexpr std::array kRows{
    Row{R"re(^Not processing: "?([^"]*)"?$)re",
        QT_TRANSLATE_NOOP("workbench::IssueWords",
                          "An object of the kind \"%1\" was left out: the kind is not known.")},
    Row{R"re(^Left out of the label: (.*)$)re",
        QT_TRANSLATE_NOOP("workbench::IssueWords", "Left out of the label: %1")},
    Row{R"re(^Unsupported document type\.)re",
        QT_TRANSLATE_NOOP("workbench::IssueWords",
                          "The document is neither a text nor a drawing: nothing was taken from "
                          "it.")},
    Row{R"re(^Invalid type: (-?\d+))re",
        QT_TRANSLATE_NOOP("workbench::IssueWords",
                          "The file goes on with a record of an unknown kind (%1): nothing was "
                          "read from there on.")},
};

QString wordsFor(const LogRecord& record)
{
    for (const Row& row : kRows) {
        const QRegularExpression pattern(QString::fromLatin1(row.pattern),
                                         QRegularExpression::DotMatchesEverythingOption);
        const QRegularExpressionMatch match = pattern.match(record.message);
        if (match.hasMatch()) {
            return QCoreApplication::translate("workbench::IssueWords", row.words)
                .replace(QStringLiteral("%1"), match.captured(1));
        }
    }
    return record.isError ? record.message : QString();
}

// A message box lists its issues line by line; an indented line belongs to the one before.
QStringList linesOf(const QString& message)
{
    static const QRegularExpression lineEnd(QStringLiteral("\n(?!\t)"));
    return message.split(lineEnd, Qt::SkipEmptyParts);
}

// A note on a text begins with the text in quotation marks, its white space made one.
int itemNamedBy(const QString& line, const Canvas& canvas)
{
    const QList<CanvasItem*>& items = canvas.items();
    for (qsizetype index = 0; index < items.size(); ++index) {
        const std::optional<TextValues> text = items.at(index)->values().text;
        if (!text || text->text.isEmpty()) {
            continue;
        }
        QString quoted = text->text;
        quoted.replace(WhiteSpace::getWhiteSpacesSplitRegex(), QStringLiteral(" "));
        if (line.startsWith(QLatin1Char('"') + quoted + QLatin1Char('"'))) {
            return static_cast<int>(index);
        }
    }
    return -1;
}

void add(QList<ImportIssue>& issues, const QString& text, int item)
{
    const auto same = std::find_if(issues.begin(), issues.end(), [&](const ImportIssue& issue) {
        return issue.item == item && issue.text == text;
    });
    if (same == issues.end()) {
        issues.append({text, item, 1});
    } else {
        ++same->repeats;
    }
}

} // namespace

QList<ImportIssue> collectIssues(const Canvas& canvas, const QList<LogRecord>& records,
                                 const QStringList& messages)
{
    QList<ImportIssue> issues;
    for (const QString& message : messages) {
        for (const QString& line : linesOf(message)) {
            const bool isNote = line.startsWith(QLatin1Char('"'));
            add(issues, line, isNote ? itemNamedBy(line, canvas) : -1);
        }
    }
    for (const LogRecord& record : records) {
        const QString words = wordsFor(record);
        if (!words.isEmpty()) {
            add(issues, words, -1);
        }
    }
    for (qsizetype index = 0; index < canvas.items().size(); ++index) {
        const QString problem = canvas.items().at(index)->issue();
        if (!problem.isEmpty()) {
            add(issues, problem, static_cast<int>(index));
        }
    }
    return issues;
}

} // namespace workbench
