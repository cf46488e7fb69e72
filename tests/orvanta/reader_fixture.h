#pragma once

#include "orvanta/legacy_orvanta.h"
#include "tests/orvanta/printing.h"
#include "tests/support/captured_log.h"
#include "tests/support/test_host/test_host.h"

#include <QDomDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

/// A reader on a host that takes every drawing for a symbol of 10 by 10, with an empty log.
class ReaderFixture : public ::testing::Test
{
protected:
    ReaderFixture();
    ~ReaderFixture() override;

    /// Reads the objects of XML text, as they stand under `controls`.
    void readControls(const QByteArray& objects);
    /// Writes bytes to a file and imports it.
    bool import(const QByteArray& fileBytes);
    /// The calls since the last time.
    QStringList takeCalls();
    /// The calls of one target, in order, without its name.
    [[nodiscard]] QStringList callsOf(const char* target) const
    {
        return host.callsOn(QString::fromLatin1(target));
    }
    /// The messages of the log, one a line.
    [[nodiscard]] QString logText() const;
    [[nodiscard]] QString filePath() const { return m_folder.filePath(QStringLiteral("a.qmtx")); }

    TestHost host;
    CapturedLog log;
    std::unique_ptr<LegacyOrvanta> reader;

private:
    QTemporaryDir m_folder;
};
