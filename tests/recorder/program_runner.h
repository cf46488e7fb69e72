#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

/// What came out of a program.
struct ProgramResult
{
    bool finished = false; ///< false when it crashed or never ended
    int status = -1;
    QByteArray output;
    QByteArray errors;
};

/// Runs a program to its end, in the environment that is given and no other.
[[nodiscard]] ProgramResult runProgram(const QString& program, const QStringList& arguments,
                                       const QProcessEnvironment& environment);

/// Nothing but what a sanitizer has to be told.
[[nodiscard]] QProcessEnvironment emptyEnvironment();
