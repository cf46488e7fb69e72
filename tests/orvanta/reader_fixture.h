#pragma once

#include "orvanta/legacy_orvanta.h"
#include "tests/orvanta/fake_host.h"
#include "tests/orvanta/printing.h"

#include <AbstractAppender.h>

#include <QDomDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// One log record: "debug legacy_orvanta.cpp: message" and where it came from.
struct LogRecord
{
    Logger::LogLevel level;
    QString source;
    QString function;
    QString message;
};

/// Collects log records while it lives.
class LogCollector : public AbstractAppender
{
public:
    LogCollector() { Logger::globalInstance()->registerAppender(this); }
    ~LogCollector() override { Logger::globalInstance()->removeAppender(this); }

    QList<LogRecord> records;

protected:
    void append(const QDateTime&, Logger::LogLevel level, const char* file, int,
                const char* function, const QString&, const QString& message) override
    {
        records.append({level, QString::fromLatin1(file), QString::fromLatin1(function), message});
    }
};

/// A reader on the fake host, with an empty journal and an empty log.
class ReaderFixture : public ::testing::Test
{
protected:
    ReaderFixture();
    ~ReaderFixture() override;

    /// Reads the objects of XML text, as they stand under `controls`.
    void readControls(const QByteArray& objects);
    /// Writes bytes to a file and imports it.
    bool import(const QByteArray& fileBytes);
    /// The calls since the last time, and an empty journal.
    QStringList takeCalls();
    /// The calls of one target, in order, without its name.
    [[nodiscard]] QStringList callsOf(const char* target) const;
    /// The messages of the log, one a line.
    [[nodiscard]] QString logText() const;
    [[nodiscard]] QString filePath() const { return m_folder.filePath(QStringLiteral("a.qmtx")); }

    fake::Canvas canvas;
    fake::Datasources datasources;
    LogCollector log;
    std::unique_ptr<LegacyOrvanta> reader;

private:
    QTemporaryDir m_folder;
};
