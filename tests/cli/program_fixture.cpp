#include "tests/cli/program_fixture.h"

QString sample(const char* name)
{
    return QStringLiteral(LABELPORT_SAMPLES "/") + QString::fromLatin1(name);
}

QStringList words(const char* line)
{
    return QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts);
}

Outcome LabelportProgram::labelport(const QStringList& arguments, const QStringList& environment,
                                    const QByteArray& input)
{
    return run(QStringLiteral(LABELPORT_PROGRAM), arguments, environment, input);
}

Outcome LabelportProgram::labelportWithoutSandbox(const QStringList& arguments)
{
    return run(QStringLiteral(LABELPORT_WITHOUT_SANDBOX),
               QStringList{QStringLiteral(LABELPORT_PROGRAM)} + arguments, {}, {});
}

Outcome LabelportProgram::run(const QString& program, const QStringList& arguments,
                              const QStringList& environment, const QByteArray& input)
{
    QProcess process;
    process.setProcessEnvironment(QProcessEnvironment());
    process.setEnvironment(environment);
    process.setWorkingDirectory(m_folder.path());
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120'000)) {
        ADD_FAILURE() << "the program does not end";
        process.kill();
        process.waitForFinished();
        return {};
    }
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    const QByteArray out = process.readAllStandardOutput();
    return {process.exitCode(), QString::fromUtf8(out),
            QString::fromUtf8(process.readAllStandardError()), out};
}

QString LabelportProgram::write(const QString& name, const QByteArray& bytes)
{
    QDir().mkpath(QFileInfo(path(name)).path());
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path(name);
}

QByteArray LabelportProgram::read(const QString& name)
{
    QFile file(path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    return file.readAll();
}

void LabelportProgram::copy(const char* sampleName, const char* name)
{
    QFile file(sample(sampleName));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    write(QString::fromLatin1(name), file.readAll());
}
