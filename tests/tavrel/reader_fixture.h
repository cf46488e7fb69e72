#pragma once

#include "host/services/tal_message_box.h"
#include "tavrel/legacy_tavrel.h"
#include "tests/support/captured_log.h"
#include "tests/tavrel/fake_host.h"
#include "tests/tavrel/fake_services.h"
#include "tests/tavrel/label_file.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tavrel_test {

/// A reader, its host, and a folder for its files.
class ReaderTest : public testing::Test
{
protected:
    ReaderTest()
    {
        services.linearCodes = {20};
        services.matrixCodes = {55};
        services.databases[QStringLiteral("symbols.db")][QStringLiteral("arrow.svg")] = "30x20";
    }

    bool import(const QByteArray& bytes) { return reader.importLabelFromFile(written(bytes)); }
    bool import(const LabelFile& label) { return import(label.bytes()); }

    QString written(const QByteArray& bytes)
    {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return path;
    }

    /// The text of the only box; empty if there is none.
    [[nodiscard]] QString boxText() const
    {
        EXPECT_LE(services.boxes.size(), 1);
        return services.boxes.isEmpty() ? QString() : services.boxes.first().text;
    }
    /// The logged errors.
    [[nodiscard]] QStringList errors() const
    {
        QStringList all;
        for (const CapturedLog::Record& record : log.records()) {
            if (record.level == Logger::Error) {
                all.append(record.message);
            }
        }
        return all;
    }

    FakeServices& services = FakeServices::reset();
    FakeHost fake;
    LegacyTavrel reader{&fake.canvas, &fake.datasources};
    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("label.cnv"));
    CapturedLog log;
};

} // namespace tavrel_test
