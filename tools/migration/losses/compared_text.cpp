#include "migration/losses/compared_text.h"

#include <QStringList>

namespace migration {

QString squeezed(const QString& text)
{
    return text.simplified().remove(u' ');
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
