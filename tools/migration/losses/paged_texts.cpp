#include "migration/losses/paged_texts.h"

#include "migration/losses/compared_text.h"

namespace migration {

namespace {

// Letters: fewer are found in any text.
constexpr qsizetype ShortestPiece = 8;

// Whether all of a text is shown. A paragraph may continue on the next page.
bool isTextIn(QStringView text, const QString& shown)
{
    constexpr int PageCount = 4; // of one paragraph
    for (int piece = 0; piece < PageCount && !text.isEmpty(); ++piece) {
        if (shown.contains(text)) {
            return true;
        }
        qsizetype found = 0; // as many letters are on one page
        for (qsizetype tooMany = text.size(); tooMany - found > 1;) {
            const qsizetype middle = (found + tooMany) / 2;
            (shown.contains(text.left(middle)) ? found : tooMany) = middle;
        }
        if (found < ShortestPiece) {
            return false;
        }
        text = text.mid(found);
    }
    return text.isEmpty();
}

} // namespace

void PagedTexts::addPage(const LabelFacts& label)
{
    for (const QString& text : label.missingTexts) {
        ++m_missing[text];
    }
    for (const ItemFacts& item : label.items) {
        m_shown += squeezed(item.text);
    }
    m_shown += QChar::LineFeed;
    ++m_pages;
}

Tally PagedTexts::missing(const Census& document) const
{
    QMap<QString, qint64> runningTexts;
    for (const CountedObject& object : document.objects) {
        if (object.objectClass == ObjectClass::Text && object.appearance >= 0 &&
            document.appearances.at(object.appearance).page == 0) {
            ++runningTexts[document.appearances.at(object.appearance).text.simplified()];
        }
    }
    Tally tally;
    for (auto text = m_missing.begin(); text != m_missing.end(); ++text) {
        const qint64 count = runningTexts.value(text.key());
        const qint64 missing = text.value() - count * (m_pages - 1);
        const bool isOnNoPage = missing >= count;
        if (isOnNoPage && isTextIn(squeezed(text.key()), m_shown)) {
            continue;
        }
        for (qint64 each = 0; each < missing; ++each) {
            noteMissingText(text.key(), tally);
        }
    }
    return tally;
}

// The labels show the text in the order of the document.
qint64 PagedTexts::leftOut(const Census& document) const
{
    constexpr qsizetype LettersAhead = 20'000; // more than a page
    qint64 count = 0;
    qsizetype reached = 0;
    for (const CountedObject& object : document.objects) {
        if (object.objectClass != ObjectClass::Text || object.appearance < 0 ||
            object.lost == LossKind::HeaderOrFooter ||
            document.appearances.at(object.appearance).page > 0) {
            continue;
        }
        const QString text = squeezed(document.appearances.at(object.appearance).text);
        const QStringView ahead = QStringView(m_shown).mid(reached, LettersAhead);
        const QStringView start = QStringView(text).left(ShortestPiece);
        const qsizetype found = ahead.indexOf(start);
        if (found < 0) {
            ++count;
        } else if (text.size() >= ShortestPiece) {
            reached += found + start.size();
        }
    }
    return count;
}

} // namespace migration
