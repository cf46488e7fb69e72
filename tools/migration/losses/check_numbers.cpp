#include "migration/losses/check_numbers.h"

#include <QSet>

namespace migration {

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

} // namespace migration
