#include "migration/losses/compared_text.h"

#include "migration/model/appearance.h"

#include <QStringList>

#include <algorithm>

namespace migration {

QString squeezed(const QString& text)
{
    return text.simplified().remove(u' ');
}

bool isIn(const QString& text, const QString& shown)
{
    const QStringList parts = text.split(VariableText, Qt::SkipEmptyParts);
    return std::all_of(parts.begin(), parts.end(),
                       [&shown](const QString& part) { return shown.contains(part); });
}

bool isInOneItem(const QString& text, const QString& items)
{
    const QStringList lines = text.split(QChar::LineFeed);
    const QStringList shown = items.split(QChar::LineFeed);
    return lines.size() > 1 &&
           std::any_of(shown.begin(), shown.end(), [&lines](const QString& item) {
               qsizetype from = 0;
               return std::all_of(lines.begin(), lines.end(), [&](const QString& line) {
                   const QString key = squeezed(line);
                   const qsizetype at = item.indexOf(key, from);
                   from = at + key.size();
                   return at >= 0;
               });
           });
}

QString canonical(const QString& text)
{
    QStringList lines;
    for (const QString& line : text.split(QChar::LineFeed)) {
        lines.append(line.simplified());
    }
    while (!lines.isEmpty() && lines.constLast().isEmpty()) {
        lines.removeLast();
    }
    while (!lines.isEmpty() && lines.constFirst().isEmpty()) {
        lines.removeFirst();
    }
    return lines.join(QChar::LineFeed);
}

} // namespace migration
