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
using namespace Qt::StringLiterals;

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
    const QString mark = path + u".met"_s;
    const bool isFirst = !QFileInfo::exists(mark);
    leave(mark, {});
    return isFirst;
}

/// Writes its number into "FILE.hanging", which may be a pipe, and keeps that open until the end.
[[noreturn]] void hang(const QString& path)
{
    QFile sign(path + u".hanging"_s);
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
    result.outcome = archive::FileOutcome::Done;
    for (const archive::PlannedFile& output : job.outputs) {
        const QString staged = QDir(job.staging).filePath(u"staged."_s + output.target);
        leave(staged, bytes);
        archive::FileStamp stamp = *archive::stampOf(staged);
        stamp.path = output.path;
        result.files.append({staged, stamp});
    }
    if (job.options.value("report"_L1).toBool()) {
        result.report = {{u"file"_s, job.shownName}};
    }
    return result;
}

archive::FileResult failure()
{
    archive::FileResult result;
    result.warnings = QStringList{u"take care"_s};
    result.errors = QStringList{u"it failed"_s};
    return result;
}

} // namespace

archive::FileResult simulateFault(const archive::Job& job, const archive::Heartbeat& heartbeat)
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
            heartbeat();
        }
    }
    if (word == "fail") {
        return failure();
    }
    return write(job, word == "pid" ? QByteArray::number(::getpid()) : content);
}
