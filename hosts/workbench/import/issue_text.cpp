#include "workbench/import/issue_text.h"

#include "host/services/white_space.h"
#include "messages/reader_messages.h"
#include "messages/refusals.h"
#include "workbench/canvas/canvas.h"
#include "workbench/import/known_messages.h"

#include <QCoreApplication>
#include <QHash>

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace workbench {

namespace {

using namespace Qt::StringLiterals;

struct IssueRow
{
    const char* code;
    const char* words; ///< %1: the first argument of the message
};

#define TEXT(text) QT_TRANSLATE_NOOP("workbench::IssueText", text)
// Other debug records are for developers; other error records are shown unchanged.
constexpr std::array IssueRows{
    IssueRow{messages::ControlUnknown, TEXT("Left out an object of the unknown type \"%1\".")},
    IssueRow{messages::DocumentTypeUnsupported,
             TEXT("The document is neither a text nor a drawing; nothing was imported from it.")},
    IssueRow{
        messages::RecordTypeUnknown,
        TEXT("The file continues with an object of the unknown type %1; the rest was not read.")},
    IssueRow{messages::SymbolsUnreadable.text,
             TEXT("Left out symbols: neither the file nor the symbol databases contain their "
                  "drawings.")},
    IssueRow{messages::BarcodesUnsupported.text, TEXT("Left out barcodes of unsupported types.")},
    IssueRow{messages::DatabaseNotConnected.text,
             TEXT("The database is no longer connected; the label shows its last values.")},
    IssueRow{refusals::ItemRefused, TEXT("Left out an object that the program could not create.")},
    IssueRow{refusals::DatasourceRefused,
             TEXT("Left out a data source that the program could not create.")},
    IssueRow{refusals::PictureTooLarge, TEXT("Left out a picture that is too large.")},
    IssueRow{refusals::PictureFormat, TEXT("Left out a picture of an unsupported format.")},
    IssueRow{refusals::PictureUnreadable, TEXT("Left out a picture that is damaged or too large.")},
    IssueRow{refusals::TextTooLong, TEXT("Left out a text that is too long.")},
    IssueRow{refusals::TooManyItems, TEXT("The file has too many objects; the rest was not read.")},
    IssueRow{refusals::TooManyNotes, TEXT("Further texts were stretched; they are not listed.")},
    IssueRow{refusals::PackageMemberUnreadable,
             TEXT("A file in the package is missing, damaged or too large.")},
    IssueRow{refusals::PackagePictureUnreadable,
             TEXT("Left out a picture that is damaged or too large.")},
    IssueRow{refusals::PackageDrawingUnreadable,
             TEXT("Left out a drawing that cannot be converted.")},
};
// %1 is a text, %2 a size in points.
constexpr const char* StretchedText = TEXT("Text \"%1\" was stretched; its font size was %2 pt.");
#undef TEXT

QString translatedIssue(const char* words)
{
    return QCoreApplication::translate("workbench::IssueText", words);
}

QString textFor(const KnownMessage& message)
{
    const auto* row =
        std::find_if(IssueRows.begin(), IssueRows.end(), [&message](const IssueRow& candidate) {
            return message.code == QLatin1String(candidate.code);
        });
    return row != IssueRows.end()
               ? translatedIssue(row->words).replace(u"%1"_s, message.arguments.value(0))
               : QString();
}

/// Finds the items that notes on texts refer to.
class TextFinder
{
public:
    explicit TextFinder(const Canvas& canvas);
    /// The index of the first item with this text after QString::simplified(); else -1.
    [[nodiscard]] int itemWithText(const QString& text) const { return m_items.value(text, -1); }

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
        QString simplified = text->text;
        simplified.replace(WhiteSpace::getWhiteSpacesSplitRegex(), u" "_s);
        if (!m_items.contains(simplified)) {
            m_items.insert(simplified, static_cast<int>(index));
        }
    }
}

/// Issues without duplicates.
class IssueList
{
public:
    void add(const ImportIssue& issue);
    [[nodiscard]] const QList<ImportIssue>& issues() const { return m_issues; }

private:
    QList<ImportIssue> m_issues;
    QHash<std::pair<int, QString>, qsizetype> m_places;
};

void IssueList::add(const ImportIssue& issue)
{
    const auto place = m_places.constFind({issue.item, issue.text});
    if (place == m_places.constEnd()) {
        m_places.insert({issue.item, issue.text}, m_issues.size());
        m_issues.append(issue);
    } else {
        m_issues[*place].repeats += issue.repeats;
    }
}

QString boxText(const messages::Translated& message)
{
    return QCoreApplication::translate("QObject", message.text, message.comment);
}

/// Splits the text of a message box: sentences in a fixed order, notes on texts among them.
class BoxReader
{
public:
    BoxReader(const QString& text, const Canvas& canvas, IssueList& issues)
        : m_canvas(canvas)
        , m_issues(issues)
        , m_lines(text.split(u'\n', Qt::SkipEmptyParts))
    {}

    void read();

private:
    [[nodiscard]] bool takeSentence(const messages::Translated& sentence);
    [[nodiscard]] bool takeNote();
    void addNote(const QString& text, const QString& points);

    const Canvas& m_canvas;
    IssueList& m_issues;
    QStringList m_lines;
    std::optional<TextFinder> m_finder;
};

void BoxReader::read()
{
    while (!m_lines.isEmpty()) {
        if (!takeSentence(messages::SymbolsUnreadable) &&
            !takeSentence(messages::BarcodesUnsupported) &&
            !takeSentence(messages::DatabaseNotConnected) && !takeNote()) {
            m_issues.add({m_lines.takeFirst()});
        }
    }
}

bool BoxReader::takeSentence(const messages::Translated& sentence)
{
    const QStringList lines = boxText(sentence).split(u'\n', Qt::SkipEmptyParts);
    if (m_lines.first(std::min(lines.size(), m_lines.size())) != lines) {
        return false;
    }
    m_lines.remove(0, lines.size());
    const QString code = QString::fromLatin1(sentence.text);
    m_issues.add({.text = textFor({code, {}}), .code = code});
    return true;
}

bool BoxReader::takeNote()
{
    const QString format = u"\"%s\""_s + boxText(messages::TextStretched);
    const qsizetype lines = format.count(u'\n') + 1;
    if (m_lines.size() < lines) {
        return false;
    }
    const auto arguments = argumentsOf(format, m_lines.first(lines).join(u'\n'));
    if (!arguments) {
        return false;
    }
    m_lines.remove(0, lines);
    addNote(arguments->value(0), arguments->value(1));
    return true;
}

void BoxReader::addNote(const QString& text, const QString& points)
{
    if (!m_finder) {
        m_finder.emplace(m_canvas);
    }
    m_issues.add({.text = translatedIssue(StretchedText).arg(text, points),
                  .item = m_finder->itemWithText(text),
                  .code = QString::fromLatin1(messages::TextStretched.text)});
}

void addRecord(const LogRecord& record, IssueList& issues)
{
    const KnownMessage message = recognize(record);
    const QString words = textFor(message);
    if (!words.isEmpty()) {
        issues.add({.text = words, .code = message.code});
    } else if (record.isError) {
        issues.add({.text = record.message, .code = message.code});
    }
}

} // namespace

QList<ImportIssue> collectIssues(const Canvas& canvas, const QList<LogRecord>& records,
                                 const QStringList& messages)
{
    IssueList issues;
    for (const QString& message : messages) {
        BoxReader(message, canvas, issues).read();
    }
    for (const LogRecord& record : records) {
        addRecord(record, issues);
    }
    for (qsizetype index = 0; index < canvas.items().size(); ++index) {
        const QString problem = canvas.items().at(index)->issue();
        if (!problem.isEmpty()) {
            issues.add({.text = problem, .item = static_cast<int>(index)});
        }
    }
    return issues.issues();
}

} // namespace workbench
