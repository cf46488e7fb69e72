#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// The result of a program.
struct ProgramResult
{
    bool finished = false; ///< false if it crashed or timed out
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

/// Runs a program to its end, with only the given environment.
[[nodiscard]] ProgramResult runProgram(const QString& program, const QStringList& arguments,
                                       const QProcessEnvironment& environment);

/// An environment with only the sanitizers' options.
[[nodiscard]] QProcessEnvironment emptyEnvironment();
