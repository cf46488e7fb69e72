#include "tests/archive/test_worker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <csignal>
#include <cstddef>
#include <cstdlib>
#include <vector>

#include <unistd.h>

namespace {

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("fail");
}

void leave(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(bytes);
    }
}

bool isMetFirst(const QString& path)
{
    const QString mark = path + QStringLiteral(".met");
    const bool isFirst = !QFileInfo::exists(mark);
    leave(mark, {});
    return isFirst;
}

/// Writes its number into "FILE.hanging", which may be a pipe, and keeps that open until the end.
[[noreturn]] void hang(const QString& path)
{
    QFile sign(path + QStringLiteral(".hanging"));
    if (sign.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        sign.write(QByteArray::number(::getpid()));
    }
    while (true) {
        ::pause();
    }
}

void takeAllMemory()
{
    std::vector<std::vector<char>> taken;
    while (true) {
        taken.emplace_back(16 * 1024 * 1024, 'x');
    }
}

/// As a library does that does not look at what it is given.
void takeAllMemoryUnasked()
{
    while (true) {
        constexpr std::size_t size = 16 * 1024 * 1024;
        auto* const taken = static_cast<volatile char*>(std::malloc(size));
        for (std::size_t i = 0; i < size; ++i) {
            taken[i] = 'x';
        }
    }
}

archive::FileResult write(const archive::Job& job, const QByteArray& bytes)
{
    archive::FileResult result;
    result.fate = archive::Fate::Done;
    for (const archive::PlannedFile& output : job.outputs) {
        const QString staged =
            QDir(job.staging).filePath(QStringLiteral("staged.") + output.target);
        leave(staged, bytes);
        archive::FileStamp stamp = *archive::stampOf(staged);
        const auto known = archive::stampOf(output.path);
        stamp.path = output.path;
        result.files.append({staged, stamp, known && job.known.contains(*known)});
    }
    if (job.options.value(QLatin1String("report")).toBool()) {
        result.report = {{QStringLiteral("file"), job.shownName}};
    }
    return result;
}

archive::FileResult failure()
{
    archive::FileResult result;
    result.warnings = QStringList{QStringLiteral("take care")};
    result.errors = QStringList{QStringLiteral("it failed")};
    return result;
}

} // namespace

archive::FileResult suffer(const archive::Job& job, const archive::SignOfLife& alive)
{
    const QByteArray content = contentOf(job.file);
    const QByteArray word = content.split(' ').first();
    if (word == "crash" || (word == "crash-once" && isMetFirst(job.file))) {
        std::abort();
    }
    if (word == "kill-once" && isMetFirst(job.file)) {
        ::kill(::getpid(), SIGKILL);
    }
    if (word == "exit") {
        ::_exit(5);
    }
    if (word == "memory") {
        takeAllMemory();
    }
    if (word == "memory-unasked") {
        takeAllMemoryUnasked();
    }
    if (word == "hang") {
        hang(job.file);
    }
    if (word == "alive") {
        for (int step = 0; step < 3; ++step) {
            alive();
        }
    }
    if (word == "fail") {
        return failure();
    }
    return write(job, word == "pid" ? QByteArray::number(::getpid()) : content);
}
