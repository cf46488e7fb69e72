#include "console/standard_input.h"

#include <QCoreApplication>
#include <QTemporaryFile>

#include <cstdio>

namespace console {
namespace {

struct StandardInputTr
{
    Q_DECLARE_TR_FUNCTIONS(console::StandardInput)
};

QString cannotKeep(const QString& reason)
{
    return StandardInputTr::tr("Cannot copy standard input to a temporary file: %1.").arg(reason);
}

} // namespace

QString copyStandardInput(QTemporaryFile& file)
{
    if (!file.open()) {
        return cannotKeep(file.errorString());
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        return StandardInputTr::tr("Cannot read standard input: %1.").arg(input.errorString());
    }
    const QString problem = copyLabel(input, file, MaximumInputBytes);
    if (problem.isEmpty() && input.error() != QFileDevice::NoError) {
        return StandardInputTr::tr("Cannot read standard input: %1.").arg(input.errorString());
    }
    return problem;
}

QString copyLabel(QIODevice& input, QFile& file, qint64 largest)
{
    constexpr qint64 blockSize = 1024 * 1024;
    qint64 total = 0;
    for (QByteArray block = input.read(blockSize); !block.isEmpty();
         block = input.read(blockSize)) {
        total += block.size();
        if (total > largest) {
            return StandardInputTr::tr("Standard input is longer than any label.");
        }
        if (file.write(block) != block.size()) {
            return cannotKeep(file.errorString());
        }
    }
    return file.flush() ? QString() : cannotKeep(file.errorString());
}

} // namespace console
