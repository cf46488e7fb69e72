#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <system_error>

using namespace Qt::Literals::StringLiterals;

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
    QByteArray bytes; ///< standard output
};

/// A sample label of the project: "orvanta/asset_tag.qmtx".
[[nodiscard]] QString sample(const char* name);

/// The words of a line that has no quoting.
[[nodiscard]] QStringList words(const char* line);

/// A folder of its own for each test, and the program run in it with an empty environment.
class LabelportProgram : public ::testing::Test
{
protected:
    // QTemporaryDir cannot remove names that are not UTF-8.
    ~LabelportProgram() override
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder.path().toStdString(), ignored);
    }

    Outcome labelport(const QStringList& arguments, const QStringList& environment = {},
                      const QByteArray& input = {});

    /// The same on a kernel that offers no sandbox.
    Outcome labelportWithoutSandbox(const QStringList& arguments);

    QString path(const QString& name) const { return m_folder.filePath(name); }
    /// Writes a file, and the folders above it.
    QString write(const QString& name, const QByteArray& bytes);
    QByteArray read(const QString& name);
    bool has(const char* name) const { return QFileInfo::exists(path(QLatin1String(name))); }
    /// Copies a sample under a name.
    void copy(const char* sampleName, const char* name);

private:
    Outcome run(const QString& program, const QStringList& arguments,
                const QStringList& environment, const QByteArray& input);

    QTemporaryDir m_folder;
};

/// An archive of four good files, a damaged one, and one that is not a label.
class ImportArchive : public LabelportProgram
{
protected:
    void SetUp() override
    {
        copy("opendocument/sample_vial.odg", "old/vial.odg");
        copy("orvanta/asset_tag.qmtx", "old/tags/asset.qmtx");
        copy("orvanta/warning_sign.qmtx", "old/tags/more/sign.QMTX");
        copy("tavrel/shelf_label_2000021.roc", "old/tags/shelf.roc");
        write(u"old/readme.txt"_s, "no label");
    }

    QStringList import(const char* arguments)
    {
        return words("import --dpi 40") + words(arguments);
    }
};
