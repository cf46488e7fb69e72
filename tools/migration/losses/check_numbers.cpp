#include "migration/losses/check_numbers.h"

#include <QSet>

namespace migration {

// A line with a heading's text and nothing before it. The same text may also be a line elsewhere.
void checkNumbers(const Census& document, LabelFacts& label)
{
    QSet<QString> lines;
    QSet<QString> numbered;
    for (const ItemFacts& item :
         document.numberedHeadings.isEmpty() ? QList<ItemFacts>() : label.items) {
        for (const QString& line : item.text.split(QChar::LineFeed)) {
            const QString text = line.simplified();
            lines.insert(text);
            numbered.insert(text.section(u' ', 1));
        }
    }
    for (const QString& heading : document.numberedHeadings) {
        if (lines.contains(heading) && !numbered.contains(heading)) {
            ++label.tallies[LossKind::Numbering].count;
            label.tallies[LossKind::Numbering].addDetail(heading);
        }
    }
}

} // namespace migration
