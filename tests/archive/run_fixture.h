#pragma once

#include "archive/run.h"
#include "tests/archive/test_folder.h"

using namespace Qt::Literals::StringLiterals;

/// Runs archives in a folder of its own: inputs below "in", outputs below "out".
class RunFixture : public ::testing::Test
{
protected:
    RunFixture();

    /// Writes an input whose content names the fault that the worker simulates.
    void input(const QString& name, const QByteArray& content);

    /// Imports all inputs. What became of each comes as lines: "outcome name: output output",
    /// with what went wrong behind it.
    QStringList run();

    QByteArray output(const QString& name) const { return folder.read(u"out/"_s + name); }
    /// All files of the output folder that are not outputs, without journals.
    QStringList unexpectedFiles() const;

    TestFolder folder;
    archive::RunSettings settings;
    QList<archive::Input> inputs;
    QStringList warnings; ///< of the last run
    archive::Progress progress;
    QList<QJsonObject> reports;
};
