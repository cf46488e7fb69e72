#include "bench/measuring.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace bench {

namespace {

// A value of this process's status in the proc file system, in kilobytes.
qint64 statusBytes(const QByteArray& name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith(name + ':')) {
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
        }
    }
    return 0;
}

} // namespace

qint64 peakBytes()
{
    return statusBytes("VmHWM");
}

qint64 currentBytes()
{
    return statusBytes("VmRSS");
}

QString childOutput(const QStringList& arguments)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished(-1);
    if (child.exitStatus() != QProcess::NormalExit || child.exitCode() != 0) {
        qFatal("%s failed", qPrintable(arguments.join(u' ')));
    }
    return QString::fromLatin1(child.readAllStandardOutput()).trimmed();
}

} // namespace bench
