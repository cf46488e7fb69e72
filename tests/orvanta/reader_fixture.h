#pragma once

#include "orvanta/legacy_orvanta.h"
#include "tests/orvanta/printing.h"
#include "tests/support/captured_log.h"
#include "tests/support/test_host/test_host.h"

#include <QDomDocument>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <memory>

using namespace Qt::Literals::StringLiterals;

/// A reader on a host that accepts every drawing as a symbol of 10 by 10, with an empty log.
class ReaderFixture : public ::testing::Test
{
protected:
    ReaderFixture();
    ~ReaderFixture() override;

    /// Reads the objects of XML text, inserted unchanged under `controls`.
    void readControls(const QByteArray& objects);
    /// Writes bytes to a file and imports it.
    bool import(const QByteArray& fileBytes);
    /// Returns the calls since the last takeCalls().
    QStringList takeCalls();
    /// The calls to one target, in order, without its name.
    [[nodiscard]] QStringList callsOf(const char* target) const
    {
        return host.callsOn(QString::fromLatin1(target));
    }
    /// The messages of the log, one per line.
    [[nodiscard]] QString logText() const;
    [[nodiscard]] QString filePath() const { return m_folder.filePath(u"a.qmtx"_s); }

    TestHost host;
    CapturedLog log;
    std::unique_ptr<LegacyOrvanta> reader;

private:
    QTemporaryDir m_folder;
};
