#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <ostream>
#include <system_error>

/// Texts are shown as texts when a test fails.
inline void PrintTo(const QString& text, std::ostream* stream)
{
    *stream << qPrintable(text);
}

/// A folder of its own for each test.
class TestFolder
{
public:
    TestFolder() = default;
    // QTemporaryDir cannot remove names that are not UTF-8.
    ~TestFolder()
    {
        std::error_code ignored;
        std::filesystem::remove_all(m_folder.path().toStdString(), ignored);
    }
    TestFolder(const TestFolder&) = delete;
    TestFolder& operator=(const TestFolder&) = delete;

    QString path(const QString& name = {}) const
    {
        return name.isEmpty() ? m_folder.path() : m_folder.filePath(name);
    }

    /// Writes a file, and the folders above it.
    QString write(const QString& name, const QByteArray& bytes = "x") const
    {
        QDir().mkpath(QFileInfo(path(name)).path());
        QFile file(path(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bytes);
        return path(name);
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    bool has(const QString& name) const { return QFileInfo::exists(path(name)); }

private:
    QTemporaryDir m_folder;
};
