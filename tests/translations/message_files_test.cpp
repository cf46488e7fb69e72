// The message files are complete, and translations match the program's texts.

#include "tests/translations/message_file.h"

#include <QRegularExpression>
#include <QSet>

#include <gtest/gtest.h>

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList sortedMatches(const QString& text, const char* pattern)
{
    QStringList found;
    const QRegularExpression expression(QString::fromLatin1(pattern));
    for (auto match = expression.globalMatch(text); match.hasNext();) {
        found.append(match.next().captured());
    }
    std::sort(found.begin(), found.end());
    return found;
}

QString lineEnds(const QString& text)
{
    QString found = text;
    return found.remove(QRegularExpression(u"[^\n\t]"_s));
}

qsizetype keysMarked(const QString& text)
{
    return sortedMatches(text, "&(?=[^\\s&])").size();
}

/// The final punctuation of a text, if it has a meaning: period, question mark, ellipsis, colon.
QString endOf(const QString& text)
{
    static const QRegularExpression end(u"[.?:…]$"_s);
    return end.match(text).captured();
}

/// The unique key of a message.
QString nameOf(const Message& message)
{
    return message.context + u": "_s + message.source + u" / "_s + message.comment;
}

/// Every form that a message has in a language.
QStringList wordings(const Message& message)
{
    return message.forms.isEmpty() ? QStringList{message.translation} : message.forms;
}

class MessageFileTest : public ::testing::TestWithParam<const char*>
{
protected:
    const MessageFile file = readMessages(QString::fromLatin1(GetParam()));
    const MessageFile code = readMessages(u"template"_s);
};

TEST_P(MessageFileTest, IsOfItsLanguage)
{
    EXPECT_EQ(file.language, QLatin1String(GetParam()));
    EXPECT_EQ(code.language, QLatin1String("en"));
}

TEST_P(MessageFileTest, HasEveryTextOfTheCodeTranslated)
{
    QSet<QString> translated;
    for (const Message& each : file.messages) {
        EXPECT_TRUE(each.isFinished) << qPrintable(nameOf(each));
        for (const QString& wording : wordings(each)) {
            EXPECT_FALSE(wording.isEmpty()) << qPrintable(nameOf(each));
        }
        translated.insert(nameOf(each));
    }
    ASSERT_GT(code.messages.size(), 400);
    for (const Message& each : code.messages) {
        EXPECT_TRUE(translated.contains(nameOf(each))) << qPrintable(nameOf(each));
    }
    EXPECT_EQ(file.messages.size(), code.messages.size());
}

TEST_P(MessageFileTest, FillsInTheSameValues)
{
    for (const Message& each : file.messages) {
        for (const QString& wording : wordings(each)) {
            EXPECT_EQ(sortedMatches(wording, "%L?(\\d|n)"),
                      sortedMatches(each.source, "%L?(\\d|n)"))
                << qPrintable(each.source + u'\n' + wording);
        }
    }
}

TEST_P(MessageFileTest, NamesTheSameFilesOptionsAndKeys)
{
    // File patterns, long options, exit statuses: what a user types must not be translated.
    for (const Message& each : file.messages) {
        for (const char* pattern : {"\\*\\.\\w+", "(?<![\\w-])--[a-z][a-z-]*", "\\w+\\.xml"}) {
            for (const QString& wording : wordings(each)) {
                EXPECT_EQ(sortedMatches(wording, pattern), sortedMatches(each.source, pattern))
                    << qPrintable(each.source + u'\n' + wording);
            }
        }
    }
}

TEST_P(MessageFileTest, KeepsTheFormOfEveryText)
{
    for (const Message& each : file.messages) {
        for (const QString& wording : wordings(each)) {
            SCOPED_TRACE(qPrintable(each.source + u'\n' + wording));
            EXPECT_EQ(lineEnds(wording), lineEnds(each.source));
            EXPECT_EQ(keysMarked(wording), keysMarked(each.source));
            EXPECT_EQ(endOf(wording), endOf(each.source));
            EXPECT_EQ(wording.endsWith(u' '), each.source.endsWith(u' '));
        }
    }
}

TEST_P(MessageFileTest, LeavesHardlyAnyTextInEnglish)
{
    // Names, units, and words that are identical in both languages.
    const auto same =
        std::count_if(file.messages.begin(), file.messages.end(), [](const Message& each) {
            return each.translation == each.source &&
                   each.source.contains(QRegularExpression(u"[a-z]{2} [a-z]{2}"_s));
        });
    EXPECT_EQ(same, 0);
}

INSTANTIATE_TEST_SUITE_P(Languages, MessageFileTest, ::testing::Values("de", "fr"),
                         [](const auto& language) { return std::string(language.param); });

} // namespace
