#include "tests/archive/hostile_worker.h"

#include <QDir>
#include <QFile>
#include <QMap>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <functional>
#include <thread>

#include <arpa/inet.h>
#include <fcntl.h>
#include <netinet/in.h>
#include <sys/ptrace.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {
using namespace Qt::StringLiterals;

/// What is worked on.
struct Scene
{
    const archive::Job& job;
    archive::FileResult result;
};

void put(Scene& scene, const QByteArray& bytes)
{
    for (const archive::PlannedFile& output : scene.job.outputs) {
        const QString staged = QDir(scene.job.staging).filePath(u"1."_s + output.target);
        QFile file(staged);
        if (!file.open(QIODevice::WriteOnly)) {
            scene.result.errors.append(u"staging: "_s + file.errorString());
            return;
        }
        file.write(bytes);
        file.close();
        archive::FileStamp stamp = *archive::stampOf(staged);
        stamp.path = output.path;
        scene.result.files.append({staged, stamp});
    }
}

bool attemptOpen(const QByteArray& path, int flags)
{
    const int descriptor = ::open(path.constData(), flags | O_CLOEXEC, 0600);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
    return descriptor >= 0;
}

bool read(Scene& scene, const QByteArray& path)
{
    if (!attemptOpen(path, O_RDONLY)) {
        return false;
    }
    QFile file(QString::fromUtf8(path));
    put(scene, file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray());
    return true;
}

bool connectTo(const QByteArray& port)
{
    const int descriptor = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port.toUShort());
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return descriptor >= 0 &&
           ::connect(descriptor, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool forkOften()
{
    bool hasForked = false;
    for (int child = 0; child < 1000; ++child) {
        const pid_t number = ::fork();
        if (number == 0) {
            ::_exit(0);
        }
        hasForked = hasForked || number > 0;
        if (number > 0) {
            ::waitpid(number, nullptr, 0);
        }
    }
    return hasForked;
}

bool startThread()
{
    int result = 0;
    std::thread([&result] { result = 1; }).join();
    return result == 1;
}

bool claim(Scene& scene, const QByteArray& path)
{
    scene.result.files.append({QString::fromUtf8(path), {scene.job.outputs.first().path, 1, 1}});
    return true;
}

bool place(Scene& scene, const QByteArray& path)
{
    put(scene, "hostile");
    scene.result.files.last().output.path = QString::fromUtf8(path);
    return true;
}

bool link(Scene& scene, const QByteArray& path)
{
    const QByteArray name = QFile::encodeName(scene.job.staging) + "/link";
    return ::symlink(path.constData(), name.constData()) == 0 && claim(scene, name);
}

using Attack = std::function<bool(Scene& scene, const QByteArray& argument)>;

const QMap<QByteArray, Attack>& attacks()
{
    static const QMap<QByteArray, Attack> all{
        {"write",
         [](Scene& scene, const QByteArray& text) {
             put(scene, text);
             return true;
         }},
        {"read", &read},
        {"spoil", [](Scene&, const QByteArray& path) { return attemptOpen(path, O_WRONLY); }},
        {"create",
         [](Scene&, const QByteArray& path) { return attemptOpen(path, O_WRONLY | O_CREAT); }},
        {"remove", [](Scene&, const QByteArray& path) { return ::unlink(path.constData()) == 0; }},
        {"connect", [](Scene&, const QByteArray& port) { return connectTo(port); }},
        {"execute",
         [](Scene&, const QByteArray& path) {
             ::execl(path.constData(), path.constData(), nullptr);
             return false;
         }},
        {"fork", [](Scene&, const QByteArray&) { return forkOften(); }},
        {"thread", [](Scene&, const QByteArray&) { return startThread(); }},
        {"trace",
         [](Scene&, const QByteArray&) {
             return ::ptrace(PTRACE_ATTACH, ::getppid(), nullptr, nullptr) == 0;
         }},
        {"kill", [](Scene&, const QByteArray&) { return ::kill(::getppid(), SIGTERM) == 0; }},
        {"call",
         [](Scene&, const QByteArray& number) {
             return ::syscall(number.toLong(), 0, 0, 0, 0, 0, 0) >= 0;
         }},
        {"claim", &claim},
        {"place", &place},
        {"link", &link},
    };
    return all;
}

} // namespace

archive::FileResult misbehave(const archive::Job& job, const archive::Heartbeat&)
{
    Scene scene{job, {}};
    QFile file(job.file);
    if (!file.open(QIODevice::ReadOnly)) {
        scene.result.errors.append(u"input: "_s + file.errorString());
    }
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray& line : lines) {
        const QByteArray word = line.split(' ').first();
        const auto attack = attacks().constFind(word);
        errno = 0;
        if (attack != attacks().constEnd() && !(*attack)(scene, line.mid(word.size() + 1))) {
            scene.result.errors.append(QString::fromLatin1(word) + u": "_s +
                                       QString::fromLatin1(std::strerror(errno)));
        }
    }
    scene.result.outcome =
        scene.result.errors.isEmpty() ? archive::FileOutcome::Done : archive::FileOutcome::Failed;
    return scene.result;
}
