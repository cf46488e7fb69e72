#include "printing/print_queue.h"

#include <QCoreApplication>
#include <QProcess>
#include <QRegularExpression>

namespace printing {
using namespace Qt::StringLiterals;
namespace {

struct PrintQueueTr
{
    Q_DECLARE_TR_FUNCTIONS(printing::PrintQueue)
};

// A printer server in a network may be slow, or not reply at all.
constexpr int TimeoutMilliseconds = 60'000;

struct Answer
{
    QString out;
    QString error; ///< user-visible
};

QString lastLine(const QByteArray& text)
{
    const QStringList lines = QString::fromUtf8(text).split(u'\n', Qt::SkipEmptyParts);
    return lines.isEmpty() ? QString() : lines.last().trimmed();
}

Answer runCommand(const QString& program, const QStringList& arguments)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LC_ALL"_s, u"C.UTF-8"_s); // the replies are parsed
    process.setProcessEnvironment(environment);
    process.start(program, arguments, QIODevice::ReadOnly);
    if (!process.waitForStarted()) {
        return {{},
                PrintQueueTr::tr("Cannot run \"%1\". Install the client commands of CUPS.")
                    .arg(program)};
    }
    if (!process.waitForFinished(TimeoutMilliseconds)) {
        process.kill();
        process.waitForFinished();
        return {{}, PrintQueueTr::tr("The print server does not reply.")};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
        const QString reason = lastLine(process.readAllStandardError());
        return {{}, reason.isEmpty() ? PrintQueueTr::tr("\"%1\" failed.").arg(program) : reason};
    }
    return {QString::fromUtf8(process.readAllStandardOutput()), {}};
}

} // namespace

QString customMedia(const QSizeF& size)
{
    const auto number = [](double length) {
        static const QRegularExpression zeros(u"\\.?0+$"_s);
        return QString::number(length, 'f', 2).remove(zeros);
    };
    return u"Custom.%1x%2mm"_s.arg(number(size.width()), number(size.height()));
}

Submission submit(const PrintRequest& request)
{
    QStringList arguments;
    if (!request.printer.isEmpty()) {
        arguments << u"-d"_s << request.printer;
    }
    // A printer's default may be to scale documents to its paper.
    arguments << u"-t"_s << request.title << u"-o"_s << u"media="_s + request.media << u"-o"_s
              << u"print-scaling=none"_s << u"--"_s << request.file;
    const Answer answer = runCommand(u"lp"_s, arguments);
    if (!answer.error.isEmpty()) {
        return {{}, answer.error};
    }
    // no translation: what the command prints
    static const QRegularExpression reply(u"request id is (\\S+)"_s);
    return {reply.match(answer.out).captured(1), {}};
}

Printers findPrinters()
{
    const Answer names = runCommand(u"lpstat"_s, {u"-e"_s});
    if (!names.error.isEmpty()) {
        return {{}, {}, names.error};
    }
    Printers printers;
    printers.names = names.out.split(u'\n', Qt::SkipEmptyParts);
    // no translation: what the command prints
    static const QRegularExpression reply(u"system default destination: (\\S+)"_s);
    printers.usual = reply.match(runCommand(u"lpstat"_s, {u"-d"_s}).out).captured(1);
    return printers;
}

} // namespace printing
