#include "tests/orvanta/reader_fixture.h"

#include <QFile>

ReaderFixture::ReaderFixture()
{
    journal::lines().clear();
    fake::svgConverts() = true;
    reader = std::make_unique<LegacyOrvanta>(&canvas, &datasources);
}

ReaderFixture::~ReaderFixture()
{
    reader.reset();
    canvas.items.clear();
    EXPECT_EQ(fake::livingItems(), 0) << "an item that was not imported must be deleted";
}

void ReaderFixture::readControls(const QByteArray& objects)
{
    QDomDocument document;
    ASSERT_TRUE(document.setContent("<controls>" + objects + "</controls>"));
    reader->readControls(document.documentElement());
}

bool ReaderFixture::import(const QByteArray& fileBytes)
{
    QFile file(filePath());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(fileBytes);
    file.close();
    return reader->importLabelFromFile(filePath());
}

QStringList ReaderFixture::takeCalls()
{
    QStringList calls;
    calls.swap(journal::lines());
    return calls;
}

QStringList ReaderFixture::callsOf(const char* target) const
{
    const QString start = QString::fromLatin1(target) + QLatin1Char(' ');
    QStringList calls;
    for (const QString& line : std::as_const(journal::lines())) {
        if (line.startsWith(start)) {
            calls.append(line.mid(start.size()));
        }
    }
    return calls;
}

QString ReaderFixture::logText() const
{
    QStringList messages;
    for (const CapturedLog::Record& record : log.records()) {
        EXPECT_EQ(record.level, Logger::Debug);
        EXPECT_EQ(record.source, QStringLiteral("legacy_orvanta.cpp"));
        messages.append(record.message);
    }
    return messages.join(QLatin1Char('\n'));
}
