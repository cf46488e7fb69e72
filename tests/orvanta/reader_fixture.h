#pragma once

#include "orvanta/legacy_orvanta.h"
#include "tests/orvanta/fake_host.h"
#include "tests/orvanta/printing.h"
#include "tests/support/captured_log.h"

#include <QDomDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

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
    CapturedLog log;
    std::unique_ptr<LegacyOrvanta> reader;

private:
    QTemporaryDir m_folder;
};
