#include "workbench/import/issue_words.h"

#include "host/services/white_space.h"
#include "workbench/canvas/canvas.h"

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>

#include <array>
#include <optional>
#include <utility>
#include <vector>

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

struct Pattern
{
    QRegularExpression expression;
    const char* words;
};

const std::vector<Pattern>& patterns()
{
    static const std::vector<Pattern> made = [] {
        std::vector<Pattern> all;
        for (const Row& row : kRows) {
            all.push_back({QRegularExpression(QString::fromLatin1(row.pattern),
                                              QRegularExpression::DotMatchesEverythingOption),
                           row.words});
        }
        return all;
    }();
    return made;
}

QString wordsFor(const LogRecord& record)
{
    for (const Pattern& pattern : patterns()) {
        const QRegularExpressionMatch match = pattern.expression.match(record.message);
        if (match.hasMatch()) {
            return QCoreApplication::translate("workbench::IssueWords", pattern.words)
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

/// Finds the texts that notes are about.
class TextFinder
{
public:
    explicit TextFinder(const Canvas& canvas);
    [[nodiscard]] int itemNamedBy(const QString& note) const;

private:
    QHash<QString, int> m_items;
};

TextFinder::TextFinder(const Canvas& canvas)
{
    const QList<CanvasItem*>& items = canvas.items();
    for (qsizetype index = 0; index < items.size(); ++index) {
        const std::optional<TextValues> text = items.at(index)->values().text;
        if (!text || text->text.isEmpty()) {
            continue;
        }
        QString quoted = text->text;
        quoted.replace(WhiteSpace::getWhiteSpacesSplitRegex(), QStringLiteral(" "));
        if (!m_items.contains(quoted)) {
            m_items.insert(quoted, static_cast<int>(index));
        }
    }
}

// A note on a text begins with the text in quotation marks, its white space made one.
int TextFinder::itemNamedBy(const QString& note) const
{
    const qsizetype end = note.lastIndexOf(QLatin1Char('"'));
    return m_items.value(note.mid(1, end - 1), -1);
}

/// Issues, each once.
class IssueList
{
public:
    void add(const QString& text, int item, int repeats = 1);
    [[nodiscard]] const QList<ImportIssue>& issues() const { return m_issues; }

private:
    QList<ImportIssue> m_issues;
    QHash<std::pair<int, QString>, qsizetype> m_places;
};

void IssueList::add(const QString& text, int item, int repeats)
{
    const auto place = m_places.constFind({item, text});
    if (place == m_places.constEnd()) {
        m_places.insert({item, text}, m_issues.size());
        m_issues.append({text, item, repeats});
    } else {
        m_issues[*place].repeats += repeats;
    }
}

void addMessages(const QStringList& messages, const Canvas& canvas, IssueList& issues)
{
    std::optional<TextFinder> finder;
    for (const QString& message : messages) {
        for (const QString& line : linesOf(message)) {
            if (!line.startsWith(QLatin1Char('"'))) {
                issues.add(line, -1);
                continue;
            }
            if (!finder) {
                finder.emplace(canvas);
            }
            issues.add(line, finder->itemNamedBy(line));
        }
    }
}

} // namespace

QList<ImportIssue> collectIssues(const Canvas& canvas, const QList<LogRecord>& records,
                                 const QStringList& messages)
{
    IssueList issues;
    addMessages(messages, canvas, issues);
    for (const LogRecord& record : records) {
        const QString words = wordsFor(record);
        if (!words.isEmpty()) {
            issues.add(words, -1);
        }
    }
    for (qsizetype index = 0; index < canvas.items().size(); ++index) {
        const QString problem = canvas.items().at(index)->issue();
        if (!problem.isEmpty()) {
            issues.add(problem, static_cast<int>(index));
        }
    }
    return issues.issues();
}

} // namespace workbench
