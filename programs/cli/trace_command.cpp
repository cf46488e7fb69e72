#include "cli/subcommands.h"
#include "console/file_name.h"
#include "console/output.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstring>
#include <vector>

#include <unistd.h>

namespace cli {

using namespace Qt::StringLiterals;

int runTrace(const QStringList& arguments)
{
    const QFileInfo self(QFile::symLinkTarget(u"/proc/self/exe"_s));
    const QByteArray program = QFile::encodeName(self.dir().filePath(u"labelport-trace"_s));

    // The other program shows its own name as this command.
    std::vector<QByteArray> words{"labelport trace"};
    for (const QString& argument : arguments) {
        words.push_back(console::fileNameToBytes(argument));
    }
    std::vector<char*> argv;
    for (QByteArray& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);

    ::execv(program.constData(), argv.data());
    console::printMessage(
        QCoreApplication::translate("cli::TraceCommand", "Cannot run \"%1\": %2.")
            .arg(QString::fromLocal8Bit(program), QString::fromLocal8Bit(std::strerror(errno))));
    return console::ExitFailure;
}

} // namespace cli
