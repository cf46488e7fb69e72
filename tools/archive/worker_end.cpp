#include "archive/worker_end.h"

#include <QCoreApplication>

#include <csignal>
#include <cstring>

namespace archive {
using namespace Qt::StringLiterals;
namespace {

struct WorkerEndTr
{
    Q_DECLARE_TR_FUNCTIONS(archive::WorkerEnd)
};

/// "SIGABRT", in every language.
QString signalName(int number)
{
    const char* name = ::sigabbrev_np(number);
    return name != nullptr ? u"SIG"_s + QLatin1String(name) : QString::number(number);
}

} // namespace

FileOutcome outcomeOf(const WorkerEnd& end)
{
    if (end.isOutOfMemory()) {
        return FileOutcome::OutOfMemory;
    }
    return end.kind == WorkerEnd::TimedOut ? FileOutcome::TimedOut : FileOutcome::Crashed;
}

QString messageFor(const WorkerEnd& end, const WorkerLimits& limits)
{
    if (end.isOutOfMemory()) {
        return WorkerEndTr::tr("The file needs more than %1 MiB of memory; see --memory-limit.")
            .arg(limits.memoryMiB);
    }
    switch (end.kind) {
    case WorkerEnd::TimedOut:
        return QCoreApplication::translate("archive::WorkerEnd",
                                           "The file made no progress for %n second(s); see "
                                           "--timeout.",
                                           nullptr, limits.timeoutSeconds);
    case WorkerEnd::Signaled:
        if (end.code == SIGSYS) {
            return WorkerEndTr::tr(
                "The import was stopped twice because it tried something that its sandbox "
                "forbids. Do not trust the file, and please report it.");
        }
        return end.code == SIGKILL
                   ? WorkerEndTr::tr(
                         "The worker process was killed twice; perhaps the machine is out of "
                         "memory.")
                   : WorkerEndTr::tr(
                         "The import crashed twice (%1). If a larger --memory-limit does not help, "
                         "please report the file.")
                         .arg(signalName(end.code));
    case WorkerEnd::Garbled:
        return WorkerEndTr::tr(
            "The worker process sent an invalid reply twice; please report the file.");
    case WorkerEnd::NotStarted:
    case WorkerEnd::Exited:
        break;
    }
    return WorkerEndTr::tr(
               "The worker process exited twice with status %1; please report the file.")
        .arg(end.code);
}

void nameMemoryLimit(FileResult& result, const WorkerLimits& limits)
{
    if (result.outcome == FileOutcome::OutOfMemory) {
        result.errors = {messageFor({WorkerEnd::Exited, WorkerExitOutOfMemory}, limits)};
    }
}

} // namespace archive
