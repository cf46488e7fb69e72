// A worker, and a coordinator that can be killed:
//   archive_test_program worker MIB
//   archive_test_program confined MIB      a worker in its sandbox
//   archive_test_program coordinate IN OUT WORKERS [resume]

#include "archive/input_list.h"
#include "archive/memory_limit.h"
#include "archive/run.h"
#include "archive/stop_signals.h"
#include "tests/archive/hostile_worker.h"
#include "tests/archive/test_worker.h"

#include <QCoreApplication>

#include <cstdio>

namespace {
using namespace Qt::StringLiterals;

archive::RunSettings settingsFrom(const QStringList& arguments)
{
    archive::RunSettings settings;
    settings.targets = {u"png"_s};
    settings.outputFolder = arguments.at(1);
    settings.workers = arguments.at(2).toInt();
    settings.isResuming = arguments.contains(u"resume"_s);
    settings.keepsJournal = true;
    settings.limits = {0, 512};
    settings.command = {QCoreApplication::applicationFilePath(), {u"worker"_s, u"512"_s}};
    return settings;
}

int coordinate(const QStringList& arguments)
{
    archive::InputRequest request;
    request.arguments = QStringList{arguments.at(0)};
    request.suffixes = QStringList{u"cnv"_s};
    const archive::InputList list = archive::listInputs(request);
    archive::Run run(list.inputs, settingsFrom(arguments), [](const archive::Delivery& delivery) {
        if (!delivery.isResumed) {
            std::printf("%s\n", qPrintable(delivery.written.join(u' ')));
            std::fflush(stdout);
        }
    });
    if (!run.open().isEmpty()) {
        return 1;
    }
    archive::StopSignals signalsToStop;
    QObject::connect(&signalsToStop, &archive::StopSignals::stopRequested, &run,
                     [&run](int times) { times == 1 ? run.stop() : run.stopAtOnce(); });
    QObject::connect(&run, &archive::Run::finished, QCoreApplication::instance(),
                     &QCoreApplication::quit, Qt::QueuedConnection);
    run.start();
    QCoreApplication::exec();
    return run.isStopped() ? 130 : 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const QString mode = arguments.isEmpty() ? QString() : arguments.takeFirst();
    if (mode == "worker"_L1 || mode == "confined"_L1) {
        archive::limitMemory(arguments.value(0).toInt());
        // Workers with faults leave marks next to their files, which a sandbox forbids.
        const archive::Confine leaveFree = [](const auto&) { return sandbox::Confinement{}; };
        return mode == "confined"_L1 ? archive::runWorker(&misbehave)
                                     : archive::runWorker(&simulateFault, leaveFree);
    }
    return mode == "coordinate"_L1 && arguments.size() >= 3 ? coordinate(arguments) : 2;
}
