#include "cli/trace_command.h"

#include "cli/exit_status.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>
#include <vector>

#include <unistd.h>

namespace cli {

int runTrace(const QStringList& arguments)
{
    const QFileInfo self(QFile::symLinkTarget(QStringLiteral("/proc/self/exe")));
    const QByteArray program =
        QFile::encodeName(self.dir().filePath(QStringLiteral("labelport-trace")));

    std::vector<QByteArray> words{program};
    for (const QString& argument : arguments) {
        words.push_back(QFile::encodeName(argument));
    }
    std::vector<char*> argv;
    for (QByteArray& word : words) {
        argv.push_back(word.data());
    }
    argv.push_back(nullptr);

    ::execv(program.constData(), argv.data());
    std::perror(program.constData());
    return ExitFailure;
}

} // namespace cli
