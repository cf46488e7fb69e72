#include "console/output.h"

#include "console/file_name.h"

#include <QCoreApplication>
#include <QFile>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace console {
namespace {

using namespace Qt::StringLiterals;

/// The name of the program, and the first error of standard output (0 for none).
struct State
{
    QString name;
    int error = 0;
};

State& state()
{
    static State state;
    return state;
}

void write(const QByteArray& bytes)
{
    const auto size = static_cast<std::size_t>(bytes.size());
    errno = 0;
    if ((std::fwrite(bytes.constData(), 1, size, stdout) != size || std::fflush(stdout) != 0) &&
        state().error == 0) {
        state().error = errno;
    }
}

} // namespace

void prepareStreams(const QString& name)
{
    state().name = name;
    std::signal(SIGPIPE, SIG_IGN);
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (::fcntl(stream, F_GETFD) == -1) {
            // Opened for the wrong direction, so that using the stream fails as if it were closed.
            const int flags = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
            [[maybe_unused]] const int descriptor = ::open("/dev/null", flags);
        }
    }
}

void printFileName(const QString& name, bool endsWithNull)
{
    if (endsWithNull) {
        write(fileNameToBytes(name) + '\0');
    } else if (::isatty(STDOUT_FILENO) == 1) {
        write(shownFileName(name).toUtf8() + '\n');
    } else {
        write(fileNameToBytes(name) + '\n');
    }
}

void printText(const QString& text)
{
    write(shownText(text).toLocal8Bit());
}

void printBytes(const QByteArray& bytes)
{
    write(bytes);
}

QString printFile(const QString& fileName)
{
    constexpr qint64 blockSize = 1024 * 1024;
    const ReachablePath reachable(fileName);
    QFile file(reachable.path());
    bool isRead = file.open(QIODevice::ReadOnly);
    while (isRead && !file.atEnd()) {
        const QByteArray block = file.read(blockSize);
        isRead = !block.isEmpty();
        write(block);
    }
    return isRead ? QString()
                  : QCoreApplication::translate("console::Output", "Cannot read \"%1\": %2.")
                        .arg(fileName, file.errorString());
}

void printMessage(const QString& text)
{
    const QByteArray line = (state().name + u": "_s + shownText(text) + u'\n').toLocal8Bit();
    std::fwrite(line.constData(), 1, static_cast<std::size_t>(line.size()), stderr);
    std::fflush(stderr);
}

int finishOutput(int status)
{
    write({});
    if (state().error == 0) {
        return status;
    }
    printMessage(
        QCoreApplication::translate("console::Output", "Cannot write to standard output: %1.")
            .arg(QString::fromLocal8Bit(std::strerror(state().error))));
    return ExitFailure;
}

} // namespace console
