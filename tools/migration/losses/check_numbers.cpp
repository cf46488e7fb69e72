#include "migration/losses/check_numbers.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>

namespace migration {

using namespace Qt::StringLiterals;

// A line with a heading's text and nothing before it.
void checkNumbers(const Census& document, LabelFacts& label)
{
    QSet<QString> lines;
    for (const ItemFacts& item :
         document.numberedHeadings.isEmpty() ? QList<ItemFacts>() : label.items) {
        for (const QString& line : item.text.split(QChar::LineFeed)) {
            lines.insert(line.simplified());
        }
    }
    for (const QString& heading : document.numberedHeadings) {
        if (lines.contains(heading)) {
            ++label.tallies[LossKind::Numbering].count;
            label.tallies[LossKind::Numbering].addDetail(heading);
        }
    }
}

// Of lists that continue earlier ones: the number before a text is another one than in the
// document. The same text may have several numbers.
void checkListNumbers(const Census& document, LabelFacts& label)
{
    QHash<QString, QSet<int>> numbers;
    QSet<QString> continued;
    for (const NumberedItem& item : document.numberedItems) {
        numbers[item.text].insert(item.number);
        if (item.continues) {
            continued.insert(item.text);
        }
    }
    static const QRegularExpression pattern(u"^[^\\w]*(\\d+)[^\\w\\s]*\\s+(.+)$"_s);
    for (const ItemFacts& item : continued.isEmpty() ? QList<ItemFacts>() : label.items) {
        for (const QString& line : item.text.split(QChar::LineFeed)) {
            const QRegularExpressionMatch match = pattern.match(line.simplified());
            const QString text = match.captured(2);
            if (match.hasMatch() && continued.contains(text) &&
                !numbers.value(text).contains(match.captured(1).toInt())) {
                ++label.tallies[LossKind::Numbering].count;
                label.tallies[LossKind::Numbering].addDetail(line.simplified());
            }
        }
    }
}

} // namespace migration
