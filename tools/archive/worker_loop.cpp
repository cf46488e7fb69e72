#include "archive/worker_loop.h"

#include "archive/worker_end.h"
#include "console/file_name.h"

#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

/// The pipe to the coordinator, kept apart from standard output, which libraries may print to.
class ReplyPipe
{
public:
    ReplyPipe()
        : m_descriptor(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3))
    {
        const int nullDevice = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (nullDevice >= 0) {
            ::dup2(nullDevice, STDOUT_FILENO);
            ::close(nullDevice);
        }
    }

    ~ReplyPipe() { ::close(m_descriptor); }
    ReplyPipe(const ReplyPipe&) = delete;
    ReplyPipe& operator=(const ReplyPipe&) = delete;

    /// Returns false if the coordinator has closed the pipe.
    bool send(const QByteArray& line) const
    {
        const char* rest = line.constData();
        for (qsizetype left = line.size(); left > 0;) {
            const ssize_t written = ::write(m_descriptor, rest, static_cast<std::size_t>(left));
            if (written < 0 && errno != EINTR) {
                return false;
            }
            rest += std::max<ssize_t>(written, 0);
            left -= std::max<ssize_t>(written, 0);
        }
        return true;
    }

private:
    int m_descriptor;
};

/// Lines of standard input. QFile would take a pipe byte by byte, and memory for the longest line.
class Lines
{
public:
    /// A line with its end; less at the end of the input.
    QByteArray next()
    {
        qsizetype end = m_unread.indexOf('\n');
        for (qsizetype searched = m_unread.size(); end < 0 && searched < MaximumLine && readMore();
             searched = m_unread.size()) {
            end = m_unread.indexOf('\n', searched);
        }
        const QByteArray line = m_unread.left(end < 0 ? m_unread.size() : end + 1);
        m_unread.remove(0, line.size());
        return line;
    }

private:
    bool readMore()
    {
        constexpr qsizetype blockSize = 64 * 1024;
        const qsizetype size = m_unread.size();
        m_unread.resize(size + blockSize);
        ssize_t got = -1;
        do {
            got = ::read(STDIN_FILENO, m_unread.data() + size, blockSize);
        } while (got < 0 && errno == EINTR);
        m_unread.resize(size + std::max<ssize_t>(got, 0));
        return got > 0;
    }

    QByteArray m_unread;
};

/// A heartbeat that lists the active parts of the sandbox: "+ files network calls".
QByteArray readyLine(const sandbox::Confinement& confinement)
{
    return "+ " + sandbox::codesOf(confinement).join(u' ').toLatin1() + '\n';
}

/// The memory of the process, in bytes.
qint64 memoryHeld()
{
    QFile file(u"/proc/self/statm"_s);
    if (!file.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QList<QByteArray> fields = file.readLine().split(' ');
    return fields.value(1).toLongLong() * ::sysconf(_SC_PAGESIZE);
}

} // namespace

int runWorker(const JobHandler& handler, const Confine& confine)
{
    const ReplyPipe replies;
    const Heartbeat heartbeat = [&replies] { replies.send("+\n"); };
    Lines jobs;
    const std::optional<WorkerStart> start = workerStartFromLine(jobs.next());
    if (!start) {
        return WorkerExitBroken;
    }
    if (!start->permissions.writable.isEmpty()) {
        // Qt keeps large documents in temporary files.
        qputenv("TMPDIR", console::fileNameToBytes(start->permissions.writable.first()));
    }
    const sandbox::Confinement confinement = confine(start->permissions);
    if (start->requiresSandbox && !confinement.isComplete()) {
        return WorkerExitUnconfined;
    }
    replies.send(readyLine(confinement));
    while (true) {
        const QByteArray line = jobs.next();
        if (line.isEmpty()) {
            return WorkerExitDone;
        }
        const std::optional<Job> job = jobFromLine(line);
        if (!job) {
            return WorkerExitBroken;
        }
        FileResult result = handler(*job, heartbeat);
        result.memory = memoryHeld();
        if (!replies.send(lineOf(result))) {
            return WorkerExitDone;
        }
    }
}

} // namespace archive
