#pragma once

#include <QString>

namespace migration {

/// A text of unknown origin for use between tags and in quoted attributes.
[[nodiscard]] inline QString escaped(const QString& text)
{
    // What HTML does not allow at all would be read as something else or not at all.
    QString allowed = text;
    for (QChar& c : allowed) {
        const bool isControl = c.unicode() < 0x20 && c != u'\n' && c != u'\t';
        if (isControl || c.unicode() == 0x7F) {
            c = QChar::ReplacementCharacter;
        }
    }
    return allowed.toHtmlEscaped().replace(u'\'', QStringLiteral("&#39;"));
}

} // namespace migration
