#include "bench/measuring.h"

#include <QCoreApplication>
#include <QFile>
#include <QProcess>

namespace bench {

qint64 peakBytes()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    const QByteArrayList lines = status.readAll().split('\n');
    for (const QByteArray& line : lines) {
        if (line.startsWith("VmHWM:")) {
            return line.simplified().split(' ').value(1).toLongLong() * 1024;
        }
    }
    return 0;
}

qint64 childPeak(const QStringList& arguments)
{
    QProcess child;
    child.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    child.start(QCoreApplication::applicationFilePath(), arguments);
    child.waitForFinished(-1);
    bool isNumber = false;
    const qint64 bytes = child.readAllStandardOutput().trimmed().toLongLong(&isNumber);
    if (!isNumber) {
        qFatal("%s gave no number", qPrintable(arguments.join(u' ')));
    }
    return bytes;
}

} // namespace bench
