#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <ostream>

/// Texts are shown as texts when a test fails.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << qPrintable(text);
}

/// What came of a program.
struct Outcome
{
    int status = -1;
    QString out;
    QString err;
};

/// A sample label of the project: "orvanta/asset_tag.qmtx".
[[nodiscard]] QString sample(const char* name);

/// The words of a line that has no quoting.
[[nodiscard]] QStringList words(const char* line);

/// A folder of its own for each test, and the program run in it with an empty environment.
class LabelportProgram : public ::testing::Test
{
protected:
    Outcome labelport(const QStringList& arguments, const QStringList& environment = {},
                      const QByteArray& input = {});

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// Writes a file, and the folders above it.
    QString write(const QString& name, const QByteArray& bytes);
    QByteArray read(const QString& name);
    bool has(const char* name) const { return QFileInfo::exists(path(QLatin1String(name))); }
    /// Copies a sample under a name.
    void copy(const char* sampleName, const char* name);

private:
    QTemporaryDir m_folder;
};
