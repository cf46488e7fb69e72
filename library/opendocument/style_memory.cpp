#include "opendocument/style_memory.h"

namespace opendocument {

namespace {

// A style, its name and their node in the map, without the characters.
constexpr qint64 Node = 320;

qint64 lettersOf(const OOTextStyle& style)
{
    return style.fontFamily.size() + style.textColor.size();
}

qint64 lettersOf(const OOGraphicStyle& style)
{
    return style.penColor.size() + style.fillColor.size();
}

template <class Style>
qint64 memoryOfAll(const QMap<QString, Style>& styles)
{
    qint64 bytes = 0;
    for (auto style = styles.begin(); style != styles.end(); ++style) {
        bytes += Node + 2 * (style.key().size() + lettersOf(style.value()));
    }
    return bytes;
}

} // namespace

qint64 memoryOf(const QMap<QString, OOTextStyle>& styles)
{
    return memoryOfAll(styles);
}

qint64 memoryOf(const QMap<QString, OOGraphicStyle>& styles)
{
    return memoryOfAll(styles);
}

} // namespace opendocument
