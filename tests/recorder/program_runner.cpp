#include "program_runner.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

ProgramResult runProgram(const QString& program, const QStringList& arguments,
                         const QProcessEnvironment& environment)
{
    constexpr int timeout = 120000;
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments, QIODevice::ReadOnly);
    ProgramResult result;
    result.finished =
        process.waitForFinished(timeout) && process.exitStatus() == QProcess::NormalExit;
    result.status = process.exitCode();
    result.output = process.readAllStandardOutput();
    result.errors = process.readAllStandardError();
    return result;
}

QProcessEnvironment emptyEnvironment()
{
    // An empty process environment would inherit ours.
    QProcessEnvironment environment;
    environment.insert(u"LABELPORT_TEST"_s, u"1"_s);
    const QProcessEnvironment own = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"ASAN_OPTIONS", "LSAN_OPTIONS", "UBSAN_OPTIONS"}) {
        const QString key = QString::fromLatin1(name);
        if (own.contains(key)) {
            environment.insert(key, own.value(key));
        }
    }
    return environment;
}
