#include "archive/worker_loop.h"

#include "archive/worker_end.h"

#include <QFile>

#include <algorithm>
#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

/// The pipe to the coordinator, kept apart from standard output, which libraries may print to.
class Answers
{
public:
    Answers()
        : m_descriptor(::fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 3))
    {
        const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
        if (nowhere >= 0) {
            ::dup2(nowhere, STDOUT_FILENO);
            ::close(nowhere);
        }
    }

    ~Answers() { ::close(m_descriptor); }
    Answers(const Answers&) = delete;
    Answers& operator=(const Answers&) = delete;

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

/// Bytes of memory that the process has now.
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

int runWorker(const JobHandler& handler)
{
    const Answers answers;
    const Heartbeat heartbeat = [&answers] { answers.send("+\n"); };
    QFile jobs;
    if (!jobs.open(STDIN_FILENO, QIODevice::ReadOnly)) {
        return WorkerExitBroken;
    }
    heartbeat();
    while (true) {
        const QByteArray line = jobs.readLine(MaximumLine);
        if (line.isEmpty()) {
            return WorkerExitDone;
        }
        const std::optional<Job> job = jobFromLine(line);
        if (!job) {
            return WorkerExitBroken;
        }
        FileResult result = handler(*job, heartbeat);
        result.memory = memoryHeld();
        if (!answers.send(lineOf(result))) {
            return WorkerExitDone;
        }
    }
}

} // namespace archive
