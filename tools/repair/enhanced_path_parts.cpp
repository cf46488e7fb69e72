#include "repair/enhanced_path_parts.h"

namespace repair {

namespace {

struct Command
{
    char16_t name;
    int numbers;
};

constexpr Command Commands[] = {
    {u'M', 2}, {u'L', 2}, {u'C', 6}, {u'Z', 0}, {u'N', 0}, {u'F', 0}, {u'S', 0},
    {u'T', 6}, {u'U', 6}, {u'A', 8}, {u'B', 8}, {u'W', 8}, {u'V', 8}, {u'X', 2},
    {u'Y', 2}, {u'Q', 4}, {u'G', 4}, {u'H', 0}, {u'I', 0}, {u'J', 0}, {u'K', 0},
};

} // namespace

int numbersOfCommand(QChar name)
{
    for (const Command& command : Commands) {
        if (command.name == name) {
            return command.numbers;
        }
    }
    return -1;
}

// Commands may be followed by their first number at once: "M0 0".
QStringList partsOfPath(const QString& path)
{
    QString spaced;
    for (qsizetype i = 0; i < path.size(); ++i) {
        const QChar character = path[i];
        const bool isInName = i > 0 && (path[i - 1].isLetterOrNumber() || path[i - 1] == u'?');
        const bool isCommand = character.isUpper() && !isInName;
        const QChar blank = u' ';
        spaced += character == u',' ? blank : character;
        if (isCommand) {
            spaced += blank;
        }
    }
    return spaced.split(u' ', Qt::SkipEmptyParts);
}

} // namespace repair
