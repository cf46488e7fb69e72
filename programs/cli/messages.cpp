#include "cli/messages.h"

#include <cstdio>

namespace cli {
namespace {

void write(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toLocal8Bit();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

} // namespace

void printResult(const QString& line)
{
    write(stdout, line + QLatin1Char('\n'));
}

void printMessage(const QString& text)
{
    write(stderr, QStringLiteral("labelport: ") + text + QLatin1Char('\n'));
}

void printText(const QString& text)
{
    write(stdout, text);
}

} // namespace cli
